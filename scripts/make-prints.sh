#!/usr/bin/env bash
# Makes docs/prints/: what fwk prints of each sample on A4 and on Letter, the first two sheets of the report, of the
# layout of the first two records, and of as many labels to a page as fit. Run it again after a change of what is
# printed, and look at the pages.
#
#     scripts/make-prints.sh [FWK]
#
# FWK is the built program; without it the newest of build/*/src/fwk. Needs pdftoppm and ImageMagick; optipng
# makes the pictures smaller where it is there.
set -euo pipefail
cd "$(dirname "$0")/.."

fwk=${1:-$(find build -path '*/src/fwk' -type f -printf '%T@ %p\n' | sort -rn | head -1 | cut -d' ' -f2)}
[[ -x $fwk ]] || { echo "make-prints: build fwk first" >&2; exit 1; }
scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT
out=docs/prints
mkdir -p "$out"
rm -f "$out"/*.png
readonly width=300 sheets=2

print() { # SAMPLE KIND PAPER ARGUMENT ...
    local name=$1-$2-${3,,} sheet
    "$fwk" "${@:4}" --paper "$3" -o "$scratch/$name.pdf"
    local colours=16
    [[ $2 != report ]] || colours=6 # greys
    pdftoppm -png -l $sheets -scale-to-x $width -scale-to-y -1 "$scratch/$name.pdf" "$scratch/$name"
    for sheet in "$scratch/$name"-*.png; do
        # The number of the sheet has as many digits as the last one.
        local number=${sheet##*-}
        convert "$sheet" -strip +dither -colors $colours -define png:compression-level=9 \
            "$out/$name-$((10#${number%.png})).png"
    done
    echo "$name: $(pdfinfo "$scratch/$name.pdf" | awk '/^Pages|^Page size/ {$1 = ""; sub(/^ *size: */, ""); printf "%s ", $0}')"
}

pictures() { # SAMPLE KIND: a row of the table, A4 on the left
    local paper sheet
    for paper in a4 letter; do
        printf '<td>'
        for sheet in "$out/$1-$2-$paper"-*.png; do
            [[ -e $sheet ]] && printf '<img src="%s" width="%s" alt="%s of %s on %s">' "${sheet##*/}" $width "$2" "$1" "$paper"
        done
        printf '</td>'
    done
}

{
    echo "# Prints of the samples"
    echo
    echo "What \`fwk\` prints of each sample on A4 and on Letter, made by \`scripts/make-prints.sh\`."
} >"$out/README.md"
for file in samples/*.fwk; do
    sample=$(basename "$file" .fwk)
    for paper in A4 Letter; do
        print "$sample" report $paper report "$file"
        print "$sample" layout $paper layouts "$file" --records i1,i2
        # Of the others, not two layouts fit on a sheet.
        [[ $sample != addresses ]] || print "$sample" many $paper layouts "$file" --many
    done
    printf '\n## %s\n\n<table>\n<tr><th>A4</th><th>Letter</th></tr>\n' "$sample" >>"$out/README.md"
    for kind in report layout many; do
        compgen -G "$out/$sample-$kind-*.png" >/dev/null || continue
        printf '<tr>%s</tr>\n' "$(pictures "$sample" $kind)" >>"$out/README.md"
    done
    echo '</table>' >>"$out/README.md"
done
if command -v optipng >/dev/null; then optipng -quiet "$out"/*.png; fi
