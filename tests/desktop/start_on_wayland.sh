#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Starts the editor on a Wayland desktop that has no X display, and asks it for its words where
# there is no display at all.
#
#     start_on_wayland.sh PROGRAM_FOLDER
#
# Exit codes as those of compose_forecast.sh; it needs weston, and Qt's platform for Wayland.
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)
. "$here/desktop.sh"

[ $# = 1 ] && [ -x "$1/Nubivane" ] || fail "usage: start_on_wayland.sh PROGRAM_FOLDER"
need_tools weston
work=$(mktemp -d)
trap clean_up EXIT
trap 'exit 1' INT TERM
use_own_home
own_program "$1" sun
unset DISPLAY QT_QPA_PLATFORM

for words in '--help' '--version'; do
    "$program/Nubivane" $words >"$work/said" 2>"$work/told" || fail "$words without a display"
    grep -q Nubivane "$work/said" || fail "$words without a display says: $(cat "$work/said")"
    [ ! -s "$work/told" ] || fail "$words without a display complains: $(cat "$work/told")"
done
echo "ok: --help and --version need no display"

weston --backend=headless-backend.so --socket=nubivane --width=1280 --height=1024 \
    --idle-time=0 >"$work/weston.log" 2>&1 &
display_process=$!
wait_for "the desktop" test -S "$XDG_RUNTIME_DIR/nubivane"
export WAYLAND_DISPLAY=nubivane

# What goes between the program and the desktop is told on stderr.
WAYLAND_DEBUG=1 "$program/Nubivane" >"$work/editor.log" 2>&1 &
editor_process=$!

said() {
    grep -q "$1" "$work/editor.log" || { tail -n 3 "$work/editor.log"; false; }
}
wait_for "the window has its title" said 'set_title("New project - Nubivane")'
# Something is shown: a buffer comes onto a surface that has a frame.
wait_for "the window is configured" said 'xdg_toplevel@[0-9]*.configure(\|xdg_surface@[0-9]*.ack_configure('
wait_for "the window is painted" said 'wl_surface@[0-9]*.attach(wl_buffer@'
kill -0 $editor_process || fail "the editor ended"
echo "ok: the editor's window stands on a desktop without X"
