#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Where windows come up under a window manager.
#
#     window_places.sh PROGRAM_FOLDER
#
# Exit codes and surroundings as those of compose_forecast.sh; it needs openbox, xprop and xwininfo too.
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)
. "$here/desktop.sh"

[ $# = 1 ] && [ -x "$1/Nubivane" ] || fail "usage: window_places.sh PROGRAM_FOLDER"
need_tools Xvfb openbox xdotool xprop xwininfo
work=$(mktemp -d)
trap clean_up EXIT
trap 'exit 1' INT TERM
use_own_home
use_recording_browser
own_program "$1" sun

# frame_of WINDOW: X Y WIDTH HEIGHT of a window with the frame that the window manager gave it.
frame_of() {
    local left right top bottom x y w h
    IFS=' ,' read -r left right top bottom <<<"$(xprop -id "$1" _NET_FRAME_EXTENTS | sed 's/.*= //')"
    read -r x y w h <<<"$(xwininfo -id "$1" | awk '
        /Absolute upper-left X/ { x = $NF } /Absolute upper-left Y/ { y = $NF }
        /Width:/ { w = $NF } /Height:/ { h = $NF } END { print x, y, w, h }')"
    echo $((x - left)) $((y - top)) $((w + left + right)) $((h + top + bottom))
}

framed() {
    xprop -id "$1" _NET_FRAME_EXTENTS | grep -q '= [0-9]*, [0-9]*, [1-9]'
}

# near X Y X2 Y2: whether the places differ by no more than a frame. When a busy machine crosses what
# window and window manager say, they may; what must not be is that it adds up from showing to showing.
near() {
    local across=$(($1 - $3)) down=$(($2 - $4))
    [ ${across#-} -le 5 ] && [ ${down#-} -le 30 ]
}

# standing TITLE: waits for a window and prints its id and its place once that is at rest.
standing() {
    local found before= after same=0
    wait_for "the window \"$1\"" find_window "^$1\$"
    found=$(find_window "^$1\$")
    wait_for "the frame of \"$1\"" framed "$found"
    while [ $same -lt 10 ]; do
        after=$(frame_of "$found")
        if [ "$after" = "$before" ]; then same=$((same + 1)); else same=0; fi
        before=$after
        sleep 0.1
    done
    echo "$found $after"
}

start_display 1024x768
start_window_manager

# A start that fails: nothing but the box is there.
"$program/Nubivane" "$work/none.nvpf" >/dev/null 2>&1 &
editor_process=$!
read -r box x y w h <<<"$(standing 'Nubivane')"
[ $((2 * x + w)) -ge 1004 ] && [ $((2 * x + w)) -le 1044 ] && [ $((2 * y + h)) -ge 708 ] &&
    [ $((2 * y + h)) -le 828 ] || fail "the box of a failed start is $w x $h at $x, $y"
xdotool windowactivate --sync "$box" key Return
wait_for "the editor leaves" not kill -0 $editor_process
editor_process=
echo "ok: the box of a failed start stands in the middle"

start_editor
read -r _ x y w h <<<"$(standing 'New project - Nubivane')"
[ "$x" -ge 0 ] && [ "$y" -ge 0 ] && [ $((x + w)) -le 1024 ] && [ $((y + h)) -le 768 ] ||
    fail "the main window is $w x $h at $x, $y with its frame"
[ $((2 * x + w)) -ge 1022 ] && [ $((2 * x + w)) -le 1026 ] && [ $((2 * y + h)) -ge 766 ] &&
    [ $((2 * y + h)) -le 770 ] || fail "the main window is not in the middle: $w x $h at $x, $y"
echo "ok: the main window stands whole in the middle with its frame"
eval "$(xdotool getwindowgeometry --shell "$window" | sed -n 's/^\([XY]\)=/window\1=/p')"

# draw_line: the first point of a line brings the window "Drawing".
draw_line() {
    xdotool mousemove $((windowX + 933)) $((windowY + 156)) click 1
    xdotool mousemove $((windowX + 500)) $((windowY + 300)) click 1
}
draw_line
read -r drawing x y _ <<<"$(standing 'Drawing')"
for _ in 1 2 3 4; do
    xdotool windowactivate --sync "$window" key Escape
    wait_for "the window goes" not find_window '^Drawing$'
    draw_line
    read -r drawing x2 y2 _ <<<"$(standing 'Drawing')"
    near "$x" "$y" "$x2" "$y2" || fail "the window crept from $x, $y to $x2, $y2"
done
echo "ok: the window of a figure comes up in its place again and again"
xdotool windowmove "$drawing" 600 500
read -r drawing x y _ <<<"$(standing 'Drawing')"
xdotool windowactivate --sync "$window" key Escape
wait_for "the window goes" not find_window '^Drawing$'
draw_line
read -r drawing x2 y2 _ <<<"$(standing 'Drawing')"
near "$x" "$y" "$x2" "$y2" || fail "moved to $x, $y, the window came up at $x2, $y2"
xdotool windowactivate --sync "$window" key Escape
wait_for "the window goes" not find_window '^Drawing$'
xdotool key Escape
echo "ok: and where it was moved to"

for round in 1 2 3 4; do
    xdotool windowactivate --sync "$window" key F4
    read -r properties x2 y2 _ <<<"$(standing 'Properties')"
    [ $round != 1 ] || read -r x y <<<"$x2 $y2"
    near "$x" "$y" "$x2" "$y2" || fail "the properties crept from $x, $y to $x2, $y2"
    xdotool windowactivate --sync "$properties" key Escape
    wait_for "the window goes" not find_window '^Properties$'
done
echo "ok: a window for properties comes up in its place again and again"

# An export that fails tells so over its own window, which goes with the box. A name without an
# ending is no picture's.
xdotool windowactivate --sync "$window" key --delay 40 alt+f Right Right Right Right Up Right \
    Down Down Down Down Down Down Return
read -r files _ <<<"$(standing 'Export map')"
xdotool windowactivate --sync "$files" type --delay 10 "$work/no-ending"
xdotool key Return
read -r box _ <<<"$(standing 'Nubivane')"
xdotool windowactivate --sync "$box" key Return
wait_for "the box goes" not find_window '^Nubivane$'
wait_for "the export's window goes" not find_window '^ Saving'
wait_for "the keyboard is the main window's" has_focus "$window"
[ ! -e "$work/no-ending" ] || fail "a file without an ending was written"
echo "ok: after the box of an export that failed the main window has the keyboard"

xdotool key ctrl+q # to whoever has the keyboard
wait_for "the question" find_window '^Nubivane$'
xdotool windowactivate --sync "$(find_window '^Nubivane$')" key alt+n
editor_ends
echo "ok: the editor leaves"

# With everything half as large again the screen is a small one.
export QT_SCALE_FACTOR=1.5
start_editor
xdotool windowactivate --sync "$window" key --delay 40 alt+f Down Down Down Down Return
read -r versions x y w h <<<"$(standing 'Earlier versions')"
[ "$x" -ge 0 ] && [ "$y" -ge 0 ] && [ $((x + w)) -le 1024 ] && [ $((y + h)) -le 768 ] ||
    fail "the window of the versions is $w x $h at $x, $y with its frame"
echo "ok: a tall window is held on a small screen"
xdotool windowactivate --sync "$versions" key Escape
wait_for "the window goes" not find_window '^Earlier versions$'
xdotool windowactivate --sync "$window" key ctrl+q
editor_ends
