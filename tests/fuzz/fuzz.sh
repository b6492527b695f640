#!/bin/bash
# Coverage-guided fuzzing of every reader, of the texts that are typed and of the whole program, one
# target after the other, each for so many seconds; then the table of what was done.
#   tests/fuzz/fuzz.sh [seconds a target [target...]]
# Inputs that reach something new join tests/fuzz/corpus when TIENI=1; one that breaks something is
# left in the build folder (BUILD, build/fuzz), and the exit code is 1.
set -eu
cd "$(dirname "$0")/../.."
secondi=${1:-60}
shift || true
build=${BUILD:-build/fuzz}
corpus=tests/fuzz/corpus
[ $# -gt 0 ] || set -- $(ls $corpus)

tools/prepara.sh pacchetti.txt ../tests/fuzz/pacchetti.txt
cmake --preset fuzz -B "$build" >/dev/null
cmake --build "$build" --target fuzz_telva -- --quiet
export ASAN_OPTIONS=quarantine_size_mb=16:malloc_context_size=8 UBSAN_OPTIONS=print_stacktrace=1
guasti=0
printf '%-14s %10s %8s %6s %8s %s\n' target runs seconds edges slowest findings
for b in "$@"; do
    export BERSAGLIO=$b
    dove=$build/giri/$b
    rm -rf "$dove"
    mkdir -p "$dove/nati" "$dove/semi" "$dove/minimi" "$dove/guasti"
    python3 tests/fuzz/corpus.py unpack "$corpus/$b" "$dove/semi"
    esito=nothing
    nice "$build/tests/fuzz/fuzz_telva" -max_total_time="$secondi" -timeout=1 -rss_limit_mb=512 -max_len=4096 \
        -dict=tests/fuzz/parole.dict -print_final_stats=1 -artifact_prefix="$dove/guasti/" \
        "$dove/nati" "$dove/semi" >"$dove/registro" 2>&1 || esito=$(ls -d "$dove/guasti"/* "$dove/registro" | head -1)
    [ "$esito" = nothing ] || guasti=1
    valore() { sed -n "s/$1/\1/p" "$dove/registro" | tail -1; }
    printf '%-14s %10s %8s %6s %8s %s\n' "$b" "$(valore '^stat::number_of_executed_units: *\(.*\)')" "$secondi" \
        "$(valore '.* cov: \([0-9]*\).*')" "$(valore '^stat::slowest_unit_time_sec: *\(.*\)') s" "$esito"
    [ "${TIENI:-}" = 1 ] && [ "$esito" = nothing ] || continue
    nice "$build/tests/fuzz/fuzz_telva" -merge=1 -use_counters=0 -timeout=1 "$dove/minimi" "$dove/semi" "$dove/nati" 2>/dev/null
    python3 tests/fuzz/corpus.py pack "$dove/minimi" "$corpus/$b"
done
exit $guasti
