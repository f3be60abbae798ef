# fish completion for tavrin-cli: commands, options, tab names, option keys and files.
# The words come from tavrin-cli itself, so they follow the program installed.
function __tavrin_cli_command
    set -l tokens (commandline -opc)
    echo $tokens[2]
end

complete -c tavrin-cli -n '__fish_use_subcommand' -f -a '(tavrin-cli complete commands)'
complete -c tavrin-cli -n '__fish_use_subcommand' -f -l help -l version
complete -c tavrin-cli -n 'not __fish_use_subcommand; and string match -q -- "-*" (commandline -ct)' -f -a '(tavrin-cli complete options (__tavrin_cli_command))'
complete -c tavrin-cli -n '__fish_seen_subcommand_from preview apply options' -l tab -x -a '(tavrin-cli complete tabs)'
complete -c tavrin-cli -n '__fish_seen_subcommand_from preview apply' -l set -x -a '(tavrin-cli complete keys | string replace -r "\$" "=")'
complete -c tavrin-cli -n '__fish_seen_subcommand_from list preview apply' -l sort -x -a '(tavrin-cli complete sortkeys)'
