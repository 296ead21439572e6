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

# Without the tests and the benchmarks, and with several files compiled as one, the build is quick.
if [[ ! -f $build/build.ninja ]]; then
    cmake -S "$project" -B "$build" -G Ninja -DCMAKE_BUILD_TYPE=Release -DFERROWICK_TESTS=OFF -DFERROWICK_UNITY=ON --log-level=WARNING \
        >/dev/null
fi
[[ -x $build/src/fwk ]] || echo "Building in $build"
if [[ -t 1 ]]; then
    cmake --build "$build" --target ferrowick fwk
elif ! cmake --build "$build" --target ferrowick fwk >"$build/build.log" 2>&1; then
    cat "$build/build.log" >&2
    exit 1
fi

fwk=$build/src/fwk
ferrowick=$build/src/gui/ferrowick

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
QT_QPA_PLATFORM=offscreen "$ferrowick" --picture "$picture" "$file"
echo "The main window, drawn offscreen: $picture"
