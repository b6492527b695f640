#!/usr/bin/env python3
"""The measurements as one table: target, figure, ratio; growth from a tenth to the whole capacity;
and the same operation in the real program."""
import json
import sys

# Row, benchmarks it stands for (the slowest counts), target in milliseconds.
RIGHE = [
    ("read all files of the job", ["Lettura"], 15),
    ("start-up to the first picture", ["Avvio"], 25),
    ("repaint, nothing selected", ["Ridisegno/niente"], 6),
    ("repaint, everything selected, pen 4", ["Ridisegno/tutto"], 12),
    ("repaint, every label on", ["RidisegnoEtichette"], 60),
    ("rectangle over everything, nodes", ["Rettangolo/nodi"], 12),
    ("rectangle over everything, bars", ["Rettangolo/aste"], 12),
    ("rectangle over everything, shells", ["Rettangolo/gusci"], 12),
    ("rectangle over everything, cont. elements", ["Rettangolo/elementi"], 12),
    ("list 1-20000 by name, nodes", ["Lista/nodi"], 12),
    ("list 1-20000 by name, bars", ["Lista/aste"], 12),
    ("direct pick, slowest kind", ["Diretta/nodi", "Diretta/aste", "Diretta/gusci", "Diretta/elementi"], 8),
    ("read-out on mouse move", ["Coordinate"], 1),
    ("compact list, names in the worst order", ["ListaCompatta"], 2),
    ("names to indexes, 2000 x 300 bars", ["Conversione"], 15),
]


def mediane(file):
    with open(file, encoding="utf-8") as f:
        righe = json.load(f)["benchmarks"]
    return {r["run_name"]: r["real_time"] for r in righe if r.get("aggregate_name") == "median"}


def dal_vero(file):
    with open(file, encoding="utf-8") as f:
        return {nome: float(valore) for nome, valore in (r.split() for r in f if r.strip())}


nativo, vero = mediane(sys.argv[1]), dal_vero(sys.argv[2])
print("| operation (ms, medians) | target | 1/10 | 1/3 | whole | whole / target | real program, limit | figure |")
print("|---|---|---|---|---|---|---|---|")
for nome, prove, limite in RIGHE:
    taglie = [max(nativo[f"{p}/{t}"] for p in prove) for t in range(3)]
    reali = [vero[p] for p in prove if p in vero]
    finestra = f"{2 * limite} | {max(reali):.2f}" if reali else "| "
    print(f"| {nome} | {limite} | " + " | ".join(f"{t:.2f}" for t in taglie) +
          f" | {taglie[2] / limite:.2f} | {finestra} |")
avvio = vero["Programma"] - vero["FinestraVuota"]
print(f"| telva.exe to the first picture, beyond an empty window | | | | | | 150 | {avvio:.0f} |")
print(f"| peak memory of the real program, MiB | | | | | | 40 | {vero['MemoriaMiB']:.1f} |")
