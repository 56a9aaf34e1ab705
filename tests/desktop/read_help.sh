#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Reads the help in the editor by keys: F1 opens it at the page about each window, it can be used
# while a dialog waits, and it does not keep the program running.
#
#     read_help.sh PROGRAM_FOLDER
#
# Exit code: 0 passed, 1 failed, 77 skipped, since Xvfb or xdotool is missing (see README.md).
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)
. "$here/desktop.sh"

[ $# = 1 ] && [ -x "$1/Nubivane" ] || fail "usage: read_help.sh PROGRAM_FOLDER"
need_tools Xvfb xdotool
work=$(mktemp -d)
trap clean_up EXIT
trap 'exit 1' INT TERM
use_own_home
cp -r "$1" "$work/program"
program=$work/program

# help_shows TITLE: the help's window stands at this page.
help_shows() {
    wait_for "the page \"$1\"" find_window "^$1 - Nubivane Help$"
    help=$(find_window "^$1 - Nubivane Help$")
}

start_display 1280x1024
start_editor
keys F1
help_shows "Welcome to Nubivane"
echo "ok: the first page over the main window"

keys F4
wait_for "the properties of the map" find_window '^Properties$'
dialog=$(find_window '^Properties$')
focus "$dialog"
xdotool key F1
help_shows "Map properties: title and subtitle"
echo "ok: the dialog's own page"

focus "$help"
xdotool key alt+Left
help_shows "Welcome to Nubivane"
find_window '^Properties$' >/dev/null || fail "the dialog is gone"
echo "ok: the help is used while the dialog waits"

focus "$dialog"
xdotool key Escape
wait_for "the dialog closes" not find_window '^Properties$'
keys ctrl+q
editor_ends
echo "ok: the program leaves with the help open"
