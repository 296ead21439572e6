#compdef fwk
# Completion of fwk for zsh. Commands and options are asked of fwk itself, so that no list here grows old.

_fwk_commands() { # [COMMAND]
    local -a commands
    commands=(${(f)"$(fwk $1 --help 2>/dev/null | sed -n '/ommands:$/,/^$/s/^  \([a-z][a-z-]*\)  *\(.*\)/\1:\2/p')"})
    _describe -t commands command commands
}

_fwk_options() { # COMMAND ...
    local -a options
    options=(${(f)"$(fwk $@ --help 2>/dev/null | sed -n 's/^  \(-[-a-z,]*\).*/\1/p' | tr , '\n')"})
    compadd -a options
}

_fwk_columns() { # [ARGUMENT OF compadd ...]
    local name=${(Q)file}
    name=${name/#\~\//$HOME/}
    [[ $name == -* ]] && name=./$name
    [[ -f $name ]] || return 1
    local -a columns
    columns=(${(f)"$(timeout 2 fwk info "$name" 2>/dev/null |
        sed -n 's/  *\(Text\|Number\|Currency\|Date\|Picture\|Calculation\)  *[0-9][0-9]*  *[0-9].*//p')"})
    compadd "$@" -a columns
}

_fwk() {
    local command sub file option word i
    integer count=0 taken=0
    for ((i = 2; i < CURRENT; ++i)); do
        word=$words[i]
        case $word in
        (-o|--output|--columns|--by|--group-by|--expression|--column|--title|--records|--from|--kind|--where|--filter|--wait|--dates|--decimal|--encoding|--separator|--quotes|--format|--sheet|--sum|--mean|--min|--max|--top|--paper|--size) option=$word taken=0 ;;
        (-*) option= ;;
        (*)
            if [[ -n $option ]]; then
                ((++taken))
                case $option:$taken in
                (--where:3) [[ $words[i-1] == range ]] || option= ;;
                (--where:4) option= ;;
                (--where:*|--column:*) ;;
                (*) option= ;;
                esac
            elif [[ -z $command ]]; then command=$word
            elif [[ $command == column && -z $sub ]]; then sub=$word
            else
                ((count++)) || file=$word
            fi
            ;;
        esac
    done

    if [[ $PREFIX == -* ]]; then
        _fwk_options $command $sub
        return
    fi
    case $option:$taken in
    (-o:*|--output:*|--pdf:*)
        case $command in
        (search|restore) _files -g '*.fwk' ;;
        (thumbnail) _files -g '*.png' ;;
        (export) _files -g '*.(csv|tsv|xlsx|ods|json|sqlite|html|vcf)' ;;
        (*) _files -g '*.pdf' ;;
        esac
        return ;;
    (--columns:*|--by:*|--group-by:*) compset -P '*,'; _fwk_columns -S ''; return ;;
    (--column:*|--copies:*|--picture:*|--where:0|--sum:*|--mean:*|--min:*|--max:*) _fwk_columns; return ;;
    (--where:1) compadd ge le is within range; return ;;
    (--kind:*) compadd qr ean13 ean8 upca code128 datamatrix; return ;;
    (--dates:*) compadd dmy mdy ymd; return ;;
    (--format:*) compadd csv tsv xlsx ods json sqlite html vcf; return ;;
    (--paper:*) compadd A3 A4 A5 A6 Letter Legal Executive Tabloid; return ;;
    (--encoding:*) compadd utf-8 utf-16le utf-16be windows-1252; return ;;
    (-*) return ;;
    esac
    case $command${sub:+-$sub}:$count in
    (:*) _fwk_commands ;;
    (column:0) _fwk_commands column ;;
    (labels:<1->) ;;
    (*:0|clone:1|save-as:1) _files -g '*.fwk' ;;
    (import:1) _files -g '*.(csv|tsv|txt|xlsx|xlsm|ods|json|sqlite|sqlite3|db|html|htm|vcf)' ;;
    (new:*|column-add:*) compset -P '*:' && compadd Text Number Currency Date Picture Calculation ;;
    (sort:1|expression:1|serial:1|set:1|statistics:1|total:*|column-rename:1|column-remove:1) _fwk_columns ;;
    (add:*|update:<2->) [[ $PREFIX == *=* ]] || _fwk_columns -S = ;;
    esac
}

_fwk "$@"
