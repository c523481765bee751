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
PALETTE_ENTRIES = {"2": 2, "16": 16, "256": 256, "true": 0}
LONG_ROW_SIZE = 64  # the size whose 1-bit rows are too long
SIZE_REMARK = "length and filesize do not match"  # ImageMagick on a bitmap whose size field is wrong

problems = []


def check(what, expected, found):
    if expected != found:
        problems.append(f"{what}: expected {expected}, found {found}")


def run(*command):
    """What the program printed, and what it remarked on the error output."""
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
    """What a reader who expects eight bytes a row sees from that byte on."""
    rows = [bits[first_byte * 8 + row * 64 : first_byte * 8 + row * 64 + 64] for row in range(LONG_ROW_SIZE)]
    return [bit for row in reversed(rows) for bit in row]


def as_colors(flags):
    return [(255, 255, 255) if flag else (0, 0, 0) for flag in flags]


class Sample:
    """One size and colour class: its files, and what a reader should see in them."""

    def __init__(self, folder, size, name):
        self.size = size
        self.name = name
        self.stem = folder / f"{size}-{name}"
        self.image = read_pnm(self.stem.with_suffix(".ppm"), 3)
        self.transparent = [value == 255 for (value,) in read_pnm(self.stem.with_suffix(".pgm"), 1)]
        self.seen_image, self.seen_bitmap, self.seen_transparent = self.image, self.image, self.transparent
        if size == LONG_ROW_SIZE:
            self.see_long_rows()

    def see_long_rows(self):
        mask = rows_of_ten_bytes(self.transparent)
        self.seen_transparent = seen_in_rows_of_eight(mask, 0)
        if self.name != "2":
            return
        image = rows_of_ten_bytes([color == (255, 255, 255) for color in self.image])
        self.seen_image = as_colors(seen_in_rows_of_eight(image + mask, 0))
        self.seen_bitmap = self.seen_image
        self.seen_transparent = seen_in_rows_of_eight(image + mask, self.size * 8)  # the mask follows 512 bytes of image

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
        f"--bit-depth={BITS[sample.name]} --palette-size={PALETTE_ENTRIES[sample.name]}"
    )
    if extension == ".cur":
        line += f" --hotspot-x={sample.size // 2 - 1} --hotspot-y={sample.size // 4}"
    check(f"icotool -l {path.name}", (line, ""), (listed.decode().strip(), remark))

    taken_out = path.with_name(path.name + ".png")
    _, remark = run(tools.icotool, "-x", "-o", taken_out, path)
    check(f"icotool -x {path.name}: remark", "", remark)
    rgba, _ = run(tools.convert, taken_out, "-depth", "8", "rgba:-")
    check_pixels(f"icotool -x {path.name}", rgba, sample)

    check_identified(path, extension[1:].upper(), sample, tools)
    rgba, remark = run(tools.convert, path, "-depth", "8", "rgba:-")
    check(f"convert {path.name}: remark", "", remark)
    check_pixels(f"convert {path.name}", rgba, sample)


def check_identified(path, kind, sample, tools):
    described, _ = run(tools.identify, "-format", "%m %w %h %z", path)
    depth = min(BITS[sample.name], 8)  # of one channel
    check(f"identify {path.name}", f"{kind} {sample.size} {sample.size} {depth}", described.decode())


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


def parse_arguments():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--write-samples", required=True, help="the program that writes the samples")
    parser.add_argument("--folder", required=True, type=pathlib.Path, help="where they go; emptied first")
    for tool in ("icotool", "convert", "identify"):
        parser.add_argument(f"--{tool}", default=tool)
    return parser.parse_args()


def main():
    tools = parse_arguments()
    shutil.rmtree(tools.folder, ignore_errors=True)
    tools.folder.mkdir(parents=True)
    subprocess.run([tools.write_samples, tools.folder], check=True)
    files = 0
    for size in SIZES:
        for name in BITS:
            sample = Sample(tools.folder, size, name)
            for extension in (".ico", ".cur"):
                check_icon_or_cursor(sample, extension, tools)
            check_identified(sample.path(".bmp"), "BMP3", sample, tools)
            check_bitmap(sample.path(".bmp"), sample.seen_bitmap, size != LONG_ROW_SIZE, tools)
            check_bitmap(sample.path("-encoder.bmp"), sample.image, True, tools)
            files += 4
    for problem in problems:
        print(problem)
    print(f"{files} files read back, {len(problems)} problems")
    return 1 if problems else 0


if __name__ == "__main__":
    sys.exit(main())
