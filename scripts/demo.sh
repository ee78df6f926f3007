# SPDX-License-Identifier: MIT
# Sourced by ./run --demo: the client with sample voyages whose ships sail, in a data folder that goes with it.
# Usage: run_demo BINARIES OPTIONS...

# The folder and the feed go with the client, however it ends.
end_demo() {
    [ -z "${demo_feed:-}" ] || kill "$demo_feed" 2>/dev/null
    rm -rf "$demo_data"
}

# Plans the sample voyages with the client itself, eight in all.
plan_demo_voyages() {
    local save depart knots ports total=0
    while IFS=$'\t' read -r save depart knots ports; do
        total=$((total + 1))
        [ -t 2 ] && printf '\r\033[KPlanning %s' "$save" >&2
        # Codes of ports hold no blanks.
        # shellcheck disable=SC2086
        "$1/tarvik" plan $ports --save "$save" --depart "$depart" --zone UTC --speed "$knots" --data "$demo_data" \
            --server embedded >/dev/null || return 1
    done < <("$1/seaplan-demo" plans)
    [ -t 2 ] && printf '\r\033[K' >&2
    [ "$total" -gt 0 ]
}

# Serves the ships of voyages under way on a free port, and makes that the AIS plug-in's input.
start_demo_feed() {
    local address
    mkdir -p "$demo_data/businessdata/ais" || return 1
    "$1/seaplan-demo" finish "$demo_data" >"$demo_data/ships.txt" || return 1
    "$1/ais-feed" "$demo_data/ships.txt" 0 60 >"$demo_data/feed" &
    demo_feed=$!
    for _ in $(seq 50); do
        address=$(cat "$demo_data/feed")
        [ -n "$address" ] && break
        sleep 0.1
    done
    [ -n "$address" ] || return 1
    printf '{"inputs": ["tcp://%s"], "showShips": true}\n' "$address" >"$demo_data/businessdata/ais/settings.json"
}

run_demo() {
    local programs=$1
    shift
    demo_data=$(mktemp -d "${TMPDIR:-/tmp}/seaplan-demo.XXXXXX") || return 1
    trap end_demo EXIT
    trap 'exit 130' INT TERM HUP
    if ! plan_demo_voyages "$programs" || ! start_demo_feed "$programs"; then
        echo "The demonstration could not be made ready." >&2
        return 1
    fi
    "$programs/tarvik" --server embedded "$@" --data "$demo_data"
}
