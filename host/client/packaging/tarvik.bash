# SPDX-License-Identifier: MIT
# Completion of bash for the client. The options are those that the program itself tells.
_tarvik() {
    local word=${COMP_WORDS[COMP_CWORD]} before=${COMP_WORDS[COMP_CWORD - 1]}
    local help options
    case $before in
        --data) mapfile -t COMPREPLY < <(compgen -d -- "$word"); return ;;
        --picture | --screenshot) mapfile -t COMPREPLY < <(compgen -f -- "$word"); return ;;
    esac
    help=$("${COMP_WORDS[0]}" --help 2>/dev/null)
    case $before in
        --theme | --lang)
            # "light, dark or night" stands behind the option's own name and the name of its value.
            options=$(sed -n "s/^  $before [A-Z]* *//p" <<<"$help" | sed 's/, of .*//; s/,/ /g; s/ or / /') ;;
        *)
            options=$(grep -o '^  --[a-z]*' <<<"$help")
            [ "$COMP_CWORD" -eq 1 ] && options="plan $options" ;;
    esac
    mapfile -t COMPREPLY < <(compgen -W "$options" -- "$word")
}
complete -F _tarvik tarvik
