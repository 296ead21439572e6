#!/usr/bin/env bash
# Compares whole processes with what other programs need for the same data, and tells whether each ratio is
# within its limit: bench/ratios.sh [BUILD] [RUNS]
# BUILD is a built release folder (default build/release), RUNS how often each is timed (default 20).
# Times are medians; a machine that does other work meanwhile makes them worthless.
set -euo pipefail

project=$(dirname "$(readlink -f "${BASH_SOURCE[0]}")")/..
build=$(readlink -f "${1:-$project/build/release}")
runs=${2:-20}

"$project/scripts/install-packages.sh" bench
fwk=$build/src/fwk
for program in "$fwk" "$build/bench/make_big_database" "$build/bench/document_memory"; do
    if [[ ! -x $program ]]; then
        echo "ratios.sh: $program is not built; run: cmake --preset release && cmake --build --preset release --target all benchmarks" >&2
        exit 2
    fi
done

scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
cd "$scratch"
failed=0

# The median in milliseconds. Further arguments go to hyperfine.
median() {
    local command=$1
    shift
    hyperfine --shell=none --warmup 2 --runs "$runs" --style none --export-csv time.csv "$@" "$command" >/dev/null 2>error.txt ||
        { cat error.txt >&2 && exit 1; }
    awk -F, 'NR == 2 { printf "%.1f", $(NF - 4) * 1000 }' time.csv
}

row() {
    local what=$1 ours=$2 theirs=$3 limit=$4 unit=$5
    local verdict
    verdict=$(awk -v a="$ours" -v b="$theirs" -v limit="$limit" 'BEGIN { print (a <= b * limit) ? "PASS" : "FAIL" }')
    [[ $verdict == PASS ]] || failed=1
    awk -v what="$what" -v a="$ours" -v b="$theirs" -v limit="$limit" -v unit="$unit" -v verdict="$verdict" \
        'BEGIN { printf "%-46s %8.1f %-2s %8.1f %-2s %6.2f  <= %-4s %s\n", what, a, unit, b, unit, a / b, limit, verdict }'
}

measure() {
    local name=$1 file=$2 column=$3
    local info bytes resident peak save open
    unzip -qo "$file" data.dat
    "$fwk" records "$file" --csv >table.csv
    bytes=$(stat -c %s data.dat)

    info=$(median "$fwk info $file")
    row "$name: info / unzip -p" "$info" "$(median "unzip -p $file data.dat")" 2.5 ms
    row "$name: info / sqlite3 importing CSV" "$info" \
        "$(median "sqlite3 :memory: '.import --csv table.csv records'")" 1 ms
    # A sort changes every row, so that the whole text is written; a save of what has not changed writes nothing.
    cp "$file" original.fwk
    save=$(median "$fwk sort $file $column" --prepare "cp original.fwk $file")
    open=$info
    row "$name: open, sort and save / zip -6" "$save" "$(median "zip -6 -q packed.zip data.dat" --prepare "rm -f packed.zip")" 1.2 ms
    row "$name: sort and save / zip -6" "$(awk -v a="$save" -v b="$open" 'BEGIN { print a - b }')" \
        "$(median "zip -6 -q packed.zip data.dat" --prepare "rm -f packed.zip")" 1.2 ms

    read -r resident peak < <("$build/bench/document_memory" "$file")
    row "$name: open document / data.dat" "$(awk -v a="$resident" 'BEGIN { print a / 1e6 }')" \
        "$(awk -v a="$bytes" 'BEGIN { print a / 1e6 }')" 6 MB
    printf '%-46s %8.1f MB\n' "$name: most memory while opening" "$(awk -v a="$peak" 'BEGIN { print a / 1e6 }')"
}

least() { awk -v a="$1" -v b="$2" 'BEGIN { print (a < b) ? a : b }'; }

# The milliseconds of one run on a copy of the original.
once() {
    cp original.fwk "$1"
    hyperfine --shell=none --runs 1 --style none --export-csv time.csv "$2" >/dev/null 2>error.txt ||
        { cat error.txt >&2 && exit 1; }
    awk -F, 'NR == 2 { print $2 * 1000 }' time.csv
}

# The least times, in turns, so that what else the machine does meets both alike. The column is not totalled in
# the original, so that each run has something to write.
measure_total() {
    local name=$1 file=$2 column=$3
    local info=1e9 total=1e9 run time
    cp "$file" original.fwk
    for ((run = 0; run < runs; ++run)); do
        time=$(once "$file" "$fwk info $file")
        info=$(least "$info" "$time")
        time=$(once "$file" "$fwk total $file $column")
        total=$(least "$total" "$time")
    done
    cp original.fwk "$file"
    row "$name: total / info (least of $runs)" "$total" "$info" 2 ms
}

# The megabytes that a command takes at most.
peak() { /usr/bin/time -f %M -o peak.txt "$@" >/dev/null && awk '{ printf "%.1f", $1 * 1024 / 1e6 }' peak.txt; }

# What a table costs over the open database, beside the bytes of the table.
measure_table_memory() {
    local name=$1 file=$2 kind open table
    "$fwk" export "$file" -o table.csv
    open=$(peak "$fwk" info "$file")
    table=$(stat -c %s table.csv | awk '{ printf "%.1f", $1 / 1e6 }')
    over() { awk -v a="$1" -v b="$open" 'BEGIN { printf "%.1f", a - b }'; }
    for kind in csv xlsx ods json sqlite; do
        row "$name: memory, out as $kind / table" "$(over "$(peak "$fwk" export "$file" -o "table.$kind")")" "$table" 4 MB
        rm -f new.fwk
        row "$name: memory, in from $kind / table" "$(over "$(peak "$fwk" import new.fwk "table.$kind")")" "$table" 4 MB
    done
}

# The records out into a table and in from it, each against the spreadsheet program that writes the same table from
# comma-separated values, or reads it into such.
measure_tables() {
    local name=$1 file=$2 kind out in
    if ! command -v ssconvert >/dev/null; then
        echo "$name: tables / ssconvert: skipped, there is no ssconvert (package gnumeric)"
        return
    fi
    local runs=$((runs < 5 ? runs : 5)) # a run of ssconvert takes seconds
    "$fwk" export "$file" -o table.csv
    out=$(median "$fwk export $file -o again.csv")
    in=$(median "$fwk import new.fwk again.csv" --prepare "rm -f new.fwk")
    row "$name: out and in as csv / ssconvert" "$(awk -v a="$out" -v b="$in" 'BEGIN { print a + b }')" \
        "$(median "ssconvert table.csv other.csv")" 0.5 ms
    for kind in xlsx ods; do
        row "$name: out as $kind / ssconvert" "$(median "$fwk export $file -o table.$kind")" \
            "$(median "ssconvert table.csv other.$kind")" 0.5 ms
        row "$name: in from $kind / ssconvert" "$(median "$fwk import new.fwk table.$kind" --prepare "rm -f new.fwk")" \
            "$(median "ssconvert table.$kind other.csv")" 0.5 ms
    done
}

cp "$project/tests/data/packages-32000.fwk" packages.fwk
chmod u+w packages.fwk
"$build/bench/make_big_database" largest.fwk

printf '%-46s %11s %11s %6s  %-7s\n' "" Ferrowick other ratio limit
measure_total "32000 x 10" packages.fwk Bytes
measure "32000 x 10" packages.fwk Bytes
measure_tables "32000 x 10" packages.fwk
measure_table_memory "32000 x 10" packages.fwk
measure "32767 x 50" largest.fwk Col2
exit $failed
