#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# A long random walk: so many seeds, in as many processes as there are cores. The test program must be built.
# Usage: scripts/walk.sh [SEEDS [FIRST [FOLDER OF THE BUILD]]]; what fails is printed with its shortest script.
set -eu
cd "$(dirname "$0")/.."
seeds=${1:-10000} first=${2:-1} build=${3:-build/dev}
cores=$(nproc)
part=$(((seeds + cores - 1) / cores))
folder=$(mktemp -d)
trap 'rm -rf "$folder"' EXIT
running=()
for ((i = 0; i < cores; ++i)); do
    QT_QPA_PLATFORM=offscreen TZ=America/St_Johns LC_ALL=C.UTF-8 WALK_FIRST=$((first + i * part)) WALK_SEEDS=$part \
        "$build/tests/random_walk_test" --gtest_filter='RandomWalkTest.*' >"$folder/$i" 2>&1 &
    running+=($!)
done
failed=0
for ((i = 0; i < cores; ++i)); do
    wait "${running[$i]}" || { failed=1; cat "$folder/$i"; }
done
[ "$failed" = 1 ] || echo "walk: $((part * cores)) seeds from $first, nothing was stored wrong or lost"
exit "$failed"
