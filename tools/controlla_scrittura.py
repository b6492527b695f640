#!/usr/bin/env python3
# Names and a few real faults (.clang-tidy) in the portable sources: of each file only when it, a
# header that it includes or the rules have changed since it was last found clean.
#   controlla_scrittura.py [BUILD]   (a configured native build; default build/prove)
import concurrent.futures
import hashlib
import json
import os
import re
import subprocess
import sys

RADICE = os.path.dirname(os.path.dirname(os.path.abspath(__file__)))
SORGENTI = os.path.join(RADICE, 'src')


def leggi(percorso):
    with open(percorso, 'rb') as file:
        return file.read()


def impronta(sorgente):
    byte = leggi(sorgente)
    tutto = hashlib.sha256(leggi(os.path.join(RADICE, '.clang-tidy')) + byte)
    for nome in re.findall(rb'#include "([^"]+)"', byte):
        intestazione = os.path.join(SORGENTI, nome.decode())
        if os.path.exists(intestazione):
            tutto.update(leggi(intestazione))
    return tutto.hexdigest()


def controlla(costruzione, sorgente):
    esito = subprocess.run(
        ['clang-tidy', '-p', costruzione, '--quiet', '--extra-arg=-Wno-unknown-warning-option',
         sorgente], stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, text=True, check=False)
    return esito.returncode, esito.stdout


def main():
    costruzione = os.path.join(RADICE, sys.argv[1] if len(sys.argv) > 1 else 'build/prove')
    comandi = json.loads(leggi(os.path.join(costruzione, 'compile_commands.json')))
    sorgenti = sorted({os.path.realpath(os.path.join(c['directory'], c['file'])) for c in comandi})
    memoria = os.path.join(costruzione, 'scrittura.json')
    puliti = json.loads(leggi(memoria)) if os.path.exists(memoria) else {}
    da_fare = [s for s in sorgenti
               if s.startswith(SORGENTI + os.sep) and puliti.get(s) != impronta(s)]
    errori = 0
    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as operai:
        esiti = operai.map(lambda s: controlla(costruzione, s), da_fare)
        for sorgente, (codice, detto) in zip(da_fare, esiti):
            if codice == 0:
                puliti[sorgente] = impronta(sorgente)
            else:
                errori += 1
                print(detto)
    with open(memoria, 'w', encoding='utf-8') as file:
        json.dump(puliti, file)
    print(f'writing: {len(da_fare)} files looked at, {errori} to be mended')
    return 1 if errori else 0


if __name__ == '__main__':
    sys.exit(main())
