# bash completion for nubivane-cli                                -*- shell-script -*-

# The Frames of a project, from the count at the head of its file.
_nubivane_cli_frames() {
    local head count
    [[ -f $1 ]] || return
    head=$(head -c 200 -- "$1" 2>/dev/null | tr -d '\0')
    [[ $head =~ Frames=\"([0-9]{1,4})\" ]] || return
    count=$((10#${BASH_REMATCH[1]}))
    ((count == 0)) || seq 1 "$count"
}

_nubivane_cli() {
    local cur prev words cword
    _init_completion || return

    # Where the command stands, behind the options of the program itself.
    local i=1
    while ((i < cword)); do
        case ${words[i]} in
            --program-folder | --settings) ((i += 2)) ;;
            -*) ((i++)) ;;
            *) break ;;
        esac
    done
    if ((i >= cword)); then
        case $prev in
            --program-folder)
                _filedir -d
                return
                ;;
            --settings)
                _filedir
                return
                ;;
        esac
        if [[ $cur == -* ]]; then
            COMPREPLY=($(compgen -W '--program-folder --settings --help --version' -- "$cur"))
        else
            COMPREPLY=($(compgen -W 'show save versions version recovered recover page plan
                upload still anigif film avi mp4 print settings' -- "$cur"))
        fi
        return
    fi

    local command=${words[i]} options='' with_value='' project='' argument=0 j
    case $command in
        page) with_value='--type --into' ;;
        versions | recovered) options='--json' ;;
        plan) options='--symbols --maps --html-page --bytes --all' ;;
        upload)
            options='--initialize --all --delete --dry-run --json --verbose'
            with_value='--host --port --user --password-file --encryption --accept-fingerprint
                --connections'
            ;;
        still) with_value='--format' ;;
        anigif)
            options='--fine'
            with_value='--compression'
            ;;
        film)
            options='--fine'
            with_value='--interval --from'
            ;;
        avi | mp4) with_value='--width --height --compression' ;;
    esac

    # How many arguments the command has already, and the first one.
    for ((j = i + 1; j < cword; j++)); do
        if [[ " $with_value " == *" ${words[j]} "* ]]; then
            ((j++))
        elif [[ ${words[j]} != --* ]]; then
            ((argument++))
            [[ $project ]] || project=${words[j]}
        fi
    done
    project=${project/#\~\//$HOME/}

    if [[ " $with_value " == *" $prev "* ]]; then
        case $prev in
            --format) COMPREPLY=($(compgen -W 'bmp gif jpg png tif' -- "$cur")) ;;
            --type) COMPREPLY=($(compgen -W '1 2 3 4 5' -- "$cur")) ;;
            --compression) COMPREPLY=($(compgen -W '1 2 3' -- "$cur")) ;;
            --from) COMPREPLY=($(compgen -W '$(_nubivane_cli_frames "$project")' -- "$cur")) ;;
            --host) _known_hosts_real -- "$cur" ;;
            --password-file) _filedir ;;
            --into) _filedir -d ;;
            --encryption) COMPREPLY=($(compgen -W 'required offered none' -- "$cur")) ;;
        esac
        return
    fi
    if [[ $cur == -* ]]; then
        COMPREPLY=($(compgen -W "$options $with_value --help" -- "$cur"))
        return
    fi

    case $command:$argument in
        settings:0) COMPREPLY=($(compgen -W 'get set delete' -- "$cur")) ;;
        show:0 | save:0 | page:0 | plan:0 | upload:0 | still:0 | anigif:0 | film:0 | avi:0 | \
            mp4:0 | print:0 | versions:0 | version:0 | save:1 | version:2 | recover:1)
            _filedir nvpf
            ;;
        still:1)
            COMPREPLY=($(compgen -W '$(_nubivane_cli_frames "$project") all' -- "$cur"))
            ;;
        anigif:1 | avi:1 | mp4:1 | print:1)
            COMPREPLY=($(compgen -W '$(_nubivane_cli_frames "$project")' -- "$cur"))
            ;;
        still:2) _filedir '@(bmp|gif|jpg|png|tif)' ;;
        anigif:2) _filedir gif ;;
        film:1) _filedir '@(gif|mp4)' ;;
        avi:2) _filedir avi ;;
        mp4:2) _filedir mp4 ;;
        print:2) _filedir pdf ;;
    esac
} &&
    complete -F _nubivane_cli nubivane-cli
