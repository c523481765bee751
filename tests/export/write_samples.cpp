// Writes one file of each size, colour class and format into a folder, together with its expected content, so that
// other programs' readings can be compared: write_samples FOLDER. For a size and class NAME (such as 16-256):
//   NAME.ico NAME.cur NAME.bmp   the files, the cursor's hot spot at (size / 2 - 1, size / 4)
//   NAME.ppm                     the colours, as binary PPM
//   NAME.pgm                     the mask, as binary PGM: 255 if transparent
// NAME-encoder.bmp is the true-colour bitmap that encoders get, of the same colours.

#include <array>
#include <cstddef>
#include <cstdint>
#include <exception>
#include <fstream>
#include <iostream>
#include <span>
#include <string>

#include "base/FileSink.h"
#include "base/WholeFile.h"
#include "export/ModMicroArtFileIO.h"
#include "support/FileOnDisk.h"
#include "support/TestRaster.h"

namespace tarvik {
namespace {

using ModMicroArt::ColorClass;
using support::FileOnDisk;
using support::TestRaster;
namespace IO = ModMicroArtFileIO;

constexpr std::array<Color, 16> standardColors{0x000000, 0x000080, 0x008000, 0x008080, 0x800000, 0x800080,
                                               0x808000, 0xC0C0C0, 0x808080, 0x0000FF, 0x00FF00, 0x00FFFF,
                                               0xFF0000, 0xFF00FF, 0xFFFF00, 0xFFFFFF};

// Slanted bands in as many colours as the class has. The first pixel is black and the 256-colour picture has no white,
// so that its bitmap shows every colour.
Color ColorAt(ColorClass colors, int x, int y) {
  const int number = (3 * x + 5 * y + x * y / 4) % 240;
  switch (colors) {
    case ColorClass::Two:
      return (x / 3 + y / 2) % 3 == 1 ? white : black;
    case ColorClass::Sixteen:
      return standardColors[static_cast<std::size_t>(x / 2 + 3 * y) % 16];
    case ColorClass::TwoHundredFiftySix:
      return number == 0 ? black : static_cast<Color>(number * 0x10000 + (239 - number) * 0x100 + number * 7 % 256);
    default:
      return static_cast<Color>(4 * x % 256 * 0x10000 + (255 - 3 * y) * 0x100 + (x * y + 17) % 256);
  }
}

// Transparent corners, deliberately asymmetric.
TestRaster MaskOf(int size) {
  return {size, [size](int x, int y) { return x + 2 * y < size || 3 * x + y > 7 * size / 2 ? white : black; }};
}

bool WritePnm(const std::string& path, const TestRaster& raster, bool grey) {
  std::ofstream file(path, std::ios::binary);
  file << (grey ? "P5 " : "P6 ") << raster.Width() << ' ' << raster.Height() << " 255\n";
  for (const Color color : raster.Pixels()) {
    file.put(static_cast<char>(RedOf(color)));
    if (!grey) file.put(static_cast<char>(GreenOf(color))).put(static_cast<char>(BlueOf(color)));
  }
  return file.good();
}

bool WriteSamples(const std::string& stem, int size, ColorClass colors) {
  const TestRaster image(size, [colors](int x, int y) { return ColorAt(colors, x, y); });
  const TestRaster mask = MaskOf(size);
  FileOnDisk icon;
  FileOnDisk cursor;
  FileOnDisk bitmap;
  FileOnDisk encoderBitmap;
  return IO::WriteIcon(mask, image, colors, stem + ".ico", icon) &&
         IO::WriteCursor(mask, image, colors, {size / 2 - 1, size / 4}, stem + ".cur", cursor) &&
         IO::WriteBitmap(image, colors, stem + ".bmp", bitmap) &&
         WriteWholeFile(encoderBitmap, stem + "-encoder.bmp", IO::TrueColorBitmap(image).Bytes(),
                        ReadOnlyFile::Refused) &&
         WritePnm(stem + ".ppm", image, false) && WritePnm(stem + ".pgm", mask, true);
}

int Run(const std::string& folder) {
  struct NamedClass {
    const char* name;
    ColorClass colors;
  };
  constexpr std::array<NamedClass, 4> classes{{{"2", ColorClass::Two},
                                               {"16", ColorClass::Sixteen},
                                               {"256", ColorClass::TwoHundredFiftySix},
                                               {"true", ColorClass::TrueColor}}};
  for (const int size : {16, 32, 48, 64}) {
    for (const NamedClass& named : classes) {
      const std::string stem = folder + "/" + std::to_string(size) + "-" + named.name;
      if (WriteSamples(stem, size, named.colors)) continue;
      std::cerr << "cannot write " << stem << '\n';
      return 1;
    }
  }
  return 0;
}

}  // namespace
}  // namespace tarvik

int main(int argc, char** argv) {
  if (argc != 2) {
    std::cerr << "usage: write_samples FOLDER\n";
    return 2;
  }
  try {
    return tarvik::Run(argv[1]);
  } catch (const std::exception& error) {
    std::cerr << error.what() << '\n';
    return 1;
  }
}
