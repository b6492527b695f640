#!/bin/bash
# Makes the manual's pictures again, from the real program on the sample job: docs/img/manuale_*.png
#   foto_manuale.sh GENERATOR WINDOWS_BUILD WINE_PREFIX [MARLETT.TTF]
# Builds nothing. With MARLETT.TTF (Debian: fonts-wine) the title bar has its signs instead of
# letters. The job lies in c:\telva of the prefix, so that the titles show a caller's usual folder.
set -eu
generatore=$(realpath "$1") windows=$(realpath "$2") prefisso=$(realpath -m "$3") marlett=${4:-}
base=$(realpath "$(dirname "$0")/..")
immagini=$base/docs/img
foto=$(mktemp -d)
trap 'rm -rf "$foto"' EXIT

wine() { bash "$base/tests/e2e/esegui_wine.sh" --prefisso "$prefisso" -- "$@"; }
vista() { echo "z:$(realpath "$1" | tr / '\\')"; }

wine true
telva=$prefisso/drive_c/telva
rm -rf "$telva"
mkdir -p "$telva" "$prefisso/drive_c/windows/Fonts"
if [ -n "$marlett" ]; then cp "$marlett" "$prefisso/drive_c/windows/Fonts/marlett.ttf"; fi
"$generatore" --cartella "$telva" --radice 'c:\telva' --lavoro dimo01 >/dev/null
cp "$base/resources/font/font.001" "$telva/progra/"
wine wine "$windows/tests/e2e/prove_e2e.exe" --telva "$(vista "$windows/telva.exe")" \
    --dati 'c:\telva' --foto "$(vista "$foto")" --solo manuale

# Every colour as it is on the screen.
converti() { # source, name, more options of convert
    local da=$foto/manuale_$1.bmp a=$immagini/manuale_$2.png
    shift 2
    convert "$da" "$@" -strip -define png:color-type=2 -define png:compression-level=9 "$a"
}

# Numbers in circles at the given places of the picture: 1 at the first, 2 at the second...
numeri() {
    local n=0 x y
    segni=()
    for dove; do
        n=$((n + 1)) x=${dove%,*} y=${dove#*,}
        segni+=(-fill '#c00000' -stroke white -strokewidth 1 -draw "circle $x,$y $((x + 11)),$y"
            -stroke none -fill white -font DejaVu-Sans-Bold -pointsize 13
            -annotate "+$((x - 4 * ${#n}))+$((y + 5))" "$n")
    done
}

mkdir -p "$immagini"
rm -f "$immagini"/manuale_*.png
for nome in elenco rettangolo rimuovi menu colore diretta filtri vista opzioni etichette; do
    converti "$nome" "$nome"
done
numeri 420,13 320,33 345,55 455,88 60,140 978,128 978,240 964,325 838,704 930,676 168,727 786,722 420,727
converti elenco finestra "${segni[@]}"
numeri 320,698 16,82
converti diretta restituisci "${segni[@]}"
ls -l "$immagini"/manuale_*.png
