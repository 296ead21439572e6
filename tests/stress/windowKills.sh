#!/usr/bin/env bash
# Kills a window that types and saves, again and again: no archive may be damaged, and what was saved must be there.
#   windowKills.sh FERROWICK COUNT
# It needs Xvfb and xdotool, and ends with 77 where they are missing.
set -uo pipefail
program=$1 count=$2
command -v Xvfb >/dev/null && command -v xdotool >/dev/null && command -v unzip >/dev/null || exit 77

folder=$(mktemp -d)
window='' server=''
finish() {
    [[ -n $window ]] && kill -9 "$window" 2>/dev/null
    [[ -n $server ]] && kill "$server" 2>/dev/null
    rm -rf "$folder"
}
trap finish EXIT
export HOME=$folder XDG_CONFIG_HOME=$folder/config XDG_DATA_HOME=$folder/data XDG_STATE_HOME=$folder/state
export XDG_RUNTIME_DIR=$folder QT_QPA_PLATFORM=xcb QT_SCALE_FACTOR=1
mkdir -p "$XDG_CONFIG_HOME/ferrowick"
printf '[StartUp]\nDisclaimer=True\n' >"$XDG_CONFIG_HOME/ferrowick/ferrowick.conf"
Xvfb -noreset -displayfd 3 -screen 0 1200x800x24 3>"$folder/display" 2>/dev/null &
server=$!
for _ in {1..100}; do [[ -s $folder/display ]] && break || sleep 0.1; done
DISPLAY=:$(<"$folder/display")
export DISPLAY

database=$folder/books.fwk
cp "$(dirname "$0")/../../samples/inventory.fwk" "$database"
isWhole() { unzip -tq "$1" >"$folder/unzip" 2>&1 || { cat "$folder/unzip" >&2; return 1; }; }
seen=0 offered=0
for ((i = 1; i <= count; ++i)); do
    "$program" "$database" 2>>"$folder/messages" &
    window=$!
    for _ in {1..100}; do
        id=$(xdotool search --all --onlyvisible --pid "$window" --name '^Ferrowick' 2>/dev/null | head -1)
        [[ -n $id ]] && break || sleep 0.05
    done
    sleep 0.3
    box=$(xdotool search --all --onlyvisible --pid "$window" --name '^Restore' 2>/dev/null | head -1)
    if [[ -n $box ]]; then
        ((++offered))
        xdotool windowfocus "$box" key Return # restores the work of the one before
        sleep 0.3
    fi
    xdotool windowfocus "$id" key ctrl+Next
    # Types into one field after the other, presses Update in the bar of the page, and saves; each third only types,
    # and waits until that is kept for recovery, or nearly so.
    saving='ctrl+s' least=0.5
    ((i % 3 == 0)) && saving='' least=2
    (while :; do
        xdotool windowfocus "$id" key Tab || break
        xdotool type --delay 2 "x$i" && xdotool key shift+F6 Right Right Return $saving || break
        [[ -n $saving ]] || break
    done) 2>/dev/null &
    typist=$!
    sleep "$(awk -v seed="$i$RANDOM" -v least=$least 'BEGIN { srand(seed); print least + 1.5 * rand() }')"
    kill -9 "$window"
    wait "$window" 2>/dev/null
    kill "$typist" 2>/dev/null
    wait "$typist" 2>/dev/null
    window=''
    isWhole "$database" || { echo "damaged by kill $i" >&2; exit 1; }
    for copy in "$folder"/state/ferrowick/recovery/*.fwk; do
        [[ ! -e $copy ]] || isWhole "$copy" || { echo "a copy is damaged by kill $i" >&2; exit 1; }
    done
    [[ $(unzip -p "$database" data.dat) == *"x$i"* ]] && ((++seen))
done
echo "$count kills, $seen times the last words were saved, $offered times unsaved work was offered"
# Without any save, on a machine that is too slow for it, nothing was tested.
((seen > 0)) || exit 77
