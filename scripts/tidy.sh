#!/usr/bin/env bash
# Runs clang-tidy with the project's rules over src/.
#   scripts/tidy.sh [--quick] [BUILD]
# --quick  what errors of this project have come to light by; the others, and the paths that the analyzer follows, take
#          half as long again
# BUILD is a configured and built folder (default build/sanitized), which says how each source is compiled.
set -euo pipefail
cd "$(dirname "$(readlink -f "${BASH_SOURCE[0]}")")/.."

checks=()
if [[ ${1-} == --quick ]]; then
    quick=(bugprone-{argument-comment,branch-clone,dangling-handle,exception-escape,fold-init-type,inaccurate-erase}
        bugprone-{incorrect-roundings,integer-division,macro-parentheses,string-constructor,suspicious-missing-comma}
        bugprone-{swapped-arguments,undelegated-constructor,unhandled-self-assignment,use-after-move}
        performance-{for-range-copy,inefficient-vector-operation,move-const-arg,unnecessary-copy-initialization}
        readability-{function-cognitive-complexity,function-size,redundant-string-cstr})
    checks=("-checks=-*,$(IFS=, && echo "${quick[*]}")")
    shift
fi
build=${1:-build/sanitized}
if [[ ! -f $build/compile_commands.json ]]; then
    echo "tidy.sh: $build is not built" >&2
    exit 2
fi
scripts/tidy-database.py "$build"
database=$build/tidy
# The build's warning flags may be those of another compiler.
exec run-clang-tidy-14 -quiet -j "$(nproc)" -p "$database" "${checks[@]}" -extra-arg=-Wno-unknown-warning-option \
    -extra-arg=-Wno-error
