#!/usr/bin/env bash
# Every command and option that fwk has stands in its manual, and is offered by the shell.
#   commandsTest.sh FOLDER_OF_FWK SOURCE
set -euo pipefail
PATH=$1:$PATH
page=$2/packaging/man/fwk.1
sample=$2/samples/garden.fwk
# shellcheck source=packaging/completions/fwk.bash
source "$2/packaging/completions/fwk.bash"
compopt() { :; } # there is none outside a completion
failed=0
fail() { echo "$*" >&2; failed=1; }

offered() { # WORD ...: what is offered for the last one
    COMP_WORDS=("$@")
    COMP_CWORD=$(($# - 1))
    _fwk
    printf '%s ' "${COMPREPLY[@]}"
}
expect() { # OFFERED WORD ...
    local offer
    offer=$(offered "${@:2}")
    [[ $offer == "$1" ]] || fail "'${*:2}' is offered '$offer' and not '$1'"
}

commands=$(fwk --help | sed -n '/ommands:$/,/^$/s/^  \([a-z][a-z-]*\) .*/\1/p')
[[ $(wc -w <<<"$commands") -ge 20 ]] || fail "fwk --help is read wrongly: $commands"
expect "$(tr '\n' ' ' <<<"$commands")" fwk ""
for command in $commands; do
    grep -Eq "^\.It Cm $command( |$)" "$page" || fail "the manual has no $command"
    for option in $(fwk "$command" --help | grep -Eo -- '^  --?[a-z-]+(,--[a-z-]+)?' | tr , ' '); do
        [[ $option == -h || $option == --help ]] && continue
        grep -Eq -- "Fl ${option#-}( |$)" "$page" || fail "the manual has no $option, which $command takes"
        [[ " $(offered fwk "$command" -) " == *" $option "* ]] || fail "$command $option is not offered"
    done
done

expect "Latin " fwk sort "$sample" L
expect "Plant= Planted= Plants= Price= Photo= " fwk update "$sample" i1 P
expect "Bed,Cost " fwk records "$sample" --columns Bed,C
expect "within " fwk search "$sample" --where Latin w
expect "No Notes " fwk search "$sample" --where Latin range a b --where No
expect "Currency Calculation " fwk new x.fwk Price : C

# What a file says is data, even to a shell.
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
cd "$folder"
fwk new odd.fwk '$(touch${IFS}evil):Text'
offer=$(offered fwk sort odd.fwk "")
[[ $offer == '\$\(touch\$\{IFS\}evil\) ' ]] || fail "an odd column is offered as $offer"
[[ ! -e evil ]] || fail "a column's name was run"
exit $failed
