#!/usr/bin/env python3
"""Reads files of the JPEG and GIF encoders with independent programs.

    read_back.py WRITE_SAMPLES DECODE_WITH_STB FOLDER

WRITE_SAMPLES fills FOLDER with pictures (NAME.ppm) and samples of them (NAME,WHAT.jpg and NAME,WHAT.gif).
DECODE_WITH_STB decodes JPEG files with a decoder of its own. The others are djpeg and rdjpgcom of libjpeg, giftext
and gifbuild of giflib, and ImageMagick.
"""

import glob
import os
import re
import shutil
import subprocess
import sys
import unittest

SIZES = (16, 32, 48, 64)
PICTURES = [kind + str(size) for size in SIZES for kind in ("gradient", "noise", "photo")]
SUB_SAMPLINGS = ("1,1", "1,2", "2,1", "2,2", "1,3", "3,1", "2,3", "3,2",
                 "3,3", "1,4", "4,1", "2,4", "4,2", "3,4", "4,3", "4,4")
QUALITIES = (1, 20, 40, 60, 80, 100)
COMMENT = "Brindle 图标 圖示"
COLOR_COUNTS = (1, 2, 255, 256, 257, 4096)


def output_of(*command):
    """The output of a program, whose exit code must be 0."""
    result = subprocess.run(command, stdout=subprocess.PIPE, stderr=subprocess.PIPE, check=False)
    if result.returncode != 0:
        raise AssertionError(f"{' '.join(command)} ended with {result.returncode}: {result.stderr.decode()}")
    return result.stdout


def samples_of_ppm(data):
    """Width, height and the bytes of a PPM or PGM picture, three per pixel."""
    header = re.match(rb"P([56])\s+(\d+)\s+(\d+)\s+255\s", data)
    samples = data[header.end():]
    if header[1] == b"5":
        samples = bytes(sample for sample in samples for _ in range(3))
    return int(header[2]), int(header[3]), samples


def picture(name):
    with open(os.path.join(FOLDER, name + ".ppm"), "rb") as file:
        return samples_of_ppm(file.read())


def sample(name):
    return os.path.join(FOLDER, name)


def by_imagemagick(path):
    """The picture's colours, including those of transparent pixels."""
    return samples_of_ppm(output_of("convert", path, "-alpha", "off", "-depth", "8", "ppm:-"))


def mean_error(one, other):
    return sum(abs(a - b) for a, b in zip(one, other, strict=True)) / len(one)


def mean_squared_error(one, other):
    return sum((a - b) ** 2 for a, b in zip(one, other, strict=True)) / len(one)


def light(samples):
    """The luminance of each pixel, which sub-sampling of the chroma does not change."""
    return [0.299 * samples[i] + 0.587 * samples[i + 1] + 0.114 * samples[i + 2] for i in range(0, len(samples), 3)]


def pixels(samples):
    return [samples[i:i + 3] for i in range(0, len(samples), 3)]


class JpegFiles(unittest.TestCase):
    """Checks the JPEG files with other programs."""

    def identify(self, names, what):
        return output_of("identify", "-format", what + "\n", *map(sample, names)).decode().splitlines()

    def test_identify_finds_size_factors_and_components(self):
        what = "%m %w %h %[jpeg:sampling-factor] %[colorspace]"
        for name in PICTURES:
            with self.subTest(name=name):
                size = re.sub(r"\D", "", name)
                found = self.identify([f"{name},sampling,{factors}.jpg" for factors in SUB_SAMPLINGS], what)
                self.assertEqual(found, [f"JPEG {size} {size} {factors.replace(',', 'x')},1x1,1x1 sRGB"
                                         for factors in SUB_SAMPLINGS])
                self.assertEqual(self.identify([f"{name},grey.jpg"], what), [f"JPEG {size} {size} 1x1 Gray"])

    def test_identify_finds_the_quality_and_the_comment(self):
        found = self.identify([f"photo32,quality,{quality}.jpg" for quality in QUALITIES], "%Q %c")
        self.assertEqual(found, [f"{quality} {COMMENT}" for quality in QUALITIES])

    def test_rdjpgcom_finds_the_comment(self):
        found = output_of("rdjpgcom", "-raw", sample("photo48,quality,60.jpg")).decode()
        self.assertEqual(found.rstrip("\n"), COMMENT)
        self.assertEqual(output_of("rdjpgcom", "-raw", sample("photo48,grey.jpg")), b"")

    def test_djpeg_finds_a_baseline_frame_without_complaint(self):
        for factors in SUB_SAMPLINGS:
            with self.subTest(factors=factors):
                result = subprocess.run(["djpeg", "-verbose", sample(f"noise16,sampling,{factors}.jpg")],
                                        stdout=subprocess.DEVNULL, stderr=subprocess.PIPE, check=True, text=True)
                self.assertIn("Start Of Frame 0xc0: width=16, height=16, components=3", result.stderr)
                self.assertIn(f"Component 1: {factors.replace(',', 'hx')}v", result.stderr)
                self.assertNotIn("Premature", result.stderr)
                self.assertNotIn("Corrupt", result.stderr)

    def test_two_decoders_see_the_same_picture_in_every_sampling(self):
        output_of(DECODE_WITH_STB, *(sample(f"{name},sampling,{factors}.jpg")
                                     for name in PICTURES for factors in SUB_SAMPLINGS))
        for name in PICTURES:
            width, height, original = picture(name)
            for factors in SUB_SAMPLINGS:
                with self.subTest(name=name, factors=factors):
                    path = sample(f"{name},sampling,{factors}.jpg")
                    by_djpeg = samples_of_ppm(output_of("djpeg", "-pnm", path))
                    with open(path + ".stb.ppm", "rb") as file:
                        by_stb = samples_of_ppm(file.read())
                    for decoded in (by_djpeg, by_stb):
                        self.assertEqual(decoded[:2], (width, height))
                        # At quality 100 only rounding changes the luminance ...
                        self.assertLessEqual(mean_error(light(original), light(decoded[2])), 1.0)
                        # ... and the colours if they are not sub-sampled.
                        if factors == "1,1":
                            self.assertLessEqual(mean_error(original, decoded[2]), 0.75)
                    # If one direction is doubled, each decoder smooths in its own way.
                    smoothed = factors in ("1,2", "2,1", "2,2")
                    self.assertLessEqual(mean_error(by_djpeg[2], by_stb[2]), 2.5 if smoothed else 0.25)

    def test_greys_keep_the_luminance(self):
        for name in PICTURES:
            with self.subTest(name=name):
                original = picture(name)[2]
                grey = samples_of_ppm(output_of("djpeg", "-pnm", sample(f"{name},grey.jpg")))[2]
                self.assertLessEqual(mean_error(light(original), light(grey)), 0.75)


