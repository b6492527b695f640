#!/usr/bin/env python3
"""corpus.py unpack FILE FOLDER | pack FOLDER FILE: the inputs of a fuzzing target in one file. Of each
its length on a line, its bytes, and a line end."""
import pathlib
import sys

comando, da, a = sys.argv[1], pathlib.Path(sys.argv[2]), pathlib.Path(sys.argv[3])
if comando == "pack":
    voci = sorted({f.read_bytes() for f in da.iterdir()}, key=lambda v: (len(v), v))
    a.write_bytes(b"".join(b"%d\n%s\n" % (len(v), v) for v in voci))
else:
    byte, n = da.read_bytes(), 0
    while byte:
        quanti, byte = byte.split(b"\n", 1)
        (a / str(n)).write_bytes(byte[:int(quanti)])
        byte, n = byte[int(quanti) + 1:], n + 1
