# Completion of fwk for fish. Commands and options are asked of fwk itself, so that no list here grows old.

function __fwk_commands # [COMMAND]
    fwk $argv --help 2>/dev/null | sed -n '/ommands:$/,/^$/s/^  \([a-z][a-z-]*\)  *\(.*\)/\1\t\2/p'
end

function __fwk_words # the words before the cursor that are no options
    commandline -opc | string match --invert -- '-*'
end

function __fwk_options
    set -l words (__fwk_words)
    set -l command $words[2]
    test "$command" = column; and set command $words[2..3]
    fwk $command --help 2>/dev/null | sed -n 's/^  \(-[-a-z,]*\).*/\1/p' | string split ,
end

function __fwk_columns # [AFTER]
    set -l words (__fwk_words)
    set -l file $words[3]
    test "$words[2]" = column; and set file $words[4]
    set file (string replace -r '^~/' "$HOME/" -- (string unescape -- "$file"))
    test -f "$file"; or return
    timeout 2 fwk info "$file" 2>/dev/null |
        sed -n 's/  *\(Text\|Number\|Currency\|Date\|Picture\|Calculation\)  *[0-9][0-9]*  *[0-9].*//p' |
        string replace -r '$' -- "$argv[1]"
end

function __fwk_at # COMMAND COUNT: the cursor is behind that command and so many words
    set -l words (__fwk_words)
    contains -- "$words[2]" (string split , -- $argv[1]); and test (count $words) -ge $argv[2]
end

complete -c fwk -f
complete -c fwk -n 'test (count (__fwk_words)) -eq 1' -a '(__fwk_commands)'
complete -c fwk -n '__fwk_at column 2; and test (count (__fwk_words)) -eq 2' -a '(__fwk_commands column)'
complete -c fwk -n 'string match -q -- "-*" (commandline -ct)' -a '(__fwk_options)'
complete -c fwk -n 'test (count (__fwk_words)) -ge 2; and not __fwk_at labels 3' -k -a '(__fish_complete_suffix .fwk)'
complete -c fwk -n '__fwk_at sort,expression,serial,set,statistics,summary,duplicates,total,search,replace,records,report 3; or __fwk_at column 4' \
    -a '(__fwk_columns)'
complete -c fwk -n '__fwk_at add,update 3' -a '(__fwk_columns =)'
