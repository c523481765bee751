#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "support/TestPictures.h"

namespace tarvik {

// The content of a JPEG file's markers, parsed without the library that wrote it.
struct JpegMarkers {
  struct Component {
    int horizontal = 0;
    int vertical = 0;
    int table = 0;

    friend bool operator==(const Component&, const Component&) = default;
  };

  int frame = 0;  // the second byte of the frame's marker: 0xC0 is baseline
  int width = 0;
  int height = 0;
  std::vector<Component> components;
  std::map<int, std::array<int, 64>> tables;  // 8-bit quantization tables in zigzag order
  std::vector<std::string> comments;
  std::vector<int> componentsOfScans;
};

// Nothing if the bytes are not a complete JPEG file.
std::optional<JpegMarkers> ReadJpegMarkers(std::span<const std::byte> file);

// The picture as libjpeg-turbo decodes it; nothing if it reports an error or a warning.
std::optional<support::TestRaster> DecodeJpeg(std::span<const std::byte> file);

// A GIF file of one image, as giflib reads it.
struct GifContent {
  std::string version;  // "87a" or "89a"
  int width = 0;
  int height = 0;
  std::vector<Color> palette;        // the whole colour map
  std::vector<std::uint8_t> pixels;  // row by row
  std::optional<int> transparentIndex;

  std::uint8_t Index(int x, int y) const { return pixels.at(static_cast<std::size_t>(y * width + x)); }
  Color Pixel(int x, int y) const { return palette.at(Index(x, y)); }
};

// Nothing if the library reports an error or the file does not hold exactly one complete image.
std::optional<GifContent> DecodeGif(std::span<const std::byte> file);

// The mean squared difference of the channels of two pictures of the same size.
template <typename One, typename Other>
double MeanSquaredError(const One& one, const Other& other, int width, int height) {
  double sum = 0;
  for (int y = 0; y < height; ++y) {
    for (int x = 0; x < width; ++x) {
      const Color a = one.Pixel(x, y);
      const Color b = other.Pixel(x, y);
      for (const int difference : {RedOf(a) - RedOf(b), GreenOf(a) - GreenOf(b), BlueOf(a) - BlueOf(b)})
        sum += difference * difference;
    }
  }
  return sum / (3.0 * width * height);
}

}  // namespace tarvik
