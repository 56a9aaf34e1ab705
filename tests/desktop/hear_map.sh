#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Has the map read by assistive technology (AT-SPI): symbols, labels, figures under edit and their
# points, one by one, with what can be done with them.
#
#     hear_map.sh PROGRAM_FOLDER
#
# Exit codes and surroundings as those of compose_forecast.sh; it needs dbus-daemon, at-spi2-core and
# python3-pyatspi too.
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)
. "$here/desktop.sh"

[ $# = 1 ] && [ -x "$1/Nubivane" ] || fail "usage: hear_map.sh PROGRAM_FOLDER"
need_tools Xvfb xdotool dbus-daemon python3
need "python3-pyatspi" /usr/bin/python3 -c 'import pyatspi'
need "at-spi2-core" test -e /usr/share/dbus-1/services/org.a11y.Bus.service
work=$(mktemp -d)
trap clean_up EXIT
trap 'exit 1' INT TERM
use_own_home
use_recording_browser
own_program "$1" sun

start_display 1280x1024
start_bus
export QT_LINUX_ACCESSIBILITY_ALWAYS_ON=1
start_editor

/usr/bin/python3 "$here/map_listener.py" "$window" "$windowX" "$windowY" ||
    fail "what the map says of itself"
