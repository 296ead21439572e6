#!/usr/bin/env bash
# What an installation puts where, and that the desktop can read it.
#   installTest.sh BUILD CMAKE SOURCE
set -euo pipefail
build=$1 cmake=$2 source=$3 id=org.ferrowick.ferrowick
stage=$(mktemp -d)
trap 'rm -rf "$stage"' EXIT
failed=0
fail() { echo "$*" >&2; failed=1; }

[[ -x $build/src/gui/ferrowick && -x $build/src/fwk && -e $build/packaging/fwk.1.gz ]] || { echo "Not all is built."; exit 77; }
DESTDIR=$stage "$cmake" --install "$build" --prefix /usr >"$stage/log" 2>&1 || { cat "$stage/log"; exit 1; }
share=$stage/usr/share
for file in bin/ferrowick bin/fwk libexec/ferrowick/fwk-print \
    share/applications/$id.desktop share/mime/packages/$id.xml share/ferrowick/samples/garden.fwk \
    share/ferrowick/stocks/labels.tsv share/ferrowick/templates/invoices.fwk \
    share/icons/hicolor/{scalable/apps/$id,scalable/mimetypes/$id-database,symbolic/apps/$id-symbolic}.svg \
    share/metainfo/$id.metainfo.xml share/thumbnailers/$id.thumbnailer share/man/man1/{ferrowick,fwk}.1.gz \
    share/bash-completion/completions/fwk share/zsh/site-functions/_fwk share/fish/vendor_completions.d/fwk.fish \
    share/doc/ferrowick/LICENSE; do
    [[ -s $stage/usr/$file ]] || fail "not installed: $file"
done

# Finds what it comes with from where it now stands, and not from the build.
draw=$(sed -n 's/^Exec=//p' "$share/thumbnailers/$id.thumbnailer" | sed "s#%i#$share/ferrowick/samples/garden.fwk#; s#%o#$stage/drawn.png#; s/%s/128/")
(PATH=$stage/usr/bin:$PATH; $draw && [[ -s $stage/drawn.png ]]) || fail "the thumbnailer draws nothing: $draw"
"$stage/usr/bin/fwk" report "$share/ferrowick/samples/garden.fwk" -o "$stage/garden.pdf" || fail "fwk does not print"

have() { command -v "$1" >/dev/null; }
if have desktop-file-validate; then
    [[ -z $(desktop-file-validate "$share/applications/$id.desktop" 2>&1) ]] || fail "desktop entry"
fi
if have appstreamcli; then
    # Without a remark; with a home page it has links and pictures too.
    mkdir "$stage/linked"
    "$cmake" -DSOURCE="$source" -DTARGET="$stage/linked/$id.metainfo.xml" -DHOMEPAGE=https://ferrowick.invalid \
        -P "$source/packaging/metainfo.cmake"
    grep -q "<screenshot " "$stage/linked/$id.metainfo.xml" || fail "no screenshots"
    for told in "$share/metainfo" "$stage/linked"; do
        remarks=$(appstreamcli validate --no-net --pedantic "$told/$id.metainfo.xml") || fail "metainfo"
        [[ $(wc -l <<<"$remarks") == 1 ]] || fail "$remarks"
    done
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
