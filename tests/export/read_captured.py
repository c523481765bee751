"""Reads the files of captured icons with icotool and ImageMagick and compares with the surfaces they were written from.

The folder is the one that the test CapturedFiles.AreLeftForOthers fills. Its captured.txt has a line for each icon:
the name of its files, their size, the depths of icon and bitmap, and the cursor's hot spot. In the same folder are the
surfaces: NAME.ppm the image, NAME.pgm the mask, NAME-composed.ppm the composed icon.
"""

import sys

import read_back


def main():
    tools = read_back.argument_parser(__doc__, "where the files are").parse_args()
    files = 0
    for line in (tools.folder / "captured.txt").read_text().splitlines():
        name, *numbers = line.split()
        size, bits, bitmap_bits, *hot_spot = map(int, numbers)
        sample = read_back.Sample(tools.folder / name, size, bits, bitmap_bits, tuple(hot_spot))
        files += read_back.check_sample(sample, tools)
    read_back.check("files there are", True, files > 0)
    return read_back.report(files)


if __name__ == "__main__":
    sys.exit(main())
