# bash completion for tavrin-cli: commands, options, tab names, option keys and files.
# The words come from tavrin-cli itself, so they follow the program installed.
_tavrin_cli()
{
    local cur=${COMP_WORDS[COMP_CWORD]}
    local prev=${COMP_WORDS[COMP_CWORD-1]}
    local IFS=$'\n'
    if [[ $COMP_CWORD -eq 1 ]]; then
        COMPREPLY=($(compgen -W "$(tavrin-cli complete commands)"$'\n--help\n--version' -- "$cur"))
        return
    fi
    case $prev in
        --tab)
            COMPREPLY=($(compgen -W "$(tavrin-cli complete tabs)" -- "$cur"))
            return ;;
        --set)
            compopt -o nospace 2>/dev/null
            COMPREPLY=($(compgen -W "$(tavrin-cli complete keys | sed 's/$/=/')" -- "$cur"))
            return ;;
        --sort)
            COMPREPLY=($(compgen -W "$(tavrin-cli complete sortkeys)" -- "$cur"))
            return ;;
    esac
    if [[ $cur == -* ]]; then
        COMPREPLY=($(compgen -W "$(tavrin-cli complete options "${COMP_WORDS[1]}")" -- "$cur"))
    else
        COMPREPLY=($(compgen -f -- "$cur"))
    fi
}
complete -o filenames -F _tavrin_cli tavrin-cli
