# fish completion for nubivane-cli

# The words behind the options of the program itself, the command first.
function __nubivane_cli_words
    set -l words (commandline -opc) ""
    set -e words[1]
    set -e words[-1]
    while set -q words[1]
        switch $words[1]
            case --program-folder --settings
                set -e words[1]
                set -q words[1]; and set -e words[1]
            case '-*'
                set -e words[1]
            case '*'
                break
        end
    end
    string join \n -- $words
end

function __nubivane_cli_needs_command
    set -l words (__nubivane_cli_words)
    not set -q words[1]
end

# __nubivane_cli_is COMMAND…
function __nubivane_cli_is
    set -l words (__nubivane_cli_words)
    set -q words[1]; and contains -- $words[1] $argv
end

# __nubivane_cli_at COUNT COMMAND…: the command stands there with that many arguments behind it.
function __nubivane_cli_at
    set -l words (__nubivane_cli_words)
    set -q words[1]; and contains -- $words[1] $argv[2..]; or return 1
    set -l count 0
    set -l value no
    for word in $words[2..]
        if test $value = yes
            set value no
        else if contains -- $word --type --into --format --host --port --user --password-file --encryption --accept-fingerprint --connections --compression \
                --interval --from --width --height
            set value yes
        else if not string match -q -- '--*' $word
            set count (math $count + 1)
        end
    end
    test $value = no -a $count -eq $argv[1]
end

# The Frames of the project that the command names, from the count at the head of its file.
function __nubivane_cli_frames
    for word in (__nubivane_cli_words)
        string match -qi '*.nvpf' -- $word; and test -f $word; or continue
        set -l head (head -c 200 -- $word | string collect)
        set -l count (string match -r 'Frames="([0-9]{1,4})"' -- $head)[2]
        test -n "$count"; and seq 1 $count
        return
    end
end

complete -c nubivane-cli -f
complete -c nubivane-cli -n __nubivane_cli_needs_command -l program-folder -x -a '(__fish_complete_directories)' -d 'Work in this folder'
complete -c nubivane-cli -n __nubivane_cli_needs_command -l settings -r -F -d 'Use the settings in this file'
complete -c nubivane-cli -s h -l help -d 'Print a summary of the commands'
complete -c nubivane-cli -n __nubivane_cli_needs_command -s V -l version -d 'Print the version'

complete -c nubivane-cli -n __nubivane_cli_needs_command -a show -d 'Print a project as JSON'
complete -c nubivane-cli -n __nubivane_cli_needs_command -a save -d 'Open a project and save it'
complete -c nubivane-cli -n __nubivane_cli_needs_command -a versions -d 'List the earlier versions of a project'
complete -c nubivane-cli -n __nubivane_cli_needs_command -a version -d 'Write an earlier version'
complete -c nubivane-cli -n __nubivane_cli_needs_command -a recovered -d 'List unsaved work'
complete -c nubivane-cli -n __nubivane_cli_needs_command -a recover -d 'Write unsaved work'
complete -c nubivane-cli -n __nubivane_cli_needs_command -a page -d 'Make the web page'
complete -c nubivane-cli -n __nubivane_cli_needs_command -a plan -d 'Print the steps of an upload'
complete -c nubivane-cli -n __nubivane_cli_needs_command -a upload -d 'Send the site by FTP'
complete -c nubivane-cli -n __nubivane_cli_needs_command -a still -d 'Write a Frame as a picture'
complete -c nubivane-cli -n __nubivane_cli_needs_command -a anigif -d 'Write a Frame as a moving GIF'
complete -c nubivane-cli -n __nubivane_cli_needs_command -a film -d 'Write all Frames as a GIF or an MP4'
complete -c nubivane-cli -n __nubivane_cli_needs_command -a avi -d 'Write a Frame as an AVI video'
complete -c nubivane-cli -n __nubivane_cli_needs_command -a mp4 -d 'Write a Frame as an MP4 video'
complete -c nubivane-cli -n __nubivane_cli_needs_command -a print -d 'Print a Frame into a PDF'
complete -c nubivane-cli -n __nubivane_cli_needs_command -a settings -d 'Read and change settings'
complete -c nubivane-cli -n '__nubivane_cli_at 0 settings' -a 'get set delete'

