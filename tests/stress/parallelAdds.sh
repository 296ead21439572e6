#!/bin/bash
# Four processes add records to one database at the same time: each record is there, or its call was refused and said
# who has the database.
#   parallelAdds.sh COUNT [FWK]     COUNT records by each; FWK is the program, "fwk" when not told
set -u
count=${1:?COUNT}
fwk=$(realpath "$(command -v "${2:-fwk}")") || exit 2
folder=$(mktemp -d) && cd "$folder" || exit 2
trap 'rm -rf "$folder"' EXIT

add() { # PROCESS
    local number
    for ((number = 1; number <= count; ++number)); do
        "$fwk" add a.fwk "Who=$1" "No=$number" >/dev/null 2>"errors.$1" && echo "$1,$number" >>"stored.$1" && continue
        grep -q '^fwk: a.fwk: it is being changed by ' "errors.$1" && echo "$1" >>refused || cat "errors.$1" >>failed
    done
}

"$fwk" new a.fwk Who:Text No:Number || exit 1
for process in 1 2 3 4; do add $process & done
wait
diff <(sort stored.*) <("$fwk" records a.fwk --csv | tail -n +2 | tr -d '"\r' | sort) || exit 1
echo "$(cat stored.* | wc -l) stored, $(cat refused 2>/dev/null | wc -l) refused"
left=$(find . -name '.?*')
[[ ! -e failed && -z $left ]] || { cat failed; echo "left over: $left"; exit 1; }
