# SPDX-License-Identifier: GPL-3.0-or-later
# Functions to work the editor as a person does, by mouse and keys on a display of its own.
# Sourced by the scripts of this folder; they set `work`, a scratch folder, and `program`, the
# program folder under test.

limit=20 # seconds; what takes longer counts as not happening

fail() {
    echo "FAILED: $*" >&2
    if [ -n "${NUBIVANE_SCREENSHOT:-}" ] && command -v import >/dev/null; then
        import -window root "$NUBIVANE_SCREENSHOT" || true
    fi
    exit 1
}

# need_tools TOOL…: ends the script as skipped where one is missing and nobody insists.
need_tools() {
    local tool
    for tool in "$@"; do
        need "$tool" command -v "$tool"
    done
}

# need WHAT COMMAND…: the same where a command fails.
need() {
    "${@:2}" >/dev/null 2>&1 && return
    if [ -n "${CI:-}${NUBIVANE_REQUIRE_DESKTOP:-}" ]; then
        fail "$1 is missing"
    fi
    echo "SKIPPED: $1 is missing"
    exit 77
}

# wait_for WHAT COMMAND…: runs the command until it succeeds.
wait_for() {
    local what=$1 end=$((SECONDS + limit))
    shift
    until "$@" >/dev/null 2>&1; do
        if [ $SECONDS -ge $end ]; then
            "$@" >&2 || true # tells what is the matter
            fail "$what: not within $limit s"
        fi
        sleep 0.05
    done
}

# The surroundings of a user who has just been created, whatever those of the caller are.
use_own_home() {
    unset WAYLAND_DISPLAY DBUS_SESSION_BUS_ADDRESS XDG_CURRENT_DESKTOP DESKTOP_SESSION \
        KDE_FULL_SESSION GNOME_DESKTOP_SESSION_ID QT_SCALE_FACTOR QT_SCREEN_SCALE_FACTORS \
        QT_QPA_PLATFORMTHEME
    export HOME=$work/home TMPDIR=$work/tmp LC_ALL=C.UTF-8
    export XDG_CONFIG_HOME=$HOME/.config XDG_DATA_HOME=$HOME/.local/share
    export XDG_CACHE_HOME=$HOME/.cache XDG_RUNTIME_DIR=$work/run
    export QT_QPA_PLATFORM=xcb QT_STYLE_OVERRIDE=Fusion QT_FONT_DPI=96
    mkdir -p "$HOME" "$TMPDIR" "$XDG_CONFIG_HOME" "$XDG_RUNTIME_DIR"
    chmod 700 "$XDG_RUNTIME_DIR"
}

# Opening a page in the browser leaves a line in $work/opened instead.
use_recording_browser() {
    mkdir -p "$work/bin"
    printf '#!/bin/sh\nprintf "%%s\\n" "$@" >>"%s"\n' "$work/opened" >"$work/bin/xdg-open"
    chmod +x "$work/bin/xdg-open"
    export PATH=$work/bin:$PATH BROWSER=$work/bin/xdg-open
}

