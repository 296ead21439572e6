#!/usr/bin/env bash
# Builds Ferrowick and opens a database: ./run.sh [FILE]
# Without FILE it opens the sample. Without a display it shows the database in the terminal.
set -euo pipefail

project=$(dirname "$(readlink -f "${BASH_SOURCE[0]}")")
build=$project/build/run

case ${1-} in
-h | --help)
    echo "usage: ./run.sh [FILE]    builds Ferrowick and opens FILE, or the sample database"
    exit 0
    ;;
esac
if (($# > 1)); then
    echo "usage: ./run.sh [FILE]" >&2
    exit 2
fi
file=$(realpath -m -- "${1:-$project/samples/garden.fwk}")
if [[ ! -f $file || ! -r $file ]]; then
    echo "run.sh: $file: no such file, or not readable" >&2
    exit 1
fi

"$project/scripts/install-packages.sh" build run

# Without the tests and the benchmarks the build is quick.
if [[ ! -f $build/build.ninja ]]; then
    cmake -S "$project" -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=Release -DFERROWICK_TESTS=OFF --log-level=WARNING
fi
if [[ -t 1 ]]; then
    cmake --build "$build" --target ferrowick fwk
else
    echo "Building in $build"
    cmake --build "$build" --target ferrowick fwk -- --quiet
fi

program() { find "$build/src" -name "$1" -type f -perm -u+x -print -quit; }
fwk=$(program fwk)
ferrowick=$(program ferrowick)

# A window tells nothing about a file that it cannot open; this line does.
"$fwk" info "$file" >/dev/null || exit 1

if [[ -n ${DISPLAY-}${WAYLAND_DISPLAY-} ]]; then
    exec "$ferrowick" "$file"
fi

echo "There is no display, so here is what the terminal can show of $file:"
echo
"$fwk" info "$file"
echo
"$fwk" records "$file" | sed -n '1,12p'
echo
picture=$build/main-window.png
# Settings and work folder of its own: a picture must not change what the user finds next time.
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
XDG_CONFIG_HOME=$scratch XDG_DATA_HOME=$scratch QT_QPA_PLATFORM=offscreen \
    "$ferrowick" --picture "$picture" "$file"
echo "The main window, drawn offscreen: $picture"
