#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Changes a forecast in every way that the editor knows, by mouse and keys alone: imports a map and
# a symbol, edits a symbol, a label, the texts of the Frame and their details, draws with each tool,
# and compares the project and the page with what was done.
#
#     edit_forecast.sh PROGRAM_FOLDER
#
# Exit codes and surroundings as those of compose_forecast.sh; it needs ImageMagick's convert too.
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)
. "$here/desktop.sh"

[ $# = 1 ] && [ -x "$1/Nubivane" ] || fail "usage: edit_forecast.sh PROGRAM_FOLDER"
need_tools Xvfb xdotool convert
work=$(mktemp -d)
trap clean_up EXIT
trap 'exit 1' INT TERM
use_own_home
use_recording_browser

own_program "$1" sun
project=$work/edited.nvpf
# What a user brings along: a map of one colour, on which every drawn pixel shows, and a symbol.
convert -size 440x360 'xc:#c0d8e8' "$work/plain.png"
convert -size 40x30 'xc:#ff0000' "$work/square.gif"

value() {
    python3 "$here/project_value.py" "$program/nubivane-cli" "$project" "$1"
}

# tool X Y: presses a button of the strip beside the map.
tool() {
    xdotool mousemove $((windowX + $1)) $((windowY + $2)) click 1
}

# click X Y: on the map.
click() {
    xdotool mousemove $((mapX + $1)) $((mapY + $2)) click 1
    sleep 0.1
}

# stroke X Y X2 Y2: with the button down, on the map.
stroke() {
    drag $((mapX + $1)) $((mapY + $2)) $((mapX + $3)) $((mapY + $4))
}

# apply_figure: takes over the figure that is being edited.
apply_figure() {
    enter 'Drawing'
    leave Return
    focus "$window"
}

picked() {
    [ "$("$program/nubivane-cli" settings get \
        'Nubivane\6.0.0\Settings\General' Preferences 'Draw color')" = $((0xe8d8c0)) ]
}

# pixel PICTURE X Y: its colour.
pixel() {
    convert "$1[1x1+$2+$3]" -depth 8 -alpha off txt:- | grep -o '#[0-9A-F]\{6\}'
}

# colored PICTURE TOLERANCE COLOR X Y…: whether all these pixels have the colour, give or take the
# tolerance in each of red, green, blue.
colored() {
    local picture=$1 tolerance=$2 color=$3 found i difference
    shift 3
    while [ $# -gt 0 ]; do
        found=$(pixel "$picture" "$1" "$2")
        for i in 1 3 5; do
            difference=$((0x${found:i:2} - 0x${color:i:2}))
            [ "${difference#-}" -le "$tolerance" ] ||
                fail "$picture is $found at $1, $2, not $color"
        done
        shift 2
    done
}

start_display 1280x1024
start_editor

keys alt+m Down Return
enter 'Select map'
maps=$dialog
xdotool key ctrl+i
choose_file 'Select map' "$work/plain.png"
enter 'Importing map'
wait_for "the copying ends" not visible "$dialog"
cmp -s "$work/plain.png" "$program/Maps/plain.png" || fail "the map is not in the folder of maps"
back "$maps"
xdotool key Return
enter 'Nubivane' # symbols would be lost
leave alt+y
wait_for "the map is chosen" not visible "$maps"
echo "ok: a map imported and chosen"

keys alt+s Up Up Up Return # the third from the end
enter 'Symbol collections'
collections=$dialog
xdotool key ctrl+i
choose_file '.*' "$work/square.gif"
enter 'Importing map' # the symbols' too
wait_for "the copying ends" not visible "$dialog"
cmp -s "$work/square.gif" "$program/Symbols/set-1/square.gif" || fail "the symbol is not in its folder"
back "$collections"
leave Return
echo "ok: a symbol imported"

# The imported symbol comes first in the palette.
dropX=$((windowX + 560)) dropY=$((windowY + 300))
drag_and_drop $((windowX + 50)) $((windowY + 160)) $dropX $dropY
keys ctrl+s
choose_file 'Save project' "$project"
wait_for "the symbol on the map of its own" value \
    "project['Map'] == 'plain.png' and [s['FileGif'][-10:] for s in frames[0]['Symbols']] == ['square.gif']"
echo "ok: the imported symbol on the imported map"
# From here on the map's place on the screen is known.
mapX=$((dropX - $(value "frames[0]['Symbols'][0]['PosX']") - 20))
mapY=$((dropY - $(value "frames[0]['Symbols'][0]['PosY']") - 15))

# The tab key walks down the rows of a window for properties; a row's button comes after its field.
keys F4
enter 'Properties'
tab 2
fill 60 # height
tab 1
fill 80 # width
tab 1
fill 30 # x
tab 1
fill 40 # y
tab 1
fill 'forecast.example/square'
tab 1
fill 'a red square'
tab 1
fill 'for the test'
leave Escape
saved "a symbol's properties" \
    "[tuple(s[field] for field in ('Height', 'Width', 'PosX', 'PosY', 'Link', 'Tooltip', 'Note'))
      for s in frames[0]['Symbols']]
     == [(60, 80, 30, 40, 'forecast.example/square', 'a red square', 'for the test')]"

drag_and_drop $((windowX + 30)) $((windowY + 82)) $((windowX + 600)) $((windowY + 480))
keys F4
enter 'Properties'
label=$dialog
xdotool key alt+f
tab 1
xdotool key space
enter 'Font'
xdotool key --delay 20 alt+y End # the last style is bold and italic
xdotool key --delay 20 alt+s End # and the last size 36 points
xdotool key --delay 20 alt+u
leave Return
back "$label"
tab 8
xdotool type 'Gold' # back color
tab 1
xdotool type 'Yes' # border
tab 1
xdotool type 'Navy'
tab 1
fill '  21 degrees'
tab 1
fill 10
tab 1
fill 280
tab 1
fill 'at noon'
leave Escape
saved "a label's properties" \
    "[tuple(label[field] for field in ('FontSize', 'FontBold', 'FontItalic', 'FontUnderline',
          'BackColor', 'Border', 'BorderColor', 'Text', 'PosX', 'PosY', 'Note'))
      for label in frames[0]['Labels']]
     == [(36, True, True, True, 0x00d7ff, 1, 0x840000, '  21 degrees', 10, 280, 'at noon')]"


