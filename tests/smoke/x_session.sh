# Sourced by the smoke tests: a scratch folder removed at the end, fail(), and
# start_x FIRST SCREEN, which starts a private X server on the first free
# display number from FIRST on and exports the environment the program needs.
workdir=$(mktemp -d)
pids=()
cleanup() {
    for p in "${pids[@]}"; do kill "$p" 2>/dev/null; done
    pkill -f "zenity.*$workdir" 2>/dev/null
    wait 2>/dev/null
    rm -rf "$workdir"
}
trap cleanup EXIT
fail() { echo "FAIL: $*"; [ -f "$workdir/out.log" ] && cat "$workdir/out.log"; exit 1; }

start_x() {
    local display="" n
    # A free display number: no socket and no lock file for it yet.
    for n in $(seq "$1" $(($1 + 49))); do
        if [ ! -e "/tmp/.X11-unix/X$n" ] && [ ! -e "/tmp/.X$n-lock" ]; then display=":$n"; break; fi
    done
    [ -n "$display" ] || fail "no free X display number"
    Xvfb "$display" -screen 0 "$2" -nolisten tcp >"$workdir/xvfb.log" 2>&1 &
    pids+=($!)
    for _ in $(seq 50); do [ -e "/tmp/.X11-unix/X${display#:}" ] && break; sleep 0.1; done
    # Under X the renderer runs on Mesa, whose JIT code and driver are unloaded
    # at exit, so its leftovers cannot be told apart by stack. Leaks of our own
    # code are checked by every headless test instead.
    export DISPLAY=$display NO_AT_BRIDGE=1 DBUS_SESSION_BUS_ADDRESS=disabled: ASAN_OPTIONS=detect_leaks=0
}
