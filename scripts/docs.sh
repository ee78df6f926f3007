#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Makes pages of the docstrings in build/docs/html, and names what of the SDK has none, and the controllers' public operations
# without one. Usage: scripts/docs.sh [--check]; with --check it fails when there is one.
set -u
cd "$(dirname "$0")/.." || exit 1
. scripts/prepare.sh
case "${1:-}" in
    "" | --check) ;;
    *) echo "usage: scripts/docs.sh [--check]" >&2; exit 2 ;;
esac
install_missing -test || exit 1
mkdir -p build/docs
# The headers that others call: the SDK's and the controllers', not those of their tests.
mapfile -t headers < <(git ls-files 'tarvik/include/*.h' '*/controllers/*.h' ':!*/tests/*')
version=$(sed -n 's/^project(.* VERSION \([0-9.]*\).*/\1/p' CMakeLists.txt)
{ cat docs/Doxyfile; echo "PROJECT_NUMBER = $version"; echo "INPUT = ${headers[*]}"; } | doxygen - >/dev/null ||
    { cat build/docs/warnings.txt >&2; exit 1; }
sed "s|^$PWD/||" build/docs/warnings.txt | grep -E '^tarvik/.*is not documented|\(function\).*is not documented' | sort -t: -k1,1 -k2,2n |
    tee build/docs/undocumented.txt
undocumented=$(wc -l <build/docs/undocumented.txt)
others=$(grep -vc 'is not documented' build/docs/warnings.txt)
[ "$others" = 0 ] || grep -v 'is not documented' build/docs/warnings.txt | sed "s|^$PWD/||"
echo "docs: ${#headers[@]} headers, $undocumented without a docstring, $others other warnings; build/docs/html/index.html" >&2
[ "${1:-}" != --check ] || [ $((undocumented + others)) = 0 ]
