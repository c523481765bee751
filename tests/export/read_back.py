"""Reads the sample icons, cursors and bitmaps with icotool and ImageMagick and compares with what they hold.

Checked: size, depth, hot spot, every pixel and its transparency. Rows of 1-bit pictures 64 pixels wide are ten bytes
long where readers expect eight; there the readers see other pixels, and these are worked out here and compared too.
"""

import argparse
import pathlib
import shutil
import subprocess
import sys

SIZES = (16, 32, 48, 64)
BITS = {"2": 1, "16": 4, "256": 8, "true": 24}  # by the name of the colour class
PALETTE_ENTRIES = {1: 2, 4: 16, 8: 256, 24: 0}
BLACK, WHITE = (0, 0, 0), (255, 255, 255)
LONG_ROW_SIZE = 64  # the size whose 1-bit rows are too long
SIZE_REMARK = "length and filesize do not match"  # ImageMagick on a bitmap whose size field is wrong

problems = []


def check(what, expected, found):
    if expected != found:
        problems.append(f"{what}: expected {expected}, found {found}")


def run(*command):
    """The program's output, and its messages on the error output."""
    done = subprocess.run([str(part) for part in command], capture_output=True, check=False)
    remark = done.stderr.decode(errors="replace").strip()
    if done.returncode != 0 and SIZE_REMARK not in remark:
        problems.append(f"{' '.join(map(str, command))} ended with {done.returncode}: {remark}")
    return done.stdout, remark


def read_pnm(path, channels):
    """The pixels of a binary PGM or PPM, row by row from the top, each a tuple of its channels."""
    head, pixels = path.read_bytes().split(b" 255\n", 1)
    _, width, height = head.split()
    assert len(pixels) == int(width) * int(height) * channels, path
    return [tuple(pixels[at : at + channels]) for at in range(0, len(pixels), channels)]


def rows_of_ten_bytes(flags):
    """The bits of a 64-pixel picture, bottom row first, 16 zero bits after each row."""
    bits = []
    for y in reversed(range(LONG_ROW_SIZE)):
        bits += flags[y * LONG_ROW_SIZE : (y + 1) * LONG_ROW_SIZE] + [False] * 16
    return bits


def seen_in_rows_of_eight(bits, first_byte):
    """The picture that a reader gets from that byte on if it expects eight bytes per row."""
    rows = [bits[first_byte * 8 + row * 64 : first_byte * 8 + row * 64 + 64] for row in range(LONG_ROW_SIZE)]
    return [bit for row in reversed(rows) for bit in row]


def as_colors(flags):
    return [WHITE if flag else BLACK for flag in flags]


def shown_by_palette(colors, size):
    """The colours that an 8-bit bitmap shows: black as its first entry, white as its last, the rest if in entries 1 to 254.

    The entries are the colours in the order of their occurrence; one that is not among those 254 shows as the pixel
    before it in the file, which starts at the bottom.
    """
    entries = list(dict.fromkeys(colors))[:256]
    entries += [BLACK] * (256 - len(entries))
    usable = set(entries[1:255])
    shown = [BLACK] * len(colors)
    previous = entries[0]
    for y in reversed(range(size)):
        for index in range(y * size, (y + 1) * size):
            if colors[index] == BLACK:
                previous = entries[0]
            elif colors[index] == WHITE:
                previous = entries[255]
            elif colors[index] in usable:
                previous = colors[index]
            shown[index] = previous
    return shown


class Sample:
    """One icon at one size: its files, and the pictures that a reader should get from them."""

    def __init__(self, stem, size, bits, bitmap_bits, hot_spot):
        """`stem` is the path of its files without an ending; the depths are those of icon and bitmap."""
        self.stem, self.size, self.bits, self.bitmap_bits, self.hot_spot = stem, size, bits, bitmap_bits, hot_spot
        self.image = read_pnm(self.path(".ppm"), 3)
        self.transparent = [value == 255 for (value,) in read_pnm(self.path(".pgm"), 1)]
        composed = self.path("-composed.ppm")
        self.composed = read_pnm(composed, 3) if composed.exists() else self.image
        self.seen_image, self.seen_transparent = self.image, self.transparent
        self.seen_bitmap = shown_by_palette(self.composed, size) if bitmap_bits == 8 else self.composed
        if size == LONG_ROW_SIZE:
            self.see_long_rows()

    def see_long_rows(self):
        mask = rows_of_ten_bytes(self.transparent)
        self.seen_transparent = seen_in_rows_of_eight(mask, 0)
        if self.bits == 1:
            image = rows_of_ten_bytes([color == WHITE for color in self.image])
            self.seen_image = as_colors(seen_in_rows_of_eight(image + mask, 0))
            # Readers expect the mask after 512 bytes of image.
            self.seen_transparent = seen_in_rows_of_eight(image + mask, self.size * 8)
        if self.bitmap_bits == 1:
            rows = rows_of_ten_bytes([color == WHITE for color in self.composed])
            self.seen_bitmap = as_colors(seen_in_rows_of_eight(rows, 0))

    def path(self, extension):
        return self.stem.with_name(self.stem.name + extension)


