#!/usr/bin/env python3
"""Injects realistic faults into the program one at a time and lists the tests
that catch each, so that folding the test suite can be checked: every fault
caught before must still be caught after.

    python3 tools/inject_faults.py [BUILD_DIR] [N ...]

BUILD_DIR is a configured test build (default build-check, as `tools/dev.sh
test` makes it). Each fault is applied to the working tree, the tests are built
and run (the soak left out: it checks consistency, not results), the fault is
taken back, and one line per fault is printed: its number, what it breaks and
the tests that failed. The tree is restored even when interrupted.
"""
import pathlib
import signal
import subprocess
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent

# (file, text as it stands, faulty text, what a user would see)
FAULTS = [
    ("model/tile/tile.h", "x >= tile_width || y >= tile_height", "x > tile_width || y >= tile_height",
     "pixel access one column past the right edge"),
    ("model/tileset/tileset_file.cpp", "w = std::rotl(w, 8);", "w = std::rotl(w, 16);",
     "channels saved in the wrong order"),
    ("model/tileset/undo_history.cpp", "if (count() > maximum) records.erase", "if (count() > maximum + 1) records.erase",
     "the history keeps one record too many"),
    ("model/tile/tile_store.cpp", "    current = tiles.insert(current, blank_tile());\n    if (list_watcher) list_watcher->tile_inserted(index);",
     "    current = tiles.insert(current, blank_tile());", "the map does not follow an inserted tile"),
    ("model/color/color.cpp", "    v += amount;\n    channel = v.to_byte();", "    v += amount * 0.5;\n    channel = v.to_byte();",
     "the lightness pen steps half as far"),
    ("model/map/seam_check.cpp", "return most > limit;", "return most >= limit;", "seams found one step too early"),
    ("model/map/map_file.cpp", "csv += std::to_string(tile == Tile_Map::empty ? 0 : tile + first_gid);",
     "csv += std::to_string(tile == Tile_Map::empty ? 0 : tile + 1);", "map cells written without the tileset's firstgid"),
    ("app/tile_commands.cpp", "std::unique_ptr<Tile> gone = store.remove_at(place, &uses);",
     "std::unique_ptr<Tile> gone = store.remove_at(place, nullptr);", "deleting a tile forgets its map cells"),
    ("model/selection/mask_ops.cpp", "        for (int x = 0; x < mask.width(); ++x) mask.set_pixel(x, y, mask.is_white(x, y) ? unselected : selected);",
     "        for (int x = 0; x + 1 < mask.width(); ++x) mask.set_pixel(x, y, mask.is_white(x, y) ? unselected : selected);",
     "invert selection misses the last column"),
    ("model/tile/transforms.cpp", "return Point{w - 1 - x, y};", "return Point{w - x, y};", "mirror shifted by one"),
    ("model/color/palette.cpp", "            stream.write_number(c.blue);\n            stream.write_number(c.alpha);",
     "            stream.write_number(c.green);\n            stream.write_number(c.alpha);", "the palette saves green for blue"),
    ("model/core/token_stream.cpp", "while (taken < max_number_chars && read_position < buffer.size()) {",
     "while (taken + 1 < max_number_chars && read_position < buffer.size()) {", "long numbers in data files cut"),
    ("model/brushpad/brush_pad_file.cpp", "        stream.write_number(b.hot_x);\n        stream.write_number(b.hot_y);",
     "        stream.write_number(b.hot_y);\n        stream.write_number(b.hot_x);", "brush hotspots saved swapped"),
    ("model/paint/smudge.cpp", "return uint8_t((c * wc + b * wb + 128) / 256);", "return uint8_t((c * wc + b * wb) / 256);",
     "the smudge mix rounds down"),
    ("model/selection/tile_selection.cpp", "    floating::stamp_wrapped(*copy, *floating, at_x, at_y);\n    return copy;",
     "    return copy;", "save writes a hole where a floating image stands"),
    ("model/tileset/tile_list_undo_node.cpp", "store.insert_at(place, copy_of(*taken), uses.get());",
     "store.insert_at(place, copy_of(*taken), nullptr);", "undoing a deletion loses the tile's map cells"),
    ("model/paint/distance_grid.cpp", "const int nx[4] = {x - 1, x, x + 1, x};", "const int nx[4] = {x - 1, x - 1, x + 1, x};",
     "the fill spreads diagonally and misses a side"),
    ("model/selection/floating.cpp", "    return r < 0 ? r + size : r;", "    return r < 0 ? r + size - 1 : r;",
     "a floating image wraps one pixel short at the left and top"),
    ("ui/range.h", "        if (v < min)\n            value = max;", "        if (v < min)\n            value = min;",
     "stepping below a setting's minimum clamps instead of wrapping"),
    ("model/paint/footprint.cpp", "const int ox = x - (brush->width() - 1) / 2;", "const int ox = x - brush->width() / 2;",
     "even brushes stamp one pixel to the left"),
]


def run(cmd, cwd):
    return subprocess.run(cmd, cwd=cwd, shell=True, capture_output=True, text=True)


def failed_tests(build):
    result = run("ctest -j2 --timeout 180 -E Soak", build)
    names = []
    for line in result.stdout.splitlines():
        line = line.strip()
        if " - " in line and ("(Failed)" in line or "(Timeout)" in line or "(Subprocess" in line or "(SEGFAULT)" in line):
            names.append(line.split(" - ", 1)[1].rsplit(" (", 1)[0])
    return names


def stop(signum, frame):
    # A kill must restore the tree as an interrupt does: the finally below runs.
    raise KeyboardInterrupt


def main():
    signal.signal(signal.SIGTERM, stop)
    signal.signal(signal.SIGHUP, stop)
    args = sys.argv[1:]
    build = ROOT / "build-check"
    if args and not args[0].isdigit():
        build = pathlib.Path(args.pop(0)).resolve()
    chosen = [int(a) for a in args] or range(1, len(FAULTS) + 1)
    for n in chosen:
        path, good, bad, what = FAULTS[n - 1]
        file = ROOT / path
        text = file.read_text()
        if text.count(good) != 1:
            print(f"{n:2}. {what}: the code changed, fault not applied ({path})")
            continue
        try:
            file.write_text(text.replace(good, bad))
            built = run("cmake --build . -j2", build)
            if built.returncode != 0:
                print(f"{n:2}. {what}: does not build")
                continue
            caught = failed_tests(build)
            print(f"{n:2}. {what}: {len(caught)} caught it: {', '.join(caught) if caught else 'NONE'}", flush=True)
        finally:
            file.write_text(text)
    run("cmake --build . -j2", build)


if __name__ == "__main__":
    main()
