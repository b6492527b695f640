#!/bin/bash
# Runs a command with a 32-bit Wine first in its PATH, beside which the 64-bit one may be installed:
# it lives in a small i386 tree of its own in /var/tmp, made once. Needs root.
#   tools/wine32.sh bash tests/e2e/prova_finestra.sh build/prove build/x86 build/wine-x86
set -eu
cd "$(dirname "$0")/.."
qui=$PWD albero=/var/tmp/telva-wine32
[ "$(id -u)" = 0 ] || { echo 'wine32.sh: must be root' >&2; exit 125; }
if [ ! -f "$albero/.pronto" ]; then
    command -v debootstrap >/dev/null || { apt-get update -q && apt-get install -y -q debootstrap; }
    debootstrap --arch=i386 --variant=minbase --include=wine,wine32 bookworm "$albero/radice"
    : >"$albero/.pronto"
fi
mkdir -p "$albero/bin" "$albero/radice$qui"
for nome in wine wineserver; do
    printf '#!/bin/sh\nexec chroot "%s/radice" env -C "$PWD" %s "$@"\n' "$albero" $nome >"$albero/bin/$nome"
    chmod +x "$albero/bin/$nome"
done
# In a mount namespace of its own: nothing stays mounted behind it.
export WINEARCH=win32 PATH=$albero/bin:$PATH
exec unshare -m bash -c '
    for cartella in /proc /dev /tmp "$1"; do mount --rbind "$cartella" "$2$cartella"; done
    shift 2
    exec "$@"' - "$qui" "$albero/radice" "$@"
