#!/usr/bin/env bash
# Builds the Debian package into build/package/, from a clean clone too. Needs no rights but to install what is missing.
set -euo pipefail
cd "$(dirname "${BASH_SOURCE[0]}")/.."
scripts/install-packages.sh build package
umask 022
SOURCE_DATE_EPOCH=${SOURCE_DATE_EPOCH:-$(git log -1 --format=%ct 2>/dev/null || stat -c %Y CHANGELOG.md)}
export SOURCE_DATE_EPOCH

build=build/package
cmake --preset package --log-level=WARNING
cmake --build --preset package
rm -f "$build"/ferrowick_*.deb
(cd "$build" && cpack -G DEB >cpack.log) || { cat "$build/cpack.log" >&2; exit 1; }
ls "$build"/ferrowick_*.deb
