#!/usr/bin/env bash
# Installs the Debian packages that a purpose needs and that are not there yet.
#   scripts/install-packages.sh build|run|test|tidy|bench|package ...
# Says nothing and is quick when nothing is missing.
set -euo pipefail

build=(g++ cmake ninja-build pkg-config qt6-base-dev qt6-svg-dev libgl1-mesa-dev libzip-dev libdeflate-dev zlib1g-dev
    libcli11-dev nlohmann-json3-dev libpugixml-dev libxlsxwriter-dev libsqlite3-dev libzint-dev qt6-l10n-tools
    qt6-translations-l10n)
run=(libqt6gui6 libqt6widgets6 libqt6printsupport6 libqt6svg6 qt6-wayland fonts-liberation fonts-dejavu-core)
test=(libgtest-dev libgmock-dev libbenchmark-dev zip unzip clang-format-14 poppler-utils zbar-tools dmtx-utils python3)
tidy=(clang-tidy-14)
bench=(libbenchmark-dev hyperfine time zip unzip sqlite3)
package=(dpkg-dev debhelper file gzip)
# Work without these is slower or leaves a step out, but is done.
optional=(ccache mold clang-14 libclang-rt-14-dev)

wanted=()
for purpose in "$@"; do
    case $purpose in
    build) wanted+=("${build[@]}" ccache) ;;
    run) wanted+=("${run[@]}") ;;
    test) wanted+=("${test[@]}" mold clang-14 libclang-rt-14-dev) ;;
    tidy) wanted+=("${tidy[@]}") ;;
    bench) wanted+=("${bench[@]}") ;;
    package) wanted+=("${package[@]}") ;;
    *)
        echo "usage: ${0##*/} build|run|test|tidy|bench|package ..." >&2
        exit 2
        ;;
    esac
done

if ! command -v dpkg-query >/dev/null || ! command -v apt-get >/dev/null; then
    echo "This is no Debian system, so nothing is installed; needed are what Debian calls ${wanted[*]}."
    exit 0
fi

# A package that another one provides counts as there (libgl1-mesa-dev has been such a one for years).
installed=" $(dpkg-query -W -f='${db:Status-Abbrev}|${Package} ${Provides}\n' 2>/dev/null |
    sed -n 's/^ii *|//p' | sed 's/([^)]*)//g' | tr ',\n' '  ') "
missing=()
for package in "${wanted[@]}"; do
    [[ $installed == *" $package "* || " ${missing[*]-} " == *" $package "* ]] || missing+=("$package")
done
((${#missing[@]})) || exit 0

is_optional() { [[ " ${optional[*]} " == *" $1 "* ]]; }
has_candidate() { [[ -n $(apt-cache madison "$1" 2>/dev/null) ]]; }

as_root=()
how="as root"
if ((EUID != 0)); then
    how="through sudo"
    as_root=(sudo)
    if ! command -v sudo >/dev/null; then
        echo "Not root and no sudo; please install: ${missing[*]}" >&2
        exit 1
    fi
fi
apt() {
    "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get -qq -o DPkg::Lock::Timeout=300 "$@" </dev/null
}

echo "Installing ($how): ${missing[*]}"
updated=false
for package in "${missing[@]}"; do
    if ! has_candidate "$package"; then
        apt update
        updated=true
        break
    fi
done
available=()
for package in "${missing[@]}"; do
    if has_candidate "$package" || ! is_optional "$package"; then available+=("$package"); fi
done
((${#available[@]})) || exit 0

log=$(mktemp)
trap 'rm -f "$log"' EXIT
install() { apt install -y --no-install-recommends "${available[@]}" >"$log" 2>&1; }
if ! install; then
    # The lists may be so old that the archive no longer has what they name.
    if $updated || ! { apt update && install; }; then
        tail -n 20 "$log" >&2
        echo "The packages could not be installed." >&2
        exit 1
    fi
fi