class GifFiles(unittest.TestCase):
    """Checks the GIF files with other programs."""

    def check_each(self, check):
        """Runs check(path, start, name) for each sample; start is the name of its picture."""
        for path in sorted(glob.glob(os.path.join(glob.escape(FOLDER), "*.gif"))):
            name = os.path.basename(path)
            with self.subTest(name=name):
                check(path, name.split(",")[0], name)

    def test_there_is_a_sample_of_each_picture_and_each_choice(self):
        found = glob.glob(os.path.join(glob.escape(FOLDER), "*.gif"))
        self.assertEqual(len(found), 4 * (len(PICTURES) + len(COLOR_COUNTS)))

    def test_identify_finds_one_image_of_the_size(self):
        def check(path, start, _):
            width, height, _ = picture(start)
            self.assertEqual(output_of("identify", "-format", "%m %w %h;", path).decode(), f"GIF {width} {height};")
        self.check_each(check)

    def test_giftext_finds_a_whole_file_and_its_transparency(self):
        def check(path, _, name):
            found = output_of("giftext", path).decode(errors="replace")
            self.assertIn("GIF file terminated normally.", found)
            self.assertEqual("Transparency on: yes" in found, "transparent" in name)
        self.check_each(check)

    def test_the_transparent_pixels_are_those_of_the_corners_colour(self):
        def check(path, start, name):
            original = pixels(picture(start)[2])
            opacity = pixels(samples_of_ppm(output_of("convert", path, "-alpha", "extract", "-depth", "8", "ppm:-"))[2])
            for color, opaque in zip(original, opacity, strict=True):
                see_through = "transparent" in name and color == original[0]
                self.assertEqual(opaque[0], 0 if see_through else 255)
        self.check_each(check)

    def test_up_to_256_colours_come_back_exactly(self):
        exact = []

        def check(path, start, name):
            original = picture(start)
            if "best" in name and len(set(pixels(original[2]))) <= 256:
                self.assertEqual(by_imagemagick(path), original)
                exact.append(name)
        self.check_each(check)
        # Pictures at 16 pixels have no more than 256 of them; and those of 1, 2, 255 and 256 colours.
        self.assertEqual(len(exact), 2 * (3 + 4))

    def test_the_web_palette_is_in_the_file(self):
        levels = range(0, 256, 51)
        expected = [(r, g, b) for r in levels for g in levels for b in levels]

        def check(path, _, name):
            if "web" not in name:
                return
            found = output_of("gifbuild", "-d", path).decode(errors="replace")
            colors = [tuple(int(part) for part in row) for row in re.findall(r"rgb (\d+) (\d+) (\d+)", found)]
            self.assertEqual(colors[:216], expected)
            self.assertEqual(re.findall(r"transparent index (\d+)", found), ["216"] if "transparent" in name else [])
        self.check_each(check)

    def test_web_files_hold_the_nearest_web_colours(self):
        def check(path, start, name):
            if "web" in name:
                nearest = bytes((sample + 25) // 51 * 51 for sample in picture(start)[2])
                self.assertEqual(by_imagemagick(path)[2], nearest)
        self.check_each(check)

    def test_the_error_is_no_larger_than_imagemagicks(self):
        def check(path, start, name):
            if "best" not in name:
                return
            original = picture(start)[2]
            theirs = path + ".imagemagick.gif"
            output_of("convert", sample(start + ".ppm"), "+dither", theirs)
            our_error = mean_squared_error(original, by_imagemagick(path)[2])
            their_error = mean_squared_error(original, by_imagemagick(theirs)[2])
            os.remove(theirs)
            print(f"{name}: squared error {our_error:.3f}, of ImageMagick {their_error:.3f}")
            self.assertLessEqual(our_error, their_error)
        self.check_each(check)


if __name__ == "__main__":
    WRITE_SAMPLES, DECODE_WITH_STB, FOLDER = sys.argv[1:]
    shutil.rmtree(FOLDER, ignore_errors=True)
    os.makedirs(FOLDER)
    output_of(WRITE_SAMPLES, FOLDER)
    unittest.main(argv=sys.argv[:1], verbosity=2)
