#!/usr/bin/env bash
# Builds SDL3 from Debian's source package into a per-user cache prefix, once.
# The source comes from the next Debian release through a private apt
# configuration, so the system's own sources and package lists stay untouched.
set -euo pipefail

SDL_VERSION=3.2.10
CACHE="${MOSSWICK_CACHE:-${XDG_CACHE_HOME:-$HOME/.cache}/mosswick}"
PREFIX="$CACHE/sdl3-$SDL_VERSION"

if [ -f "$PREFIX/.complete" ]; then
    echo "$PREFIX"
    exit 0
fi

work="$CACHE/sdl3-src"
rm -rf "$work"
mkdir -p "$work/lists/partial" "$work/cache/archives/partial" "$work/src"

# The archive address is whatever this system already uses for Debian.
uri=$(awk '/^URIs:/ { print $2; exit }' /etc/apt/sources.list.d/debian.sources 2>/dev/null || true)
if [ -z "$uri" ] && [ -f /etc/apt/sources.list ]; then
    uri=$(awk '$1 == "deb" && $0 !~ /security/ { for (i = 2; i <= NF; i++) if ($i ~ /^[a-z]+:\/\//) { print $i; exit } }' /etc/apt/sources.list)
fi
if [ -z "$uri" ]; then
    echo "no Debian archive address found in the apt configuration" >&2
    exit 1
fi
echo "deb-src [signed-by=/usr/share/keyrings/debian-archive-keyring.gpg] $uri trixie main" > "$work/sources.list"

apt_opts=(
    -o "Dir::Etc::SourceList=$work/sources.list"
    -o "Dir::Etc::SourceParts=/dev/null"
    -o "Dir::State::Lists=$work/lists"
    -o "Dir::Cache=$work/cache"
    -o "Dir::Cache::pkgcache="
    -o "Dir::Cache::srcpkgcache="
)
apt-get "${apt_opts[@]}" update >&2
(cd "$work/src" && apt-get "${apt_opts[@]}" source "libsdl3=$SDL_VERSION*" >&2 || \
    apt-get "${apt_opts[@]}" source libsdl3 >&2)

srcdir=$(find "$work/src" -maxdepth 1 -mindepth 1 -type d -name 'libsdl3-*' | head -n 1)
[ -n "$srcdir" ] || { echo "SDL3 source did not unpack" >&2; exit 1; }

cmake -S "$srcdir" -B "$work/build" -DCMAKE_BUILD_TYPE=Release \
    -DCMAKE_INSTALL_PREFIX="$PREFIX" -DCMAKE_INSTALL_LIBDIR=lib \
    -DSDL_TESTS=OFF -DSDL_EXAMPLES=OFF -DSDL_AUDIO=OFF -DSDL_GPU=OFF \
    -DSDL_CAMERA=OFF -DSDL_WAYLAND=OFF -DSDL_VULKAN=OFF >&2
cmake --build "$work/build" -j "$(nproc)" >&2
cmake --install "$work/build" >&2
touch "$PREFIX/.complete"
rm -rf "$work"
echo "$PREFIX"
