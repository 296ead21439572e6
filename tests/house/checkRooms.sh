#!/usr/bin/env bash
# The drawing in docs/architecture.md, the libraries in src/CMakeLists.txt and the includes must say the same.
#   checkRooms.sh PROJECT
set -euo pipefail
cd "$1"
drawn=$(sed -nE 's/^    ([a-z]+) +->( .*)?$/\1\2/p' docs/architecture.md | sort)
built=$(sed -nE 's/^ferrowick_room\((.*)\)$/\1/p' src/CMakeLists.txt | sort)
if [[ -z $built ]] || ! diff <(echo "$drawn") <(echo "$built"); then
    echo "docs/architecture.md draws other rooms than src/CMakeLists.txt builds" >&2
    exit 1
fi
faults=0
while read -r room uses; do
    allowed=$(tr ' ' '|' <<<"$room $uses")
    if grep -rnE '^#include "[a-z]+/' "src/$room" | grep -vE "#include \"($allowed)/"; then
        echo "$room includes a room that it may not use" >&2
        faults=1
    fi
done <<<"$built"
exit $faults
