#!/bin/bash
# The same random sequences in several builds of the native tests: every list and every pixel must agree.
#   impronte.sh SEEDS PROGRAM... (a .exe runs under the Wine that is first in PATH)
set -eu
export TELVA_IMPRONTA=1 TELVA_SEMI=$1
shift
prima=''
for programma in "$@"; do
    avvio=()
    [[ $programma != *.exe ]] || avvio=(wine)
    ora=$("${avvio[@]}" "$programma" --gtest_filter='*Sequenze*' | tr -d '\r' | sed -n 's/^impronta //p')
    echo "$programma: ${ora:-no answer}"
    [ -n "$ora" ] && [ "$ora" = "${prima:=$ora}" ] || { echo 'impronte.sh: the builds differ' >&2; exit 1; }
done
