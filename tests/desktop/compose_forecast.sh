#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Composes a forecast of two Frames in the editor from nothing, by mouse and keys alone, publishes
# it, opens it again, and compares the project and the page with what was done.
#
#     compose_forecast.sh PROGRAM_FOLDER
#
# Exit code: 0 passed, 1 failed, 77 skipped, since Xvfb or xdotool is missing. Where CI or
# NUBIVANE_REQUIRE_DESKTOP is set, it is not skipped but fails. NUBIVANE_SCREENSHOT names a file for
# a picture of the screen at a failure.
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)
. "$here/desktop.sh"

[ $# = 1 ] && [ -x "$1/Nubivane" ] || fail "usage: compose_forecast.sh PROGRAM_FOLDER"
need_tools Xvfb xdotool
work=$(mktemp -d)
trap clean_up EXIT
trap 'exit 1' INT TERM
use_own_home
use_recording_browser

own_program "$1" fog rain sun # in one row of the palette
project=$work/tomorrow.nvpf

value() {
    python3 "$here/project_value.py" "$program/nubivane-cli" "$project" "$1"
}

# symbol FRAME NUMBER FIELD, both from 0.
symbol() {
    value "frames[$1]['Symbols'][$2]['$3']"
}

start_display 1280x1024
start_editor

# Where things lie in the window, pixels: the palette's tools and the symbols in its first row.
labelX=$((windowX + 30)) labelY=$((windowY + 82))
firstX=$((windowX + 50)) secondX=$((windowX + 140)) symbolY=$((windowY + 160))
# Drops on the map, on the screen.
rainX=$((windowX + 540)) rainY=$((windowY + 300))
fogX=$((windowX + 740)) fogY=$((windowY + 420))
textX=$((windowX + 600)) textY=$((windowY + 480))

drag_and_drop $firstX $symbolY $fogX $fogY
keys ctrl+s
choose_file 'Save project' "$project"
wait_for "a first symbol, saved under a name typed in the dialog" value \
    "len(frames) == 1 and [s['FileGif'][-7:] for s in frames[0]['Symbols']] == ['fog.gif']"
wait_for "the caption tells the name" find_window '^tomorrow.nvpf - Nubivane$'
echo "ok: a first symbol, saved under a name typed in the dialog"

drag_and_drop $secondX $symbolY $rainX $rainY
saved "a second symbol, dropped just as far from the first as it was let go" \
    "[(s['FileGif'][-8:], s['PosX'] - frames[0]['Symbols'][0]['PosX'],
       s['PosY'] - frames[0]['Symbols'][0]['PosY']) for s in frames[0]['Symbols'][1:]]
     == [('rain.gif', $((rainX - fogX)), $((rainY - fogY)))]"
# From here on the map's place on the screen is known.
mapX=$((fogX - $(symbol 0 0 PosX) - $(symbol 0 0 Width) / 2))
mapY=$((fogY - $(symbol 0 0 PosY) - $(symbol 0 0 Height) / 2))

drag_and_drop $labelX $labelY $textX $textY
saved "a label, centred on the pointer" \
    "len(frames[0]['Labels']) == 1 and (lambda text: text['Text'] == 'Label'
     and 0 < $((textX - mapX)) - text['PosX'] < 40 and 0 < $((textY - mapY)) - text['PosY'] < 20
     )(frames[0]['Labels'][0])"

keys ctrl+t
saved "a second Frame under a free name" "[f['Label'] for f in frames] == ['Map1', 'Map2']"
keys F2
xdotool type --delay 10 "Tomorrow"
xdotool key Return
saved "the Frame renamed" "[f['Label'] for f in frames] == ['Map1', 'Tomorrow']"

xdotool mousemove $secondX $symbolY click 1 key Return
saved "a symbol placed by Enter" \
    "[s['FileGif'][-8:] for s in frames[1]['Symbols']] == ['rain.gif']"
x=$(symbol 1 0 PosX) y=$(symbol 1 0 PosY) width=$(symbol 1 0 Width) height=$(symbol 1 0 Height)

centreX=$((mapX + x + width / 2)) centreY=$((mapY + y + height / 2))
drag $centreX $centreY $((centreX - 90)) $((centreY - 40))
x=$((x - 90)) y=$((y - 40))
saved "the symbol moved" "frames[1]['Symbols'][0]['PosX'] == $x
                          and frames[1]['Symbols'][0]['PosY'] == $y"

keys shift+Left shift+Left shift+Left shift+Down shift+Down
x=$((x - 3)) y=$((y + 2))
saved "the symbol nudged by Shift and arrows" "frames[1]['Symbols'][0]['PosX'] == $x
                                               and frames[1]['Symbols'][0]['PosY'] == $y"

# The frame of the selection lies 8 pixels outside; its last pixel is the handle's centre.
cornerX=$((mapX + x + width + 7)) cornerY=$((mapY + y + height + 7))
drag $cornerX $cornerY $((cornerX + 24)) $((cornerY + 13))
saved "the symbol resized by its handle, in its place" \
    "[frames[1]['Symbols'][0][field] for field in ('PosX', 'PosY', 'Width', 'Height')]
     == [$x, $y, $((width + 24)), $((height + 13))]"

keys ctrl+Return
wait_for "the page goes to the browser" grep -q '/Forecast\.htm$' "$work/opened"
made=$(cd "$program" && find . -maxdepth 2 \( -name '*.htm' -o -name '*.js' -o -path './Web/*' \) -size +0 |
    sort | tr '\n' ' ')
[ "$made" = "./Forecast.htm ./Forecast.js ./Web/Forecast1.jpg ./Web/Forecast2.jpg " ] ||
    fail "the page's files: $made"
[ "$(wc -l <"$work/opened")" = 1 ] || fail "the browser was called more than once"
echo "ok: the page is made and shown"

keys ctrl+q
editor_ends
echo "ok: the editor leaves without a question"

# What opening and saving make of the project must be what it was.
before=$(value project)
start_editor "$work/home/../tomorrow.nvpf" # the same file by another spelling
rm "$project" "${project%.nvpf}.nvpx" # a save that changes nothing leaves the files alone
keys ctrl+s
wait_for "a project given at the start is saved under its name" test -e "$project"
keys ctrl+q
editor_ends
[ "$(value project)" = "$before" ] || fail "the project changed by being opened and saved"
[ -z "$("$program/nubivane-cli" settings get 'Nubivane\6.0.0\Settings\General' 'Recent Files' 2)" ] ||
    fail "the project stands twice among the recent files"
echo "ok: opened at the start, saved, and the same as before"
