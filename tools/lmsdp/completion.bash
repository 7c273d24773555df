# Completion of lmsdp for bash.

_lmsdp()
{
    local current=${COMP_WORDS[COMP_CWORD]} previous=${COMP_WORDS[COMP_CWORD - 1]} options files=yes
    COMPREPLY=()
    if ((COMP_CWORD == 1)); then
        COMPREPLY=($(compgen -W "show normalize streams offer check --help --version -h" -- "$current"))
        return
    fi
    case ${COMP_WORDS[1]} in
    show | streams) options="--json --show-keys" ;;
    normalize) options="--show-keys" ;;
    check) options="--json --show-keys --strict" ;;
    offer)
        options="--audio --video --text --image --application --codec --address --json"
        files=
        case $previous in
        --audio | --video | --text | --image | --application | --address) return ;;
        --codec)
            compopt -o nospace 2>/dev/null
            COMPREPLY=($(compgen -W "0 3 4 5 6 7 8 9 10 11 12 13 14 15 16 17 18 25 26 28 31 32 33 34" -- "$current"))
            return
            ;;
        esac
        ;;
    *) return ;;
    esac
    if [[ $current == -* || -z $files ]]; then
        COMPREPLY=($(compgen -W "$options --help -h" -- "$current"))
    else
        compopt -o filenames 2>/dev/null
        COMPREPLY=($(compgen -f -- "$current"))
    fi
}

complete -F _lmsdp lmsdp
