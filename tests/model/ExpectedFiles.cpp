#include "model/ExpectedFiles.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <set>

namespace tarvik::model {
namespace {

constexpr std::array<Pixel, 16> sixteen{0x000000, 0x000080, 0x008000, 0x008080, 0x800000, 0x800080, 0x808000, 0xC0C0C0,
                                        0x808080, 0x0000FF, 0x00FF00, 0x00FFFF, 0xFF0000, 0xFF00FF, 0xFFFF00, 0xFFFFFF};

class Writer {
 public:
  void Number(std::uint32_t value, int width) {
    for (int i = 0; i < width; ++i) bytes.push_back(static_cast<std::uint8_t>(value >> 8 * i & 0xFFU));
  }
  void Color(Pixel color) {
    Number(color >> 16 & 0xFFU, 1);
    Number(color >> 8 & 0xFFU, 1);
    Number(color & 0xFFU, 1);
  }
  Bytes bytes;
};

// Bits per pixel for the colours that occur. An icon's palette reserves one entry each for black and white.
int DepthOf(const Picture& picture, bool isIcon) {
  const std::set<Pixel> colors(picture.pixels.begin(), picture.pixels.end());
  const auto isTwo = [](Pixel color) { return color == blackPixel || color == whitePixel; };
  const auto isStandard = [](Pixel color) { return std::ranges::find(sixteen, color) != sixteen.end(); };
  if (std::ranges::all_of(colors, isTwo)) return 1;
  if (std::ranges::all_of(colors, isStandard)) return 4;
  const auto others = std::ranges::count_if(colors, [&](Pixel color) { return !isTwo(color); });
  const auto counted = isIcon ? others : static_cast<std::ptrdiff_t>(colors.size());
  return counted <= (isIcon ? 254 : 256) ? 8 : 24;
}

std::vector<Pixel> PaletteOf(const Picture& picture, bool isIcon) {
  std::vector<Pixel> palette(256, 0);
  if (isIcon) palette[255] = whitePixel;
  std::set<Pixel> seen;
  if (isIcon) seen = {blackPixel, whitePixel};
  std::size_t next = isIcon ? 1 : 0;
  for (const Pixel color : picture.pixels) {
    if (seen.insert(color).second) palette[next++] = color;
  }
  return palette;
}

void WritePalette(Writer& out, const std::vector<Pixel>& palette) {
  for (const Pixel color : palette) {
    out.Color(color);
    out.Number(0, 1);
  }
}

void WriteOneBit(Writer& out, const Picture& picture) {
  for (int y = picture.height - 1; y >= 0; --y) {
    for (int x = 0; x < picture.width; x += 8) {
      unsigned bits = 0;
      for (int i = 0; i < 8; ++i) bits = bits << 1 | (picture.At(x + i, y) == whitePixel ? 1U : 0U);
      out.Number(bits, 1);
    }
    if (picture.width != 32) out.Number(0, 2);
  }
}

void WriteFourBit(Writer& out, const Picture& picture) {
  const auto index = [](Pixel color) {
    return static_cast<unsigned>(std::ranges::find(sixteen, color) - sixteen.begin());
  };
  for (int y = picture.height - 1; y >= 0; --y) {
    for (int x = 0; x < picture.width; x += 2)
      out.Number(index(picture.At(x, y)) << 4 | index(picture.At(x + 1, y)), 1);
  }
}

void WriteEightBit(Writer& out, const Picture& picture, const std::vector<Pixel>& palette) {
  std::uint32_t last = 0;
  for (int y = picture.height - 1; y >= 0; --y) {
    for (int x = 0; x < picture.width; ++x) {
      const Pixel color = picture.At(x, y);
      const auto found = std::find(palette.begin() + 1, palette.begin() + 255, color);
      if (color == blackPixel) {
        last = 0;
      } else if (color == whitePixel) {
        last = 255;
      } else if (found != palette.begin() + 255) {
        last = static_cast<std::uint32_t>(found - palette.begin());
      }
      out.Number(last, 1);
    }
  }
}

void WritePixels(Writer& out, const Picture& picture, int depth, bool isIcon) {
  switch (depth) {
    case 1:
      WritePalette(out, {blackPixel, whitePixel});
      return WriteOneBit(out, picture);
    case 4:
      WritePalette(out, {sixteen.begin(), sixteen.end()});
      return WriteFourBit(out, picture);
    case 8:
      WritePalette(out, PaletteOf(picture, isIcon));
      return WriteEightBit(out, picture, PaletteOf(picture, isIcon));
    default:
      for (int y = picture.height - 1; y >= 0; --y) {
        for (int x = 0; x < picture.width; ++x) out.Color(picture.At(x, y));
      }
  }
}

int RowBytes(int width, int depth) {
  return ((width * depth + 7) / 8 + 3) / 4 * 4;
}

int PaletteBytes(int depth) {
  return depth == 1 ? 8 : depth == 4 ? 64 : depth == 8 ? 1024 : 0;
}

int MaskBytes(int width) {
  return width == 16 ? 64 : width == 32 ? 128 : width == 48 ? 384 : 512;
}

void WriteHeader(Writer& out, int width, int height, int depth, int imageBytes) {
  out.Number(40, 4);
  out.Number(static_cast<std::uint32_t>(width), 4);
  out.Number(static_cast<std::uint32_t>(height), 4);
  out.Number(1, 2);
  out.Number(static_cast<std::uint32_t>(depth), 2);
  out.Number(0, 4);
  out.Number(static_cast<std::uint32_t>(imageBytes), 4);
  for (int i = 0; i < 4; ++i) out.Number(0, 4);
}

Bytes IconOrCursor(const Capture& icon, int type, int first, int second, int depth) {
  const int size = icon.image.width;
  Writer out;
  out.Number(0, 2);
  out.Number(static_cast<std::uint32_t>(type), 2);
  out.Number(1, 2);
  out.Number(static_cast<std::uint32_t>(size), 1);
  out.Number(static_cast<std::uint32_t>(size), 1);
  out.Number(0, 2);
  out.Number(static_cast<std::uint32_t>(first), 2);
  out.Number(static_cast<std::uint32_t>(second), 2);
  const int bytes = 40 + PaletteBytes(depth) + RowBytes(size, depth) * size + MaskBytes(size);
  out.Number(static_cast<std::uint32_t>(bytes), 4);
  out.Number(22, 4);
  WriteHeader(out, size, 2 * size, depth, 0);
  WritePixels(out, icon.image, depth, true);
  WriteOneBit(out, icon.mask);
  return out.bytes;
}

}  // namespace

Capture CaptureOf(const IconLook* look, int size) {
  Capture capture{Picture(size, size, whitePixel), Picture(size, size, blackPixel), Picture(size, size, whitePixel)};
  if (look == nullptr) return capture;
  for (int y = 0; y < size; ++y) {
    for (int x = 0; x < size; ++x) {
      if (IsTransparent(size, x, y)) continue;
      const Pixel color = ColorAt(*look, size, x, y);
      capture.mask.Set(x, y, blackPixel);
      capture.image.Set(x, y, color);
      capture.composed.Set(x, y, color);
    }
  }
  return capture;
}

Bytes IconFile(const Capture& icon) {
  const int depth = DepthOf(icon.image, true);
  return IconOrCursor(icon, 1, 1, depth, depth);
}

Bytes CursorFile(const Capture& icon, Spot hotSpot) {
  return IconOrCursor(icon, 2, hotSpot.x, hotSpot.y, DepthOf(icon.image, true));
}

// The size in the header comes from a table that has the same values for 64 pixels as for 48.
Bytes BitmapFile(const Capture& icon) {
  const Picture& picture = icon.composed;
  const int depth = DepthOf(picture, false);
  const int tableSide = std::min(picture.width, 48);
  Writer out;
  out.Number(19778, 2);
  const int headers = 54 + PaletteBytes(depth);
  const int said = headers + RowBytes(tableSide, depth) * tableSide;
  out.Number(static_cast<std::uint32_t>(said), 4);
  out.Number(0, 4);
  out.Number(static_cast<std::uint32_t>(headers), 4);
  WriteHeader(out, picture.width, picture.height, depth, RowBytes(picture.width, depth) * picture.height);
  WritePixels(out, picture, depth, false);
  return out.bytes;
}

}  // namespace tarvik::model
