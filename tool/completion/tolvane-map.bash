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
        case "$current" in
        -*) offers="-h --help --version" ;;
        *) offers="check diff export" ;;
        esac
        mapfile -t COMPREPLY < <(compgen -W "$offers" -- "$current")
        return
    fi
    case "$word $previous" in
    "check --format") offers="text json github" ;;
    "check --warnings") offers="off on error" ;;
    "diff --format") offers="text json" ;;
    "export --format") offers="csv text" ;;
    *)
        case "$word $current" in
        "check -"*) offers="-d --json -m --modbus --name --format --warnings -q --quiet -h --help" ;;
        "diff -"*) offers="-d --json --format --git -q --quiet -h --help" ;;
        "export -"*) offers="-d --json -m --modbus -o --output --format -h --help" ;;
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
