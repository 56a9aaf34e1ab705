# SPDX-License-Identifier: GPL-3.0-or-later
# What the scripts of this folder share. Sourced by them; `name` is the script's own.

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/../.." && pwd)
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

fail() {
    echo "FAILED: $*" >&2
    exit 1
}

skip() {
    echo "SKIPPED: $*"
    exit 77
}

# need_tools TOOL…: ends the script as skipped where one is missing and nobody insists.
need_tools() {
    local tool
    for tool in "$@"; do
        command -v "$tool" >/dev/null && continue
        [ -z "${NUBIVANE_REQUIRE_PACKAGING:-}" ] || fail "$tool is missing"
        skip "$tool is missing"
    done
}

# check WHAT COMMAND…
check() {
    local what=$1
    shift
    "$@" >"$work/output" 2>&1 || {
        cat "$work/output" >&2
        fail "$what"
    }
    echo "ok: $what"
}

# equal WHAT ONE OTHER
equal() {
    [ "$2" = "$3" ] || {
        diff <(printf '%s\n' "$2") <(printf '%s\n' "$3") >&2
        fail "$1"
    }
    echo "ok: $1"
}

# Runs a command as a user who has just been created, with nothing in his home.
with_own_home() {
    mkdir -p "$work/home"
    env -i PATH=/usr/bin:/bin HOME="$work/home" TMPDIR="$work" "$@"
}
