#compdef nubivane-cli

# The Frames of a project, from the count at the head of its file.
_nubivane_cli_frames() {
    local head word project
    for word in $words; do
        if [[ $word == *.(#i)nvpf ]]; then
            project=${word/#\~\//$HOME/}
            break
        fi
    done
    [[ -f $project ]] || return 1
    head=$(head -c 200 -- $project | tr -d '\0')
    if [[ $head =~ 'Frames="([0-9]{1,4})"' ]] && ((match[1] > 0)); then
        compadd "$@" -- {1..$match[1]}
    fi
}

_nubivane_cli_frames_or_all() {
    _nubivane_cli_frames
    compadd -- all
}

_nubivane_cli() {
    setopt localoptions extendedglob
    local curcontext=$curcontext state line
    local -a commands
    commands=(
        'show:print a project as JSON'
        'save:open a project and save it'
        'versions:list the earlier versions of a project'
        'version:write an earlier version'
        'recovered:list unsaved work'
        'recover:write unsaved work'
        'page:make the web page'
        'plan:print the steps of an upload'
        'upload:send the site by FTP'
        'still:write a Frame as a picture'
        'anigif:write a Frame as a moving GIF'
        'film:write all Frames as a GIF or an MP4'
        'avi:write a Frame as an AVI video'
        'mp4:write a Frame as an MP4 video'
        'print:print a Frame into a PDF'
        'settings:read and change settings'
    )
    _arguments -C \
        '--program-folder[work in this folder]:folder:_files -/' \
        '--settings[use the settings in this file]:file:_files' \
        '(- *)'{-h,--help}'[print a summary of the commands]' \
        '(- *)'{-V,--version}'[print the version]' \
        '1:command:->command' \
        '*::argument:->argument' && return
    if [[ $state == command ]]; then
        _describe command commands
        return
    fi

    local -a help project compression fine frame
    help=('(- *)'{-h,--help}'[print a summary of the commands]')
    project=('1:project:_files -g "*.(#i)nvpf"')
    frame=('2:Frame:_nubivane_cli_frames')
    compression=('--compression=[leave images out]:compression:(1 2 3)')
    fine=('--fine[come closer to the colours]')
    case $words[1] in
        show) _arguments $help $project ;;
        save) _arguments $help $project '2:target:_files -g "*.(#i)nvpf"' ;;
        versions) _arguments $help $project '--json[as JSON]' ;;
        version) _arguments $help $project '2:number:' '3:target:_files -g "*.(#i)nvpf"' ;;
        recovered) _arguments $help '--json[as JSON]' ;;
        recover) _arguments $help '1:number:' '2:target:_files -g "*.(#i)nvpf"' ;;
        page) _arguments $help $project '--type=[type of the page]:type:(1 2 3 4 5)' \
            '--into=[make a site of its own there]:folder:_files -/' ;;
        plan)
            _arguments $help $project '--symbols[the symbols]' '--maps[the maps]' \
                '--html-page[the page]' \
                '--bytes[the files that would be sent, with their bytes]' \
                '--all[each file, changed or not]'
            ;;
        upload)
            _arguments $help $project '--initialize[send all, as for the first time]' \
                '--all[also what has not changed]' '--delete[remove what is here no more]' \
                '--dry-run[only tell what would be done]' '--json[one JSON object a line]' \
                '--verbose[show the conversation with the server]' \
                '--encryption=[whether the password may travel in clear]:encryption:(required offered none)' \
                '--accept-fingerprint=[trust this certificate or host key]:SHA-256:' \
                '--connections=[at most so many]:number:' \
                '--host=[server]:host:_hosts' '--port=[port of the server]:port:' \
                '--user=[user on the server]:user:' \
                '--password-file=[file with the password]:file:_files'
            ;;
        still)
            _arguments $help $project '2:Frame:_nubivane_cli_frames_or_all' \
                '--format=[format of the picture]:format:(bmp gif jpg png tif)' \
                '3:picture:_files -g "*.(#i)(bmp|gif|jpg|png|tif)"'
            ;;
        anigif)
            _arguments $help $project $frame $compression $fine '3:file:_files -g "*.(#i)gif"'
            ;;
        film)
            _arguments $help $project $fine '2:file:_files -g "*.(#i)(gif|mp4)"' \
                '--interval=[time of an image]:hundredths of a second:' \
                '--from=[Frame of the first symbols]:Frame:_nubivane_cli_frames'
            ;;
        avi | mp4)
            _arguments $help $project $frame $compression '--width=[pixels]:width:' \
                '--height=[pixels]:height:' "3:video:_files -g '*.(#i)$words[1]'"
            ;;
        print) _arguments $help $project $frame '3:file:_files -g "*.(#i)pdf"' ;;
        settings) _arguments $help '1:what to do:(get set delete)' ;;
    esac
}

_nubivane_cli "$@"
