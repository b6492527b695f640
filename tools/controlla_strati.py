#!/usr/bin/env python3
"""Checks that includes go one way only, that Windows headers stay in src/platform/win32, and that
no source file has grown beyond 600 lines."""
import pathlib
import re
import sys

RADICE = pathlib.Path(__file__).resolve().parent.parent / "src"
# A folder or file may include what has the same rank or a lower one.
RANGHI = [("platform/", 0), ("startup/avvio", 6), ("startup/", 1), ("ui/controlli/", 1),
          ("model/", 2), ("view/", 3), ("selection/", 4), ("ui/", 5), ("main", 7)]
INCLUDE = re.compile(r'^\s*#\s*include\s*(["<])([^">]+)[">]', re.M)
WINDOWS = re.compile(r"^(windows|windowsx|commctrl|uxtheme|winver|shellapi|dwmapi)\.h$")


def rango(nome):
    return next(valore for inizio, valore in RANGHI if nome.startswith(inizio))


def difetti(file):
    nome = file.relative_to(RADICE).as_posix()
    testo = file.read_text(encoding="utf-8")
    if testo.count("\n") > 600:
        yield f"{nome}: more than 600 lines"
    for virgoletta, incluso in INCLUDE.findall(testo):
        if WINDOWS.match(incluso) and not nome.startswith("platform/win32/"):
            yield f"{nome}: Windows header {incluso}"
        if virgoletta != '"':
            continue
        if not (RADICE / incluso).is_file():
            yield f"{nome}: {incluso} is not a path below src/"
        elif nome.startswith("platform/win32/principale"):
            continue  # the entry point of the process calls the program
        elif rango(incluso) > rango(nome):
            yield f"{nome}: includes {incluso} of a higher layer"
        elif incluso.startswith("platform/win32/") and not nome.startswith("platform/win32/"):
            yield f"{nome}: includes {incluso} of the window system"


tutti = [d for f in sorted(RADICE.rglob("*")) if f.suffix in (".h", ".cpp") for d in difetti(f)]
print("\n".join(tutti) if tutti else "layers: clean")
sys.exit(1 if tutti else 0)
