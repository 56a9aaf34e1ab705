#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Makes a page of three Frames with a symbol, a title, a subtitle and a forecast text each, by keys
# alone and in few of them: a key, or a text that is typed, counts as one action.
#
#     texts_by_keys.sh PROGRAM_FOLDER
#
# Exit codes and surroundings as those of compose_forecast.sh; it needs openbox too, for no keyboard
# is handed to any window here.
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)
. "$here/desktop.sh"

[ $# = 1 ] && [ -x "$1/Nubivane" ] || fail "usage: texts_by_keys.sh PROGRAM_FOLDER"
need_tools Xvfb openbox xdotool
work=$(mktemp -d)
trap clean_up EXIT
trap 'exit 1' INT TERM
use_own_home
use_recording_browser
own_program "$1" sun
project=$work/three.nvpf
most=60
actions=0

value() {
    python3 "$here/project_value.py" "$program/nubivane-cli" "$project" "$1"
}

# press KEY and write TEXT: one action each.
press() {
    xdotool key "$1"
    actions=$((actions + 1))
}
write() {
    xdotool type --delay 10 "$1"
    actions=$((actions + 1))
}

# keyboard_in TITLE: the window has come, and the keyboard is in it.
keyboard_in() {
    wait_for "the keyboard in \"$1\"" active "$1"
}

active() {
    local title
    title=$(xdotool getwindowname "$(xdotool getwindowfocus -f)")
    echo "the keyboard is in \"$title\""
    [[ "$title" =~ ^$1$ ]]
}

start_display 1280x1024
start_window_manager
start_editor
keyboard_in '.* - Nubivane'
xdotool mousemove $((windowX + 50)) $((windowY + 160)) click 1 # the first symbol of the palette
actions=$((actions + 1))

for day in Monday Tuesday Wednesday; do
    if [ $day != Monday ]; then
        press ctrl+t # the next Frame
    fi
    press F4
    keyboard_in Properties
    write "$day"
    press alt+t # from one text to the next
    write "in the north"
    press alt+t
    press space
    keyboard_in 'Forecast text'
    press alt+a # an element
    press alt+t
    write "Sky"
    press alt+t
    write "clear on $day"
    press Escape
    keyboard_in Properties
    press Escape
    keyboard_in '.* - Nubivane'
done
press ctrl+s
keyboard_in 'Save project'
write "$project"
press Return
keyboard_in 'three.nvpf - Nubivane'
press ctrl+Return
wait_for "the page goes to the browser" grep -q '/Forecast\.htm$' "$work/opened"

value "[(texts['Title']['Text'], texts['Subtitle']['Text'], [item['Text'] for item in texts['Header']],
         [item['Text'] for item in texts['Body']]) for texts in (f['Forecast'] for f in frames)]
       == [(day, 'in the north', ['Sky'], ['clear on ' + day])
           for day in ('Monday', 'Tuesday', 'Wednesday')]" >/dev/null || fail "the texts are others"
for text in Monday Tuesday Wednesday 'in the north' Sky 'clear on Wednesday'; do
    grep -q "$text" "$program/Forecast.htm" "$program/Forecast.js" || fail "the page lacks \"$text\""
done
[ $actions -le $most ] || fail "it took $actions actions"
echo "ok: three Frames with their texts in $actions actions"

xdotool key ctrl+q
editor_ends
echo "ok: the editor leaves without a question"
