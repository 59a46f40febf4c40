#!/usr/bin/env python3
"""Draws Umbrakit's icon: a lit terrain patch grid with a shadow, 32 by 32 pixels in the
16 colours of the standard Windows palette, written as a 766-byte .ico file."""
import struct
import sys

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


if __name__ == "__main__":
    data = icon_bytes()
    assert len(data) == 766, len(data)
    with open(sys.argv[1], "wb") as out:
        out.write(data)