click 400 320 # selects nothing
keys F4
enter 'Properties'
texts=$dialog
xdotool key --delay 20 shift+Tab shift+Tab shift+Tab # up from the text, where it opens
xdotool type 'Gold' # the title's back color
tab 1
xdotool type 'Yes' # border
tab 1
xdotool type 'Navy'
tab 1
xdotool type 'center'
tab 1
fill 'Tomorrow'
tab 12
xdotool type 'right' # the subtitle's alignment
tab 1
fill 'in the north'
tab 1
xdotool type 'Khaki' # the forecast's back color
tab 1
xdotool type 'double'
tab 1
xdotool type 'Navy'
tab 1
xdotool key space
enter 'Forecast text'
xdotool key alt+a key alt+a
tab 13
fill 'Sky'
tab 11
fill 'clear'
leave Escape
back "$texts"
leave Escape
saved "the texts of the Frame" "(lambda forecast:
    [forecast['Title'][field] for field in ('BackColor', 'Border', 'BorderColor', 'Align', 'Text')]
        == [0x00d7ff, 1, 0x840000, 2, 'Tomorrow']
    and [forecast['Subtitle'][field] for field in ('Align', 'Text')] == [1, 'in the north']
    and [forecast['Div'][field] for field in ('Border', 'BorderColor')] == [2, 0x840000]
    and [item['Text'] for item in forecast['Header']] == ['', 'Sky']
    and [item['Text'] for item in forecast['Body']] == ['', 'clear'])(frames[0]['Forecast'])"

# A color, and a pen wide enough for a JPEG.
tool 953 259
enter 'Select Color'
xdotool key alt+h
fill '#ff00ff'
leave Return
focus "$window"
tool 950 230
fill 7
tool 976 91 # pencil
stroke 160 30 210 30
stroke 160 60 210 60
tool 933 124 # eraser
click 180 55
tool 933 156 # line
click 240 30
click 290 70
apply_figure
tool 976 156 # curve
click 320 80
click 370 40
click 420 80
apply_figure
tool 933 189 # circle
click 200 170
click 240 170
apply_figure
tool 976 189 # polygon
click 280 150
click 330 150
click 330 200
apply_figure
tool 976 124 # color of the map
click 430 10
tool 933 91
keys ctrl+s
wait_for "the map's color is picked" picked
"$program/nubivane-cli" still "$project" 1 "$work/still.png" >/dev/null
drawn=(180 30 162 60 208 60 265 50 370 60 200 130 160 170 305 150 330 175)
plain=(186 60 200 170 305 175 430 10)
colored "$work/still.png" 0 '#FF00FF' "${drawn[@]}"
colored "$work/still.png" 0 '#C0D8E8' "${plain[@]}"
echo "ok: drawn with each tool"

keys ctrl+Return
wait_for "the page goes to the browser" grep -q '/Forecast\.htm$' "$work/opened"
for text in Tomorrow 'in the north' Sky clear 'a red square' 'http://forecast.example/square' \
    '21 degrees'; do
    grep -q "$text" "$program/Forecast.htm" "$program/Forecast.js" || fail "the page lacks \"$text\""
done
colored "$program/Web/Forecast1.jpg" 12 '#FF00FF' "${drawn[@]}"
colored "$program/Web/Forecast1.jpg" 12 '#C0D8E8' "${plain[@]}"
echo "ok: the page holds the texts and the drawings"

keys ctrl+q
editor_ends
echo "ok: the editor leaves without a question"
