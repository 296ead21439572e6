#!/usr/bin/env bash
# Runs clang-tidy with the project's rules.
#   scripts/tidy.sh [BUILD]            over src/
#   scripts/tidy.sh --changed [BUILD]  over the sources that differ from origin's main branch
# BUILD is a configured and built folder (default build/release), which says how each source is compiled.
set -euo pipefail
cd "$(dirname "$(readlink -f "${BASH_SOURCE[0]}")")/.."

changed_only=false
if [[ ${1-} == --changed ]]; then
    changed_only=true
    shift
fi
build=${1:-build/release}
if [[ ! -f $build/compile_commands.json ]]; then
    echo "tidy.sh: $build is not built" >&2
    exit 2
fi

files=(src/)
if $changed_only && base=$(git merge-base origin/HEAD HEAD 2>/dev/null); then
    mapfile -t files < <(git diff --name-only --diff-filter=d "$base" -- 'src/**.cpp')
    if ((${#files[@]} == 0)); then
        echo "No source has changed."
        exit 0
    fi
fi

# What moc and rcc make is not ours to mend.
patterns=()
for file in "${files[@]}"; do patterns+=("^$PWD/${file//./\\.}"); done
# The build's warning flags are those of another compiler.
exec run-clang-tidy-14 -quiet -j "$(nproc)" -p "$build" \
    -extra-arg=-Wno-unknown-warning-option -extra-arg=-Wno-error "${patterns[@]}"
