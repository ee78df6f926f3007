#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Builds the release preset with its benchmarks, runs them all, and times the two programs that a person waits for.
# The figures go into docs/performance.md by hand. Usage: bench/run.sh
set -u
cd "$(dirname "$0")/.." || exit 1
. scripts/prepare.sh
install_missing -test || exit 1
cmake --preset release -DSEAPLAN_BENCH=ON >/dev/null || exit 1
build_preset release --target seaplan_benches seaplan_client_parts || exit 1

for program in build/release/bench/*_bench; do
    "$program" --benchmark_min_time=0.5 2>/dev/null || exit 1
done

# Median and worst of 15 runs of a command, in milliseconds from its start to its end.
time_command() {
    local name=$1 start
    shift
    for _ in $(seq 15); do
        start=$(date +%s%N)
        "$@" >/dev/null 2>&1 || { echo "$name failed" >&2; return 1; }
        echo $((($(date +%s%N) - start) / 1000000))
    done | sort -n | awk -v name="$name" '{ t[NR] = $1 } END { printf "%-24s median %d ms, worst %d ms\n", name, t[8], t[15] }'
}

data=$(mktemp -d)
trap 'rm -rf "$data"' EXIT
client=build/release/bin/tarvik
time_command "plan of two ports" "$client" plan Rotterdam Singapore --speed 14 --data "$data"
# What a person waits for in the window, by the picture on the screen.
python3 -B bench/waits/waits.py build/release
