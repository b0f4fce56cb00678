# Completes the command line of tavolux-config from what the program says of itself.

# The words that are no options and no values of options: the command, and what it takes.
function __tavolux_config_words
    set -l skip
    for word in (commandline -opc)[2..]
        if set -q skip[1]
            set -e skip
        else if contains -- $word --file --type --columns --printer --output
            set skip yes
        else if not string match -q -- '-*' $word
            echo $word
        end
    end
end

# Whether the next word is the command, or one that a command of these takes.
function __tavolux_config_expects
    set -l given (__tavolux_config_words)
    if test "$argv" = command
        return (test (count $given) = 0)
    end
    test (count $given) = 1; and contains -- $given[1] $argv
end

function __tavolux_config_commands
    tavolux-config --help | string replace -rf '^  ([a-z][a-z-]*)( [^a-z ]+)*  +([a-z].*)$' '$1\t$3'
end

# The keys of the configuration that the line names, or else of the user's own.
function __tavolux_config_keys
    set -l line (commandline -opc)
    set -l file
    for i in (seq (count $line))
        test $line[$i] = --file; and set file --file $line[(math $i + 1)]
    end
    tavolux-config $file list --names 2>/dev/null
end

complete -c tavolux-config -f
complete -c tavolux-config -n '__tavolux_config_expects command' -a '(__tavolux_config_commands)'
complete -c tavolux-config -n '__tavolux_config_expects get set unset list' -a '(__tavolux_config_keys)'
complete -c tavolux-config -n '__tavolux_config_expects check-document write write-xml test-page status' -F
complete -c tavolux-config -l file -r -F -d 'the configuration'
complete -c tavolux-config -l type -x -a 'cfg xml' -d 'what kind of file it is'
complete -c tavolux-config -l columns -x -a '32 40 42 48' -d 'for init: the width of the paper'
complete -c tavolux-config -n 'not contains -- status (__tavolux_config_words); and not contains -- test-page (__tavolux_config_words)' -l printer -x -a '(tavolux-config models | tail -n +2 | string split -f 1 " ")' -d 'a model, or a printer'
complete -c tavolux-config -l output -r -F -d 'for init: what the printer prints'
complete -c tavolux-config -l force -d 'write or set it all the same'
complete -c tavolux-config -s q -l quiet -d 'print no findings'
complete -c tavolux-config -l json -d 'for list: print JSON'
complete -c tavolux-config -l names -d 'for list: print keys alone'
complete -c tavolux-config -s h -l help -d 'show the help'
complete -c tavolux-config -s v -l version -d 'show the version'
