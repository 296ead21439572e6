#!/usr/bin/env bash
# What an installation puts where, and that the desktop can read it.
#   installTest.sh BUILD CMAKE
set -euo pipefail
build=$1 cmake=$2
stage=$(mktemp -d)
trap 'rm -rf "$stage"' EXIT
failed=0
fail() { echo "$*" >&2; failed=1; }

[[ -x $build/src/gui/ferrowick && -x $build/src/fwk && -e $build/packaging/fwk.1.gz ]] || { echo "Not all is built."; exit 77; }
DESTDIR=$stage "$cmake" --install "$build" --prefix /usr >"$stage/log" 2>&1 || { cat "$stage/log"; exit 1; }
share=$stage/usr/share
for file in bin/ferrowick bin/fwk libexec/ferrowick/fwk-print \
    share/applications/ferrowick.desktop share/mime/packages/ferrowick.xml share/ferrowick/samples/garden.fwk \
    share/ferrowick/stocks/labels.tsv share/ferrowick/templates/invoices.fwk \
    share/icons/hicolor/scalable/{apps/ferrowick,mimetypes/application-x-ferrowick}.svg \
    share/metainfo/org.ferrowick.Ferrowick.metainfo.xml share/man/man1/{ferrowick,fwk}.1.gz \
    share/bash-completion/completions/fwk share/zsh/site-functions/_fwk share/fish/vendor_completions.d/fwk.fish \
    share/doc/ferrowick/copyright; do
    [[ -s $stage/usr/$file ]] || fail "not installed: $file"
done

# Finds what it comes with from where it now stands, and not from the build.
"$stage/usr/bin/fwk" report "$share/ferrowick/samples/garden.fwk" -o "$stage/garden.pdf" || fail "fwk does not print"

have() { command -v "$1" >/dev/null; }
if have desktop-file-validate; then
    desktop-file-validate "$share/applications/ferrowick.desktop" || fail "desktop entry"
fi
if have appstreamcli; then
    appstreamcli validate --no-net --explain "$share/metainfo/"*.xml || fail "metainfo"
fi
if have update-mime-database && have gio; then
    update-mime-database "$share/mime"
    cp "$share/ferrowick/samples/garden.fwk" "$stage/nameless"
    for file in "$share/ferrowick/samples/garden.fwk" "$stage/nameless"; do
        type=$(XDG_DATA_HOME=$share XDG_DATA_DIRS=/usr/share gio info -a standard::content-type "$file" | tail -n 1)
        [[ $type == *application/x-ferrowick ]] || fail "${file##*/} is $type"
    done
fi
exit $failed
