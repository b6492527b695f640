#!/bin/bash
# Runs a command with a 32-bit Wine first in its PATH, beside which the 64-bit one may be installed:
# it lives in a small i386 tree of its own in /var/tmp, made once and kept. Needs root.
#   tools/wine32.sh bash tests/e2e/prova_finestra.sh build/prove build/x86 build/wine-x86
#   tools/wine32.sh --prepara     only makes the tree; says why where it cannot be made
#   tools/wine32.sh --pronto      only tells by its exit code whether it is there
# Exit code 125: this script could not do its part.
set -eu
cd "$(dirname "$0")/.."
qui=$PWD albero=/var/tmp/telva-wine32
muori() { echo "wine32.sh: $*" >&2; exit 125; }

if [ "${1:-}" = --pronto ]; then
    [ "$(id -u)" = 0 ] && [ -f "$albero/.pronto" ]
    exit
fi
[ "$(id -u)" = 0 ] || muori 'must be root'
mkdir -p "$albero"
(
    flock 9
    [ ! -f "$albero/.pronto" ] || exit 0
    command -v debootstrap >/dev/null || muori 'debootstrap is not installed'
    . /etc/os-release
    rm -rf "$albero/radice"
    debootstrap --arch=i386 --variant=minbase --include=wine,wine32 "$VERSION_CODENAME" "$albero/radice" \
        >"$albero/registro.txt" 2>&1 || { tail -n 5 "$albero/registro.txt" >&2; muori 'debootstrap failed'; }
    # It finds its own parts through /proc.
    unshare -m bash -c 'mount --rbind /proc "$1/proc" && exec chroot "$1" wine --version' - "$albero/radice" \
        >/dev/null 2>&1 || muori 'this machine runs no 32-bit program'
    : >"$albero/.pronto"
) 9>"$albero.lock"
[ "${1:-}" != --prepara ] || exit 0

mkdir -p "$albero/bin" "$albero/radice$qui"
for nome in wine wineserver; do
    nuovo=$(mktemp "$albero/bin/XXXXXX")
    printf '#!/bin/sh\nexec chroot "%s/radice" env -C "$PWD" %s "$@"\n' "$albero" $nome >"$nuovo"
    chmod 755 "$nuovo"
    mv "$nuovo" "$albero/bin/$nome"
done
# In a mount namespace of its own: nothing stays mounted behind it.
export WINEARCH=win32 PATH=$albero/bin:$PATH
exec unshare -m bash -c '
    for cartella in /proc /dev /tmp "$1"; do mount --rbind "$cartella" "$2$cartella"; done
    shift 2
    exec "$@"' - "$qui" "$albero/radice" "$@"
