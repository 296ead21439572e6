# Completion of fwk for bash. Commands and options are asked of fwk itself, so that no list here grows old.

_fwk_commands() { # [COMMAND]: the commands of fwk, or those below one
    fwk ${1:+"$1"} --help 2>/dev/null | sed -n '/ommands:$/,/^$/s/^  \([a-z][a-z-]*\)  .*/\1/p'
}

_fwk_options() { # COMMAND ...
    fwk "$@" --help 2>/dev/null | sed -n 's/^  \(-[-a-z,]*\).*/\1/p' | tr , '\n'
}

_fwk_columns() { # FILE, as it stands on the command line
    local file=$1
    case $file in
    [\"\']*) file=${file#?} file=${file%[\"\']} ;;
    *) file=${file//\\/} ;;
    esac
    # shellcheck disable=SC2088
    [[ $file == "~/"* ]] && file=$HOME/${file#"~/"}
    [[ $file == -* ]] && file=./$file
    [[ -f $file ]] || return
    timeout 2 fwk info "$file" 2>/dev/null |
        sed -n 's/  *\(Text\|Number\|Currency\|Date\|Picture\|Calculation\)  *[0-9][0-9]*  *[0-9].*//p'
}

# Offers the lines of standard input that begin with what is typed. What a file says is never expanded.
_fwk_offer() { # [BEFORE [AFTER]]: what stands before and after each on the command line
    local line typed=${cur#"${1-}"}
    typed=${typed//\\/}
    typed=${typed#[\"\']}
    while IFS= read -r line; do
        [[ $line == "$typed"* ]] || continue
        # Within quotes the shell adds what is missing; without, every odd character needs a backslash.
        [[ $cur == [\"\']* ]] || printf -v line %q "$line"
        COMPREPLY+=("${1-}$line${2-}")
    done
}

_fwk_files() { # PATTERN
    local file
    compopt -o filenames
    while IFS= read -r file; do
        # shellcheck disable=SC2053
        [[ -d $file || $file == $1 ]] && COMPREPLY+=("$file")
    done < <(compgen -f -- "$cur")
}

_fwk() {
    local cur=${COMP_WORDS[COMP_CWORD]} prev=${COMP_WORDS[COMP_CWORD - 1]}
    local command="" sub="" file="" option="" word i count=0 taken=0
    COMPREPLY=()
    # The options that take values: which one the cursor is behind, and how many values further.
    for ((i = 1; i < COMP_CWORD; ++i)); do
        word=${COMP_WORDS[i]}
        case $word in
        -o | --output | --columns | --by | --group-by | --expression | --column | --title | --records | --from | --kind | --where | --filter | --wait | --dates | --decimal | --encoding | --separator | --quotes | --format | --sheet | --sum | --mean | --min | --max | --top | --paper | --size) option=$word taken=0 ;;
        -*) option="" ;;
        *)
            if [[ -n $option ]]; then
                ((++taken))
                case $option:$taken in
                --where:3) [[ ${COMP_WORDS[i - 1]} == range ]] || option="" ;;
                --where:4) option="" ;;
                --where:* | --column:*) ;;
                *) option="" ;;
                esac
            elif [[ -z $command ]]; then command=$word
            elif [[ $command == column && -z $sub ]]; then sub=$word
            else
                ((count++)) || file=$word
            fi
            ;;
        esac
    done

    if [[ -z $command ]]; then
        _fwk_offer < <(_fwk_commands; [[ $cur != -* ]] || _fwk_options)
        return
    fi
    if [[ $cur == -* ]]; then
        _fwk_offer < <(_fwk_options "$command" ${sub:+"$sub"})
        return
    fi
    case $option:$taken in
    -o:* | --output:* | --pdf:*)
        case $command in
        search | restore) _fwk_files '*.fwk' ;;
        thumbnail) _fwk_files '*.png' ;;
        export) _fwk_files '*.@(csv|tsv|xlsx|ods|json|sqlite|html|vcf)' ;;
        *) _fwk_files '*.pdf' ;;
        esac
        return
        ;;
    --columns:* | --by:* | --group-by:*)
        local before=""
        [[ $cur == *,* ]] && before=${cur%,*},
        compopt -o nospace
        _fwk_offer "$before" < <(_fwk_columns "$file")
        return
        ;;
    --column:* | --copies:* | --picture:* | --where:0 | --sum:* | --mean:* | --min:* | --max:*) _fwk_offer < <(_fwk_columns "$file"); return ;;
    --where:1) _fwk_offer < <(printf '%s\n' ge le is within range); return ;;
    --kind:*) _fwk_offer < <(printf '%s\n' qr ean13 ean8 upca code128 datamatrix); return ;;
    --dates:*) _fwk_offer < <(printf '%s\n' dmy mdy ymd); return ;;
    --format:*) _fwk_offer < <(printf '%s\n' csv tsv xlsx ods json sqlite html vcf); return ;;
    --paper:*) _fwk_offer < <(printf '%s\n' A3 A4 A5 A6 Letter Legal Executive Tabloid); return ;;
    --encoding:*) _fwk_offer < <(printf '%s\n' utf-8 utf-16le utf-16be windows-1252); return ;;
    -*) return ;;
    esac

    # bash divides the words at ":" and "=".
    if [[ $cur == : || $prev == : ]] && [[ $command == new || $sub == add ]]; then
        cur=${cur#:}
        _fwk_offer < <(printf '%s\n' Text Number Currency Date Picture Calculation)
        return
    fi
    [[ $cur == = || $prev == = ]] && return
    case $command${sub:+-$sub}:$count in
    column:0) _fwk_offer < <(_fwk_commands column) ;;
    labels:[1-9]*) ;;
    *:0 | clone:1 | save-as:1) _fwk_files '*.fwk' ;;
    import:1) _fwk_files '*.@(csv|tsv|txt|xlsx|xlsm|ods|json|sqlite|sqlite3|db|html|htm|vcf)' ;;
    sort:1 | expression:1 | serial:1 | set:1 | statistics:1 | total:* | column-rename:1 | column-remove:1)
        _fwk_offer < <(_fwk_columns "$file")
        ;;
    add:* | update:[2-9]*)
        compopt -o nospace
        _fwk_offer "" "=" < <(_fwk_columns "$file")
        ;;
    esac
}

complete -F _fwk fwk
