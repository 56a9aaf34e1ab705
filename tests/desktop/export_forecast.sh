#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Exports a forecast from the editor's menus as a picture, a moving GIF, a film and a video, prints
# it, and has other programs look at the files.
#
#     export_forecast.sh PROGRAM_FOLDER
#
# Exit codes and surroundings as those of compose_forecast.sh; it needs ffprobe and gifsicle too.
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)
. "$here/desktop.sh"

[ $# = 1 ] && [ -x "$1/Nubivane" ] || fail "usage: export_forecast.sh PROGRAM_FOLDER"
need_tools Xvfb xdotool ffprobe gifsicle
work=$(mktemp -d)
trap clean_up EXIT
trap 'exit 1' INT TERM
use_own_home
limit=60 # some films take a while in a build for debugging

cp -r "$1" "$work/program"
program=$work/program
project=$work/italy.nvpf
cp "$here"/../../examples/italy.nvp[fx] "$work/"
# Where the dialog of videos begins, as it is seen from the working directory.
mkdir -p "$work/c:/dell"
cd "$work"

# cli VERB ARGUMENT…: what the command line makes of the project, for comparison.
cli() {
    local verb=$1
    shift
    QT_QPA_PLATFORM=offscreen "$program/nubivane-cli" "$verb" "$project" "$@" >/dev/null
}

# export_to N: the entry of the menu of exports after N others.
export_to() {
    local i
    keys alt+f Right Right Right Right Up Right
    for ((i = 0; i < $1; i++)); do
        xdotool key Down
    done
    xdotool key Return
}

# dialog TITLE: waits for a dialog and gives it the keyboard.
dialog() {
    wait_for "the dialog \"$1\"" find_window "$1"
    focus "$(find_window "$1")"
}

# typed TEXT: in place of what the field holds.
typed() {
    xdotool key ctrl+a
    xdotool type --delay 10 "$1"
}

# run_ends FILE: until the file is there and the window of the run is gone.
run_ends() {
    wait_for "$1 is written" test -s "$1"
    wait_for "the run of $1 ends" not find_window 'step [1-4] of [34]$|^ Saving'
    focus "$window"
}

start_display 1280x1024
start_editor "$project"

export_to 6
dialog '^Export map$'
typed "$work/night.png"
xdotool key Return
run_ends "$work/night.png"
cli still 1 "$work/cli.png"
cmp "$work/night.png" "$work/cli.png"
echo "ok: a picture, the same as from the command line"

export_to 2
dialog '^Export gif animated $'
typed night
xdotool key Return
run_ends "$program/night.gif"
cli anigif 1 "$work/cli.gif"
cmp "$program/night.gif" "$work/cli.gif"
gifsicle --info "$program/night.gif" | grep -q 'loop forever'
echo "ok: a moving GIF, the same as from the command line"

before=$(stat -c %Y.%i "$program/night.gif")
export_to 2
dialog '^Export gif animated $'
typed night.gif
xdotool key Return
dialog '^Nubivane$'
xdotool key Escape
dialog '^Export gif animated $'
xdotool key Escape
wait_for "the dialog goes" not find_window '^Export gif animated $'
[ "$(stat -c %Y.%i "$program/night.gif")" = "$before" ] || fail "the file was replaced without a yes"
echo "ok: a file is not replaced without a yes"

export_to 1
dialog '^Export frames animation$'
typed days
xdotool key Tab Tab
typed 150
xdotool key Return
run_ends "$program/days.gif"
[ "$(gifsicle --info "$program/days.gif" | grep -c 'delay 1.5')" = 4 ] || fail "the film's images"
echo "ok: a film of four Frames, a second and a half each"

export_to 0
dialog '^Export avi$'
typed night
xdotool key Return
run_ends "$work/c:/dell/night.avi"
shape=$(ffprobe -v error -show_entries stream=codec_name,width,height -of csv=p=0 \
    "$work/c:/dell/night.avi")
[ "$shape" = mjpeg,320,288 ] || fail "the video is $shape"
echo "ok: a video"

keys alt+f Down Down Down Down Down Return
dialog '^Print setup$'
xdotool key alt+f
typed "$work/night.pdf"
xdotool key Return
wait_for "the set-up goes" not find_window '^Print setup$'
[ ! -e "$work/night.pdf" ] || fail "the set-up printed"
keys ctrl+p
wait_for "the map is printed" grep -aq "%%EOF" "$work/night.pdf"
echo "ok: a print into a file"

keys ctrl+q
editor_ends
[ ! -e "$program/~temp" ] || fail "working files are left"
echo "ok: the editor leaves without a question"
