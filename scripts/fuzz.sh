#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Builds the fuzz targets and runs each for a bounded time, from its committed corpus. Usage: scripts/fuzz.sh SECONDS
set -u
cd "$(dirname "$0")/.." || exit 1
. scripts/prepare.sh
seconds=${1:-30}
build_preset fuzz --target fuzz_targets || exit 1
shopt -s nullglob
for target in build/fuzz/fuzz/*_fuzz; do
    name=$(basename "$target" _fuzz)
    work=$(mktemp -d)
    if ! "$target" -max_total_time="$seconds" -max_len=65536 -rss_limit_mb=2048 -print_final_stats=0 \
        -artifact_prefix="$work/" "$work" "fuzz/corpus/$name" >"$work/log" 2>&1; then
        tail -n 30 "$work/log" >&2
        echo "fuzz: $name failed" >&2
        exit 1
    fi
    echo "fuzz: $name ran for $seconds s without a finding"
    rm -rf "$work"
done
