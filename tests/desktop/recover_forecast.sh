#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Ends the editor in every way that is no proper close, looks for what it had unsaved, and restores
# it from the bar of the next start.
#
#     recover_forecast.sh PROGRAM_FOLDER
#
# Exit codes and surroundings as those of compose_forecast.sh.
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)
. "$here/desktop.sh"

[ $# = 1 ] && [ -x "$1/Nubivane" ] || fail "usage: recover_forecast.sh PROGRAM_FOLDER"
need_tools Xvfb xdotool
work=$(mktemp -d)
trap clean_up EXIT
trap 'exit 1' INT TERM
use_own_home
use_recording_browser
unset XDG_STATE_HOME
own_program "$1" sun

recovered() {
    "$program/nubivane-cli" recovered
}

# has STATE N: N entries, all in that state.
has() {
    [ "$(recovered | cut -f 4)" = "$(for ((i = 0; i < $2; ++i)); do echo "$1"; done)" ]
}

# place_symbol: the first one of the palette in the middle of the map.
place_symbol() {
    keys F6 # no key of the program: the window is awake
    xdotool mousemove $((windowX + 60)) $((windowY + 160)) click 1
    xdotool key --delay 20 Return
}

# dies SIGNAL CODE: the editor is sent a signal and ends with that code, in two seconds.
dies() {
    local end=$((SECONDS + 3)) code=0
    kill "-$1" $editor_process
    while kill -0 $editor_process 2>/dev/null; do
        [ $SECONDS -lt $end ] || fail "$1 does not end the editor"
        sleep 0.02
    done
    wait $editor_process || code=$?
    editor_process=
    [ $code = "$2" ] || fail "$1 ended the editor with code $code, not $2"
}

start_display 1280x1024

start_editor
place_symbol
wait_for "a copy of what is open" has open 1
dies KILL 137
has crashed 1 || fail "after kill -9: $(recovered)"
[ -z "$(recovered | cut -f 2)" ] || fail "a project that was never saved has a path"
echo "ok: kill -9 leaves what was unsaved"

for signal in TERM:143 HUP:129 INT:130; do
    rm -rf "$HOME/.local/state/Nubivane"
    start_editor
    place_symbol
    dies "${signal%:*}" "${signal#*:}"
    has crashed 1 || fail "after SIG${signal%:*} at once: $(recovered)"
done
echo "ok: signals that end programs keep it at once"

# The display dies under the editor.
rm -rf "$HOME/.local/state/Nubivane"
start_editor
place_symbol
kill $display_process
wait $display_process 2>/dev/null || true
display_process=
wait_for "the editor ends with its display" not kill -0 $editor_process
wait $editor_process 2>/dev/null || true
editor_process=
has crashed 1 || fail "after the end of the display: $(recovered)"
rm -f "$work/display"
start_display 1280x1024
echo "ok: so does the end of the display"

"$program/nubivane-cli" recover 1 "$work/recovered.nvpf"
"$program/nubivane-cli" show "$work/recovered.nvpf" | grep -q 'sun.gif' ||
    fail "what is recovered has no symbol"
has crashed 1 || fail "recover takes the entry away"

# The bar stands below the menus, its buttons at the right: Restore is the third from there.
start_editor
eval "$(xdotool getwindowgeometry --shell "$window" | sed -n 's/^\(WIDTH\)=/window\1=/p')"
xdotool mousemove $((windowX + windowWIDTH - 220)) $((windowY + 36)) click 1
wait_for "the work is this editor's" has open 1
keys ctrl+s
choose_file "Save project" "$work/restored.nvpf"
wait_for "nothing is unsaved" has crashed 0
cmp -s <("$program/nubivane-cli" show "$work/restored.nvpf") \
    <("$program/nubivane-cli" show "$work/recovered.nvpf") || fail "what was restored differs"
[ -e "$work/.restored.nvpf.lock" ] || fail "nothing says that the project is open"
keys ctrl+q
editor_ends
[ "$(cd "$work" && echo .restored* restored*)" = ".restored* restored.nvpf restored.nvpx" ] ||
    fail "beside the pair stand $(cd "$work" && echo .restored* restored*)"
echo "ok: Restore brings it back, a save ends it, and nothing but the pair is left"
