#!/bin/bash
# Measures every operation: without a window, natively and in both Windows builds, at a tenth, a third and the whole
# capacity and in three sizes of the picture; and in the real program, both builds, under Wine. Prints the tables.
#   bench/misura.sh [ROUNDS]       (3; the builds take turns, and the best round counts)
# The texts stay in build/misure.
set -eu -o pipefail
cd "$(dirname "$0")/.."
giri=${1:-3} fuori=build/misure
tools/prepara.sh
for preset in nativo x64 x86; do cmake --preset $preset >/dev/null; done
cmake --build build/nativo --target misure genera_lavoro
for preset in x64 x86; do cmake --build build/$preset --target telva misure misure_finestra finestra_vuota; done
rm -rf $fuori
mkdir -p $fuori

installa() { # folder: a job at full capacity; prints its root
    bash tools/installa_campione.sh build/nativo/tools/genera_lavoro/genera_lavoro "$1" \
        --lavoro piena0 --taglia piena
}
radice=$(installa $fuori/piena)
rm $fuori/piena/custom/TelOpzio.txt # the defaults: selected elements with a pen of 4 pixels
etichette=$(installa $fuori/etichette)
printf '%s\r\n' 1 1 1 4 0 1 5 1 1 1 5 5 1 5 1 1 1 1 1 1 1 1 1 1 1 1 0 0 0 0 \
    >$fuori/etichette/custom/TelOpzio.txt

windows() { # x64 or x86, and a command of that build
    local build=$1 con=()
    shift
    [ "$build" = x64 ] || con=(tools/wine32.sh)
    "${con[@]}" bash tests/e2e/esegui_wine.sh --prefisso build/wine${build#x64} --schermo 4200x2500 -- wine "$@" |
        tr -d '\r'
}
for ((giro = 1; giro <= giri; ++giro)); do
    echo "round $giro of $giri" >&2
    build/nativo/bench/misure --cartella $fuori/lavori_nativo >>$fuori/nativo.txt
    for build in x64 x86; do
        windows $build build/$build/bench/misure.exe --cartella $fuori/lavori_$build >>$fuori/$build.txt
    done
    for quadro in 1000x650 2560x1440 3840x2160; do
        for build in x64 x86; do
            windows $build build/$build/bench/misure_finestra.exe --telva build/$build/telva.exe \
                --vuota build/$build/bench/finestra_vuota.exe --quadro $quadro \
                --argomento "|diroot=$radice|" --etichette "|diroot=$etichette|" >>$fuori/finestra_$build.txt
        done
    done
done
python3 bench/tabella.py $fuori | tee $fuori/tabelle.md
