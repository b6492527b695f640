#!/bin/bash
# Measures every operation at a tenth, a third and the whole capacity, natively and in the real program
# under Wine, and prints the table with targets.
#   bench/misura.sh            JSON and texts stay in build/misure
set -eu
cd "$(dirname "$0")/.."
tools/prepara.sh
cmake --preset nativo >/dev/null
cmake --build build/nativo --target misure genera_lavoro
cmake --preset x64 >/dev/null
cmake --build build/x64 --target telva misure_finestra finestra_vuota
fuori=build/misure
mkdir -p $fuori
build/nativo/bench/misure --benchmark_repetitions=5 --benchmark_report_aggregates_only=true \
    --benchmark_min_time=0.2 --benchmark_out=$fuori/nativo.json --benchmark_out_format=json >/dev/null
installa() { # folder: a job at full capacity; prints its root
    rm -rf "$1"
    bash tools/installa_campione.sh build/nativo/tools/genera_lavoro/genera_lavoro "$1" \
        --lavoro piena0 --taglia piena
}
radice=$(installa $fuori/piena)
rm $fuori/piena/custom/TelOpzio.txt # the defaults: selected elements with a pen of 4 pixels
etichette=$(installa $fuori/etichette)
printf '%s\r\n' 1 1 1 4 0 1 5 1 1 1 5 5 1 5 1 1 1 1 1 1 1 1 1 1 1 1 0 0 0 0 \
    >$fuori/etichette/custom/TelOpzio.txt
bash tests/e2e/esegui_wine.sh --prefisso build/wine -- wine build/x64/bench/misure_finestra.exe \
    --telva build/x64/telva.exe --vuota build/x64/bench/finestra_vuota.exe \
    --argomento "|diroot=$radice|" --etichette "|diroot=$etichette|" >$fuori/finestra.txt
python3 bench/tabella.py $fuori/nativo.json $fuori/finestra.txt
