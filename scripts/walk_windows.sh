#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Walks through every window of the client on screens of two sizes, at 100, 150 and 200 %, under two window managers, in the
# three looks and languages, and fails where one is off the screen, cuts a text, or hides which control has the keyboard.
# Usage: scripts/walk_windows.sh [BUILD-FOLDER [PICTURES-FOLDER]]; with the second the pictures of all windows stay there.
set -u
cd "$(dirname "$0")/.." || exit 1
. scripts/prepare.sh
build=${1:-build/dev}
work=$(mktemp -d)
pictures=${2:-$work/pictures}
display_pid= manager_pid=
stop() {
    [ -z "$manager_pid" ] || kill "$manager_pid" 2>/dev/null
    [ -z "$display_pid" ] || kill "$display_pid" 2>/dev/null
    wait 2>/dev/null
    manager_pid= display_pid=
}
trap 'stop; rm -rf "$work"' EXIT
fail() { echo "walk_windows: $*" >&2; exit 1; }

# await COMMAND...: asks it again until it succeeds, for half a minute.
await() {
    local tries=300
    until "$@" >/dev/null 2>&1; do
        tries=$((tries - 1))
        [ "$tries" -gt 0 ] || fail "waited in vain for: $*"
        sleep 0.1
    done
}
managed() { xprop -root _NET_SUPPORTING_WM_CHECK | grep -q 'window id'; }

# walk MANAGER WIDTHxHEIGHT SCALE THEME LANGUAGE
walk() {
    local name="$1-$2-$3-$4-$5" result
    rm -f "$work/display"
    Xvfb -displayfd 3 -screen 0 "${2}x24" -nolisten tcp -noreset 3>"$work/display" 2>/dev/null &
    display_pid=$!
    await test -s "$work/display"
    DISPLAY=:$(cat "$work/display")
    export DISPLAY
    "$1" >/dev/null 2>&1 &
    manager_pid=$!
    await managed
    mkdir -p "$pictures/$name"
    env QT_QPA_PLATFORM=xcb QT_SCALE_FACTOR="$3" HOME="$work" "$build/bin/window-walk" "$work/data-$name" "$pictures/$name" \
        "$4" "$5" >"$work/said" 2>"$work/complaints"
    result=$?
    sed "s/^/$name: /" "$work/said"
    [ "$result" -le 1 ] || tail -n 5 "$work/complaints" >&2
    [ "$result" = 0 ] || wrong=$((wrong + 1))
    stop
}

wrong=0
walk openbox 1366x768 1 light en-US
walk icewm 1366x768 1.5 dark zh-CN
walk openbox 3840x2160 2 night zh-TW
walk icewm 3840x2160 1 light en-US
[ "$wrong" = 0 ] || fail "$wrong of 4 walks met a fault"
echo "walk_windows: 4 walks, no fault"
