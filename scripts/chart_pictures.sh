# SPDX-License-Identifier: MIT
# Sourced by scripts/pictures.sh: the chart at four zooms and its tools, the first start, and the client in its looks, in
# Chinese and at 150 %. Usage: chart_pictures

# shoot NAME: a picture of the whole screen, the pointer out of the way.
shoot() {
    xdotool mousemove 1597 300
    await still
    import -silent -window root png:"$work/shot.png" || fail "no picture $1"
    convert "$work/shot.png" +dither -colors 256 -strip "$pictures/$1.png"
}

# keys KEY...: for the main window's chart.
keys() {
    xdotool windowfocus "$main"
    xdotool key --delay 60 "$@"
    await still
}

# go_to PLACE STEPS: a place in the middle of the chart, so many half octaves nearer than the whole world.
go_to() {
    keys ctrl+g
    xdotool type --delay 5 "$1"
    await still
    xdotool key Return
    await still
    local step
    for ((step = 0; step < ${2#-}; step++)); do
        xdotool key "$([ "$2" -lt 0 ] && echo ctrl+minus || echo ctrl+plus)"
    done
    await still
}

# select_voyage LANGUAGE: opens the voyages and presses the first voyage of the first category.
select_voyage() {
    local voyages
    click "$main" 40 18
    await window "$(text "$1" IDS_TREE_VOYTITLE)"
    voyages=$(window "$(text "$1" IDS_TREE_VOYTITLE)")
    drag "$voyages" 24 120
    click "$voyages" 100 61
    await still
    click "$voyages" 150 152
    await still
}

chart_zooms() {
    open_client data light en-US
    keys ctrl+0
    shoot chart-world
    go_to "51 30N 2 30E" -4
    shoot chart-sea
    go_to "51 30N 2 30E" 4
    shoot chart-coast
    go_to Singapore 5
    shoot chart-harbour
    end_client
}

chart_tools() {
    open_client data light en-US
    select_voyage en-US
    shoot chart-voyage
    keys t
    # The middle of the slider.
    click "$main" 800 942
    await still
    shoot chart-time
    keys t
    xdotool mousemove 900 700 click 3
    await still
    xdotool key Down Down Return
    await still
    xdotool mousemove 1050 620 click 1 mousemove 1200 700 click 1
    await still
    shoot chart-measure
    end_client
}

# chart_look NAME THEME LANGUAGE: a selected voyage and its port calls.
chart_look() {
    open_client data "$2" "$3"
    select_voyage "$3"
    xdotool key Return
    await window "$(text "$3" IDS_PORTCALL_TITLE)"
    shoot "$1"
    end_client
}

chart_pictures() {
    local main
    open_client first light en-US
    shoot first-start
    end_client
    chart_zooms
    chart_tools
    chart_look look-dark dark en-US
    chart_look look-night night en-US
    chart_look look-chinese light zh-CN
    export QT_SCALE_FACTOR=1.5
    open_client data light en-US
    click "$main" 60 27
    await window "$(text en-US IDS_TREE_VOYTITLE)"
    xdotool key Right Down Return
    await window "$(text en-US IDS_PORTCALL_TITLE)"
    shoot scale-150
    end_client
    export QT_SCALE_FACTOR=1
}