def check_pixels(what, rgba, sample):
    """Compares the bytes of red, green, blue, alpha with the icon. A transparent pixel's colour does not show."""
    pixels = [tuple(rgba[at : at + 4]) for at in range(0, len(rgba), 4)]
    check(f"{what}: pixels", sample.size**2, len(pixels))
    for number, (pixel, color, transparent) in enumerate(zip(pixels, sample.seen_image, sample.seen_transparent)):
        expected = "transparent" if transparent else color + (255,)
        found = "transparent" if pixel[3] == 0 else pixel
        if expected != found:
            check(f"{what}: pixel {number % sample.size}, {number // sample.size}", expected, found)
            return


def check_icon_or_cursor(sample, extension, tools):
    path = sample.path(extension)
    listed, remark = run(tools.icotool, "-l", path)
    line = (
        f"--{'icon' if extension == '.ico' else 'cursor'} --index=1 --width={sample.size} --height={sample.size} "
        f"--bit-depth={sample.bits} --palette-size={PALETTE_ENTRIES[sample.bits]}"
    )
    if extension == ".cur":
        line += f" --hotspot-x={sample.hot_spot[0]} --hotspot-y={sample.hot_spot[1]}"
    check(f"icotool -l {path.name}", (line, ""), (listed.decode().strip(), remark))

    taken_out = path.with_name(path.name + ".png")
    _, remark = run(tools.icotool, "-x", "-o", taken_out, path)
    check(f"icotool -x {path.name}: remark", "", remark)
    rgba, _ = run(tools.convert, taken_out, "-depth", "8", "rgba:-")
    check_pixels(f"icotool -x {path.name}", rgba, sample)

    check_identified(path, extension[1:].upper(), sample.size, sample.bits, tools)
    rgba, remark = run(tools.convert, path, "-depth", "8", "rgba:-")
    check(f"convert {path.name}: remark", "", remark)
    check_pixels(f"convert {path.name}", rgba, sample)


def check_identified(path, kind, size, bits, tools):
    described, _ = run(tools.identify, "-format", "%m %w %h %z", path)
    depth = min(bits, 8)  # of one channel
    check(f"identify {path.name}", f"{kind} {size} {size} {depth}", described.decode())


def check_sample(sample, tools):
    """Checks all three files of an icon; returns their number."""
    for extension in (".ico", ".cur"):
        check_icon_or_cursor(sample, extension, tools)
    check_identified(sample.path(".bmp"), "BMP3", sample.size, sample.bitmap_bits, tools)
    check_bitmap(sample.path(".bmp"), sample.seen_bitmap, sample.size != LONG_ROW_SIZE, tools)
    return 3


def check_bitmap(path, expected, size_field_right, tools):
    rgb, remark = run(tools.convert, path, "-depth", "8", "rgb:-")
    check(f"convert {path.name}: size field right", size_field_right, SIZE_REMARK not in remark)
    if size_field_right:
        check(f"convert {path.name}: remark", "", remark)
    check(f"convert {path.name}: bytes", len(expected) * 3, len(rgb))
    for number, color in enumerate(expected):
        found = tuple(rgb[number * 3 : number * 3 + 3])
        if found != color:
            check(f"convert {path.name}: pixel number {number} from the top left", color, found)
            return


def argument_parser(description, folder_help):
    parser = argparse.ArgumentParser(description=description)
    parser.add_argument("--folder", required=True, type=pathlib.Path, help=folder_help)
    for tool in ("icotool", "convert", "identify"):
        parser.add_argument(f"--{tool}", default=tool)
    return parser


def report(files):
    """Prints the result; returns the exit code."""
    for problem in problems:
        print(problem)
    print(f"{files} files read back, {len(problems)} problems")
    return 1 if problems else 0


def main():
    parser = argument_parser(__doc__, "where the samples go; emptied first")
    parser.add_argument("--write-samples", required=True, help="the program that writes the samples")
    tools = parser.parse_args()
    shutil.rmtree(tools.folder, ignore_errors=True)
    tools.folder.mkdir(parents=True)
    subprocess.run([tools.write_samples, tools.folder], check=True)
    files = 0
    for size in SIZES:
        for name, bits in BITS.items():
            sample = Sample(tools.folder / f"{size}-{name}", size, bits, bits, (size // 2 - 1, size // 4))
            files += check_sample(sample, tools)
            check_bitmap(sample.path("-encoder.bmp"), sample.image, True, tools)
            files += 1
    return report(files)


if __name__ == "__main__":
    sys.exit(main())
