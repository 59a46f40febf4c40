#!/usr/bin/env python3
"""Draws Umbrakit's icon: a lit terrain patch grid with a shadow, 32 by 32 pixels in the
16 colours of the standard Windows palette, written as a 766-byte .ico file. The same picture,
scaled, goes beside it as umbrakit-32.png, umbrakit-48.png and umbrakit-256.png for the
desktop's menus: usage: make-icon.py <folder>/umbrakit.ico"""
import os
import struct
import sys
import zlib

PALETTE = [  # the 16 standard colours, as (r, g, b)
    (0, 0, 0), (128, 0, 0), (0, 128, 0), (128, 128, 0), (0, 0, 128), (128, 0, 128),
    (0, 128, 128), (192, 192, 192), (128, 128, 128), (255, 0, 0), (0, 255, 0),
    (255, 255, 0), (0, 0, 255), (255, 0, 255), (0, 255, 255), (255, 255, 255),
]
BLACK, DARK_GREEN, GREY, DARK_GREY, GREEN, YELLOW, WHITE = 0, 2, 7, 8, 10, 11, 15


def pixel(x, y):
    """Colour index at (x, y), y counted from the top."""
    if (x - 8) ** 2 + (y - 8) ** 2 <= 30:  # the sun
        return YELLOW
    if y < 12:
        return WHITE if x > 14 else GREY
    in_grid = 4 <= x <= 29 and 14 <= y <= 29
    if not in_grid:
        return GREY
    if x in (4, 29) or y in (14, 29) or (x - 4) % 5 == 0 or (y - 14) % 5 == 4:
        return BLACK  # grid lines
    shadow = x - 10 > 29 - y  # the lower right half lies in shadow
    return DARK_GREEN if shadow else GREEN


def icon_bytes():
    width = height = 32
    xor = bytearray()
    for y in reversed(range(height)):  # bottom-up rows
        for x in range(0, width, 2):
            xor.append(pixel(x, y) << 4 | pixel(x + 1, y))
    mask = bytes(4 * height)  # every pixel opaque
    palette = b"".join(struct.pack("<BBBB", b, g, r, 0) for r, g, b in PALETTE)
    header = struct.pack("<IiiHHIIiiII", 40, width, 2 * height, 1, 4, 0, len(xor) + len(mask),
                         0, 0, 16, 0)
    image = header + palette + bytes(xor) + mask
    directory = struct.pack("<HHH", 0, 1, 1) + struct.pack(
        "<BBBBHHII", width, height, 16, 0, 1, 4, len(image), 22)
    return directory + image


PNG_SIZES = (32, 48, 256)


def scaled_rgb(size):
    """The picture at size by size pixels: each pixel the mean colour of the area it covers.
    Six by six samples a pixel make that exact for 32, 48 and 256, and keep the 8 times
    enlargement as sharp as the original."""
    samples = 6
    step = 32 / size
    rows = []
    for y in range(size):
        row = bytearray()
        for x in range(size):
            total = [0, 0, 0]
            for sy in range(samples):
                for sx in range(samples):
                    colour = PALETTE[pixel(int((x + (sx + 0.5) / samples) * step),
                                           int((y + (sy + 0.5) / samples) * step))]
                    for i in range(3):
                        total[i] += colour[i]
            row += bytes(round(t / samples ** 2) for t in total)
        rows.append(bytes(row))
    return rows


def png_bytes(size):
    def chunk(kind, data):
        return (struct.pack(">I", len(data)) + kind + data +
                struct.pack(">I", zlib.crc32(kind + data) & 0xFFFFFFFF))
    header = struct.pack(">IIBBBBB", size, size, 8, 2, 0, 0, 0)  # 8-bit RGB, opaque
    raw = b"".join(b"\0" + row for row in scaled_rgb(size))  # filter type 0 on every row
    return (b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", header) + chunk(b"IDAT", zlib.compress(raw, 9)) +
            chunk(b"IEND", b""))


if __name__ == "__main__":
    data = icon_bytes()
    assert len(data) == 766, len(data)
    with open(sys.argv[1], "wb") as out:
        out.write(data)
    folder = os.path.dirname(os.path.abspath(sys.argv[1]))
    for size in PNG_SIZES:
        with open(os.path.join(folder, f"umbrakit-{size}.png"), "wb") as out:
            out.write(png_bytes(size))
