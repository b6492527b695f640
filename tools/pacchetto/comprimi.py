#!/usr/bin/env python3
"""Packs a folder, whose name is the package's first part of every path, into a zip.
   comprimi.py FOLDER ZIP
The same files always give the same bytes: sorted, all of one date, no rights of this machine."""
import pathlib
import sys
import zipfile


def comprimi(cartella, destinazione):
    with zipfile.ZipFile(destinazione, "w") as archivio:
        for file in sorted(p for p in cartella.rglob("*") if p.is_file()):
            nome = file.relative_to(cartella.parent).as_posix()
            if not nome.isascii():
                sys.exit(f"{nome}: only ASCII names unpack alike everywhere")
            voce = zipfile.ZipInfo(nome, date_time=(1980, 1, 1, 0, 0, 0))
            voce.create_system = 0  # a package for Windows, wherever it is made
            voce.external_attr = 0x20
            archivio.writestr(voce, file.read_bytes(), zipfile.ZIP_DEFLATED, 9)


comprimi(pathlib.Path(sys.argv[1]).resolve(), sys.argv[2])
