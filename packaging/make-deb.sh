#!/usr/bin/env bash
# Builds the Debian package of debian/ into build/package/, from a clean clone too. Needs no rights but to install what is
# missing. What is built is a copy of the source as it stands, so that nothing is left behind in it; the same source gives
# the same bytes, wherever it lies, dated by debian/changelog or by SOURCE_DATE_EPOCH.
#   packaging/make-deb.sh [FOLDER]
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
folder=$(realpath -m "${1:-build/package}")
scripts/install-packages.sh build package
umask 022

rm -rf "$folder"
mkdir -p "$folder/ferrowick"
if git rev-parse --is-inside-work-tree >/dev/null 2>&1; then
    git ls-files -z --cached --others --exclude-standard --deduplicate
else
    find . -name build -prune -o \( -type f -o -type l \) -print0
fi | while IFS= read -r -d '' file; do
    if [[ -e $file ]]; then printf '%s\0' "$file"; fi # one may have been deleted since the last commit
done | tar --null --files-from - -c | tar -x -C "$folder/ferrowick"

(cd "$folder/ferrowick" && dpkg-buildpackage --no-sign --build=binary >../build.log 2>&1) ||
    { tail -n 40 "$folder/build.log" >&2; exit 1; }
rm -rf "$folder/ferrowick"
ls "$folder"/ferrowick_*.deb
