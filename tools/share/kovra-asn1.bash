# Completion of kovra-asn1 for bash. Written by tools/share/generate.cpp.
_kovra_asn1() {
    local word=${COMP_WORDS[COMP_CWORD]} before=${COMP_WORDS[COMP_CWORD - 1]} command= i
    for ((i = 1; i < COMP_CWORD; ++i)); do
        case ${COMP_WORDS[i]} in
        --out | --color | --type | --indent) ((++i)) ;;
        -*) ;;
        *) command=${command:-${COMP_WORDS[i]}} ;;
        esac
    done
    case $before in
    --out) mapfile -t COMPREPLY < <(compgen -f -- "$word") && return ;;
    --type) mapfile -t COMPREPLY < <(compgen -W "$(kovra-asn1 types 2>/dev/null | awk '{ print $NF }')" -- "$word") && return ;;
    --color) mapfile -t COMPREPLY < <(compgen -W "auto always never" -- "$word") && return ;;
    --indent) return ;;
    esac
    local options="--help --help-all --out --color --quiet"
    case $command in
    dump) options+=" --full" ;;
    show) options+=" --type --secrets --full" ;;
    json) options+=" --indent --compact" ;;
    check) options+=" --type" ;;
    esac
    case $word in
    -*) mapfile -t COMPREPLY < <(compgen -W "$options" -- "$word") && return ;;
    esac
    case $command in
    '') mapfile -t COMPREPLY < <(compgen -W "dump show json der check types version" -- "$word") ;;
    types | version) ;;
    *) mapfile -t COMPREPLY < <(compgen -f -- "$word") ;;
    esac
}
complete -o filenames -F _kovra_asn1 kovra-asn1
