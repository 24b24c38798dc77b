# Sourced by the commands beside it: says what is going on and installs what is missing.

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)

step() { printf '== %s\n' "$*"; }
fail() { printf '%s: %s\n' "$(basename "$0")" "$*" >&2; exit 1; }

missing_packages() {
    local package
    for package in "$@"; do
        dpkg-query -W -f='${Status}' "$package" 2>/dev/null | grep -q 'ok installed' || printf '%s ' "$package"
    done
}

# Installs the Debian packages named, as far as they are missing.
need_packages() {
    command -v dpkg-query >/dev/null || fail "this is no Debian system; install the equivalents of: $*"
    local missing as_root=()
    missing=$(missing_packages "$@")
    [ -z "$missing" ] && return
    if [ "$(id -u)" -ne 0 ]; then
        { command -v sudo >/dev/null && sudo -n true 2>/dev/null; } \
            || { [ -t 0 ] && command -v sudo >/dev/null; } \
            || fail "missing, and may not be installed without root or sudo: $missing"
        as_root=(sudo)
    fi
    step "installing $missing"
    local log
    log=$(mktemp)
    # shellcheck disable=SC2086 # the list is split on purpose
    if ! { "${as_root[@]}" apt-get update \
        && "${as_root[@]}" env DEBIAN_FRONTEND=noninteractive apt-get install -y --no-install-recommends $missing; } \
        >"$log" 2>&1; then
        tail -n 20 "$log" >&2
        rm -f "$log"
        fail "could not be installed: $missing"
    fi
    rm -f "$log"
}

build_packages=(g++ cmake ninja-build qtbase5-dev qtbase5-private-dev libqt5svg5-dev libx11-dev fonts-dejavu-core)
test_packages=("${build_packages[@]}" libbenchmark-dev pkg-config xvfb xauth openbox xdotool)
