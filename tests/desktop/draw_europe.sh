#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Makes the first Frame of examples/europe.nvpf from an empty map by mouse and keys alone: isobars and
# fronts point by point, symbols, labels. Then compares its picture with that of the example.
#
#     draw_europe.sh PROGRAM_FOLDER
#
# Exit codes and surroundings as those of compose_forecast.sh; it needs ImageMagick's compare too.
# NUBIVANE_KEEP names a folder for both pictures.
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)
. "$here/desktop.sh"

[ $# = 1 ] && [ -x "$1/Nubivane" ] || fail "usage: draw_europe.sh PROGRAM_FOLDER"
need_tools Xvfb xdotool compare python3
work=$(mktemp -d)
trap clean_up EXIT
trap 'exit 1' INT TERM
use_own_home
use_recording_browser

own_program "$1" cloudy heavy-rain light-snow mist mostly-sunny partly-cloudy sea-rough showers sun
# Their own names have a common beginning and a blank, which the palette's search by typing dislikes.
cp "$1/Symbols/wind/wind-s.gif" "$program/Symbols/set-1/gentle.gif"
cp "$1/Symbols/wind/wind-sw-storm.gif" "$program/Symbols/set-1/wild.gif"
find "$program/Maps" -type f ! -name europe.jpg -delete
examples=$here/../../examples
chart=$here/../../tools/charts/europe-saturday.json
project=$work/mine.nvpf
"$1/nubivane-cli" show "$examples/europe.nvpf" >"$work/example.json"

value() {
    python3 "$here/project_value.py" "$program/nubivane-cli" "$project" "$1"
}

steps() {
    python3 "$here/chart_steps.py" "$@"
}

is_large() {
    xdotool getwindowgeometry "$window" | grep -q '1590x1180'
}

start_display 1600x1200
start_editor
xdotool windowmove "$window" 0 0 windowsize "$window" 1590 1180
wait_for "the window is as large as the screen" is_large
windowX=0 windowY=0

# A symbol, wherever it falls; by it one learns where the map lies on the screen.
dropX=$((windowX + 700)) dropY=$((windowY + 500))
drag_and_drop $((windowX + 50)) $((windowY + 160)) $dropX $dropY
keys ctrl+s
choose_file 'Save project' "$project"
wait_for "a symbol, saved" value "len(frames[0]['Symbols']) == 1"
mapX=$((dropX - $(value "frames[0]['Symbols'][0]['PosX']") - $(value "frames[0]['Symbols'][0]['Width']") / 2))
mapY=$((dropY - $(value "frames[0]['Symbols'][0]['PosY']") - $(value "frames[0]['Symbols'][0]['Height']") / 2))
keys Delete
saved "an empty map" "frames[0]['Symbols'] == []"

# kind NAME: the keys of a kind of figure, its group's and its own.
kind() {
    case $1 in
        cold-front) echo f 1 ;;
        warm-front) echo f 2 ;;
        occluded-front) echo f 3 ;;
        isoline) echo i 1 ;;
        closed-isoline) echo i 2 ;;
        *) fail "no keys are known for $1" ;;
    esac
}

# figure KIND WIDTH TEXT X Y…: the width is the one with which the tool begins.
figure() {
    local name=$1 text=$3 clicks=()
    shift 3
    # shellcheck disable=SC2046
    xdotool key --delay 20 $(kind "$name")
    case $name in *isoline)
        xdotool key --delay 20 v ctrl+a BackSpace
        [ "$text" = - ] || xdotool type --delay 10 "$text"
        ;;
    esac
    while [ $# -gt 0 ]; do
        clicks+=(mousemove $((mapX + $1)) $((mapY + $2)) click 1)
        shift 2
    done
    xdotool "${clicks[@]}"
    xdotool key --delay 20 Return
}

# The bare map takes the keyboard.
xdotool mousemove $((mapX + 780)) $((mapY + 590)) click 1
focus "$window"
figures=0
while read -r line; do
    # shellcheck disable=SC2086
    figure $line
    figures=$((figures + 1))
done < <(steps figures "$chart")
xdotool key --delay 20 s
saved "$figures fronts and isobars" "frames[0]['Size'] > 0 if 'Size' in frames[0] else True"

# symbol NAME LEFT TOP: found in the palette by typing, placed by Enter, moved by its properties.
symbol() {
    local name=$1
    case $name in
        wind-s) name=gentle ;;
        wind-sw-storm) name=wild ;;
    esac
    xdotool mousemove $((windowX + 50)) $((windowY + 160)) click 1
    focus "$window"
    xdotool type --delay 10 "${name:0:4}"
    xdotool key --delay 20 Return
    keys F4
    enter 'Properties'
    tab 4
    fill "$2"
    tab 1
    fill "$3"
    leave Escape
}

count=0
while read -r line; do
    # shellcheck disable=SC2086
    symbol $line
    count=$((count + 1))
done < <(steps symbols "$work/example.json" 0)
saved "$count symbols" "len(frames[0]['Symbols']) == $count"

# label POINTS COLOR LEFT TOP TEXT
label() {
    local properties size=(Home Down)
    drag_and_drop $((windowX + 30)) $((windowY + 82)) $((mapX + 740)) $((mapY + 560))
    keys F4
    enter 'Properties'
    properties=$dialog
    xdotool key --delay 20 alt+f Tab space
    enter 'Font'
    [ "$1" = 36 ] && size=(End)
    xdotool key --delay 20 alt+y End Up alt+s "${size[@]}" alt+c # bold is the last style but one
    xdotool type --delay 10 "$(color "$2")"
    leave Return
    back "$properties"
    tab 8
    if [[ $5 == *warning* ]]; then
        xdotool type --delay 10 LemonChiffon
        tab 1
        xdotool type Yes
        tab 1
        xdotool type --delay 10 FireBrick
        tab 1
    else
        tab 2
    fi
    fill_slowly "$5"
    tab 1
    fill "$3"
    tab 1
    fill "$4"
    leave Escape
}

# fill_slowly TEXT: letters that no key has get one for a moment, which takes the server its time.
fill_slowly() {
    xdotool key ctrl+a
    xdotool type --delay 120 "$1"
}

color() {
    case $1 in
        2171061) echo FireBrick ;;
        9175040) echo DarkBlue ;;
        7542808) echo MidnightBlue ;;
        *) fail "no name is known for the color $1" ;;
    esac
}

count=0
while IFS=' ' read -r points ink left top text; do
    label "$points" "$ink" "$left" "$top" "$text"
    count=$((count + 1))
done < <(steps labels "$work/example.json" 0)
saved "$count labels" "len(frames[0]['Labels']) == $count"
value "[label['Text'] for label in frames[0]['Labels']]" >"$work/texts"
steps texts "$work/example.json" 0 | diff - "$work/texts" || fail "the labels' texts are others"
keys ctrl+q
editor_ends

"$program/nubivane-cli" still "$project" 1 "$work/mine.png" >/dev/null
"$1/nubivane-cli" still "$examples/europe.nvpf" 1 "$work/example.png" >/dev/null
[ -z "${NUBIVANE_KEEP:-}" ] || cp "$work"/*.png "$NUBIVANE_KEEP/"
# The example's picture is a JPEG, which changes colors a little and edges more. A front in another
# place, a missing symbol or label are thousands of pixels.
different=$(compare -metric AE -fuzz 30% "$work/mine.png" "$work/example.png" null: 2>&1) || true
[ "${different%%[.e]*}" -le 60 ] || fail "$different of 480000 pixels differ by more than 30 %"
echo "ok: the picture is that of the example ($different of 480000 pixels differ)"
