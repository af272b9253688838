# bash completion for corvane                                         -*- shell-script -*-

_corvane() {
    local current=${COMP_WORDS[COMP_CWORD]} previous=${COMP_WORDS[COMP_CWORD - 1]}
    if [[ $previous == --snapshot ]]; then
        compopt -o filenames
        mapfile -t COMPREPLY < <(compgen -f -X '!*.[pP][nN][gG]' -- "$current"; compgen -d -- "$current")
    else
        mapfile -t COMPREPLY < <(compgen -W '--demo --snapshot --version --help' -- "$current")
    fi
}

complete -F _corvane corvane
