# SPDX-License-Identifier: MIT
# Sourced by scripts/pictures.sh: the pictures of the user's guide, in a small window so that they can be read in the guide's
# column. Usage: guide_pictures LANGUAGE

# A text of a language file: word LANGUAGE COMPONENT KEY.
word() { sed -n "s/.*\"$3\": *\"\([^\"]*\)\".*/\1/p" "host/client/lang/$2.$1.json" | head -n 1; }

# look NAME [WINDOW]: a picture of the client's window with what lies over it, or of one window alone.
look() {
    xdotool mousemove 1590 990
    await still
    import -silent -window "${2:-root}" png:"$work/look.png" || fail "no picture $1"
    [ $# -gt 1 ] || mogrify -crop 1200x760+0+0 +repage "$work/look.png"
    convert "$work/look.png" +dither -colors 128 -strip "docs/guide/pictures/$lang/$1.png"
}

# open_small FOLDER: the client in the corner of the screen; the caller's "main" is its window.
open_small() {
    "$client" --data "$work/$1" --theme light --lang "$lang" &
    client_pid=$!
    await window Seaplan
    main=$(window Seaplan)
    xdotool windowsize "$main" 1200 760
    await still
}

# key_window WINDOW KEY...: keys for a window.
key_window() {
    local at=$1
    shift
    xdotool windowfocus "$at"
    xdotool key "$@"
    await still
}

# The first start, and the way from there to a voyage with its figures, an alternative, an answer of "What if" and the book.
guide_voyage() {
    local main voyages calls book x y
    open_small guide
    look first-start
    key_window "$main" Tab Tab space
    key_window "$main" ctrl+l
    await window "$voyages_title"
    voyages=$(window "$voyages_title")
    xdotool key ctrl+a
    type_line Liner
    await still
    xdotool key Insert
    await still
    xdotool key ctrl+a
    type_line "RTM-SIN 13"
    await still
    drag "$voyages" 8 56
    key_window "$voyages" Return
    await window "$(text "$lang" IDS_PORTCALL_TITLE)"
    calls=$(window "$(text "$lang" IDS_PORTCALL_TITLE)")
    type_line Rotterdam
    type_line Singapore
    drag "$calls" 340 420
    key_window "$calls" F9
    fit "$main"
    await still
    look first-voyage
    read -r x y < <(spots "$main" '#FF6496' | sed -n 5p)
    click "$main" "${x%.*}" "${y%.*}"
    await still
    look alternatives
    key_window "$calls" F8
    look what-if "$calls"
    key_window "$calls" F8 ctrl+s ctrl+b
    await window "$(text "$lang" IDC_WP_T_TITLE)"
    book=$(window "$(text "$lang" IDC_WP_T_TITLE)")
    look position-book "$book"
    end_client
}

# The distance table over the chart.
guide_distances() {
    local main table
    open_small guide
    key_window "$main" ctrl+d
    await window "$(text "$lang" IDS_PORTCALL_DISTTABTITLE)"
    table=$(window "$(text "$lang" IDS_PORTCALL_DISTTABTITLE)")
    drag "$table" 340 420
    click "$table" 103 84
    type_line Rotterdam
    type_line "New York"
    key_window "$table" F9
    fit "$main"
    look distances
    end_client
}

# add_vessel NAME MMSI: by the fleet's keys.
add_vessel() {
    xdotool key ctrl+n
    await still
    xdotool type --delay 2 "$1"
    xdotool key Tab
    type_line "$2"
    await still
}

# The fleet, the remarks of a voyage, the preferences and the time slider, over a voyage that is planned.
guide_desk() {
    local main fleet voyages remarks
    open_small desk
    key_window "$main" ctrl+e
    await window "$(word "$lang" fleet TITLE)"
    fleet=$(window "$(word "$lang" fleet TITLE)")
    add_vessel "Amber Tide" 232000001
    add_vessel "Blue Heron" 244000002
    look vessels "$fleet"
    key_window "$fleet" Escape
    key_window "$main" ctrl+comma
    await window "$(word "$lang" client PREFERENCES)"
    look server "$(window "$(word "$lang" client PREFERENCES)")"
    xdotool key Escape
    await still
    key_window "$main" ctrl+l
    await window "$voyages_title"
    voyages=$(window "$voyages_title")
    drag "$voyages" 8 56
    click "$voyages" 100 61
    await still
    click "$voyages" 150 122
    await still
    click "$voyages" 29 92
    await still
    click "$voyages" 184 187
    remarks=$(text "$lang" IDS_RMK_TITLE | sed 's/%s/.*/')
    await window "$remarks"
    remarks=$(window "$remarks")
    key_window "$remarks" ctrl+n
    xdotool type --delay 2 "Draught"
    xdotool key Tab
    xdotool type --delay 2 "Leaves Singapore with 12.4 m."
    key_window "$remarks" ctrl+s
    look remarks "$remarks"
    key_window "$remarks" Escape
    click "$main" 900 100
    key_window "$main" ctrl+0
    key_window "$main" t
    xdotool key --delay 2 --repeat 200 period
    look following
    end_client
}

guide_pictures() {
    local lang=$1 voyages_title
    voyages_title=$(text "$lang" IDS_TREE_VOYTITLE)
    mkdir -p "docs/guide/pictures/$lang"
    rm -rf "$work/guide"
    cp -r "$work/data" "$work/desk"
    guide_voyage
    guide_distances
    guide_desk
    rm -rf "$work/desk"
}