# own_program FOLDER SYMBOL…: a copy of the program folder in $work/program, without pages and with
# these symbols of set-1 alone.
own_program() {
    local symbol
    cp -r "$1" "$work/program"
    program=$work/program
    rm -rf "$program"/Web "$program"/*.htm "$program"/*.js "$program"/Symbols/*
    mkdir -p "$program/Web" "$program/Symbols/set-1"
    for symbol in "${@:2}"; do
        cp "$1/Symbols/set-1/$symbol.gif" "$program/Symbols/set-1/"
    done
}

# start_display WIDTHxHEIGHT: on a number that the server finds free itself.
start_display() {
    # Without -noreset the server starts anew whenever its last client leaves, and refuses others
    # meanwhile.
    Xvfb -noreset -displayfd 3 -screen 0 "$1x24" -nolisten tcp 3>"$work/display" >"$work/xvfb.log" 2>&1 &
    display_process=$!
    wait_for "display" test -s "$work/display"
    DISPLAY=:$(cat "$work/display")
    export DISPLAY
    wait_for "display answers" xdotool getdisplaygeometry
}

# start_window_manager: after the display; from then on windows have frames, and the keyboard goes
# where it sends it.
start_window_manager() {
    openbox --sm-disable >"$work/openbox.log" 2>&1 &
    manager_process=$!
    wait_for "window manager" xdotool get_num_desktops
}

# start_bus: a session's message bus, on which desktop services start when they are asked for.
start_bus() {
    dbus-daemon --session --nofork --nopidfile --print-address=3 3>"$work/bus" >"$work/bus.log" 2>&1 &
    bus_process=$!
    wait_for "message bus" test -s "$work/bus"
    DBUS_SESSION_BUS_ADDRESS=$(cat "$work/bus")
    export DBUS_SESSION_BUS_ADDRESS
}

# start_editor [PROJECT]: until its window stands; `window` is its id.
start_editor() {
    "$program/Nubivane" "$@" >>"$work/editor.log" 2>&1 &
    editor_process=$!
    local end=$((SECONDS + limit))
    until window=$(find_window ' - Nubivane$'); do
        kill -0 $editor_process 2>/dev/null || fail "the editor ended: $(tail -n 3 "$work/editor.log")"
        [ $SECONDS -lt $end ] || fail "the editor's window: not within $limit s"
        sleep 0.05
    done
    eval "$(xdotool getwindowgeometry --shell "$window" | sed -n 's/^\([XY]\)=/window\1=/p')"
    focus "$window"
}

# editor_ends: waits for the editor to leave by itself, in good order.
editor_ends() {
    wait_for "the editor leaves" not kill -0 $editor_process
    wait $editor_process || fail "the editor left with exit code $?"
    editor_process=
}

# Ends what this script started, and nothing else.
clean_up() {
    local process
    for process in ${editor_process:-} ${manager_process:-} ${bus_process:-} ${display_process:-}; do
        kill "$process" 2>/dev/null || true
        wait "$process" 2>/dev/null || true
    done
    rm -rf "$work"
}

not() {
    ! "$@"
}

# find_window PATTERN: the id of the visible window whose title matches.
find_window() {
    local found
    found=$(xdotool search --onlyvisible --name "$1" 2>/dev/null | tail -n 1)
    [ -n "$found" ] && echo "$found"
}

# The display has no window manager to pass the keyboard on.
focus() {
    xdotool windowfocus "$1"
    wait_for "keyboard focus" has_focus "$1"
}

has_focus() {
    [ "$(xdotool getwindowfocus -f)" = "$1" ]
}

# keys KEY…: in the main window.
keys() {
    focus "$window"
    xdotool key --delay 20 "$@"
}

# enter TITLE: the keyboard goes to the new window of that title; `dialog` is its id.
enter() {
    wait_for "the window \"$1\"" opened "$1"
    dialog=$(find_window "^$1\$")
    focus "$dialog"
}

# Some windows open others of their own title.
opened() {
    local found
    found=$(find_window "^$1\$") && [ "$found" != "${dialog:-}" ]
}

# leave KEY…: presses keys until the window in which the keyboard is goes; the next one is not
# worked before `enter` or `back`.
leave() {
    xdotool key --delay 20 "$@"
    wait_for "a window closes" not visible "$dialog"
}

visible() {
    xdotool search --onlyvisible --class '^Nubivane$' | grep -qx "$1"
}

# back ID: the keyboard returns to a window that has opened another.
back() {
    dialog=$1
    focus "$dialog"
}

# choose_file TITLE FILE: in a dialog for files.
choose_file() {
    enter "$1"
    xdotool type --delay 10 "$2"
    leave Return
}

# fill TEXT: replaces what stands in the field.
fill() {
    xdotool key ctrl+a
    xdotool type --delay 10 "$1"
}

# tab N: on to the Nth field from here.
tab() {
    local i
    for ((i = 0; i < $1; ++i)); do xdotool key --delay 20 Tab; done
}

# drag X Y X2 Y2: presses, moves in steps that a hand would make, and lets go.
drag() {
    xdotool mousemove "$1" "$2" mousedown 1 \
        mousemove $((($1 * 3 + $3) / 4)) $((($2 * 3 + $4) / 4)) \
        mousemove $((($1 + $3) / 2)) $((($2 + $4) / 2)) \
        mousemove "$3" "$4" mouseup 1
}

# drag_and_drop X Y X2 Y2: the same where a picture travels under the pointer. The button goes up
# only after the picture has arrived, for only then does the target know of it.
drag_and_drop() {
    xdotool mousemove "$1" "$2" mousedown 1 mousemove $(($1 + 14)) $(($2 + 10))
    wait_for "a drag begins at $1, $2" shake_until_dragged
    xdotool mousemove $((($1 + $3) / 2)) $((($2 + $4) / 2)) mousemove $(($3 - 2)) $(($4 - 1))
    xdotool mousemove "$3" "$4"
    wait_for "what is dragged reaches $3, $4" drag_picture_covers "$3" "$4"
    xdotool mouseup 1
    wait_for "the drag ends" not drag_picture
}

# Moves that follow each other too fast count as one, and one does not begin a drag.
shake_until_dragged() {
    xdotool mousemove_relative 2 1 sleep 0.02 mousemove_relative -- -1 0
    drag_picture
}

# The window of the picture under the pointer; it has no title.
drag_picture() {
    xdotool search --onlyvisible --class '^Nubivane$' | grep -vx "$window"
}

drag_picture_covers() {
    local WINDOW X Y WIDTH HEIGHT SCREEN
    eval "$(xdotool getwindowgeometry --shell "$(drag_picture)")"
    [ $((2 * X + WIDTH - 2 * $1)) -ge -2 ] && [ $((2 * X + WIDTH - 2 * $1)) -le 2 ] &&
        [ $((2 * Y + HEIGHT - 2 * $2)) -ge -2 ] && [ $((2 * Y + HEIGHT - 2 * $2)) -le 2 ]
}

# saved WHAT EXPRESSION: saves until what `value EXPRESSION` of the
# script then asks of the project is true.
saved() {
    wait_for "$1" save_and_ask "$2"
    echo "ok: $1"
}

# A key that comes while a drag or a dialog is still going away is lost, so that one may not do.
save_and_ask() {
    local try
    keys ctrl+s
    for try in 1 2 3 4 5; do
        value "$1" >/dev/null && return
        sleep 0.1
    done
    return 1
}
