#!/usr/bin/env bash
# Checks the pages of help/ in each language: their links, their pictures, and that the menus and commands they name are
# the program's; and that the links in the project's documents lead somewhere.
#     tests/help/checkHelp.sh PROJECT PAGES    PAGES is the folder of the built pages
set -euo pipefail
export LC_ALL=C.UTF-8
project=$(realpath "$1")
pages=$(realpath "$2")

faults=0
fault() {
    echo "${PWD##*/}/$*"
    faults=$((faults + 1))
}

# A page as one line, so that what is divided between lines is found too.
text() { tr '\n' ' ' <"$1"; }

checkLinks() {
    local page=$1 link file
    while read -r link; do
        file=${link%%#*}
        reached+="$file "
        [[ $link != *:* && -e ${file:-$page} ]] || fault "$page: \"$link\" is not in the help"
        [[ $link != *#* ]] || grep -q "id=\"${link#*#}\"" "${file:-$page}" || fault "$page: no place \"$link\""
    done < <(text "$page" | grep -oE '[ ](href|src)="[^"]*"' | sed -E 's/^[^"]*"//; s/"$//')
}

checkForm() {
    local page=$1
    [[ $(grep -cE "<html lang=\"$2\"|<title>[^<]+</title>" "$page") == 2 ]] || fault "$page: no language, or no title"
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
    done < <(text "$page" | grep -oE '<b>[[:upper:]][[:lower:]]+ &gt; [^<]*</b>' | sed 's/<[^>]*>//g')
    while read -r name; do
        grep -qE "\{\"$name\", " "$project/src/cli/main.cpp" || fault "$page: fwk has no command \"$name\""
    done < <(sed 's/^<pre><code>//' "$page" | grep -oE '^fwk [a-z-]+' | cut -d' ' -f2)
}

# checkLanguage LANGUAGE FOLDER. That each page is there in each language is checked when the help is made.
checkLanguage() {
    local page reached=" "
    cd "$pages/$2"
    for page in *.html; do
        checkLinks "$page"
        checkForm "$page" "$1"
        [[ $1 == de && ! -e $german ]] || checkNames "$page"
        grep -qF "{page: \"$page\"," search-index.js || fault "$page: the search does not know it"
    done
    for page in *.html $(ls images/* 2>/dev/null); do
        [[ $reached == *" $page "* ]] || fault "$page: no page leads to it"
    done
}

checkLanguage en .
# What the window shows in the other language, where there is a catalogue of it.
german=$project/translations/ferrowick_de.ts
[[ ! -e $german ]] || captions=$(sed -nE 's/&amp;//g; s/.*<translation>([^<]+)<.*/\1/p' "$german")
checkLanguage de de

cd "$project"
for document in {README,CHANGELOG,CONTRIBUTING,SECURITY}.md {docs,docs/prints,samples}/*.md; do
    while read -r link; do
        [[ $link == *:* || -e $(dirname "$document")/${link%%#*} ]] || fault "$document: \"$link\" does not exist"
    done < <(grep -oE '(\]\(|(src|href)=")[^)"]+' "$document" | sed -E 's/^(\]\(|[a-z]+=")//')
done
echo "$faults faults"
((faults == 0))
