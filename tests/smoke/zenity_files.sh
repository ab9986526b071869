#!/usr/bin/env bash
# Saves and loads tilesets through the real native file dialog (zenity, which
# SDL uses when no desktop portal is reachable), the way a user would.
set -u
exe=$(readlink -f "$1")
source "$(dirname "${BASH_SOURCE[0]}")/x_session.sh"
# The file dialog is 1096 x 822: the screen must hold it.
start_x 141 1280x1024x24
# zenity keeps its own settings and recent files under HOME.
export HOME=$workdir/home
mkdir -p "$HOME" "$workdir/run" "$workdir/files"
cp -r "$(dirname "$exe")/data" "$workdir/run/data"
(cd "$workdir/run" && exec "$exe") >"$workdir/out.log" 2>&1 &
app=$!
pids+=($app)

window=$(timeout 20 xdotool search --sync --onlyvisible --name '^Mosswick' | head -n 1)
[ -n "$window" ] || fail "no Mosswick window"
xdotool windowmove --sync "$window" 0 0 2>/dev/null
sleep 0.5

# Types a path into the dialog that has just opened and confirms it.
answer_dialog() {
    local dialog
    dialog=$(timeout 20 xdotool search --sync --onlyvisible --class zenity | head -n 1)
    [ -n "$dialog" ] || fail "no file dialog appeared"
    xdotool windowfocus --sync "$dialog" 2>/dev/null
    sleep 0.5
    xdotool key ctrl+a  # the dialog offers a name of its own
    xdotool type --delay 20 "$1"
    sleep 0.5  # an earlier Return is dropped by the dialog
    xdotool key Return
    for _ in $(seq 100); do xdotool search --onlyvisible --class zenity >/dev/null 2>&1 || return 0; sleep 0.1; done
    fail "the file dialog did not close"
}

# Ctrl+S on the fresh tileset asks for a name, then writes one black 24 x 24 tile.
xdotool windowfocus --sync "$window" 2>/dev/null
xdotool key --window "$window" ctrl+s
answer_dialog "$workdir/files/fresh.wst"
for _ in $(seq 50); do [ -s "$workdir/files/fresh.wst" ] && break; sleep 0.1; done
[ -f "$workdir/files/fresh.wst" ] || fail "nothing was saved"
size=$(stat -c %s "$workdir/files/fresh.wst")
[ "$size" -eq 2315 ] || fail "saved $size bytes, not 2315"
header=$(od -An -tx1 -N11 "$workdir/files/fresh.wst" | tr -s ' ' | sed 's/^ //')
[ "$header" = "57 53 54 0a 00 18 18 01 00 00 00" ] || fail "header is $header"
pixels=$(od -An -v -tx1 -j11 "$workdir/files/fresh.wst" | tr -s ' \n' '\n\n' | grep -v '^$' | paste -d' ' - - - - | sort -u)
[ "$pixels" = "ff 00 00 00" ] || fail "pixels are not all opaque black: $pixels"
title=$(xdotool getwindowname "$window")
[ "$title" = "Mosswick 0.88 - fresh" ] || fail "title after saving is '$title'"

# A two-tile file, the first tile red and the second green, loaded from the menu.
{
    printf 'WST\n\000\030\030\002\000\000\000'
    for _ in $(seq 576); do printf '\377\000\000\377'; done
    for _ in $(seq 576); do printf '\377\000\377\000'; done
} >"$workdir/files/two.wst"
xdotool mousemove --window "$window" 20 12 click 1
sleep 0.5
xdotool mousemove --window "$window" 30 87 click 1  # File > Load
answer_dialog "$workdir/files/two.wst"
sleep 1
title=$(xdotool getwindowname "$window")
[ "$title" = "Mosswick 0.88 - two" ] || fail "title after loading is '$title'"
xdotool mousemove --window "$window" 10 600
sleep 0.5
import -window root "$workdir/shot.png" || fail "screenshot failed"
centre=$(/usr/bin/convert "$workdir/shot.png" -format '%[pixel:p{515,315}]' info:)
[ "$centre" = "srgb(255,0,0)" ] || fail "the canvas shows $centre, not the first (red) tile"
[ -n "${MOSSWICK_SHOT:-}" ] && cp "$workdir/shot.png" "$MOSSWICK_SHOT"
echo "file dialog test passed"
