#!/bin/bash
# Four processes add records to one database at the same time: each record is there, or its call was refused and said
# who has the database.
#   parallelAdds.sh COUNT [FWK]     COUNT records by each; FWK is the program, "fwk" when not told
set -u
count=${1:?COUNT}
fwk=$(realpath "$(command -v "${2:-fwk}")") || exit 2
folder=$(mktemp -d) || exit 2
trap 'rm -rf "$folder"' EXIT
cd "$folder" || exit 2

add() { # PROCESS
    local number
    for ((number = 1; number <= count; ++number)); do
        if "$fwk" add a.fwk "Who=$1" "No=$number" >/dev/null 2>"errors.$1"; then
            echo "$1,$number" >>"stored.$1"
        elif grep -q '^fwk: a.fwk: it is being changed by ' "errors.$1"; then
            echo "$1,$number" >>"refused.$1"
        else
            echo "$1,$number: $(cat "errors.$1")" >>failed
        fi
    done
}

"$fwk" new a.fwk Who:Text No:Number || exit 1
begin=$SECONDS
for process in 1 2 3 4; do add $process & done
wait
if [[ -e failed ]]; then
    cat failed
    exit 1
fi
cat stored.* | sort >expected
"$fwk" records a.fwk --csv | tail -n +2 | tr -d '"\r' | sort >found
if ! diff expected found; then
    echo "what was stored (<) is not what the database has (>)"
    exit 1
fi
refused=$(cat refused.* 2>/dev/null | wc -l)
stored=$(wc -l <found)
echo "$stored stored, $refused refused, $((SECONDS - begin)) s"
left=$(find . -name '.?*')
[[ -z $left && $((stored + refused)) -eq $((4 * count)) ]] || { echo "left over: $left"; exit 1; }
