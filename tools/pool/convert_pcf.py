#!/usr/bin/env python3
"""Turn one X11 PCF bitmap font into a C++ glyph table for make_pool.

Usage: convert_pcf.py FONT.pcf.gz NAME > font_NAME.inc

Writes the printable ASCII glyphs (codes 32 to 126), each as a full cell of
the font's width and height (ascent + descent), one string per pixel row:
'#' for ink, '.' for background. Run once; the table is committed so that
the generator does not need the font files.
"""
import gzip
import struct
import sys

PCF_PROPERTIES = 1 << 0
PCF_ACCELERATORS = 1 << 1
PCF_METRICS = 1 << 2
PCF_BITMAPS = 1 << 3
PCF_BDF_ENCODINGS = 1 << 5
PCF_BDF_ACCELERATORS = 1 << 8

PCF_COMPRESSED_METRICS = 0x100


class Table:
    def __init__(self, data, offset):
        self.data = data
        self.pos = offset
        (self.format,) = struct.unpack_from('<I', data, offset)
        self.pos += 4
        self.big = bool(self.format & (1 << 2))

    def read(self, fmt):
        fmt = ('>' if self.big else '<') + fmt
        values = struct.unpack_from(fmt, self.data, self.pos)
        self.pos += struct.calcsize(fmt)
        return values if len(values) > 1 else values[0]


def load(path):
    opener = gzip.open if path.endswith('.gz') else open
    with opener(path, 'rb') as f:
        data = f.read()
    if data[:4] != b'\x01fcp':
        sys.exit('not a PCF file: ' + path)
    (count,) = struct.unpack_from('<I', data, 4)
    tables = {}
    for i in range(count):
        kind, fmt, size, offset = struct.unpack_from('<IIII', data, 8 + 16 * i)
        tables[kind] = offset
    return data, tables


def metrics(data, offset):
    t = Table(data, offset)
    result = []
    if t.format & PCF_COMPRESSED_METRICS:
        n = t.read('H')
        for _ in range(n):
            lsb, rsb, width, ascent, descent = (v - 0x80 for v in t.read('5B'))
            result.append((lsb, rsb, width, ascent, descent))
    else:
        n = t.read('I')
        for _ in range(n):
            lsb, rsb, width, ascent, descent, _attr = t.read('5hH')
            result.append((lsb, rsb, width, ascent, descent))
    return result


def bitmaps(data, offset):
    t = Table(data, offset)
    n = t.read('I')
    offsets = [t.read('I') for _ in range(n)]
    sizes = [t.read('I') for _ in range(4)]
    pad = 1 << (t.format & 3)
    msbit = bool(t.format & (1 << 3))
    if t.big != msbit and ((t.format >> 4) & 3) != 0:
        sys.exit('unsupported bit/byte order combination')
    base = t.pos
    return data[base:base + sizes[t.format & 3]], offsets, pad, msbit


def encodings(data, offset):
    t = Table(data, offset)
    min2, max2, min1, max1, _default = t.read('5h')
    count = (max2 - min2 + 1) * (max1 - min1 + 1)
    table = [t.read('H') for _ in range(count)]
    if min1 != 0 or max1 != 0:
        # Two-byte fonts: only the first row (codes below 256) is needed.
        table = table[:max2 - min2 + 1]
    return {min2 + i: g for i, g in enumerate(table) if g != 0xFFFF}


def accelerators(data, offset):
    t = Table(data, offset)
    t.pos += 8
    ascent, descent = t.read('ii')
    return ascent, descent


def main():
    path, name = sys.argv[1], sys.argv[2]
    data, tables = load(path)
    glyph_metrics = metrics(data, tables[PCF_METRICS])
    bits, offsets, pad, msbit = bitmaps(data, tables[PCF_BITMAPS])
    index = encodings(data, tables[PCF_BDF_ENCODINGS])
    accel = tables.get(PCF_BDF_ACCELERATORS, tables.get(PCF_ACCELERATORS))
    ascent, descent = accelerators(data, accel)
    height = ascent + descent
    width = glyph_metrics[index[ord('M')]][2]

    print('// Glyphs of the public-domain X11 "misc-fixed" font %s' % path.split('/')[-1])
    print('// (see FONT-LICENSE), converted by convert_pcf.py: printable ASCII 32..126,')
    print('// each glyph a %d x %d cell, ascent %d, one string per pixel row.' % (width, height, ascent))
    print('constexpr int %s_width = %d;' % (name, width))
    print('constexpr int %s_height = %d;' % (name, height))
    print('constexpr int %s_ascent = %d;' % (name, ascent))
    print('constexpr const char* %s_glyphs[95][%d] = {' % (name, height))
    for code in range(32, 127):
        cell = [['.'] * width for _ in range(height)]
        g = index[code]
        lsb, rsb, advance, g_ascent, g_descent = glyph_metrics[g]
        if advance != width:
            sys.exit('font is not fixed width')
        stride = ((rsb - lsb + 7) // 8 + pad - 1) // pad * pad
        for row in range(g_ascent + g_descent):
            y = ascent - g_ascent + row
            for col in range(rsb - lsb):
                byte = bits[offsets[g] + row * stride + col // 8]
                bit = (byte >> (7 - col % 8)) & 1 if msbit else (byte >> (col % 8)) & 1
                x = lsb + col
                if bit and 0 <= x < width and 0 <= y < height:
                    cell[y][x] = '#'
        label = repr(chr(code)) if code != 39 else '"\'"'
        print('    { // %d %s' % (code, label))
        for line in cell:
            print('        "%s",' % ''.join(line))
        print('    },')
    print('};')


if __name__ == '__main__':
    main()
