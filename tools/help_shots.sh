#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Takes the help's pictures anew from the program itself, into help/pictures/: windows on a screen of
# their own, with the fonts of the tests, so that every machine makes the same.
#
#     tools/help_shots.sh [BUILD_FOLDER]      # default build/debug
#
# Needs optipng (apt-get install optipng).
set -euo pipefail
cd "$(dirname "$0")/.."
build=${1:-build/debug}
pictures=$PWD/help/pictures

cmake --build "$build" --target help_shots
export QT_QPA_PLATFORM=offscreen:configfile=$PWD/tests/support/screen.json
export FONTCONFIG_FILE=$PWD/tests/support/fonts.conf
export XDG_RUNTIME_DIR=${XDG_RUNTIME_DIR:-$(mktemp -d)}
export QT_STYLE_OVERRIDE=Fusion LC_ALL=C.UTF-8
unset QT_SCALE_FACTOR QT_QPA_PLATFORMTHEME XDG_CURRENT_DESKTOP
"$build/help_shots" content examples/europe.nvpf "$pictures" 2> >(grep -v propagateSizeHints >&2)
optipng -quiet -o5 -strip all "$pictures"/*.png
ls -l "$pictures"
