#!/usr/bin/env bash
# Makes the pictures of help/ and docs/images/ from the program itself: it opens copies of the samples on a display
# of its own, presses keys and buttons, and keeps what the windows show. Run it again after a change of the window.
#
#     scripts/make-screenshots.sh [--language CODE] [PROGRAM]
#
# In another language than English the pictures go to help/CODE/images, and docs/images stay as they are. PROGRAM is the
# built ferrowick, with its catalogues; without it the newest of build/*/src/gui/ferrowick. Needs Xvfb, openbox, xdotool and
# ImageMagick; optipng makes the pictures smaller where it is there. SCREENSHOT_DISPLAY is the display, :97 if not set.
set -euo pipefail
cd "$(dirname "$0")/.."

language=en
if [[ ${1-} == --language ]]; then language=$2; shift 2; fi
program=${1:-$(find build -path '*/src/gui/ferrowick' -type f -printf '%T@ %p\n' | sort -rn | head -1 | cut -d' ' -f2)}
[[ -x $program ]] || { echo "make-screenshots: build the program first" >&2; exit 1; }
program=$(realpath "$program")
root=$PWD
scratch=$(mktemp -d)
pids=()
opened= # the process of the program
trap 'kill $opened "${pids[@]}" 2>/dev/null || true; rm -rf "$scratch"' EXIT

images=$root/help/images catalogue= locale=C.UTF-8
if [[ $language != en ]]; then
    images=$root/help/$language/images catalogue=$root/translations/ferrowick_$language.ts
    locale=${language}_${language^^}.UTF-8
fi

readonly width=1000 height=690
# Where the buttons of the main toolbar are, in pixels of the window.
declare -rA button=([New]=20 [Save]=86 [PrintMenu]=160 [PageSetup]=183 [Totals]=256 [Formulas]=295 [Properties]=329 [Design]=361)
readonly toolbarY=38

# A home of its own: the user's settings stay as they are, and the pictures do not depend on them.
export HOME=$scratch/me XDG_CONFIG_HOME=$scratch/me/.config XDG_DATA_HOME=$scratch/me/.local/share
export XDG_STATE_HOME=$HOME/.local/state
export XDG_RUNTIME_DIR=$scratch/run DISPLAY=${SCREENSHOT_DISPLAY:-:97} QT_QPA_PLATFORM=xcb LC_ALL=C.UTF-8 LANGUAGE=
mkdir -p "$XDG_CONFIG_HOME/ferrowick" "$XDG_DATA_HOME" "$HOME/Documents" "$images" docs/images
mkdir -m 700 "$XDG_RUNTIME_DIR"
printf '[StartUp]\nDisclaimer=True\n' >"$XDG_CONFIG_HOME/ferrowick/ferrowick.conf"
cp samples/*.fwk "$HOME/Documents/"
cd "$HOME/Documents" # the caption names the file as it was told

Xvfb "$DISPLAY" -screen 0 1280x1000x24 -nolisten tcp 2>/dev/null &
pids+=($!)
for _ in {1..50}; do
    if xdotool getdisplaygeometry >/dev/null 2>&1; then break; fi
    sleep 0.1
done
mkdir "$XDG_CONFIG_HOME/openbox" # windows without frames, where they are told to be
cat >"$XDG_CONFIG_HOME/openbox/rc.xml" <<'END'
<openbox_config xmlns="http://openbox.org/3.4/rc">
  <applications><application class="*"><decor>no</decor></application></applications>
</openbox_config>
END
openbox >/dev/null 2>&1 &
pids+=($!)
sleep 0.5

# said TEXT: what the window says for it in its language.
said() {
    [[ -n $catalogue ]] || { echo "$1"; return; }
    python3 - "$catalogue" "$1" <<'END'
import sys, xml.etree.ElementTree as tree
for each in tree.parse(sys.argv[1]).iter("message"):
    if each.findtext("source") == sys.argv[2]: sys.exit(print(each.findtext("translation")))
sys.exit(sys.argv[2] + " is in no catalogue")
END
}
# mnemonic TEXT: the letter that chooses it.
mnemonic() {
    local text
    text=$(said "$1")
    [[ $text =~ \&(.) ]] && echo "${BASH_REMATCH[1],,}"
}
# choose MENU ITEM: of the menu bar.
choose() { keys "alt+$(mnemonic "$1")" "$(mnemonic "$2")"; }

# window NAME: waits for the window whose title matches, and has the keys go there. Sets $window.
window() {
    local name
    name=$(sed 's/[^ -~]/.*/g' <<<"$1") # letters beyond ASCII are more than one to the search
    for _ in {1..100}; do
        window=$(xdotool search --onlyvisible --name "$name" 2>/dev/null | tail -1) && [[ -n $window ]] && break
        sleep 0.1
    done
    [[ -n $window ]] || { echo "make-screenshots: no window \"$1\" came up" >&2; exit 1; }
    xdotool windowactivate --sync "$window"
}

