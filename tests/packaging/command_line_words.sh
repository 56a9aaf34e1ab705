#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Manual page and completions know every word of the command line: command_line_words.sh CLI
set -euo pipefail
. "$(dirname "$0")/packaging.sh"
cli=$1
need_tools man fish zsh

"$cli" --help >"$work/help"
MANWIDTH=200 man -l "$root/packaging/linux/nubivane-cli.1.in" | sed 's/\xe2\x80\x90/-/g' >"$work/manual"
mapfile -t commands < <(sed -n 's/^  \([a-z][a-z0-9]*\( [a-z]\+\)\?\) .*/\1/p' "$work/help")
mapfile -t options < <(grep -oE -e '--[a-z][a-z-]*' "$work/help" | sort -u)
[ ${#commands[@]} -ge 14 ] || fail "only ${#commands[@]} commands in the help"
for command in "${commands[@]}"; do
    check "the manual has \"$command\"" grep -qE "^ +$command( [[A-Z]|\$)" "$work/manual"
done
for option in "${options[@]}"; do
    check "the manual has $option" grep -qwF -e "$option" "$work/manual"
done

helpers=/usr/share/bash-completion/bash_completion
[ -r $helpers ] || need_tools bash-completion
set +eu
. $helpers
. "$root/packaging/linux/nubivane-cli.bash"

# complete WORD…: what may stand for the last of the words, sorted, in one line.
complete_words() {
    COMP_WORDS=("$@")
    COMP_CWORD=$(($# - 1))
    COMP_LINE=$*
    COMP_POINT=${#COMP_LINE}
    COMPREPLY=()
    _nubivane_cli
    printf '%s\n' "${COMPREPLY[@]}" | LC_ALL=C sort | paste -sd ' ' -
}

offers() {
    local expected=$1
    shift
    equal "$* <Tab>" "$expected" "$(complete_words nubivane-cli "$@")"
}

cd "$work"
mkdir folder
cp "$root"/examples/europe.nvpf .
touch europe.nvpx other.NVPF secret.txt day.gif day.png day.avi day.mp4 day.pdf
all=$(printf '%s\n' "${commands[@]%% *}" | LC_ALL=C sort -u | paste -sd ' ' -)
offers "$all" ''
offers "$all" --settings secret.txt ''
offers "page plan print" p
offers "--help --program-folder --settings --version" -
offers "folder" --program-folder ''
offers "delete get set" settings ''
offers "" settings get ''
# What the help says of a command is its line and those below it that begin with an option.
options_of() {
    sed -n "/^  $1 /,/^      [a-z0-9]/p" "$work/help" | grep -oE -e '--[a-z][a-z-]*' |
        LC_ALL=C sort -u | xargs -d '\n' printf '%s\n' --help | LC_ALL=C sort -u | paste -sd ' ' -
}
for command in "${commands[@]}"; do
    case $command in settings*) continue ;; esac
    case $command in
        recover*) ;; # of no project
        *) offers "europe.nvpf folder other.NVPF" "$command" '' ;;
    esac
    offers "$(options_of "$command")" "$command" europe.nvpf --
done
offers "1 2 3 4 5" page europe.nvpf --type ''
offers "folder" page europe.nvpf --into ''
offers "1 2 3" anigif --compression ''
offers "1 2 3 4 5" film europe.nvpf day.gif --from ''
offers "secret.txt" upload --password-file s
offers "1 2 3 4 5 all" still europe.nvpf ''
offers "1 2 3 4 5" mp4 --width 800 europe.nvpf ''
offers "" print missing.nvpf ''
offers "day.gif day.png folder" still europe.nvpf 1 ''
offers "day.gif folder" anigif europe.nvpf 1 ''
offers "day.gif day.mp4 folder" film europe.nvpf ''
offers "day.avi folder" avi europe.nvpf 1 ''
offers "day.mp4 folder" mp4 europe.nvpf 1 ''
offers "day.pdf folder" print europe.nvpf 1 ''
# What a file says of itself is no command.
printf '<FILE Frames="$(touch caught)">' >evil.nvpf
offers "" print evil.nvpf ''
printf '<FILE Frames="9999999999">' >evil.nvpf
offers "" print evil.nvpf ''
check "nothing of a file is run" test ! -e caught

# fish tells its completions itself.
fish_offers() {
    local expected=$1
    shift
    equal "fish: $* <Tab>" "$expected" "$(HOME=$work fish -c '
        source $argv[1]
        complete -C $argv[2]' "$root/packaging/linux/nubivane-cli.fish" "nubivane-cli $*" |
        cut -f 1 | LC_ALL=C sort | paste -sd ' ' -)"
}
fish_offers "$all" ''
fish_offers "$all" --settings secret.txt ''
fish_offers "--help --program-folder --settings --version" --
fish_offers "delete get set" settings ''
for command in "${commands[@]}"; do
    case $command in settings*) continue ;; esac
    fish_offers "$(options_of "$command")" "$command" europe.nvpf --
done
fish_offers "1 2 3 4 5" page europe.nvpf --type ''
fish_offers "--type=1 --type=2 --type=3 --type=4 --type=5" page europe.nvpf --type=
fish_offers "1 2 3 4 5" film europe.nvpf day.gif --from ''
fish_offers "1 2 3 4 5 all" still europe.nvpf ''
fish_offers "1 2 3 4 5" mp4 --width 800 europe.nvpf ''

# zsh only completes at a terminal: here its helper function tells what it is given.
zsh_words() {
    zsh -fc '
        _arguments() { if [[ $1 == -C ]]; then state=$want; return 1; fi; print -l -- "$@" }
        _describe() { print -l -- ${(P)2} }
        want=$2; words=(${(s: :)3}); . $1' - "$root/packaging/linux/nubivane-cli.zsh" "$@"
}
equal "zsh: nubivane-cli <Tab>" "$all" \
    "$(zsh_words command '' | cut -d : -f 1 | LC_ALL=C sort | paste -sd ' ' -)"
for command in "${commands[@]}"; do
    case $command in settings*) continue ;; esac
    equal "zsh: nubivane-cli $command -<Tab>" "$(options_of "$command")" "$(
        zsh_words argument "$command" | grep -oE -e '--[a-z][a-z-]*' | LC_ALL=C sort -u | paste -sd ' ' -)"
done
check "zsh: the actions on settings" grep -q '(get set delete)' <(zsh_words argument settings)
for option in --program-folder --settings --help --version; do
    check "zsh: $option" grep -qF -e "$option" "$root/packaging/linux/nubivane-cli.zsh"
done
