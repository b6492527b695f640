#!/bin/bash
# The real-window scenarios on a freshly made sample installation: all of them at 100 % and 150 % DPI; those
# that a scale or a screen can change (layout, windows, mouse, dialogs) at 200 % and on a large screen too; that
# nothing is out of reach on a screen smaller than the window would like to be.
#   prova_finestra.sh NATIVE_BUILD WINDOWS_BUILD WINE_PREFIX [--solo scenarios]
# Scenarios: names with commas between them; "mouse_*" stands for all that begin so.
set -eu
nativo=$1 windows=$2 prefisso=$3
shift 3
solo=''
[ "${1:-}" != --solo ] || solo=$2
qui=$(dirname "$0")
sensibili='barre_*,dialogo_*,didascalie_*,finestr*,mouse_*,posto_*'

prova() { # DPI or nothing, screen, scenarios or nothing for all
    local dpi=$1 schermo=$2 scelti=${solo:-$3}
    local dati=$windows/prova_finestra${dpi:+_$dpi}_$schermo radice lavoro
    echo "-- ${dpi:-96} DPI, screen $schermo${scelti:+, $scelti}"
    rm -rf "$dati"
    for lavoro in dimo01 'piena0 --taglia piena'; do
        radice=$(bash "$qui/../../tools/installa_campione.sh" \
            "$nativo/tools/genera_lavoro/genera_lavoro" "$dati" --lavoro $lavoro)
    done
    bash "$qui/esegui_wine.sh" --prefisso "$prefisso" ${dpi:+--dpi $dpi} --schermo "$schermo" -- \
        wine "$windows/tests/e2e/prove_e2e.exe" --telva "$windows/telva.exe" --dati "$radice" \
        --foto "$dati/foto" ${scelti:+--solo "$scelti"}
}
# Each of them runs, whatever the one before has found.
esito=0
prova '' 1600x1000 '' || esito=1
prova 144 1600x1000 '' || esito=1
prova 192 1600x1000 "$sensibili" || esito=1
prova '' 3840x2160 "$sensibili" || esito=1
prova 144 800x600 'finestre_intere,finestra_alla_nascita,posto_impossibile,testo_smisurato' || esito=1
exit $esito
