#!/bin/bash
# Installs the packages of pacchetti.txt (or of the lists named) that this machine lacks. Silent when
# there is nothing to do.
set -eu
cd "$(dirname "$0")"
mancano=()
while read -r pacchetto; do
    case $pacchetto in '' | '#'*) continue ;; esac
    dpkg-query -W -f '${Status}' "$pacchetto" 2>/dev/null | grep -q 'ok installed' || mancano+=("$pacchetto")
done < <(cat "${@:-pacchetti.txt}")
[ ${#mancano[@]} -gt 0 ] || exit 0
echo "Installing: ${mancano[*]}"
sudo=''
[ "$(id -u)" = 0 ] || sudo=sudo
export DEBIAN_FRONTEND=noninteractive
$sudo apt-get update -q
$sudo apt-get install -y -q --no-install-recommends "${mancano[@]}"
