#!/usr/bin/env bash
# Makes the Debian package from the build tree and uses it as an installed
# program would be used: its contents and dependencies, a batch conversion
# from another directory, and the window opened on a tileset named on the
# command line, for two users with data folders of their own.
set -u
build=$(readlink -f "$1")
source "$(dirname "${BASH_SOURCE[0]}")/x_session.sh"

cpack --config "$build/CPackConfig.cmake" -G DEB -B "$workdir/pkg" >"$workdir/cpack.log" 2>&1 ||
    { cat "$workdir/cpack.log"; fail "cpack failed"; }
deb=$workdir/pkg/mosswick_0.88_amd64.deb
[ -f "$deb" ] || fail "no mosswick_0.88_amd64.deb: $(ls "$workdir/pkg")"
contents=$(dpkg-deb -c "$deb" | awk '{print $6}')
for f in usr/bin/mosswick usr/lib/mosswick/mosswick usr/lib/mosswick/libSDL3.so.0 \
         usr/share/mosswick/data/pool.bmp usr/share/applications/mosswick.desktop \
         usr/share/mime/packages/mosswick.xml usr/share/icons/hicolor/64x64/apps/mosswick.png; do
    grep -qx "./$f" <<<"$contents" || fail "the package lacks /$f"
done
depends=$(dpkg-deb -f "$deb" Depends)
for d in libc6 libspng0 libtinyxml2; do grep -q "$d" <<<"$depends" || fail "no dependency on $d: $depends"; done
grep -qi sdl <<<"$depends" && fail "SDL3 is bundled, yet the package depends on it: $depends"

root=$workdir/root
dpkg -x "$deb" "$root" || fail "dpkg -x failed"
type=$(sed -n 's/.*mime-type type="\([^"]*\)".*/\1/p' "$root/usr/share/mime/packages/mosswick.xml")
grep -qx "MimeType=$type;" "$root/usr/share/applications/mosswick.desktop" || fail "the desktop entry does not open $type"
listing() { find "$root" -printf '%p %s %T@\n' | sort; }
installed=$(listing)

# A tileset of one 6 x 6 tile: header, then 36 pixels of four bytes.
mkdir -p "$workdir/files/elsewhere"
{ printf 'WST\n\0\6\6\1\0\0\0'; head -c 144 /dev/urandom; } >"$workdir/files/tiles.wst"
mosswick=$root/usr/bin/mosswick
(cd "$workdir/files/elsewhere" && "$mosswick" --batch ../tiles.wst --export sheet.png) || fail "batch export failed"
(cd "$workdir/files/elsewhere" && "$mosswick" --batch sheet.png --tile 6x6 --save back.wst) || fail "batch save failed"
cmp -s "$workdir/files/tiles.wst" "$workdir/files/elsewhere/back.wst" || fail "the tileset changed on its way through PNG"
"$mosswick" --no-such-option >/dev/null 2>&1
[ $? -eq 2 ] || fail "an unknown option does not exit 2"

start_x 191 1280x720x24
# Starts the installed program on tiles.wst, checks the title names it and the
# program runs in the user's own folder (its first argument), and quits.
open_as_user() {
    local folder=$1 app window title
    (cd "$workdir/files" && exec "$mosswick" tiles.wst) >"$workdir/out.log" 2>&1 &
    app=$!
    pids+=($app)
    window=$(timeout 30 xdotool search --sync --onlyvisible --name '^Mosswick' | head -n 1)
    [ -n "$window" ] || fail "no window"
    for _ in $(seq 50); do title=$(xdotool getwindowname "$window"); [ "$title" = "Mosswick 0.88 - tiles" ] && break; sleep 0.1; done
    [ "$title" = "Mosswick 0.88 - tiles" ] || fail "the title is '$title', not the file named on the command line"
    [ "$(readlink "/proc/$app/cwd")" = "$folder" ] || fail "runs in $(readlink "/proc/$app/cwd"), not $folder"
    [ "$(readlink -f "$folder/data/pool.bmp")" = "$root/usr/share/mosswick/data/pool.bmp" ] || fail "no pool.bmp in $folder"
    xdotool windowfocus --sync "$window" 2>/dev/null
    xdotool key --window "$window" Escape
    sleep 0.5
    xdotool key --window "$window" y
    for _ in $(seq 100); do kill -0 "$app" 2>/dev/null || break; sleep 0.1; done
    kill -0 "$app" 2>/dev/null && fail "still running after Escape and y"
    wait "$app" || fail "exit code $?"
}
HOME=$workdir/home open_as_user "$workdir/home/.local/share/mosswick"
HOME=$workdir/home XDG_DATA_HOME=$workdir/second open_as_user "$workdir/second/mosswick"
[ "$(listing)" = "$installed" ] || fail "the installed tree was written to"
echo "package test passed"
