#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Runs clang-tidy over all sources that the build compiles. Usage: scripts/lint.sh BUILD-FOLDER, a folder configured with
# the lint preset, which has the benchmarks and the fuzz targets in it.
# A source whose text, headers and configuration passed before is not looked at again.
set -u
cd "$(dirname "$0")/.." || exit 1
build=$1
stamps=.cache/lint
mkdir -p "$stamps"
world=$(git ls-files -s '*.h' .clang-tidy | sha256sum | cut -c1-16)
check() {
    local stamp options=()
    stamp=$stamps/$( (echo "$world $1"; cat "$1") | sha256sum | cut -c1-24)
    [ -f "$stamp" ] && return 0
    # Tests, benchmarks and fuzz targets keep the dialect, too. What the framework's macros unfold to is not theirs.
    case $1 in */tests/* | tests/* | bench/* | fuzz/*) options=("--checks=-*,$dialect") ;; esac
    clang-tidy-14 --quiet "${options[@]}" -p "$build" "$1" 2>/dev/null >"$stamp.out" || { cat "$stamp.out"; rm -f "$stamp.out"; return 1; }
    mv "$stamp.out" "$stamp"
}
dialect=readability-identifier-naming,readability-braces-around-statements
export -f check
export stamps world build dialect
# Only what the build compiles: a source without its flags cannot be judged.
git ls-files '*.cpp' ':!tests/broken_plugins' |
    while read -r source; do grep -qF "\"file\": \"$PWD/$source\"" "$build/compile_commands.json" && echo "$source"; done |
    xargs -r -P "$(nproc)" -I{} bash -c 'check {}'
