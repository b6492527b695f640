#!/usr/bin/env python3
"""Checks what the system reads in the head of each program: that it asks for Windows 7 or later and is
protected as a program can be, and that it calls nothing that Windows 7 does not have.
  controlla_eseguibili.py PROGRAM.exe..."""
import os
import pathlib
import re
import struct
import subprocess
import sys

# For each library of the system, what the programs call in it; all of it is in Windows 7. Who adds a
# call looks its first version up first. What is newer is asked for at run time (GetProcAddress).
CHIAMATE = pathlib.Path(__file__).with_name("chiamate_windows7.txt")
OBJDUMP = {0x014C: "i686-w64-mingw32-objdump", 0x8664: "x86_64-w64-mingw32-objdump"}
ATTESI = {"MajorOSystemVersion": "6", "MinorOSystemVersion": "1", "MajorSubsystemVersion": "6",
          "MinorSubsystemVersion": "1", "Subsystem": "00000002"}
# DYNAMIC_BASE, NX_COMPAT, TERMINAL_SERVICE_AWARE, and for 64 bit HIGH_ENTROPY_VA
PROTEZIONI, PROTEZIONI_64 = 0x8140, 0x8160
INDIRIZZI_GRANDI = 0x20
BYTE_MASSIMI = 1 << 20
PROTEZIONE_STACK = b"stack smashing detected"


def leggi_chiamate():
    ammesse, libreria = {}, ""
    for riga in CHIAMATE.read_text(encoding="ascii").splitlines():
        if riga.endswith(":"):
            libreria = riga[:-1]
        elif riga.strip():
            ammesse.setdefault(libreria, set()).update(riga.split())
    return ammesse


def macchina(byte):
    """The processor that the program is for."""
    testa = struct.unpack_from("<I", byte, 0x3C)[0]
    return struct.unpack_from("<H", byte, testa + 4)[0]


def importate(testo):
    """Pairs of library (lower case) and function."""
    libreria = ""
    for riga in testo.splitlines():
        if trovata := re.match(r"\tDLL Name: (\S+)", riga):
            libreria = trovata[1].lower()
        elif trovata := re.match(r"\t[0-9a-f]+\s+\d+\s+(\S+)", riga):
            yield libreria, trovata[1]


def difetti(file, ammesse):
    byte = pathlib.Path(file).read_bytes()
    processore = macchina(byte)
    testo = subprocess.run([OBJDUMP[processore], "-p", file], check=True, capture_output=True,
                           text=True, env={**os.environ, "LC_ALL": "C"}).stdout
    campi = dict(re.findall(r"^(\w+)\s+([0-9a-fx]+)", testo, re.M))
    for nome, atteso in ATTESI.items():
        if campi.get(nome) != atteso:
            yield f"{nome} is {campi.get(nome)}, not {atteso}"
    dovute = PROTEZIONI_64 if processore == 0x8664 else PROTEZIONI
    if int(campi["DllCharacteristics"], 16) & dovute != dovute:
        yield f"DllCharacteristics {campi['DllCharacteristics']} lack some of {dovute:08x}"
    if not int(campi["Characteristics"], 16) & INDIRIZZI_GRANDI:
        yield "not large address aware"
    if len(byte) >= BYTE_MASSIMI:
        yield f"{len(byte)} bytes: it is to stay below {BYTE_MASSIMI}"
    if PROTEZIONE_STACK not in byte:
        yield "no stack protector"
    chiamate = set(importate(testo))
    if not chiamate:
        yield "no import table found"
    for libreria, nome in sorted(chiamate):
        if nome not in ammesse.get(libreria, set()):
            yield f"{libreria} {nome} is not on the list of calls that Windows 7 has"


def main():
    ammesse = leggi_chiamate()
    trovati = [f"{file}: {d}" for file in sys.argv[1:] for d in difetti(file, ammesse)]
    print("\n".join(trovati) if trovati else f"{len(sys.argv) - 1} programs: clean")
    return 1 if trovati or len(sys.argv) < 2 else 0


sys.exit(main())
