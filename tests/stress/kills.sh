#!/bin/bash
# Kills fwk at random moments of its work. The database is whole after each kill, as it was before or as it would be
# after, and nothing that is left behind holds up the next command.
#   kills.sh COUNT [FWK [SEED]]     FWK is the program, "fwk" when not told
set -u
count=${1:?COUNT} before=0 after=0 killed=0
fwk=$(realpath "$(command -v "${2:-fwk}")") || exit 2
RANDOM=${3:-$$}
folder=$(mktemp -d) && cd "$folder" || exit 2
trap 'rm -rf "$folder"' EXIT

fail() { echo "$1 (round $round: ${act[*]})"; exit 1; }
text() { unzip -p "$1" data.dat | cksum; } # FILE: a checksum of what it says

for ((i = 1; i <= 400; ++i)); do echo "Bolt $i,$((i * 79 % 401)),Shelf"; done >table.csv
sed -i '1i Name,No,Place' table.csv
"$fwk" import start.fwk table.csv >/dev/null && cp start.fwk a.fwk || exit 1
# How long an undisturbed run takes, so that the kills fall into it.
begin=$(date +%s%N)
for i in 1 2 3 4 5; do "$fwk" sort start.fwk Name; done
usual=$((($(date +%s%N) - begin) / 5000))

for ((round = 1; round <= count; ++round)); do
    acts=("add a.fwk Name=Nut$round No=5 Place=Box" "sort a.fwk No" "sort a.fwk Name --descending" "replace a.fwk Shelf Box")
    read -ra act <<<"${acts[RANDOM % 4]}"
    ((round % 50)) || cp start.fwk a.fwk
    cp a.fwk b.fwk && "$fwk" "${act[0]}" b.fwk "${act[@]:2}" >/dev/null || fail "the undisturbed run failed"
    old=$(text a.fwk)
    "$fwk" "${act[@]}" >/dev/null 2>&1 &
    sleep "$(printf '0.%06d' $((usual * (RANDOM % 130) / 100)))"
    kill -KILL $! 2>/dev/null
    wait $! 2>/dev/null
    [[ $? -eq 137 ]] && ((++killed))
    unzip -tq a.fwk >/dev/null 2>&1 && "$fwk" check a.fwk >/dev/null || fail "the database is damaged"
    case $(text a.fwk) in
    "$old") ((++before)) ;;
    "$(text b.fwk)") ((++after)) ;;
    *) fail "it is neither as before nor as after" ;;
    esac
    "$fwk" "${act[@]}" --wait 0 >/dev/null || fail "what was left over holds up the next command"
done
# What was left beside the database goes with a later save, when it is old enough to be nobody's work.
find . -name '.a.fwk.*' -exec touch -d '2 minutes ago' {} +
"$fwk" add a.fwk Name=Last >/dev/null && [[ -z $(find . -name '.?*') ]] || fail "something is left over"
echo "$killed of $count killed in time: $before as before, $after as after"
((killed * 10 >= count)) || fail "the kills came too late to show anything"
