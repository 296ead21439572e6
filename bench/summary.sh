#!/usr/bin/env bash
# Times summaries by two columns at 32,000 records x 10 columns beside GROUP BY of sqlite3 on the same table in
# memory, and tells whether each is within its limit and ahead: bench/summary.sh [BUILD] [RUNS]
# BUILD is a built release folder (default build/release), RUNS how often each is timed (default 11).
# Times are medians of processor time, which neither of the two shares among threads.
set -euo pipefail

project=$(dirname "$(readlink -f "${BASH_SOURCE[0]}")")/..
build=$(readlink -f "${1:-$project/build/release}")
runs=${2:-11}

"$project/scripts/install-packages.sh" bench
for program in "$build/src/fwk" "$build/bench/ferrowick_bench"; do
    if [[ ! -x $program ]]; then
        echo "summary.sh: $program is not built; run: cmake --preset release && cmake --build --preset release --target all benchmarks" >&2
        exit 2
    fi
done

scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
"$build/src/fwk" records "$project/tests/data/packages-32000.fwk" --csv >"$scratch/table.csv"

"$build/bench/ferrowick_bench" --benchmark_filter='^summarise' --benchmark_format=csv \
    --benchmark_repetitions="$runs" --benchmark_report_aggregates_only=true --benchmark_min_time=0.1 \
    >"$scratch/ours.csv" 2>"$scratch/error.txt" || { cat "$scratch/error.txt" >&2 && exit 1; }

# Dates are grouped as yyyy, or as they are; amounts lose their sign and their commas. The groups become a table, in
# their order.
fee="CAST(replace(replace(Fee,'\$',''),',','') AS REAL)"
figures="count(*), sum(CAST(Bytes AS INTEGER)), avg($fee), min($fee), max($fee)"
declare -A statements=(
    [summarise/byYear]="CREATE TEMP TABLE found AS SELECT Section, substr(Since,7,4) AS y, $figures FROM t
        GROUP BY Section, y ORDER BY upper(Section), y;"
    [summarise/byDay]="CREATE TEMP TABLE found AS SELECT Section, Since, $figures FROM t
        GROUP BY Section, Since ORDER BY upper(Section), substr(Since,7,4)||substr(Since,1,2)||substr(Since,4,2);"
)

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
limit=100
for name in summarise/byYear summarise/byDay; do
    ours=$(awk -F, -v name="\"${name}_median\"" '$1 == name { print $4 }' "$scratch/ours.csv")
    [[ -n $ours ]] || { echo "summary.sh: no time for $name" >&2 && exit 1; }
    sqlite=$(theirs "$name")
    verdict=$(awk -v a="$ours" -v b="$sqlite" -v limit="$limit" 'BEGIN { print a < limit && a < b ? "PASS" : "FAIL" }')
    [[ $verdict != FAIL ]] || failed=1
    awk -v name="$name" -v a="$ours" -v b="$sqlite" -v limit="$limit" -v verdict="$verdict" 'BEGIN {
        printf "%-24s %9.2f ms %9.2f ms %7.2f  < %-4s %s\n", name, a, b, a / b, limit " ms", verdict }'
done
exit $failed
