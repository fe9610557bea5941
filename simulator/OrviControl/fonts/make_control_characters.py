#!/usr/bin/env python3
"""Makes control-characters.ttf, a TrueType font in which every control character is empty and has no width.

The chart's texts hold fill characters (U+0002) that common fonts draw as boxes. The control kit loads this font as the
fallback of its own, so that only what can be read is seen. The same bytes come out on every machine.

Usage: make_control_characters.py FILE           writes the font
       make_control_characters.py --check FILE   compares the font with what would be written
"""

import struct
import sys

FAMILY = "OrviControl Control Characters"
UNITS_PER_EM = 1000

# C0 and C1 without the characters from tab to carriage return, which lay out a text.
RANGES = [(0x01, 0x08), (0x0E, 0x1F), (0x7F, 0x9F)]

# The only glyph beside ".notdef".
EMPTY_GLYPH = 1
GLYPHS = 2


def cmap():
    """Format 4: a segment for each range; all look their glyphs up in one array, which leads to the one glyph."""
    segments = RANGES + [(0xFFFF, 0xFFFF)]
    count = len(segments)
    power = 1 << (count.bit_length() - 1)
    longest = max(last - first + 1 for first, last in RANGES)
    # From the place of each offset to the array behind the last of them; the segment at the end has none.
    offsets = [2 * (count - i) for i in range(len(RANGES))] + [0]
    deltas = [0] * len(RANGES) + [1]
    body = struct.pack(">4H", 2 * count, 2 * power, power.bit_length() - 1, 2 * (count - power))
    body += struct.pack(">%dH" % count, *[last for _, last in segments]) + struct.pack(">H", 0)
    body += struct.pack(">%dH" % count, *[first for first, _ in segments])
    body += struct.pack(">%dH" % count, *deltas)
    body += struct.pack(">%dH" % count, *offsets)
    body += struct.pack(">%dH" % longest, *[EMPTY_GLYPH] * longest)
    table = struct.pack(">3H", 4, 6 + len(body), 0) + body
    return struct.pack(">2H", 0, 1) + struct.pack(">2HL", 3, 1, 12) + table


def glyf():
    """One contour of one point, which covers nothing. A glyph without a contour would not do: fontconfig takes a control
    character whose glyph has none for one that the font lacks."""
    return struct.pack(">5h", 1, 0, 0, 0, 0) + struct.pack(">2H", 0, 0) + struct.pack(">B2h", 0x01, 0, 0) + bytes(1)


def name():
    """Family, style, full name and PostScript name, for Windows and therefore for everybody."""
    texts = [(1, FAMILY), (2, "Regular"), (4, FAMILY), (6, FAMILY.replace(" ", ""))]
    records, strings = b"", b""
    for identifier, text in texts:
        data = text.encode("utf-16-be")
        records += struct.pack(">6H", 3, 1, 0x409, identifier, len(data), len(strings))
        strings += data
    return struct.pack(">3H", 0, len(texts), 6 + len(records)) + records + strings


def os2():
    first, last = RANGES[0][0], RANGES[-1][1]
    return (struct.pack(">HhHHH", 1, 0, 400, 5, 0) + struct.pack(">10h", *[0] * 10) + struct.pack(">h", 0)
            + bytes(10) + struct.pack(">4L", 3, 0, 0, 0) + b"NONE" + struct.pack(">3H", 0x40, first, last)
            + struct.pack(">3h", 1, 0, 0) + struct.pack(">2H", 1, 0) + struct.pack(">2L", 1, 0))


def tables():
    """An ascent of one unit: a line of text is never higher because of this font."""
    return {
        b"OS/2": os2(),
        b"cmap": cmap(),
        b"glyf": glyf(),
        b"head": struct.pack(">4L2H2Q4h2H3h", 0x00010000, 0x00010000, 0, 0x5F0F3CF5, 0, UNITS_PER_EM, 0, 0, 0, 0, 0, 0,
                             0, 8, 2, 0, 0),
        b"hhea": struct.pack(">L3hH11hH", 0x00010000, 1, 0, 0, 0, *[0] * 11, GLYPHS),
        b"hmtx": struct.pack(">Hh", 0, 0) * GLYPHS,
        b"loca": struct.pack(">3H", 0, 0, len(glyf()) // 2),
        b"maxp": struct.pack(">L14H", 0x00010000, GLYPHS, 1, 1, 0, 0, 1, *[0] * 8),
        b"name": name(),
        b"post": struct.pack(">2L2h5L", 0x00030000, 0, 0, 0, 0, 0, 0, 0, 0),
    }


def checksum(data):
    padded = data + bytes(-len(data) % 4)
    return sum(struct.unpack(">%dL" % (len(padded) // 4), padded)) & 0xFFFFFFFF


def font():
    content = tables()
    power = 1 << (len(content).bit_length() - 1)
    header = struct.pack(">L4H", 0x00010000, len(content), 16 * power, power.bit_length() - 1,
                         16 * (len(content) - power))
    directory, body = b"", b""
    offset = len(header) + 16 * len(content)
    head_at = 0
    for tag, data in sorted(content.items()):
        directory += tag + struct.pack(">3L", checksum(data), offset + len(body), len(data))
        if tag == b"head":
            head_at = offset + len(body)
        body += data + bytes(-len(data) % 4)
    whole = header + directory + body
    adjustment = (0xB1B0AFBA - checksum(whole)) & 0xFFFFFFFF
    return whole[:head_at + 8] + struct.pack(">L", adjustment) + whole[head_at + 12:]


def main(arguments):
    if len(arguments) == 2 and arguments[0] == "--check":
        with open(arguments[1], "rb") as file:
            if file.read() == font():
                return 0
        print("%s is not what this script writes: run it again" % arguments[1])
        return 1
    if len(arguments) != 1:
        print(__doc__)
        return 2
    with open(arguments[0], "wb") as file:
        file.write(font())
    return 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1:]))
