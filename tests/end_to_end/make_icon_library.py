#!/usr/bin/env python3
"""Writes COUNT icons and the resource script that holds them: make_icon_library.py COUNT FOLDER

Each icon is 32 by 32 pixels at 4 bits, in a colour of its own cycle, with a transparent border of 4 pixels, so that
neighbours in the grid can be distinguished and drawing them depends on what lies below.
"""
import pathlib
import struct
import sys

SIZE = 32
BORDER = 4
PALETTE = [  # blue, green, red, 0
    (0, 0, 0, 0), (0, 0, 128, 0), (0, 128, 0, 0), (0, 128, 128, 0), (128, 0, 0, 0), (128, 0, 128, 0),
    (128, 128, 0, 0), (192, 192, 192, 0), (128, 128, 128, 0), (0, 0, 255, 0), (0, 255, 0, 0), (0, 255, 255, 0),
    (255, 0, 0, 0), (255, 0, 255, 0), (255, 255, 0, 0), (255, 255, 255, 0)]


def rows(number):
    """Colour indexes of an icon, top row first: a field in one colour, crossed by a bar in another."""
    field, bar = 1 + number % 14, 1 + number // 14 % 14
    inside = range(BORDER, SIZE - BORDER)
    for y in range(SIZE):
        yield [(bar if y // 4 == 2 + number % 4 else field) if x in inside and y in inside else 0 for x in range(SIZE)]


def icon(number):
    picture = list(rows(number))
    colours = b''.join(bytes(row[x] << 4 | row[x + 1] for x in range(0, SIZE, 2)) for row in reversed(picture))
    mask = b''.join(struct.pack('>I', sum((index == 0) << (31 - x) for x, index in enumerate(row)))
                    for row in reversed(picture))
    header = struct.pack('<IiiHHIIiiII', 40, SIZE, 2 * SIZE, 1, 4, 0, 0, 0, 0, 0, 0)
    image = header + b''.join(bytes(entry) for entry in PALETTE) + colours + mask
    return struct.pack('<HHHBBBBHHII', 0, 1, 1, SIZE, SIZE, 16, 0, 1, 4, len(image), 22) + image


def main():
    count, folder = int(sys.argv[1]), pathlib.Path(sys.argv[2])
    folder.mkdir(parents=True, exist_ok=True)
    script = []
    for number in range(count):
        (folder / f'{number}.ico').write_bytes(icon(number))
        script.append(f'{number + 1} ICON "{number}.ico"\n')
    (folder / 'icons.rc').write_text(''.join(script))


main()
