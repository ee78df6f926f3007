#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Runs clang-tidy over all of the project's sources: every check over the product, those of style over tests, benchmarks
# and fuzz targets. Usage: scripts/lint.sh BUILD-FOLDER, a folder configured with the lint preset.
# A source whose text, headers and configuration passed before is not looked at again.
set -u
cd "$(dirname "$0")/.." || exit 1
build=$1
stamps=.cache/lint
mkdir -p "$stamps"
world=$(git ls-files -s '*.h' .clang-tidy | sha256sum | cut -c1-16)
style=-*,modernize-use-override,readability-identifier-naming,readability-braces-around-statements,readability-function-size
check() {
    local stamp options=() flags=(-p "$build")
    stamp=$stamps/$( (echo "$world $1"; cat "$1") | sha256sum | cut -c1-24)
    [ -f "$stamp" ] && return 0
    case $1 in tests/* | */tests/* | testsupport/* | bench/* | fuzz/*) options=("--checks=$style") ;; esac
    # A preset of their own builds the fuzz targets; they need no more than these flags.
    case $1 in fuzz/*) flags=(-- -std=c++20 -I. -Itarvik/include) ;; esac
    clang-tidy-14 --quiet "${options[@]}" "$1" "${flags[@]}" 2>/dev/null >"$stamp.out" ||
        { cat "$stamp.out"; rm -f "$stamp.out"; return 1; }
    mv "$stamp.out" "$stamp"
}
export -f check
export stamps world build style
# Only what the build compiles: a source without its flags cannot be judged.
{
    git ls-files 'fuzz/*.cpp'
    git ls-files '*.cpp' ':!fuzz' | while read -r source; do
        grep -qF "\"file\": \"$PWD/$source\"" "$build/compile_commands.json" && echo "$source"
    done
} | xargs -r -P "$(nproc)" -I{} bash -c 'check {}'
