#!/usr/bin/env bash
# One entry point for a fresh Debian 12 machine:
#   tools/dev.sh run    installs what is missing, builds and starts the editor
#   tools/dev.sh test   installs what is missing, builds with the sanitizers and runs every test
set -euo pipefail

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
jobs=$(nproc 2>/dev/null || echo 2)

packages=(
    build-essential cmake pkg-config dpkg-dev ca-certificates
    libgtest-dev libgmock-dev googletest libbenchmark-dev
    libx11-dev libxext-dev libxrandr-dev libxcursor-dev libxi-dev libxfixes-dev
    libxss-dev libxkbcommon-dev libdbus-1-dev
    libtinyxml2-dev libspng-dev zlib1g-dev libzstd-dev
    xvfb xauth xdotool imagemagick zenity
    clang libclang-rt-14-dev
)

install_missing() {
    local missing=()
    for p in "${packages[@]}"; do
        dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q "install ok installed" || missing+=("$p")
    done
    [ ${#missing[@]} -eq 0 ] && return 0
    local sudo=()
    [ "$(id -u)" -eq 0 ] || sudo=(sudo)
    echo "Installing: ${missing[*]}"
    "${sudo[@]}" apt-get update -q
    DEBIAN_FRONTEND=noninteractive "${sudo[@]}" apt-get install -y -q --no-install-recommends "${missing[@]}"
}

configure_and_build() {
    local dir=$1
    shift
    cmake -S "$root" -B "$dir" -DCMAKE_PREFIX_PATH="$sdl_prefix" "$@"
    cmake --build "$dir" -j "$jobs"
}

cmd=${1:-}
case "$cmd" in
    run|test) ;;
    *) echo "usage: $0 run|test" >&2; exit 2 ;;
esac

install_missing
sdl_prefix=$(bash "$root/tools/fetch_sdl3.sh" | tail -n 1)

if [ "$cmd" = run ]; then
    configure_and_build "$root/build" -DCMAKE_BUILD_TYPE=RelWithDebInfo -DMOSSWICK_TESTS=OFF -DMOSSWICK_BENCH=OFF
    # The program reads data/ from its working directory; the build placed it beside the program.
    # Further arguments go to the program; relative paths mean the directory it was started from.
    shift
    export MOSSWICK_START_DIR=$PWD
    cd "$root/build"
    exec ./mosswick "$@"
fi

configure_and_build "$root/build-check" -DCMAKE_BUILD_TYPE=Debug -DMOSSWICK_SANITIZE=ON -DMOSSWICK_BENCH=OFF
cd "$root/build-check"
ctest --output-on-failure -j "$jobs" --timeout 300