complete -c nubivane-cli -n '__nubivane_cli_is versions recovered' -l json -d 'As JSON'
complete -c nubivane-cli -n '__nubivane_cli_is still' -l format -x -a 'bmp gif jpg png tif' -d 'Format of the picture'
complete -c nubivane-cli -n '__nubivane_cli_is page' -l type -x -a '1 2 3 4 5' -d 'Type of the page'
complete -c nubivane-cli -n '__nubivane_cli_is page' -l into -x -a '(__fish_complete_directories)' -d 'Make a site of its own there'
complete -c nubivane-cli -n '__nubivane_cli_is plan' -l symbols -d 'The symbols'
complete -c nubivane-cli -n '__nubivane_cli_is plan' -l maps -d 'The maps'
complete -c nubivane-cli -n '__nubivane_cli_is plan' -l html-page -d 'The page'
complete -c nubivane-cli -n '__nubivane_cli_is plan' -l bytes -d 'The files that would be sent, with their bytes'
complete -c nubivane-cli -n '__nubivane_cli_is plan' -l all -d 'Each file, changed or not'
complete -c nubivane-cli -n '__nubivane_cli_is upload' -l initialize -d 'Send all, as for the first time'
complete -c nubivane-cli -n '__nubivane_cli_is upload' -l all -d 'Also what has not changed'
complete -c nubivane-cli -n '__nubivane_cli_is upload' -l delete -d 'Remove what is here no more'
complete -c nubivane-cli -n '__nubivane_cli_is upload' -l dry-run -d 'Only tell what would be done'
complete -c nubivane-cli -n '__nubivane_cli_is upload' -l json -d 'One JSON object a line'
complete -c nubivane-cli -n '__nubivane_cli_is upload' -l verbose -d 'Show the conversation with the server'
complete -c nubivane-cli -n '__nubivane_cli_is upload' -l encryption -x -a 'required offered none' -d 'Whether the password may travel in clear'
complete -c nubivane-cli -n '__nubivane_cli_is upload' -l accept-fingerprint -x -d 'Trust the certificate or host key with this SHA-256'
complete -c nubivane-cli -n '__nubivane_cli_is upload' -l connections -x -d 'At most so many connections'
complete -c nubivane-cli -n '__nubivane_cli_is upload' -l host -x -a '(__fish_print_hostnames)' -d 'Server'
complete -c nubivane-cli -n '__nubivane_cli_is upload' -l port -x -d 'Port of the server'
complete -c nubivane-cli -n '__nubivane_cli_is upload' -l user -x -d 'User on the server'
complete -c nubivane-cli -n '__nubivane_cli_is upload' -l password-file -r -F -d 'File with the password'
complete -c nubivane-cli -n '__nubivane_cli_is anigif avi mp4' -l compression -x -a '1 2 3' -d 'Leave images out'
complete -c nubivane-cli -n '__nubivane_cli_is anigif film' -l fine -d 'Come closer to the colours'
complete -c nubivane-cli -n '__nubivane_cli_is film' -l interval -x -d 'Hundredths of a second for each image'
complete -c nubivane-cli -n '__nubivane_cli_is film' -l from -x -a '(__nubivane_cli_frames)' -d 'Frame of the first symbols'
complete -c nubivane-cli -n '__nubivane_cli_is avi mp4' -l width -x -d 'Pixels'
complete -c nubivane-cli -n '__nubivane_cli_is avi mp4' -l height -x -d 'Pixels'

complete -c nubivane-cli -n '__nubivane_cli_at 0 show save versions version page plan upload still anigif film avi mp4 print' -a '(__fish_complete_suffix .nvpf)'
complete -c nubivane-cli -n '__nubivane_cli_at 1 save recover; or __nubivane_cli_at 2 version' -a '(__fish_complete_suffix .nvpf)'
complete -c nubivane-cli -n '__nubivane_cli_at 1 still' -a '(__nubivane_cli_frames) all'
complete -c nubivane-cli -n '__nubivane_cli_at 1 anigif avi mp4 print' -a '(__nubivane_cli_frames)'
complete -c nubivane-cli -n '__nubivane_cli_at 2 still anigif avi mp4 print; or __nubivane_cli_at 1 film' -F
