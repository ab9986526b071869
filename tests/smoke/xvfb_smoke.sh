#!/usr/bin/env bash
# Starts the real program in a private X server, waits for its window, takes a
# screenshot and checks what a user would see, then closes it like a user.
set -u
exe=$(readlink -f "$1")
source "$(dirname "${BASH_SOURCE[0]}")/x_session.sh"
start_x 90 1280x720x24
cp -r "$(dirname "$exe")/data" "$workdir/data"
(cd "$workdir" && exec "$exe") >"$workdir/out.log" 2>&1 &
app=$!
pids+=($app)

window=$(timeout 20 xdotool search --sync --onlyvisible --name '^Mosswick' | head -n 1)
[ -n "$window" ] || fail "no window titled Mosswick appeared"
sleep 1
import -window root "$workdir/shot.png" || fail "screenshot failed"
geometry=$(xdotool getwindowgeometry "$window")
echo "$geometry"
echo "$geometry" | grep -q "1232x664" || fail "window is not 1232 x 664"
# Pixel positions below are window coordinates; the screenshot is of the screen.
read -r wx wy < <(echo "$geometry" | sed -n 's/.*Position: \([0-9]*\),\([0-9]*\).*/\1 \2/p')
pixel() { /usr/bin/convert "$workdir/shot.png" -format "%[pixel:p{$(($1 + wx)),$(($2 + wy))}]" info:; }
title=$(xdotool getwindowname "$window")
[ "$title" = "Mosswick 0.88 - untitled1" ] || fail "title is '$title'"
bg=$(pixel 600 600)
[ "$bg" = "srgb(137,137,137)" ] || fail "background below the canvas is $bg, not grey 137"
# The first tile is opaque black, magnified and centred in the canvas area,
# with a lighter grid line at the bottom and right of every cell.
centre=$(pixel 515 315)
[ "$centre" = "srgb(0,0,0)" ] || fail "the middle of the canvas is $centre, not the black tile"
grid=$(/usr/bin/convert "$workdir/shot.png" -crop 60x1+$((490 + wx))+$((300 + wy)) +repage -unique-colors -format "%w" info:)
[ "$grid" -ge 2 ] || fail "no grid lines across the tile"
# The menu bar's titles are written in dark ink.
ink=$(/usr/bin/convert "$workdir/shot.png" -crop 40x20+$((wx))+$((wy)) +repage -unique-colors -format "%w" info:)
[ "$ink" -ge 2 ] || fail "no menu titles"

# Escape asks whether to quit; "y" answers yes and the program ends normally.
xdotool windowfocus --sync "$window" 2>/dev/null
xdotool key --window "$window" Escape
sleep 0.5
xdotool key --window "$window" y
for _ in $(seq 100); do kill -0 "$app" 2>/dev/null || break; sleep 0.1; done
if kill -0 "$app" 2>/dev/null; then fail "program still running after Escape and y"; fi
wait "$app"
code=$?
[ "$code" -eq 0 ] || { cat "$workdir/out.log"; fail "exit code $code"; }
[ -n "${MOSSWICK_SHOT:-}" ] && cp "$workdir/shot.png" "$MOSSWICK_SHOT"
echo "smoke test passed"
