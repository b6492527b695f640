#!/bin/bash
# What ./test leaves out because it takes long: more random sequences in every build, the real window ten
# times in a row, and the long scenarios. Run ./test first: nothing is built here.
set -eu
cd "$(dirname "$0")/.."
passo() { printf '\n== %s\n' "$*"; }
wine64=(bash tests/e2e/esegui_wine.sh --prefisso build/wine --)
wine32=(tools/wine32.sh bash tests/e2e/esegui_wine.sh --prefisso build/wine-x86 --)

passo 'The same lists and pixels in both bitnesses'
"${wine64[@]}" bash tests/impronte.sh 150 build/prove/tests/prove_telva build/x64/tests/prove_telva.exe |
    tee build/impronte64.txt
"${wine32[@]}" bash tests/impronte.sh 150 build/prove/tests/prove_telva build/x86/tests/prove_telva.exe |
    tee build/impronte32.txt
for giro in 1 2 3 4 5 6 7 8 9 10; do
    passo "Real window, run $giro of 10"
    bash tests/e2e/prova_finestra.sh build/prove build/x64 build/wine
    tools/wine32.sh bash tests/e2e/prova_finestra.sh build/prove build/x86 build/wine-x86
done
for scenario in lungo_centomila_comandi lungo_ucciso_mentre_scrive; do
    passo "$scenario"
    "${wine64[@]}" wine build/x64/tests/e2e/prove_e2e.exe --telva build/x64/telva.exe \
        --dati "z:$(realpath build/x64/prova_finestra_1600x1000 | tr / '\\')" --solo $scenario
done
passo 'Random sequences, 3000 seeds'
TELVA_SEME=1000 TELVA_SEMI=3000 build/prove/tests/prove_telva --gtest_filter='*Sequenze*'
