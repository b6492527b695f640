#!/bin/bash
# Lays out a sample installation with its job in a folder, as the program will see it under Wine.
#   installa_campione.sh GENERATOR FOLDER [more options of the generator]
set -eu
generatore=$1 cartella=$2
shift 2
radice="z:$(realpath -m "$cartella" | tr / '\\')"
mkdir -p "$cartella"
"$generatore" --cartella "$cartella" --radice "$radice" "$@" >/dev/null
cp "$(dirname "$0")/../resources/font/font.001" "$cartella/progra/"
echo "$radice"
