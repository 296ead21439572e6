#!/usr/bin/env bash
# Times searches and a replacement at 32,000 records x 10 columns beside sqlite3 doing the same on the same
# table in memory, and tells whether each is within its limit: bench/search.sh [BUILD] [RUNS]
# BUILD is a built release folder (default build/release), RUNS how often each is timed (default 11).
# Times are medians of processor time, which neither of the two shares among threads.
set -euo pipefail

project=$(dirname "$(readlink -f "${BASH_SOURCE[0]}")")/..
build=$(readlink -f "${1:-$project/build/release}")
runs=${2:-11}

"$project/scripts/install-packages.sh" bench
for program in "$build/src/fwk" "$build/bench/ferrowick_bench"; do
    if [[ ! -x $program ]]; then
        echo "search.sh: $program is not built; run: cmake --preset release && cmake --build --preset release --target all benchmarks" >&2
        exit 2
    fi
done

scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
"$build/src/fwk" records "$project/tests/data/packages-32000.fwk" --csv >"$scratch/table.csv"

"$build/bench/ferrowick_bench" --benchmark_filter='^(find|replaceInAllColumns)' --benchmark_format=csv \
    --benchmark_repetitions="$runs" --benchmark_report_aggregates_only=true --benchmark_min_time=0.1 \
    >"$scratch/ours.csv" 2>"$scratch/error.txt" || { cat "$scratch/error.txt" >&2 && exit 1; }

# The results become a table, as the window shows them in a list. Dates are compared as yyyymmdd.
day="substr(Since,7,4)||substr(Since,1,2)||substr(Since,4,2)"
library="instr(upper(Description),'LIBRARY')>0"
declare -A statements=(
    [find/within]="CREATE TEMP TABLE found AS SELECT * FROM t WHERE $library;"
    [find/nearlyAll]="CREATE TEMP TABLE found AS SELECT * FROM t WHERE instr(upper(Description),'E')>0;"
    [find/threeGroups]="CREATE TEMP TABLE found AS SELECT * FROM t WHERE $library
        AND CAST(Installed_KB AS REAL)>=100 AND $day BETWEEN '19950101' AND '20101231';"
)
# Words stand between blanks; sqlite3 has no test for them but to put blanks around.
replacement=
for column in Package Section Version Installed_KB Bytes Maintainer Since Fee Megabytes Description; do
    replacement+=${replacement:+,}"$column=trim(replace(' '||$column||' ',' library ',' collection '))"
done
statements[replaceInAllColumns]="UPDATE t SET $replacement;"

# The median of one statement in milliseconds. What a run leaves behind is undone outside its time.
theirs() {
    {
        echo ".import --csv $scratch/table.csv t"
        for ((run = 0; run < runs; ++run)); do
            printf '%s\n' "SAVEPOINT s;" ".timer on" "${statements[$1]}" ".timer off" "ROLLBACK TO s;" "RELEASE s;"
        done
    } | sqlite3 :memory: | awk '/^Run Time/ { print ($6 + $8) * 1000 }' | sort -n | awk '{ t[NR] = $1 } END { print t[int((NR + 1) / 2)] }'
}

failed=0
printf '%-24s %12s %12s %7s  %-8s\n' "" Ferrowick sqlite3 ratio limit
for case in find/within:20 find/nearlyAll:- find/threeGroups:30 replaceInAllColumns:100; do
    name=${case%:*}
    limit=${case#*:}
    ours=$(awk -F, -v name="\"${name}_median\"" '$1 == name { print $4 }' "$scratch/ours.csv")
    [[ -n $ours ]] || { echo "search.sh: no time for $name" >&2 && exit 1; }
    verdict=$(awk -v a="$ours" -v limit="$limit" 'BEGIN { print limit == "-" ? "" : a < limit ? "PASS" : "FAIL" }')
    [[ $verdict != FAIL ]] || failed=1
    awk -v name="$name" -v a="$ours" -v b="$(theirs "$name")" -v limit="$limit" -v verdict="$verdict" 'BEGIN {
        printf "%-24s %9.2f ms %9.2f ms %7.2f  < %-4s %s\n", name, a, b, a / b, limit == "-" ? "" : limit " ms", verdict }'
done
exit $failed
