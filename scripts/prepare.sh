# SPDX-License-Identifier: MIT
# Sourced by ./run and ./test: installs missing Debian packages and names the build folders.
# Usage: . scripts/prepare.sh; install_missing [-test]: with -test also what tests, checks and benchmarks need.

# One cache serves every checkout: paths count from its root, and precompiled headers by their content.
export CCACHE_NOHASHDIR=1 CCACHE_SLOPPINESS=pch_defines,time_macros

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)

export CCACHE_BASEDIR=$root

missing_packages() {
    cat "$root/cmake/debian-packages.txt" ${1:+"$root/cmake/debian-packages$1.txt"} | grep -v '^#' | while read -r package; do
        [ "$package" = npm ] && command -v npm >/dev/null 2>&1 && continue
        dpkg-query -W -f='${db:Status-Abbrev}' "$package" 2>/dev/null | grep -q '^ii' || echo "$package"
    done
}

# Hands on what it reads; on a terminal also shows each line there, in place of the one before.
show_progress() {
    [ -t 2 ] || { cat; return; }
    local line width
    width=$(tput cols 2>/dev/null) || width=80
    while IFS= read -r line || [ -n "$line" ]; do
        printf '%s\n' "$line"
        line=${line//[[:cntrl:]]/ }
        [ -n "${line// /}" ] && printf '\r\033[K%s' "${line:0:width-1}" >&2
    done
    printf '\r\033[K' >&2
}

install_missing() {
    local missing sudo= log=${TMPDIR:-/tmp}/seaplan-apt.log
    command -v dpkg-query >/dev/null 2>&1 || {
        echo "This is not a Debian system. Install what $root/cmake/debian-packages.txt names and start again." >&2
        return 1
    }
    missing=$(missing_packages "${1:-}" | tr '\n' ' ')
    [ -z "${missing// /}" ] && return 0
    if [ "$(id -u)" -ne 0 ]; then
        command -v sudo >/dev/null 2>&1 || {
            printf 'Packages are missing. As root, run:\n  apt-get install %s\n' "$missing" >&2
            return 1
        }
        sudo=sudo
    fi
    echo "Installing $missing" >&2
    # Asked for before the progress is shown, which would hide the question.
    [ -z "$sudo" ] || sudo -v || return 1
    # shellcheck disable=SC2086
    if ! (set -o pipefail; { $sudo apt-get update -q &&
        DEBIAN_FRONTEND=noninteractive $sudo apt-get install -y -q --no-install-recommends $missing; } 2>&1 |
        show_progress >"$log"); then
        tail -n 20 "$log" >&2
        printf 'Installing failed. Run it yourself and start again:\n  apt-get install %s\n' "$missing" >&2
        return 1
    fi
}

# Configures (once) and builds a preset; what it prints is shown only when it fails, and on a terminal how far it is.
build_preset() {
    local preset=$1 log
    shift
    log=$(mktemp)
    if ! (set -o pipefail; { { [ -f "$root/build/$preset/build.ninja" ] || (cd "$root" && cmake --preset "$preset"); } &&
        cmake --build "$root/build/$preset" "$@"; } 2>&1 | show_progress >"$log"); then
        grep -E 'error|Error|FAILED' -A 5 "$log" | head -n 60 >&2
        tail -n 25 "$log" >&2
        rm -f "$log"
        return 1
    fi
    rm -f "$log"
}