open() { # open [FILE]
    [[ -z $opened ]] || { kill "$opened"; wait "$opened" 2>/dev/null || true; }
    # What was changed for a picture is kept as unsaved work, and would be offered.
    rm -rf "$XDG_DATA_HOME" "$XDG_STATE_HOME"
    LC_ALL=$locale "$program" "$@" 2>/dev/null &
    opened=$!
    window '^Ferrowick'
    main=$window
    xdotool windowsize --sync "$main" $width $height windowmove --sync "$main" 130 80
}

keys() { for key in "$@"; do xdotool key "$key"; sleep 0.15; done; }
write() { xdotool type --delay 30 "$1"; sleep 0.15; }
click() { # click X Y [clicks]: in the window
    xdotool mousemove --window "$window" "$1" "$2" click --repeat "${3:-1}" --delay 60 1
    sleep 0.2
}
press() { click "${button[$1]}" $toolbarY; } # a button of the main toolbar
back() { window=$main; xdotool windowactivate --sync "$main"; }

# Until two pictures in a row are the same: whatever is still being drawn is done then.
settled() { # settled FILE WHAT...
    local file=$1 before='' now
    shift
    for _ in {1..20}; do
        import "$@" "$file"
        now=$(convert "$file" rgb:- | md5sum)
        [[ $now == "$before" ]] && return
        before=$now
        sleep 0.2
    done
}

optimise() { # optimise FROM TO
    convert "$1" -strip +dither -colors 255 -define png:exclude-chunks=date,time "PNG8:$2"
    if command -v optipng >/dev/null; then optipng -quiet -o3 "$2"; fi
}

# shot NAME [MORE...]: the window, as help/images/NAME.png; MORE names pictures in docs/images that are the same.
shot() {
    local name=$1
    shift
    xdotool mousemove 1279 999 # out of the way, so that nothing glows under it
    sleep 0.3
    settled "$scratch/$name.png" -window "$window"
    keep "$name" "$@"
}

# The corner of the window as the screen shows it, with what hangs from its toolbar.
shotWithMenu() { # shotWithMenu NAME SIZE
    sleep 0.3
    local x y
    eval "$(xdotool getwindowgeometry --shell "$window" | grep -E '^[XY]=' | sed 's/X/x/;s/Y/y/')"
    settled "$scratch/$1.png" -window root -crop "$2+$x+$y" +repage
    keep "$1"
}

keep() { # keep NAME [MORE...]
    optimise "$scratch/$1.png" "$images/$1.png"
    [[ $language == en ]] || set -- "$1"
    for more in "${@:2}"; do cp "$images/$1.png" "$root/docs/images/$more.png"; done
    echo "$1.png"
}

open
shot start start-page
press New
window "$(said 'Choose your database format.')"
shot new-type
keys Escape

open garden.fwk
shot report main-window
press PrintMenu
shotWithMenu print-menu 500x290
keys Escape
click 100 158
xdotool keydown ctrl
click 100 176
click 100 194
xdotool keyup ctrl
press Totals
shot selected-totals
press Totals
click 100 266 2
window "^$(said 'Entry Form')\$"
shot entry entry-form
keys Escape
back
keys ctrl+Tab
shot layout layout
press PageSetup
window "^$(said 'Layout Page Setup')\$"
shot layout-setup
keys Escape
back
press Design
click 400 330
shot design design

