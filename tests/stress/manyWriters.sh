#!/bin/bash
# Four processes make one database and add records to it at the same time, and some of the calls are killed at a random
# moment. What a call has stored is there, and nothing else but what a killed one may have stored; the other calls were
# refused and said who has the database. It is whole, and what the killed ones leave behind holds up nobody.
#   manyWriters.sh COUNT KILLS [FWK]     COUNT calls by each process, of which KILLS percent are killed
set -u
count=${1:?COUNT} kills=${2:?KILLS}
fwk=$(realpath "$(command -v "${3:-fwk}")") || exit 2
folder=$(mktemp -d) && cd "$folder" || exit 2
trap 'rm -rf "$folder"' EXIT

write() { # PROCESS
    local number
    { echo Name; seq -f "$1 row %g" 100; } >"table.$1"
    "$fwk" import a.fwk "table.$1" >/dev/null 2>>failed && tail -n +2 "table.$1" >>stored
    for ((number = 1; number <= count; ++number)); do
        "$fwk" add a.fwk "Name=$1 $number" >/dev/null 2>"errors.$1" &
        ((RANDOM % 100 < kills)) && sleep "0.0$((RANDOM % 5))$((RANDOM % 10))" && kill -KILL $! 2>/dev/null
        wait $! 2>/dev/null
        case $? in
        0) echo "$1 $number" >>stored ;;
        137) echo "$1 $number" >>killed ;;
        *) grep '^fwk: a.fwk: it is being changed by ' "errors.$1" >>refused || cat "errors.$1" >>failed ;;
        esac
    done
}

touch stored killed refused failed
for process in 1 2 3 4; do write $process & done
wait
# What was left beside the database goes with a later save, when it is old enough to be nobody's work.
find . -name '.a.fwk.*' -exec touch -d '2 minutes ago' {} +
"$fwk" add a.fwk Name=Last --wait 0 >/dev/null && echo Last >>stored
"$fwk" check a.fwk >>failed && unzip -tq a.fwk >/dev/null || echo "damaged" >>failed
"$fwk" records a.fwk --csv | tail -n +2 | tr -d '"\r' | sort >there
{ comm -23 <(sort stored) there; comm -13 <(sort stored killed) there; find . -name '.?*'; } >>failed
echo "$(wc -l <stored) stored, $(wc -l <killed) killed, $(wc -l <refused) refused; lost, too many or wrong:"
cat failed
[[ ! -s failed && (-s killed || $kills -eq 0) ]] # or the kills came too late to show anything
