#!/usr/bin/env bash
# Starts the real program in a private X server, waits for its window, takes a
# screenshot and checks what a user would see, then closes it like a user.
set -u
exe=$(readlink -f "$1")
workdir=$(mktemp -d)
pids=()
cleanup() {
    for p in "${pids[@]}"; do kill "$p" 2>/dev/null; done
    wait 2>/dev/null
    rm -rf "$workdir"
}
trap cleanup EXIT
fail() { echo "FAIL: $*"; exit 1; }

# A free display number: no socket and no lock file for it yet.
display=""
for n in $(seq 90 140); do
    if [ ! -e "/tmp/.X11-unix/X$n" ] && [ ! -e "/tmp/.X$n-lock" ]; then display=":$n"; break; fi
done
[ -n "$display" ] || fail "no free X display number"

Xvfb "$display" -screen 0 1280x720x24 -nolisten tcp >"$workdir/xvfb.log" 2>&1 &
pids+=($!)
for _ in $(seq 50); do [ -e "/tmp/.X11-unix/X${display#:}" ] && break; sleep 0.1; done

export DISPLAY=$display NO_AT_BRIDGE=1 DBUS_SESSION_BUS_ADDRESS=disabled:
# Under X the renderer runs on Mesa, whose JIT code and driver are unloaded at
# exit, so its leftovers cannot be told apart by stack. Leaks of our own code
# are checked by every headless test instead.
export ASAN_OPTIONS=detect_leaks=0
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
bg=$(pixel 5 5)
[ "$bg" = "srgb(137,137,137)" ] || fail "background is $bg, not grey 137"
# The logo and the text put something other than background into the middle band.
distinct=$(/usr/bin/convert "$workdir/shot.png" -crop 600x140+$((316 + wx))+$((220 + wy)) +repage -unique-colors -format "%w" info:)
[ "$distinct" -gt 3 ] || fail "nothing drawn in the middle of the window ($distinct colours)"

# A termination request reaches the program as a quit event and ends it normally.
kill -TERM "$app"
for _ in $(seq 100); do kill -0 "$app" 2>/dev/null || break; sleep 0.1; done
if kill -0 "$app" 2>/dev/null; then fail "program still running after its window was closed"; fi
wait "$app"
code=$?
[ "$code" -eq 0 ] || { cat "$workdir/out.log"; fail "exit code $code"; }
[ -n "${MOSSWICK_SHOT:-}" ] && cp "$workdir/shot.png" "$MOSSWICK_SHOT"
echo "smoke test passed"
