#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Copies and cuts symbols in the editor beside another program that uses the same clipboard, and
# looks at both sides of it.
#
#     share_clipboard.sh PROGRAM_FOLDER
#
# Exit codes and surroundings as those of compose_forecast.sh; it needs xclip too.
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)
. "$here/desktop.sh"

[ $# = 1 ] && [ -x "$1/Nubivane" ] || fail "usage: share_clipboard.sh PROGRAM_FOLDER"
need_tools Xvfb xdotool xclip
work=$(mktemp -d)
trap clean_up EXIT
trap 'exit 1' INT TERM
use_own_home

cp -r "$1" "$work/program"
program=$work/program
project=$work/europe.nvpf
cp "$here"/../../examples/europe.nvp[fx] "$work/"

# value EXPRESSION: whether it is true of the last Frame's `symbols`.
value() {
    python3 "$here/project_value.py" "$program/nubivane-cli" "$project" \
        "(lambda symbols: $1)(frames[-1]['Symbols'])"
}

# clipboard_is BYTES: what another program gets, in hexadecimal.
clipboard_is() {
    [ "$(xclip -selection clipboard -out -target UTF8_STRING | od -An -tx1 | tr -d ' \n')" = "$1" ]
}

# put_text TEXT: as another program that something is copied in.
put_text() {
    printf %s "$1" | xclip -selection clipboard -in >/dev/null 2>&1
}

start_display 1280x1024
start_editor "$project"

keys ctrl+t
xdotool mousemove $((windowX + 50)) $((windowY + 160)) click 1 key Return
saved "a symbol on a new Frame" "len(symbols) == 1"

keys ctrl+c
wait_for "another program sees the marker of a copied symbol" clipboard_is 530405
keys ctrl+v
saved "the copy pasted at the corner" \
    "len(symbols) == 2 and (symbols[1]['PosX'], symbols[1]['PosY']) == (6, 6)"

put_text "Sunny"
keys ctrl+v
saved "another program's text ends the paste" "len(symbols) == 2"

keys F2 ctrl+a ctrl+v Return
saved "a field for text takes that text" "len(symbols) == 2 and frames[-1]['Label'] == 'Sunny'"

keys ctrl+x
wait_for "another program sees the marker of a cut symbol" clipboard_is 53040506
saved "a cut symbol stays until it is pasted" "len(symbols) == 2"
keys ctrl+v
saved "the paste moves it" "len(symbols) == 2"
wait_for "another program sees the marker of a copy again" clipboard_is 530405
keys ctrl+v
saved "the next paste copies it" "len(symbols) == 3"

put_text "$(printf 'S\004\005')"
keys ctrl+v
saved "a marker that another program hands back serves as well" "len(symbols) == 4"

keys ctrl+q
editor_ends
echo "ok: the editor leaves without a question"
