#!/bin/bash
# Kills fwk at random moments of its work. The database is whole after each kill, as it was before or as it would be
# after, and nothing that is left behind holds up the next command.
#   kills.sh COUNT [FWK [SEED]]     FWK is the program, "fwk" when not told
set -u
count=${1:?COUNT}
fwk=$(realpath "$(command -v "${2:-fwk}")") || exit 2
RANDOM=${3:-$$}
folder=$(mktemp -d) || exit 2
trap 'rm -rf "$folder"' EXIT
cd "$folder" || exit 2

fail() {
    echo "$1 (round $round: ${act[*]})"
    exit 1
}

text() { # FILE: a checksum of what it says
    unzip -p "$1" data.dat | cksum
}

{
    echo Name,No,Place
    for ((i = 1; i <= 400; ++i)); do echo "Bolt $i,$((i * 7919 % 401)),Shelf"; done
} >table.csv
"$fwk" import start.fwk table.csv >/dev/null || exit 1
cp start.fwk a.fwk

# How long an undisturbed run takes, so that the kills fall into it.
begin=$(date +%s%N)
for i in 1 2 3 4 5; do "$fwk" sort start.fwk Name; done
usual=$((($(date +%s%N) - begin) / 5000))

before=0 after=0 killed=0
for ((round = 1; round <= count; ++round)); do
    case $((RANDOM % 4)) in
    0) act=(add a.fwk "Name=Nut $round" No=5 Place=Box) ;;
    1) act=(sort a.fwk No) ;;
    2) act=(sort a.fwk Name --descending) ;;
    3) act=(replace a.fwk Shelf Box) ;;
    esac
    ((round % 50)) || cp start.fwk a.fwk
    cp a.fwk b.fwk
    old=$(text a.fwk)
    "$fwk" "${act[0]}" b.fwk "${act[@]:2}" >/dev/null || fail "the undisturbed run failed"
    new=$(text b.fwk)

    "$fwk" "${act[@]}" >/dev/null 2>&1 &
    child=$!
    moment=$((usual * (RANDOM % 130) / 100))
    sleep "$(printf '0.%06d' "$moment")"
    kill -KILL $child 2>/dev/null
    wait $child 2>/dev/null
    [[ $? -eq 137 ]] && ((++killed))

    unzip -tq a.fwk >/dev/null 2>&1 || fail "the archive is damaged"
    "$fwk" check a.fwk >/dev/null || fail "the database is damaged"
    found=$(text a.fwk)
    if [[ $found == "$old" ]]; then ((++before)); elif [[ $found == "$new" ]]; then ((++after)); else
        fail "it is neither as before nor as after"
    fi
    "$fwk" "${act[@]}" --wait 0 >/dev/null || fail "what was left over holds up the next command"
done

# What was left beside the database goes with a later save, when it is old enough to be nobody's work.
round=last act=()
find . -name '.a.fwk.*' -exec touch -d '2 minutes ago' {} +
"$fwk" add a.fwk Name=Last >/dev/null || fail "the last run failed"
left=$(find . -name '.?*')
[[ -z $left ]] || fail "left over: $left"
echo "$killed of $count killed in time: $before as before, $((count - before)) as after"
((killed * 10 >= count)) || fail "the kills came too late to show anything"
