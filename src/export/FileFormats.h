#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>

#include "export/ModMicroArt.h"

// Constants of the icon, cursor and bitmap formats: what each file contains apart from sizes and pixels.
namespace tarvik::fileFormats {

using ModMicroArt::ColorClass;

// Sizes of the headers, in bytes, in file order.
inline constexpr std::uint32_t directoryHeaderBytes = 6;
inline constexpr std::uint32_t directoryEntryBytes = 16;
inline constexpr std::uint32_t bitmapFileHeaderBytes = 14;
inline constexpr std::uint32_t infoHeaderBytes = 40;
inline constexpr std::uint32_t paletteEntryBytes = 4;

inline constexpr std::uint16_t iconType = 1;
inline constexpr std::uint16_t cursorType = 2;
inline constexpr std::uint16_t bitmapType = 19778;  // the characters "BM"
inline constexpr std::uint16_t imageCount = 1;      // a file holds one image
inline constexpr std::uint8_t colorCount = 0;       // of a directory entry, at every depth (deliberate: oddities 32)
inline constexpr std::uint16_t planes = 1;
inline constexpr std::uint32_t noCompression = 0;
inline constexpr std::int32_t resolutionNotGiven = 0;
inline constexpr std::uint32_t allColors = 0;  // as many as the depth allows, all of them important

// The parameters of a colour class in a file.
struct Depth {
  ColorClass colors = ColorClass::TrueColor;
  std::uint16_t bitsPerPixel = 0;
  std::uint32_t paletteEntries = 0;
};

inline constexpr std::array<Depth, 4> depths{{
    {ColorClass::Two, 1, 2},
    {ColorClass::Sixteen, 4, 16},
    {ColorClass::TwoHundredFiftySix, 8, 256},
    {ColorClass::TrueColor, 24, 0},
}};

constexpr const Depth& DepthOf(ColorClass colors) {
  return *std::ranges::find(depths, colors, &Depth::colors);
}

constexpr std::uint32_t PaletteBytes(const Depth& depth) {
  return depth.paletteEntries * paletteEntryBytes;
}

// The bytes that the headers declare for rows of `width` pixels: each row is a whole number of 4-byte words.
constexpr std::uint32_t DeclaredImageBytes(const Depth& depth, int width, int height) {
  const auto rowBits = static_cast<std::uint32_t>(width) * depth.bitsPerPixel;
  return ((rowBits + 7) / 8 + 3) / 4 * 4 * static_cast<std::uint32_t>(height);
}

// What a directory entry declares for the mask, by the icon's width. Nothing for any other width.
struct MaskBytes {
  int width = 0;
  std::uint32_t bytes = 0;
};
inline constexpr std::array<MaskBytes, 4> declaredMaskBytes{{{16, 64}, {32, 128}, {48, 384}, {64, 512}}};

constexpr std::uint32_t DeclaredMaskBytes(int width) {
  const auto* const found = std::ranges::find(declaredMaskBytes, width, &MaskBytes::width);
  return found == declaredMaskBytes.end() ? 0 : found->bytes;
}

// The size field of a bitmap file, by width and colour class in the order of `depths`. The row for 64 pixels repeats
// that of 48, though the file is larger; any other width has 0 (deliberate: oddities 33).
struct BitmapFileSizes {
  int width = 0;
  std::array<std::uint32_t, depths.size()> bytes{};
};
inline constexpr std::array<BitmapFileSizes, 4> bitmapFileSizes{{
    {16, {126, 246, 1334, 822}},
    {32, {190, 630, 2102, 3126}},
    {48, {446, 1270, 3382, 6966}},
    {64, {446, 1270, 3382, 6966}},
}};

constexpr std::uint32_t BitmapFileSize(const Depth& depth, int width) {
  const auto* const found = std::ranges::find(bitmapFileSizes, width, &BitmapFileSizes::width);
  if (found == bitmapFileSizes.end()) return 0;
  const auto* const row = std::ranges::find(depths, depth.colors, &Depth::colors);
  return found->bytes[static_cast<std::size_t>(row - depths.begin())];
}

}  // namespace tarvik::fileFormats
