#!/usr/bin/env bash
# Checks the pages of help/: their links, their pictures, and that the menus and commands they name are the program's.
#     tests/help/checkHelp.sh PROJECT PAGES    PAGES is the folder of the built pages
set -euo pipefail
export LC_ALL=C.UTF-8
project=$(realpath "$1")
cd "$2"

faults=0
fault() {
    echo "$*"
    faults=$((faults + 1))
}

# A page as one line, so that what is divided between lines is found too.
text() { tr '\n' ' ' <"$1"; }
values() { text "$1" | grep -oE "[ ]$2=\"[^\"]*\"" | sed -E 's/^[^"]*"//; s/"$//' || true; } # values PAGE ATTRIBUTE

checkLinks() {
    local page=$1 link file
    while read -r link; do
        file=${link%%#*}
        case $link in
        *:*) fault "$page: \"$link\" leaves the help" ;;
        *) [[ -e ${file:-$page} ]] || fault "$page: \"$link\" does not exist" ;;
        esac
        [[ $link != *#* ]] || grep -q "id=\"${link#*#}\"" "${file:-$page}" || fault "$page: no place \"$link\""
    done < <(values "$page" '(href|src)')
}

checkForm() {
    local page=$1
    grep -q '<html lang="' "$page" || fault "$page: no language"
    grep -qE '<title>[^<]+</title>' "$page" || fault "$page: no title"
    [[ $(grep -c '<h1' "$page") == 1 ]] || fault "$page: not one h1"
    while read -r image; do
        [[ $image =~ \ alt=\"[^\"]+\" ]] || fault "$page: no alt text in $image"
    done < <(text "$page" | grep -oE '<img [^>]*>')
}

# "File > New" must be an item of a menu, and "fwk add" a command.
captions=$(cat "$project"/src/shell/{commands,submenus}.cpp | tr '\n' ' ' |
    grep -oE '\{"(mnu[A-Za-z0-9]*|Design)", *(marked\()?"[^"]+"' |
    sed -E 's/.*"([^"]+)"$/\1/' | tr -d '&')
checkNames() {
    local page=$1 path part name
    while read -r path; do
        for part in "${path%% &gt; *}" "${path#* &gt; }"; do
            grep -qxF "$part" <<<"$captions" || fault "$page: no menu has \"$part\""
        done
    done < <(text "$page" | grep -oE '<b>[A-Z][a-z]+ &gt; [^<]*</b>' | sed 's/<[^>]*>//g')
    while read -r name; do
        grep -qE "\{\"$name\", " "$project/src/cli/main.cpp" || fault "$page: fwk has no command \"$name\""
    done < <(sed 's/^<pre><code>//' "$page" | grep -oE '^fwk [a-z-]+' | cut -d' ' -f2)
}

# Whatever can be reached from the first page.
reached=" index.html style.css "
visit=(index.html)
while ((${#visit[@]})); do
    page=${visit[0]}
    visit=("${visit[@]:1}")
    for link in $(values "$page" '(href|src)'); do
        file=${link%%#*}
        [[ -e $file && $reached != *" $file "* ]] || continue
        reached+="$file "
        [[ $file != *.html ]] || visit+=("$file")
    done
done
for file in *.html images/*; do
    [[ $reached == *" $file "* ]] || fault "$file: no page leads to it"
done

pages=(*.html)
for page in "${pages[@]}"; do
    checkLinks "$page"
    checkForm "$page"
    checkNames "$page"
done
echo "${#pages[@]} pages, $faults faults"
((faults == 0))
