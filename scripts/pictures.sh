#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Makes the pictures of docs/pictures from the real client: a planned voyage with the voyage and port call panels open, its
# position book, the port distance table and the ways past its route points compared, each in the light look, the dark
# one, and in Chinese; and the alternatives of a passage of a new voyage. Then the chart and its tools, and those of the
# user's guide. Usage: scripts/pictures.sh [BUILD-FOLDER [chart|guide]]: with "chart" or "guide" these alone.
set -u
cd "$(dirname "$0")/.." || exit 1
. scripts/prepare.sh
. scripts/guide_pictures.sh
. scripts/chart_pictures.sh
build=${1:-build/release}
client=$build/bin/tarvik
pictures=docs/pictures
work=$(mktemp -d)
display_pid= client_pid=
cleanup() {
    [ -n "$client_pid" ] && kill "$client_pid" 2>/dev/null
    [ -n "$display_pid" ] && kill "$display_pid" 2>/dev/null
    rm -rf "$work"
}
trap cleanup EXIT
fail() { echo "pictures: $*" >&2; exit 1; }

[ $# -gt 0 ] || { install_missing -test && build_preset release --target seaplan_client_parts; } ||
    fail "the build failed"
mkdir -p "$pictures"
Xvfb -displayfd 3 -screen 0 1600x1000x24 -nolisten tcp -noreset 3>"$work/display" 2>/dev/null &
display_pid=$!
# Asks a command again until it succeeds, for half a minute.
await() {
    local tries=300
    until "$@" >/dev/null 2>&1; do
        tries=$((tries - 1))
        [ "$tries" -gt 0 ] || fail "waited in vain for: $*"
        sleep 0.1
    done
}
await test -s "$work/display"
DISPLAY=:$(cat "$work/display")
export DISPLAY QT_QPA_PLATFORM=xcb QT_SCALE_FACTOR=1

window() { xdotool search --onlyvisible --name "^$1\$" | head -n 1 | grep .; }
text() { sed -n "s/.*\"$2\": *\"\([^\"]*\)\".*/\1/p" "host/client/lang/seaplan.$1.json" | head -n 1; }
click() { xdotool mousemove --window "$1" "$2" "$3" click 1; }
# Drags a window by its caption so that its corner comes to a place on the screen.
drag() {
    xdotool mousemove --window "$1" 140 15 mousedown 1 mousemove $(($2 + 140)) $(($3 + 15)) mouseup 1
    await at "$@"
}
at() { xdotool getwindowgeometry "$1" | grep -q "Position: $2,$3 "; }
# Whether the screen has come to rest: two looks at it, a moment apart, are the same.
still() {
    local before
    before=$(import -silent -window root ppm:- | sha256sum)
    sleep 0.6
    [ "$before" = "$(import -silent -window root ppm:- | sha256sum)" ]
}

# Shows the whole route and some sea around it. The tools stand elsewhere in another language: the keys do not.
fit() {
    click "$1" 800 990
    xdotool key ctrl+0
    await still
    xdotool key ctrl+minus
}

# open_client FOLDER THEME LANGUAGE: the client over the whole screen; the caller's "main" is its window.
open_client() {
    "$client" --data "$work/$1" --theme "$2" --lang "$3" &
    client_pid=$!
    await window Seaplan
    main=$(window Seaplan)
    xdotool windowsize "$main" 1600 1000
    await still
}

# picture NAME THEME LANGUAGE
picture() {
    local main voyages calls
    open_client data "$2" "$3"
    click "$main" 40 18
    await window "$(text "$3" IDS_TREE_VOYTITLE)"
    voyages=$(window "$(text "$3" IDS_TREE_VOYTITLE)")
    drag "$voyages" 24 56
    click "$voyages" 100 61
    await still
    click "$voyages" 150 152
    await still
    click "$voyages" 55 211
    await window "$(text "$3" IDS_PORTCALL_TITLE)"
    calls=$(window "$(text "$3" IDS_PORTCALL_TITLE)")
    drag "$calls" 350 636
    eval "$(xdotool getwindowgeometry --shell "$calls" | grep -E 'WIDTH|HEIGHT')"
    click "$calls" $((WIDTH - 46)) $((HEIGHT - 23))
    await still
    fit "$main"
    await still
    xdotool mousemove 1100 300
    await still
    import -silent -window root "$pictures/$1.png" || fail "no picture $1"
    book "$1" "$3" "$calls"
    end_client
}

# book NAME LANGUAGE PORT-CALLS: the position book of the voyage whose port calls are open.
book() {
    local book
    xdotool windowfocus "$3"
    xdotool key ctrl+b
    await window "$(text "$2" IDC_WP_T_TITLE)"
    book=$(window "$(text "$2" IDC_WP_T_TITLE)")
    drag "$book" 350 480
    await still
    import -silent -window root "$pictures/${1/client/book}.png" || fail "no picture of the book"
}

end_client() {
    kill "$client_pid"
    wait "$client_pid" 2>/dev/null
    client_pid=
}

type_line() { xdotool type --delay 2 "$1"; xdotool key Return; }
# The middles of the patches of one colour in a window, from left to right.
spots() {
    import -silent -window "$1" ppm:- | convert ppm:- -fill black +opaque "$2" -fill white -opaque "$2" \
        -define connected-components:verbose=true -define connected-components:area-threshold=12 \
        -connected-components 4 null: | awk '$5 ~ /255/ { sub(",", " ", $3); print $3 }' | sort -n
}

# A new voyage from Rotterdam to Singapore, not saved yet, and a click on the Suez Canal, the fifth route point from the west.
alternatives() {
    local main voyages calls
    open_client fresh light en-US
    click "$main" 40 18
    await window Voyages
    voyages=$(window Voyages)
    await still
    click "$voyages" 130 58
    xdotool key ctrl+a
    type_line Liner
    await still
    click "$voyages" 73 89
    await still
    xdotool key ctrl+a
    type_line "RTM-SIN 13"
    await still
    drag "$voyages" 24 56
    click "$voyages" 150 122
    await still
    click "$voyages" 98 122
    await window "Port calls"
    calls=$(window "Port calls")
    drag "$calls" 0 640
    click "$calls" 103 84
    type_line Rotterdam
    type_line Singapore
    xdotool key F9
    await still
    fit "$main"
    await still
    read -r x y < <(spots "$main" '#FF6496' | sed -n 5p)
    click "$main" "${x%.*}" "${y%.*}"
    await still
    # The Cape of Good Hope comes out from under the panel.
    click "$main" 1400 700
    xdotool key Left
    xdotool mousemove 1100 300
    await still
    import -silent -window root "$pictures/alternatives.png" || fail "no picture of the alternatives"
    end_client
}

# distances NAME THEME LANGUAGE: the port distance table, and the ways past its route points compared.
distances() {
    local main table ways
    open_client fresh "$2" "$3"
    click "$main" 800 990
    xdotool key ctrl+d
    await window "$(text "$3" IDS_PORTCALL_DISTTABTITLE)"
    table=$(window "$(text "$3" IDS_PORTCALL_DISTTABTITLE)")
    drag "$table" 24 640
    click "$table" 103 84
    type_line Rotterdam
    type_line Singapore
    xdotool key F9
    await still
    fit "$main"
    click "$table" 103 104
    xdotool mousemove 1100 300
    await still
    import -silent -window root "$pictures/distances-$1.png" || fail "no picture of the distances"
    xdotool key ctrl+shift+r
    await window "$(text "$3" IDS_VIEW_WAYS)"
    ways=$(window "$(text "$3" IDS_VIEW_WAYS)")
    xdotool windowmove "$ways" 700 560
    xdotool key Down Down
    await still
    import -silent -window root "$pictures/ways-$1.png" || fail "no picture of the ways"
    end_client
}

"$client" --data "$work/data" plan Rotterdam Singapore Shanghai --speed 14 --depart "2026-12-01 08:00" --stay 12,24,0 \
    --save "Liner/RTM-SHA 12" >/dev/null || fail "the sample voyage was not planned"
"$client" --data "$work/data" plan Shanghai "Los Angeles" --speed 16 --depart "2027-01-08 06:00" \
    --save "Liner/SHA-LAX 01" >/dev/null || fail "the sample voyage was not planned"
if [ -z "${2:-}" ]; then
    # The cards of a first start have a picture of their own in the guide.
    mkdir -p "$work/fresh" && echo '{}' >"$work/fresh/preferences.json"
    picture client-light light en-US
    picture client-dark dark en-US
    picture client-chinese light zh-CN
    alternatives
    distances light light en-US
    distances dark dark en-US
    distances chinese light zh-CN
fi
[ "${2:-}" = guide ] || chart_pictures
[ "${2:-}" != chart ] || exit 0
for language in en-US zh-CN zh-TW; do
    guide_pictures "$language"
done
