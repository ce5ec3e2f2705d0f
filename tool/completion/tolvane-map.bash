# Completion of tolvane-map for bash. Source it, or install it as
# /usr/share/bash-completion/completions/tolvane-map.

_tolvane_map() {
    local current=${COMP_WORDS[COMP_CWORD]} previous=${COMP_WORDS[COMP_CWORD - 1]} word=${COMP_WORDS[1]}
    local offers
    COMPREPLY=()
    # "--format=json" comes in three words.
    if [ "$current" = "=" ]; then
        current=""
    elif [ "$previous" = "=" ]; then
        previous=${COMP_WORDS[COMP_CWORD - 2]}
    fi

    if [ "$COMP_CWORD" -eq 1 ]; then
        mapfile -t COMPREPLY < <(compgen -W "check diff export --help --version" -- "$current")
        return
    fi
    case "$word $previous" in
    "check --format") offers="text json github" ;;
    "check --warnings") offers="off on error" ;;
    "diff --format") offers="text json" ;;
    "export --format") offers="csv text" ;;
    *)
        case "$word $current" in
        "check -"*) offers="--json --modbus --name --format --warnings --quiet --help" ;;
        "diff -"*) offers="--json --format --git --quiet --help" ;;
        "export -"*) offers="--json --modbus --output --format --help" ;;
        *)
            compopt -o filenames 2>/dev/null
            mapfile -t COMPREPLY < <(compgen -f -- "$current")
            return
            ;;
        esac
        ;;
    esac
    mapfile -t COMPREPLY < <(compgen -W "$offers" -- "$current")
}
complete -F _tolvane_map tolvane-map
