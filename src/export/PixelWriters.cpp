#include "export/PixelWriters.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <optional>
#include <span>

#include "base/ColorIndex.h"

namespace tarvik::ModMicroArtFileIO {
namespace {

constexpr std::size_t pixelsPerByte1Bit = 8;
constexpr std::size_t pixelsPerByte4Bit = 2;
constexpr std::size_t bytesPerPixel24Bit = 3;
constexpr std::size_t wordBytes = 4;

// The one width whose 1-bit rows get no extra bytes, and how many bytes the others get.
constexpr int widthWithoutExtraBytes = 32;
constexpr std::size_t extraRowBytes1Bit = 2;

void FillRow24Bit(std::span<const Color> row, std::span<std::byte> bytes) {
  std::size_t offset = 0;
  for (const Color color : row) {
    bytes[offset] = std::byte{BlueOf(color)};
    bytes[offset + 1] = std::byte{GreenOf(color)};
    bytes[offset + 2] = std::byte{RedOf(color)};
    offset += bytesPerPixel24Bit;
  }
}

// The entries that the 8-bit writer may use for a colour. Black and white are added to them: they have fixed values.
ColorIndex EntriesOf(const ModPalette::Palette256& palette) {
  ColorIndex entries;
  entries.Insert(black, ModPalette::blackEntry);
  entries.Insert(white, ModPalette::whiteEntry);
  for (int entry = ModPalette::blackEntry + 1; entry < ModPalette::whiteEntry; ++entry) {
    entries.Insert(palette[static_cast<std::size_t>(entry)], entry);
  }
  return entries;
}

}  // namespace

std::size_t RowBytes1Bit(int width) {
  const std::size_t pixelBytes = (static_cast<std::size_t>(width) + pixelsPerByte1Bit - 1) / pixelsPerByte1Bit;
  return width == widthWithoutExtraBytes ? pixelBytes : pixelBytes + extraRowBytes1Bit;
}

void Write1Bit(const PixelCopy& pixels, ByteWriter& file) {
  for (int y = pixels.Height() - 1; y >= 0; --y) {
    const std::span<const Color> row = pixels.Row(y);
    const std::span<std::byte> bytes = file.Zeros(RowBytes1Bit(pixels.Width()));
    for (std::size_t x = 0; x < row.size(); x += pixelsPerByte1Bit) {
      const std::span<const Color> group = row.subspan(x, std::min(pixelsPerByte1Bit, row.size() - x));
      unsigned bits = 0;
      for (const Color color : group) bits = bits * 2 + (color == white ? 1U : 0U);
      bytes[x / pixelsPerByte1Bit] = static_cast<std::byte>(bits << (pixelsPerByte1Bit - group.size()));
    }
  }
}

void Write4Bit(const PixelCopy& pixels, ByteWriter& file) {
  std::array<int, pixelsPerByte4Bit> lastFound{};
  for (int y = pixels.Height() - 1; y >= 0; --y) {
    const std::span<const Color> row = pixels.Row(y);
    const std::span<std::byte> bytes = file.Zeros((row.size() + pixelsPerByte4Bit - 1) / pixelsPerByte4Bit);
    for (std::size_t x = 0; x < row.size(); x += pixelsPerByte4Bit) {
      for (std::size_t half = 0; half < pixelsPerByte4Bit && x + half < row.size(); ++half) {
        lastFound[half] = ModPalette::SixteenColorIndex(row[x + half]).value_or(lastFound[half]);
      }
      bytes[x / pixelsPerByte4Bit] = static_cast<std::byte>(lastFound[0] * 16 + lastFound[1]);
    }
  }
}

void Write8Bit(const PixelCopy& pixels, const ModPalette::Palette256& palette, ByteWriter& file) {
  const ColorIndex entries = EntriesOf(palette);
  int previous = 0;
  for (int y = pixels.Height() - 1; y >= 0; --y) {
    const std::span<const Color> row = pixels.Row(y);
    const std::span<std::byte> bytes = file.Zeros(row.size());
    for (std::size_t x = 0; x < row.size(); ++x) {
      previous = entries.Find(row[x]).value_or(previous);
      bytes[x] = static_cast<std::byte>(previous);
    }
  }
}

void Write24Bit(const PixelCopy& pixels, ByteWriter& file) {
  for (int y = pixels.Height() - 1; y >= 0; --y) {
    const std::span<const Color> row = pixels.Row(y);
    FillRow24Bit(row, file.Zeros(row.size() * bytesPerPixel24Bit));
  }
}

void WritePadded24Bit(const PixelCopy& pixels, ByteWriter& file) {
  for (int y = pixels.Height() - 1; y >= 0; --y) {
    const std::span<const Color> row = pixels.Row(y);
    const std::size_t rowBytes = (row.size() * bytesPerPixel24Bit + wordBytes - 1) / wordBytes * wordBytes;
    FillRow24Bit(row, file.Zeros(rowBytes));
  }
}

}  // namespace tarvik::ModMicroArtFileIO
