#!/usr/bin/env bash
# Builds Ferrowick as it is released and runs the tests that start its programs; builds it with the address and
# undefined-behaviour sanitizers and runs all the others; then checks the formatting and the style, and fuzzes the readers
# for a while.
#   ./test.sh [--quick]
# --quick  the released build alone, with all tests
# The last line is "N passed, N failed"; a step that is no test counts as one failure when it fails.
set -uo pipefail
cd "$(dirname "$(readlink -f "${BASH_SOURCE[0]}")")" || exit 1

quick=false
fuzz_seconds=15
for argument in "$@"; do
    case $argument in
    --quick) quick=true ;;
    *)
        echo "usage: ./test.sh [--quick]" >&2
        exit 2
        ;;
    esac
done

logs=build/test-logs
mkdir -p "$logs"
passed=0
failed=0
summary=()
closing=()

note() { summary+=("$(printf '%-34s %s' "$1" "$2")"); }
heading() { printf '\n== %s\n' "$1"; }

# A step that is no test: its output is shown as it comes.
step() {
    local name=$1 start=$SECONDS
    shift
    heading "$name"
    if "$@"; then
        note "$name" "ok, $((SECONDS - start)) s"
    else
        note "$name" "FAILED"
        failed=$((failed + 1))
        return 1
    fi
}

build() {
    local preset=$1
    shift
    cmake --preset "$preset" --log-level=WARNING "$@" && cmake --build --preset "$preset" -- -j2 "${quiet[@]}"
}

# The counts come from ctest's closing line, "100% tests passed, 0 tests failed out of 123".
tests() {
    local preset=$1 log=$logs/$1.log start=$SECONDS line broken total
    heading "tests, $preset"
    # Some wait for files that are written, so three share two processors.
    ctest --preset "$preset" -j3 --no-tests=error --timeout 300 | tee "$log"
    line=$(grep -E 'tests passed, [0-9]+ tests? failed out of [0-9]+' "$log" | tail -n 1)
    if [[ $line =~ ,\ ([0-9]+)\ tests?\ failed\ out\ of\ ([0-9]+) ]]; then
        broken=${BASH_REMATCH[1]}
        total=${BASH_REMATCH[2]}
        passed=$((passed + total - broken))
        failed=$((failed + broken))
        closing+=("$preset:" "$(sed -n '/tests passed, /,$p' "$log")")
        note "tests, $preset" "$((total - broken)) of $total passed, $((SECONDS - start)) s"
    else
        failed=$((failed + 1))
        note "tests, $preset" "FAILED: ctest did not come to its end"
    fi
}

check_format() {
    find src tests bench fuzz \( -name '*.h' -o -name '*.cpp' \) -print0 | xargs -0 -n 100 -P 2 clang-format-14 --dry-run -Werror
}

# clang-tidy is loud about what it keeps to itself; only its findings are shown.
check_style() {
    scripts/tidy.sh --quick build/sanitized >"$logs/tidy.log" 2>&1 && return
    grep -E '(error|warning): ' "$logs/tidy.log" | sort -u
    return 1
}

# Starts from the databases of the tests. An input that breaks the program stays in build/sanitized/found-*.
fuzz() {
    local at=build/sanitized
    cmake --build --preset sanitized --target fuzz_corpus -- "${quiet[@]}" || return 1
    local target dictionary failed=0 running=()
    for target in reader archive tables; do
        mkdir -p "$at/grown-$target"
        dictionary=reader
        [[ $target != tables ]] || dictionary=tables
        "$at/fuzz/fuzz_$target" -max_total_time="$fuzz_seconds" -timeout=10 -rss_limit_mb=2048 \
            -print_final_stats=1 -verbosity=0 -dict="fuzz/$dictionary.dict" -artifact_prefix="$at/found-$target-" \
            "$at/grown-$target" "$at/corpus-$target" >"$logs/fuzz-$target.log" 2>&1 &
        running+=($!)
    done
    for target in "${running[@]}"; do wait "$target" || failed=1; done
    tail -n 8 "$logs"/fuzz-*.log
    return $failed
}

finish() {
    local line
    heading "Summary"
    for line in "${closing[@]}"; do echo "$line"; done
    echo
    for line in "${summary[@]}"; do echo "$line"; done
    echo
    echo "$passed passed, $failed failed"
    ((failed == 0)) || exit 1
    exit 0
}

quiet=(--quiet)
[[ ! -t 1 ]] || quiet=()

packages=(build run test)
$quick || packages+=(tidy)
step "packages" scripts/install-packages.sh "${packages[@]}" || finish

# Each test runs once: what starts a program as it is released, all else with the sanitizers. Nothing is done twice
# but the rooms and the window, and the hostile tables, whose cost is measured as released.
# Precompiled headers take longer to make than the few files of the programs save by them.
released=(-DFERROWICK_TESTED=programs -DFERROWICK_PCH=OFF)
! $quick || released=(-DFERROWICK_TESTED=all -DFERROWICK_PCH=ON)
step "build, release" build release "${released[@]}" && tests release
if ! $quick; then
    clang=()
    command -v clang++-14 >/dev/null || clang=(-DCMAKE_CXX_COMPILER=g++ -DFERROWICK_FUZZ=OFF)
    step "build, sanitized" build sanitized -DFERROWICK_TESTED=rooms "${clang[@]}" && tests sanitized
    step "formatting" check_format
    step "clang-tidy" check_style
    if command -v clang++-14 >/dev/null; then
        step "fuzzing" fuzz
    else
        note "fuzzing" "skipped, there is no clang++-14"
    fi
fi
finish
