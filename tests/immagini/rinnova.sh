#!/bin/bash
# Takes new pictures to compare with, from what the native tests draw now, and names those that have
# changed. Look at every one of them before they are committed.
#   rinnova.sh [PROGRAM]
set -eu
cd "$(dirname "$0")/../.."
TELVA_RINNOVA=1 "${1:-build/prove/tests/prove_telva}" --gtest_brief=1 --gtest_filter='Immagini.*' |
    sed -n 's/^rinnovata: /tests\/immagini\//p'
