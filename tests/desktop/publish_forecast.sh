#!/usr/bin/env bash
# SPDX-License-Identifier: GPL-3.0-or-later
# Sets up the upload in the editor by mouse and keys alone, sends a site to a server of this machine,
# sends its page again, stops a third upload, and compares what the server holds.
#
#     publish_forecast.sh PROGRAM_FOLDER
#
# Exit codes and surroundings as those of compose_forecast.sh. It needs the right to listen at port
# 21, which uploads go to.
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)
. "$here/desktop.sh"

[ $# = 1 ] && [ -x "$1/Nubivane" ] || fail "usage: publish_forecast.sh PROGRAM_FOLDER"
need_tools Xvfb xdotool
work=$(mktemp -d)
trap leave EXIT
trap 'exit 1' INT TERM
use_own_home
use_recording_browser

leave() {
    exec 4>&- # the server ends with its input
    clean_up
}

own_program "$1" fog sun # few files, since each takes its moment
rm "$program"/Maps/*
cp "$1"/Maps/europe.jpg "$program/Maps/"

# An address of this machine that nothing else listens at.
host=127.$((RANDOM % 250 + 1)).$((RANDOM % 250 + 1)).21
mkdir "$work/server"
mkfifo "$work/server-input"
may_listen=()
[ "$(id -u)" = 0 ] || ! sudo -n true 2>/dev/null || may_listen=(sudo -n)
"${may_listen[@]}" python3 -B "$here/../support/ftp_server.py" "$work/server" --log "$work/server.log" \
    --address $host --port 21 --delay 0.02 <"$work/server-input" >"$work/server.port" 2>"$work/server.err" &
server_process=$!
exec 4>"$work/server-input"
until [ -s "$work/server.port" ]; do
    kill -0 $server_process 2>/dev/null && sleep 0.05 && continue
    [ -z "${CI:-}${NUBIVANE_REQUIRE_DESKTOP:-}" ] || fail "the server does not start: $(<"$work/server.err")"
    echo "SKIPPED: no server can listen at port 21"
    exit 77
done

# menu_ftp KEY…: opens the menu "Ftp", the seventh, and goes on in it by keys.
menu_ftp() {
    keys alt+f Right Right Right Right Right Right "$@" Return
}

# in_window PATTERN WHAT KEY…: keys to a window, once it is there.
in_window() {
    wait_for "$2" find_window "$1"
    focus "$(find_window "$1")"
    shift 2
    xdotool key --delay 20 "$@"
}

settings_say() {
    [ "$("$program/nubivane-cli" settings get "Nubivane\\6.0.0\\Settings$1" "$2" "$3")" = "$4" ]
}

same_as_server() {
    cmp "$program/$1" "$work/server/nVane/$1"
}

start_display 1280x1024
start_editor

keys ctrl+Return
wait_for "the page is made" test -s "$program/Forecast.htm"
wait_for "the page goes to the browser" test -s "$work/opened"

menu_ftp Up
wait_for "the settings open" find_window '^Ftp settings$'
focus "$(find_window '^Ftp settings$')"
xdotool type --delay 10 "$host"
xdotool key --delay 20 Tab Tab Down Down Tab Tab # past the port; no encryption; past the login
xdotool type --delay 10 "user"
xdotool key Tab
xdotool type --delay 10 "secret"
xdotool key --delay 20 alt+f alt+n
xdotool type --delay 10 "nVane"
xdotool key Return
wait_for "the settings close" not find_window '^Ftp settings$'
settings_say "" Ftp url $host || fail "the host was not stored"
settings_say "" Ftp username user || fail "the user was not stored"
settings_say "" Ftp encryption 0 || fail "the encryption was not stored"
settings_say "" Ftp "nubivane folder" nVane || fail "the folder was not stored"
echo "ok: the settings of the upload"

menu_ftp
wait_for "the window of the upload" find_window '^Initializing...$'
in_window '^Nubivane$' "the end is told" Return
for file in Forecast.htm Forecast.js Web/Forecast1.jpg Symbols/set-1/fog.gif Symbols/set-1/sun.gif \
    Maps/europe.jpg; do
    same_as_server $file || fail "the server does not hold $file"
done
wait_for "the success is remembered" settings_say "\\Ftp" Upload initialized 1
[ "$(grep -c ' USER ' "$work/server.log")" = 1 ] || fail "more than one connection"
echo "ok: the whole site on the server"

printf '<!-- newer -->' >>"$program/Forecast.htm"
menu_ftp Down
in_window '^Nubivane$' "nothing is chosen any more" Return
in_window '^Ftp settings$' "the list of files" Tab Tab space Return
wait_for "the settings close" not find_window '^Ftp settings$'
settings_say "\\Ftp" Upload "html page" 1 || fail "the choice was not stored"
menu_ftp Down
wait_for "the window of the upload" find_window '^Uploading files...$'
wait_for "the newer page arrives" same_as_server Forecast.htm
wait_for "the window closes" not find_window '^Uploading files...$'
echo "ok: the page sent again"

printf '<!-- newest -->' >>"$program/Forecast.htm"
: >"$work/server.log"
echo "USER=silent" >&4 # so that the upload cannot be over before it is stopped
menu_ftp Down
in_window '^Uploading files...$' "the window of the upload" space
in_window '^Nubivane$' "the stop is told" Return
wait_for "the window closes" not find_window '^Uploading files...$'
not grep -q 'STOR' "$work/server.log" || fail "the upload went on to its end"
echo "ok: an upload stopped"

keys ctrl+q
editor_ends
echo "ok: the editor leaves"
