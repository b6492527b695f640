#!/bin/bash
# The real-window scenarios on a freshly made sample installation, at 100 % and 150 % DPI.
#   prova_finestra.sh NATIVE_BUILD WINDOWS_BUILD WINE_PREFIX [--solo scenario]
set -eu
nativo=$1 windows=$2 prefisso=$3
shift 3
qui=$(dirname "$0")
for dpi in '' 144; do
    dati=$windows/prova_finestra${dpi:+_$dpi}
    rm -rf "$dati"
    radice=$(bash "$qui/../../tools/installa_campione.sh" \
        "$nativo/tools/genera_lavoro/genera_lavoro" "$dati" --lavoro dimo01)
    bash "$qui/esegui_wine.sh" --prefisso "$prefisso" ${dpi:+--dpi $dpi} -- \
        wine "$windows/tests/e2e/prove_e2e.exe" --telva "$windows/telva.exe" --dati "$radice" \
        --foto "$dati/foto" "$@"
done
