#!/bin/bash
# Runs a command inside a Wine prefix of its own, on a virtual display of its own, and ends both.
#   esegui_wine.sh --prefisso DIR [--dpi 144] [--schermo 1600x1000] -- command args...
# The prefix is made once and kept (DIR, or DIR-dpiN when --dpi is given). The exit code is the
# command's; 125 means that the script itself could not do its part, and says why.
set -u

muori() { echo "esegui_wine.sh: $*" >&2; exit 125; }

prefisso='' dpi='' schermo=1600x1000
while [ $# -gt 0 ]; do
    case $1 in
        --prefisso) prefisso=${2:?}; shift 2 ;;
        --dpi) dpi=${2:?}; shift 2 ;;
        --schermo) schermo=${2:?}; shift 2 ;;
        --) shift; break ;;
        *) muori "unknown option $1" ;;
    esac
done
[ -n "$prefisso" ] || muori '--prefisso is missing'
[ $# -gt 0 ] || muori 'no command after --'

prefisso=$(realpath -m "$prefisso")${dpi:+-dpi$dpi}
mkdir -p "$(dirname "$prefisso")" || muori "cannot make the folder of $prefisso"
xvfb='' comando='' appoggio=$(mktemp -d) || muori 'no temporary folder'

# Two runs in one prefix would share windows and input, and the first to end would stop the other.
exec 9>"$prefisso.lock" || muori "cannot write $prefisso.lock"
flock 9 || muori "cannot lock $prefisso.lock"

export WINEPREFIX=$prefisso WINEARCH=${WINEARCH:-win64} WINEDEBUG=-all
# No .NET, no browser, and no menu entries in the home folder of whoever runs the tests.
export WINEDLLOVERRIDES='mscoree,mshtml=d;winemenubuilder.exe=d'

finisci() {
    trap '' INT TERM HUP
    if [ -n "$comando" ]; then kill "$comando" 2>/dev/null; fi
    if [ -d "$prefisso" ]; then wineserver -k 9>&- 2>/dev/null; wineserver -w 9>&- 2>/dev/null; fi
    if [ -n "$xvfb" ]; then kill "$xvfb" 2>/dev/null; wait "$xvfb" 2>/dev/null; fi
    rm -rf "$appoggio"
}
trap finisci EXIT
trap 'exit 129' HUP
trap 'exit 130' INT
trap 'exit 143' TERM

# The server writes its number into the pipe once it takes connections; if it dies the pipe closes.
mkfifo "$appoggio/numero" || muori 'no named pipe'
Xvfb -displayfd 5 -screen 0 "${schermo}x24" -nolisten tcp -noreset \
    5>"$appoggio/numero" 9>&- >"$appoggio/xvfb.log" 2>&1 &
xvfb=$!
numero=''
read -r -t 30 numero <"$appoggio/numero"
[ -n "$numero" ] || { cat "$appoggio/xvfb.log" >&2; muori 'Xvfb did not start'; }
export DISPLAY=:$numero

registro() { wine reg add "$@" /f >>"$appoggio/prefisso.log" 2>&1 9>&-; }
prepara() {
    rm -rf "$prefisso" && mkdir -p "$prefisso" &&
        wine wineboot -i >>"$appoggio/prefisso.log" 2>&1 9>&- &&
        registro 'HKCU\Software\Wine\X11 Driver' /v Managed /d N &&
        registro 'HKCU\Software\Wine\WineDbg' /v ShowCrashDialog /t REG_DWORD /d 0 &&
        { [ -z "$dpi" ] ||
            registro 'HKCU\Control Panel\Desktop' /v LogPixels /t REG_DWORD /d "$dpi"; } &&
        wineserver -w 9>&- && grep -q '"Managed"="N"' "$prefisso/user.reg" &&
        : >"$prefisso/.pronto"
}
if [ ! -f "$prefisso/.pronto" ]; then
    prepara || { cat "$appoggio/prefisso.log" >&2; muori "cannot make the prefix $prefisso"; }
fi

# In the background, so that a signal to this script is taken while the command runs.
"$@" <&0 9>&- &
comando=$!
wait "$comando"
codice=$?
comando=''
exit "$codice"
