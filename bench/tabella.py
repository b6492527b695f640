#!/usr/bin/env python3
"""The measurements as tables: targets, native figures by job and by picture, the 64- and the 32-bit program side by
side, without a window and for real; start-up and memory beside those of a bare program."""
import sys
from pathlib import Path

# Which of the two figures of a line: without a window the time of the processor, which no other load spoils.
MEDIANA, PROCESSORE = range(2)
QUADRI = ["1000x650", "2560x1440", "3840x2160"]

TIPI = ["nodi", "aste", "gusci", "elementi"]
DIRETTE, ANTEPRIME = ([f"{nome}/{tipo}" for tipo in TIPI] for nome in ("Diretta", "Anteprima"))

# Row, operations it stands for (the slowest counts), targets in milliseconds without a window and in the real program,
# growth allowed with the picture. A row that one of them has not measured stays out of its table.
RIGHE = [
    ("read all files of the job", ["Lettura"], 15, None, None),
    ("start-up to the first picture", ["Avvio"], 25, None, None),
    ("repaint, nothing selected", ["Ridisegno/niente"], 3.2, 11, 1.6),
    ("repaint, everything selected, pen 4", ["Ridisegno/tutto"], 7, 17, 2),
    ("repaint, every label on", ["Ridisegno/etichette"], 60, 120, None),
    ("rectangle over everything, nodes", ["Rettangolo/nodi"], 12, 24, None),
    ("rectangle over everything, bars", ["Rettangolo/aste"], 12, 24, None),
    ("rectangle over everything, shells", ["Rettangolo/gusci"], 12, 24, None),
    ("rectangle over everything, cont. elements", ["Rettangolo/elementi"], 12, 24, None),
    ("list 1-20000 by name, nodes", ["Lista/nodi"], 12, 24, None),
    ("list 1-20000 by name, bars", ["Lista/aste"], 12, 24, None),
    ("direct pick, slowest kind", DIRETTE, 8, 16, None),
    ("read-out on mouse move", ["Coordinate"], 1, 2, 1.2),
    ("hover preview move", ANTEPRIME, 1, 2, 1.2),
    ("rubber band, one move of a rectangle", ["Elastici/rettangolo"], 0.5, 0.5, 1.2),
    ("rubber band, one move of a line", ["Elastici/linea"], 0.5, None, 1.2),
    ("compact list, names in the worst order", ["ListaCompatta"], 2, None, None),
    ("names to indexes, 2000 x 300 bars", ["Conversione"], 15, None, None),
    ("limit: a move and one pixel painted", ["Mezzo/passaggio"], None, None, None),
    ("limit: a move and two pixels painted, in opposite corners", ["Mezzo/angoli"], None, None, None),
    ("limit: a move and the whole picture painted", ["Mezzo/quadro"], None, None, None),
    ("middle-button drag, one move (60 pictures a second; 30)", ["Trascinamento"], None, 16.7, 2),
    ("middle-button drag, ten moves that wait", ["Trascinamento/dieci"], None, None, None),
    ("wheel, one step (60 pictures a second; 30)", ["Rotella"], None, 16.7, 2),
    ("wheel, ten steps that wait", ["Rotella/dieci"], None, None, None),
    ("limit: clearing the picture", ["Mezzo/pulizia"], None, None, None),
    ("limit: copying the picture once in memory", ["Mezzo/copia"], None, None, None),
    ("limit: the bare lines, pen 1", ["Mezzo/linee"], None, None, None),
    ("limit: the bare lines, pen 4", ["Mezzo/linee4"], None, None, None),
]


class Misure:
    """Best round of every operation, by (operation, job, picture)."""

    def __init__(self, file, colonna):
        self.valori = {}
        for riga in file.read_text(encoding="utf-8").splitlines() if file.exists() else []:
            *chiave, mediana, altra = riga.split()
            chiave = tuple(chiave)
            valore = float({MEDIANA: mediana, PROCESSORE: altra}[colonna])
            self.valori[chiave] = min(valore, self.valori.get(chiave, float("inf")))

    def massimo(self, prove, *resto):
        visti = [self.valori[(p, *resto)] for p in prove if (p, *resto) in self.valori]
        return max(visti) if visti else None