open garden.fwk
press Properties
window "^$(said 'Database Properties')\$"
shot properties
keys Escape
back
press PageSetup
window "^$(said 'Report Page Setup')\$"
shot report-setup
keys Escape
back
choose '&Edit' '&Find And Replace'
window "^$(said 'Find and Replace')\$"
shot replace
keys Escape
back
choose '&Edit' '&Make Code...'
window "^$(said 'Make Code')\$"
keys ctrl+a
write '{Plant}, {Bed}'
shot make-code
keys Escape
back
keys ctrl+shift+Tab
shot preview print-preview

open garden.fwk # what grows on the terrace and costs up to five dollars
keys ctrl+f
window "^$(said 'Search Data')\$"
keys b Tab Down Down Tab # the keys go from part to part, wherever those stand in a language
write Terrace
keys Tab Tab Home Down Down Down Down Down Down Down Tab Down Tab
write 5
keys Return
shot search search
keys Escape
back
shot results search-results

open inventory.fwk
press Formulas
window "^$(said 'Expression Editor')\$"
click 60 75
shot expression expression-editor
keys Escape
back
keys "alt+$(mnemonic '&Tools')" Up Up Up Return
window "^$(said 'Choose Columns To Total')\$"
shot totals

cat >customers.csv <<'END'
Name;Since;Turnover;Orders;Post code
Anna Berg;31.12.2019;1.234,50 €;12;04335
Carl Dorn;1.2.2021;87,00 €;3;80618
Eva Frost;15.6.2022;12.600,25 €;41;59915
Gerd Horn;30.9.2023;-20,00 €;2;30057
Ida Jung;3.4.2024;410,10 €;7;61241
Karl Lind;11.11.2020;55,90 €;1;10115
Mia Nolte;24.5.2021;2.010,00 €;9;20095
Otto Pohl;8.8.2022;640,75 €;5;50667
Rosa Stein;19.1.2023;75,00 €;many;70173
Uwe Vogt;2.2.2024;320,00 €;4;01067
END
open
choose '&File' '&Import...'
window "^$(said 'Import')\$"
write "$PWD/customers.csv"
keys Return
window "^$(said 'Import')\$"
shot import
keys Escape
back

open library.fwk
choose '&File' 'Expor&t...'
window "^$(said 'Export')\$"
keys "alt+$(mnemonic 'With the &pictures, in a folder beside the file')"
shot export
keys Escape
back

open addresses.fwk
press PrintMenu
keys Up Up Return
window '^Ferrowick'
shot labels labels

open addresses.fwk
choose '&File' 'La&bel Wizard...'
window "^$(said 'Label Wizard')\$"
xdotool type 'avery l716'
shot label-wizard
keys Escape
back

open library.fwk
keys ctrl+Tab
shot library-layout library

open invoices.fwk
shot invoices
click 100 158
keys ctrl+Tab
xdotool windowsize --sync "$main" $width 880 # with the sums at its foot
shot invoice-layout invoice
xdotool windowsize --sync "$main" $width $height
keys ctrl+shift+Tab
click 30 98
click 100 300
keys Home
shot invoice-items
keys ctrl+Tab
press Design
click 370 101
window "^$(said 'Item Row Creation Tool')\$"
write 8
for column in 136 150 165 179; do click 40 $column; done
shot item-rows

[[ $language == en ]] || exit 0
"$program" --dark --picture "$scratch/dark.png" --size ${width}x$height library.fwk
optimise "$scratch/dark.png" "$root/docs/images/dark.png"

# The README's first picture: the list, and before it one of its records on its page.
convert -size 1270x890 xc:white "$scratch/report.png" -geometry +1+1 -composite \
    \( "$scratch/layout.png" -bordercolor '#909090' -border 1 \( +clone -background black -shadow 50x8+0+4 \) \
    +swap -background none -layers merge +repage \) -geometry +240+160 -composite "$scratch/overview.png"
optimise "$scratch/overview.png" "$root/docs/images/overview.png"
