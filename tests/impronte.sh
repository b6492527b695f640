#!/bin/bash
# The same random sequences in several builds of the native tests: every list and every pixel must agree.
#   impronte.sh SEEDS PROGRAM...            (a .exe runs under the Wine that is first in PATH)
# With TELVA_ATTESA they must agree with that value too, which an earlier call has printed.
set -eu
export TELVA_IMPRONTA=1 TELVA_SEMI=$1
shift
prima=${TELVA_ATTESA:-}
for programma in "$@"; do
    avvio=()
    [[ $programma != *.exe ]] || avvio=(wine)
    ora=$("${avvio[@]}" "$programma" --gtest_filter='*Sequenze*' | tr -d '\r' | sed -n 's/^impronta //p')
    echo "$programma: ${ora:-no answer}"
    [ -n "$ora" ] && [ "$ora" = "${prima:=$ora}" ] ||
        { echo "impronte.sh: the builds differ, expected ${prima:-an answer}" >&2; exit 1; }
done
