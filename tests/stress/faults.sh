#!/usr/bin/env bash
# Makes every call of the system that a command of fwk makes on its files fail in turn, and asserts after each that
# a file is the old one or a whole new one, that exit code and message tell which, and that nothing crashed.
#   faults.sh FWK FAULTS.so [all]     all: with each of three errors, and not an input/output error alone
set -u
fwk=$(realpath "$1")
faults=$(realpath "$2")
world=$(mktemp -d)
trap 'rm -rf "$world"' EXIT
cd "$world" || exit 1
mkdir home watched
export HOME=$world/home XDG_DATA_HOME=$world/home/data XDG_CONFIG_HOME=$world/home/config

"$fwk" new old.fwk Name:Text Count:Number
for name in Bolt Nut Washer; do "$fwk" add old.fwk "Name=$name" Count=7 >/dev/null; done
chmod 640 old.fwk
printf 'Name,Count\r\nScrew,5\r\n' >rows.csv
"$fwk" export old.fwk -o old.csv || exit 1
wrong=0

complain() {
    echo "$command, $1 at call $at ($(cat hit)): $2" >&2
    head -5 err >&2
    wrong=1
}

prepare() {
    rm -rf watched hit home/data
    mkdir watched
    cp -p old.fwk watched/a.fwk
    cp -p old.fwk watched/present.fwk
    cp rows.csv old.csv watched/
}

# Runs the command on fresh files until it makes no more such calls: ERRNO NAME RESULT SAYS [PATH]. RESULT is the file
# that a success makes, the others stay. What SAYS finds is in the message of each failure.
every() {
    local errno=$1 name=$2 result=$3 says=$4 part=${5-watched}
    prepare
    eval "$command" >out 2>err || { echo "$command: fails by itself" >&2; cat err >&2; wrong=1; return; }
    cp "$result" whole
    local before
    for ((at = 1; at < 5000; ++at)); do
        prepare
        before=missing
        [[ -e $result ]] && before=$(cksum <"$result")
        (
            export FAULT_PATH=$part FAULT_AT=$at FAULT_ERRNO=$errno FAULT_DONE=$world/hit LD_PRELOAD=$faults
            eval "exec $command"
        ) >out 2>err
        local code=$?
        [[ -e hit ]] || break
        local after=missing
        [[ -e $result ]] && after=$(cksum <"$result")
        if ((code > 1)); then complain "$name" "ends with $code"; fi
        if [[ $after == "$before" && $code == 0 && $before != "$(cksum <whole)" ]]; then
            complain "$name" "is done, as the exit code says, but the file is the old one"
        elif [[ $after != "$before" && $code != 0 ]]; then
            complain "$name" "has failed, as the exit code says, but the file is another"
        elif [[ $after != "$before" ]] && ! isWhole "$result"; then
            complain "$name" "the new file is damaged"
        fi
        if ((code == 1)); then
            grep -q "^fwk: watched/" err || complain "$name" "the message names no file"
            grep -q "$says" err || complain "$name" "the message does not say what the system said"
            [[ $name == ENOSPC ]] || ! grep -q "disk may be full" err ||
                complain "$name" "the message speaks of a full disk"
        elif [[ $part != watched ]]; then
            [[ $(<hit) == close || ! -s err ]] || grep -q "$says" err || complain "$name" "the message does not say why"
        fi
        cmp -s watched/a.fwk old.fwk || [[ $result == watched/a.fwk ]] || complain "$name" "the database has changed"
    done
    printf '%-55s %-7s %4d calls\n' "$command" "$name" $((at - 1))
    ((at > 3)) || { echo "$command: too few calls were seen" >&2; wrong=1; }
}

isWhole() {
    case $1 in
    *.fwk) "$fwk" check "$1" >checked 2>&1 || { cat checked >&2; false; } ;;
    *) cmp -s "$1" whole ;;
    esac
}

f='"$fwk"'
for fault in 5:EIO:"Input/output error" \
    ${3:+28:ENOSPC:"disk may be full\|No space left" 13:EACCES:"Permission denied\|read-only"}; do
    IFS=: read -r errno name says <<<"$fault"
    command="$f add watched/a.fwk Name=1" && every "$errno" "$name" watched/a.fwk "$says"
    command="$f save-as watched/a.fwk watched/new.fwk" && every "$errno" "$name" watched/new.fwk "$says"
    command="$f save-as watched/a.fwk watched/present.fwk --yes" && every "$errno" "$name" watched/present.fwk "$says"
    command="$f clone watched/a.fwk watched/new.fwk" && every "$errno" "$name" watched/new.fwk "$says"
    command="$f export watched/a.fwk -o watched/old.csv" && every "$errno" "$name" watched/old.csv "$says"
    command="$f import watched/new.fwk watched/rows.csv" && every "$errno" "$name" watched/new.fwk "$says"
    command="$f add watched/a.fwk Name=1" && every "$errno" "$name" watched/a.fwk "$says\|no version kept" home/data
done
exit $wrong
