#!/usr/bin/env python3
"""Checks that includes go one way only, that no files include each other in a ring, that Windows
headers stay in their folders, that no file has grown beyond 600 lines, that the architecture page
names every module of the product, and what controlla_casa.py counts."""
import pathlib
import re
import sys

import controlla_casa

RADICE = pathlib.Path(__file__).resolve().parent.parent
# A file may include what has the same rank or a lower one. Of several rows that fit, the longest
# beginning counts.
RANGHI = {"src/platform/": 0, "src/startup/": 1, "src/ui/controlli/": 1, "src/model/": 2,
          "src/view/": 3, "src/selection/": 4, "src/ui/": 5, "src/startup/avvio": 6, "src/main": 7,
          "tools/": 8, "samples/": 8, "bench/": 9, "tests/": 9, "tools/pilota/scenari_": 10}
# Where an included name may stand, besides the folder of the file that includes it.
CERCA = ["src", "tests", "tests/e2e", "tools", "tools/genera_lavoro", "tools/pilota"]
FINESTRE = ("src/platform/win32/", "tools/pilota/", "tests/e2e/", "bench/", "samples/")
PRODOTTO = "src/"
RIGHE = 600
INDICE = RADICE / "docs/architettura.md"
INCLUDE = re.compile(r'^\s*#\s*include\s*(["<])([^">]+)[">]', re.M)
WINDOWS = re.compile(r"^(windows|windowsx|commctrl|uxtheme|winver|shellapi|dwmapi)\.h$")


def rango(nome):
    return RANGHI[max((inizio for inizio in RANGHI if nome.startswith(inizio)), key=len)]


def trova(nome, incluso):
    """The project's file behind an include, or None."""
    posti = [] if nome.startswith(PRODOTTO) else [pathlib.PurePosixPath(nome).parent.as_posix()]
    for cartella in posti + CERCA[:1 if nome.startswith(PRODOTTO) else None]:
        if (RADICE / cartella / incluso).is_file():
            return f"{cartella}/{incluso}"
    return None


def difetti(nome, testo, inclusi):
    if testo.count("\n") > RIGHE:
        yield f"{nome}: more than {RIGHE} lines"
    for virgoletta, incluso in INCLUDE.findall(testo):
        if WINDOWS.match(incluso) and not nome.startswith(FINESTRE):
            yield f"{nome}: Windows header {incluso}"
        if virgoletta != '"':
            continue
        posto = trova(nome, incluso)
        if posto is None:
            yield f"{nome}: {incluso} is no file where it looks"
            continue
        inclusi.append(posto)
        if rango(posto) > rango(nome):
            yield f"{nome}: includes {posto} of a higher layer"
        elif posto.startswith("src/platform/win32/") and not nome.startswith("src/platform/win32/"):
            yield f"{nome}: includes {posto} of the window system"


def modulo(nome):
    """A header and its source are one module: what one of them includes, both do."""
    return nome.rsplit(".", 1)[0]


def anelli(inclusi):
    """Every group of modules that include each other in a ring, of any length."""
    archi = {}
    for nome, posti in inclusi.items():
        archi.setdefault(modulo(nome), set()).update(modulo(p) for p in posti)
    raggiunti = {}
    for inizio in archi:
        visti, coda = set(), [inizio]
        while coda:
            nuovi = archi.get(coda.pop(), set()) - visti
            visti |= nuovi
            coda += nuovi
        raggiunti[inizio] = visti - {inizio}
    detti = set()
    for uno, visti in sorted(raggiunti.items()):
        gruppo = {uno} | {altro for altro in visti if uno in raggiunti.get(altro, set())}
        if len(gruppo) > 1 and uno not in detti:
            detti |= gruppo
            yield "ring of includes: " + ", ".join(sorted(gruppo))


tutti, inclusi, sorgenti = [], {}, {}
for cartella in sorted({inizio.split("/")[0] for inizio in RANGHI}):
    for file in sorted((RADICE / cartella).rglob("*")):
        if file.suffix in (".h", ".cpp"):
            nome = file.relative_to(RADICE).as_posix()
            inclusi[nome] = []
            sorgenti[nome] = file.read_text(encoding="utf-8")
            tutti += difetti(nome, sorgenti[nome], inclusi[nome])
tutti += anelli(inclusi)
tutti += controlla_casa.difetti(sorgenti)
indice = INDICE.read_text(encoding="utf-8")
tutti += sorted({f"{INDICE.name} does not say what {m} holds" for m in map(modulo, inclusi)
                 if m.startswith(PRODOTTO) and not re.search(rf"[`/]{m.rsplit('/', 1)[1]}`", indice)})
print("\n".join(tutti) if tutti else "layers and rooms: clean")
sys.exit(1 if tutti else 0)
