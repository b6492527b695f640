#!/usr/bin/env python3
# Names in all sources, and a few real faults (.clang-tidy) in those of the product: those of Windows
# as the 64-bit build has them, all others as the native one. Each file only when it, a header that
# it includes or the rules have changed since it was last found clean.
#   controlla_scrittura.py [NATIVE [WINDOWS]]   (configured builds; default build/prove build/x64)
import concurrent.futures
import hashlib
import json
import os
import re
import subprocess
import sys

RADICE = os.path.dirname(os.path.dirname(os.path.abspath(__file__)))
SOLO_NOMI = ['--checks=-*,readability-identifier-naming', '--extra-arg=-w']
CARTELLE = ('src', 'tests', 'tools', 'bench', 'samples')
CERCA = [os.path.join(RADICE, c) for c in
         ('src', 'tests', 'tests/e2e', 'tools', 'tools/genera_lavoro', 'tools/pilota')]


def leggi(percorso):
    with open(percorso, 'rb') as file:
        return file.read()


def impronta(sorgente):
    byte = leggi(sorgente)
    tutto = hashlib.sha256(leggi(__file__) + leggi(os.path.join(RADICE, '.clang-tidy')) + byte)
    for nome in re.findall(rb'#include "([^"]+)"', byte):
        for cartella in [os.path.dirname(sorgente)] + CERCA:
            intestazione = os.path.join(cartella, nome.decode())
            if os.path.exists(intestazione):
                tutto.update(leggi(intestazione))
                break
    return tutto.hexdigest()


def comandi(costruzione):
    """Source and compiler of all that a build makes of the project's own files."""
    for c in json.loads(leggi(os.path.join(costruzione, 'compile_commands.json'))):
        sorgente = os.path.realpath(os.path.join(c['directory'], c['file']))
        if (sorgente.endswith('.cpp')
                and os.path.relpath(sorgente, RADICE).split(os.sep)[0] in CARTELLE):
            yield sorgente, c['command'].split()[0]


def come_mingw(compilatore):
    """What makes clang read a source as that compiler does."""
    detto = subprocess.run([compilatore, '-v', '-E', '-x', 'c++', os.devnull], text=True, check=True,
                           stdout=subprocess.DEVNULL, stderr=subprocess.PIPE).stderr
    cartelle = detto.split('#include <...>')[1].split('End of search')[0].split('\n')[1:-1]
    # Those of the compiler's own built-ins are clang's to provide.
    cartelle = [c.strip() for c in cartelle if '/include/c++' in c or c.endswith('mingw32/include')]
    return ['--extra-arg=--target=x86_64-w64-mingw32'] + [f'--extra-arg=-isystem{c}' for c in cartelle]


def da_guardare(nativa, windows):
    """Build and further arguments by source."""
    tutti = {sorgente: (nativa, []) for sorgente, _ in comandi(nativa)}
    altri = {s: c for s, c in comandi(windows) if s not in tutti}
    argomenti = come_mingw(next(iter(altri.values()))) if altri else []
    return tutti | {sorgente: (windows, argomenti) for sorgente in altri}


def controlla(sorgente, costruzione, argomenti):
    if not sorgente.startswith(os.path.join(RADICE, 'src') + os.sep):
        argomenti = argomenti + SOLO_NOMI
    esito = subprocess.run(
        ['clang-tidy', '-p', costruzione, '--quiet', '--extra-arg=-Wno-unknown-warning-option',
         *argomenti, sorgente], stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, text=True, check=False)
    return esito.returncode, esito.stdout


def main():
    nativa, windows = [os.path.join(RADICE, c) for c in
                       sys.argv[1:] + ['build/prove', 'build/x64'][len(sys.argv) - 1:]]
    memoria = os.path.join(nativa, 'scrittura.json')
    puliti = json.loads(leggi(memoria)) if os.path.exists(memoria) else {}
    tutti = da_guardare(nativa, windows)
    da_fare = [s for s in sorted(tutti) if puliti.get(s) != impronta(s)]
    errori = 0
    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as operai:
        esiti = operai.map(lambda s: controlla(s, *tutti[s]), da_fare)
        for sorgente, (codice, detto) in zip(da_fare, esiti):
            if codice == 0:
                puliti[sorgente] = impronta(sorgente)
            else:
                errori += 1
                print(detto or f'{sorgente}: cannot be read')
    with open(memoria, 'w', encoding='utf-8') as file:
        json.dump(puliti, file)
    print(f'writing: {len(da_fare)} files of {len(tutti)} looked at, {errori} to be mended')
    return 1 if errori else 0


if __name__ == '__main__':
    sys.exit(main())