def numero(v):
    if v is None:
        return ""
    return f"{v:.3f}" if v < 0.1 else f"{v:.2f}" if v < 10 else f"{v:.1f}"


def rapporto(a, b):
    return f"{a / b:.2f}" if a and b else ""


def tabella(titoli, righe):
    print("| " + " | ".join(titoli) + " |\n|" + "---|" * len(titoli))
    for riga in righe:
        print("| " + " | ".join(riga) + " |")
    print()


def senza_finestra(cartella):
    nativo, x64, x86 = (Misure(cartella / f"{n}.txt", PROCESSORE) for n in ("nativo", "x64", "x86"))
    righe = []
    for nome, prove, limite, _, cresce in RIGHE:
        lavoro = "invers" if prove == ["ListaCompatta"] else "piena0"
        piccoli = [nativo.massimo(prove, taglia, QUADRI[0]) for taglia in ("decimo", "terzo0")]
        nat, m64, m86 = ([m.massimo(prove, lavoro, q) for q in QUADRI] for m in (nativo, x64, x86))
        if nat[0] is None:
            continue
        righe.append([nome, numero(limite), *map(numero, piccoli), *map(numero, nat),
                      rapporto(nat[2], nat[0]), str(cresce or ""), numero(m64[0]), numero(m86[0]),
                      rapporto(m86[0], m64[0]), numero(m64[2]), numero(m86[2]), rapporto(m86[2], m64[2])])
    tabella(["without a window (ms of the processor)", "target", "1/10", "1/3", "whole", "2560 × 1440", "3840 × 2160", "growth",
             "target", "x64", "x86", "x86 / x64", "x64, 3840 × 2160", "x86", "x86 / x64"], righe)


def differenza(misure, prove, quadro):
    tutto, disegno = misure.massimo(prove, quadro), misure.massimo(["Ridisegno/niente"], quadro)
    return max(tutto - disegno, 0.0) if tutto and disegno else None


def finestra(cartella):
    x64, x86 = (Misure(cartella / f"finestra_{n}.txt", MEDIANA) for n in ("x64", "x86"))
    righe = []
    for nome, prove, _, limite, cresce in RIGHE:
        m64, m86 = ([m.massimo(prove, q) for q in QUADRI] for m in (x64, x86))
        if m86[0] is None:
            continue
        righe.append([nome, numero(limite), *map(numero, m86), rapporto(m86[2], m86[0]), str(cresce or ""),
                      *map(numero, m64), rapporto(m86[0], m64[0]), rapporto(m86[2], m64[2])])
    oltre = [["beside the repaint: " + nome, "2", *map(numero, resti), rapporto(resti[2], resti[0]), "1"]
             for nome, prova in (("direct pick", DIRETTE), ("list by name, nodes", ["Lista/nodi"]))
             if None not in (resti := [differenza(x86, prova, q) for q in QUADRI])]
    righe += [riga + [""] * 5 for riga in oltre]
    tabella(["real program (ms)", "target", "x86, 1000 × 650", "2560 × 1440", "3840 × 2160", "growth", "target",
             "x64, 1000 × 650", "2560 × 1440", "3840 × 2160", "x86 / x64", "at 3840 × 2160"], righe)
    righe = []
    for nome, prova, limite in (("start to the first picture, ms", "avvio", "25"),
                                ("peak memory, MiB", "MemoriaMiB", "16 + the surface")):
        for bit, m in (("x86", x86), ("x64", x64)):
            for q in QUADRI[:1] if prova == "avvio" else QUADRI:
                vera, nuda = (m.massimo([f"{chi}/{prova}"], q) for chi in ("Programma", "Nuda"))
                if vera and nuda:
                    righe.append([f"{nome}, {bit}, {q.replace('x', ' × ')}", numero(nuda), numero(vera),
                                  numero(vera - nuda), limite])
    tabella(["beside a bare program", "bare", "telva.exe", "beyond", "target"], righe)


senza_finestra(Path(sys.argv[1]))
finestra(Path(sys.argv[1]))
