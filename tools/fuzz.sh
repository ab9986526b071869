#!/usr/bin/env bash
# Builds the fuzz targets with clang, AddressSanitizer and UndefinedBehaviorSanitizer
# into build-fuzz/ and runs each for the given number of seconds (default 30) on a
# copy of its seed corpus in fuzz/corpus/. Installs nothing: tools/dev.sh does.
#   tools/fuzz.sh [seconds-per-target]
# Fails when any target finds a crash, a leak or a hang; the input that did it is
# kept in build-fuzz/findings/<target>/.
set -euo pipefail

root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
seconds=${1:-30}
case "$seconds" in
    ''|*[!0-9]*) echo "usage: $0 [seconds-per-target]" >&2; exit 2 ;;
esac
jobs=$(nproc 2>/dev/null || echo 2)
build="$root/build-fuzz"
targets=(tileset_file token_stream palette options_dialog pool_image map_file brush_pad png_file layer_data)

sdl_prefix=$(bash "$root/tools/fetch_sdl3.sh" | tail -n 1)
CC=clang CXX=clang++ cmake -S "$root" -B "$build" -DCMAKE_PREFIX_PATH="$sdl_prefix" \
    -DCMAKE_BUILD_TYPE=RelWithDebInfo -DMOSSWICK_FUZZ=ON >/dev/null
cmake --build "$build" -j "$jobs" --target fuzz_all

# New inputs go to a scratch copy, never into the source tree.
work=$(mktemp -d "${TMPDIR:-/tmp}/mosswick_fuzz_run_XXXXXX")
trap 'rm -rf "$work"' EXIT

failed=()
for t in "${targets[@]}"; do
    cp -r "$root/fuzz/corpus/$t" "$work/$t"
    findings="$build/findings/$t"
    mkdir -p "$findings" "$build/logs"
    log="$build/logs/$t.log"
    status=0
    (cd "$build/fuzz" && SDL_VIDEO_DRIVER=dummy UBSAN_OPTIONS=print_stacktrace=1 \
        "./fuzz_$t" "$work/$t" -max_total_time="$seconds" -rss_limit_mb=2048 -timeout=10 \
        -print_final_stats=1 -artifact_prefix="$findings/") >"$log" 2>&1 || status=$?
    runs=$(sed -n "s/^stat::number_of_executed_units: *//p" "$log")
    speed=$(sed -n "s/^stat::average_exec_per_sec: *//p" "$log")
    corpus=$(find "$work/$t" -type f | wc -l)
    if [ "$status" -eq 0 ]; then
        printf '%-15s %10s executions in %s s, %6s exec/s, corpus %s files: ok\n' \
            "$t" "${runs:-?}" "$seconds" "${speed:-?}" "$corpus"
    else
        printf '%-15s FAILED (exit %s) after %s executions; input kept in %s, log %s\n' \
            "$t" "$status" "${runs:-?}" "$findings" "$log"
        grep -E '^(==[0-9]+==ERROR|SUMMARY|.*runtime error)' "$log" | head -n 5 || true
        failed+=("$t")
    fi
done

if [ ${#failed[@]} -gt 0 ]; then
    echo "fuzzing found problems in: ${failed[*]}" >&2
    exit 1
fi
