#include "search/icons/IconGroup.h"

#include <algorithm>
#include <array>
#include <cstdlib>

#include "base/ByteReader.h"

namespace tarvik {
namespace {

constexpr std::uint32_t iconGroupType = 1;

// A picture as its group describes it.
struct Entry {
  explicit Entry(std::span<const std::byte> bytes)
      : width(static_cast<int>(U8At(bytes, 0))),
        height(static_cast<int>(U8At(bytes, 1))),
        bits(static_cast<int>(U16At(bytes, 6))),
        number(static_cast<std::uint16_t>(U16At(bytes, 12))) {
    if (width == 0 && height == 0) width = height = maxPictureSide;
  }

  int width;
  int height;
  int bits;
  std::uint16_t number;
};

// How far a picture is from what is wanted; smaller is better.
struct Distance {
  Distance(const Entry& entry, const IconWish& wish)
      : width(std::abs(wish.width - entry.width)),
        height(std::abs(wish.height - entry.height)),
        bits(std::abs(wish.bits - entry.bits)) {}

  int Size() const { return width + height; }

  int width;
  int height;
  int bits;
};

bool SuitsBetter(const Distance& one, const Distance& other) {
  const bool isAlike = one.width == other.width && one.height == other.height;
  return one.Size() < other.Size() || (isAlike && one.bits < other.bits);
}

// The header of a bitmap (BITMAPINFOHEADER) and the offsets of its fields.
constexpr std::size_t bitmapHeaderSize = 40;
constexpr std::size_t widthAt = 4;
constexpr std::size_t heightAt = 8;
constexpr std::size_t bitsAt = 14;
constexpr std::size_t compressionAt = 16;
constexpr std::size_t usedColorsAt = 32;
constexpr std::uint32_t maxColors = 256;

// A PNG picture starts with its signature and the header's length and type; then its width and height, big-endian.
constexpr std::array<unsigned char, 16> pngStart{0x89, 'P', 'N', 'G', '\r', '\n', 0x1A, '\n',
                                                 0,    0,   0,   13,  'I',  'H',  'D',  'R'};
constexpr std::size_t pngSidesEnd = pngStart.size() + 8;

bool IsSide(std::uint64_t side) {
  return side >= 1 && side <= static_cast<std::uint64_t>(maxPictureSide);
}

bool StartsAsPng(std::span<const std::byte> bytes) {
  return bytes.size() >= pngSidesEnd &&
         std::ranges::equal(bytes.first(pngStart.size()), std::as_bytes(std::span(pngStart)));
}

std::size_t RowSize(std::size_t width, std::size_t bits) {
  return (width * bits + 31) / 32 * 4;
}

bool HoldsBitmap(std::span<const std::byte> bytes) {
  if (bytes.size() < bitmapHeaderSize) return false;
  const std::size_t headerSize = U32At(bytes, 0);
  const std::size_t width = U32At(bytes, widthAt);
  const std::size_t height = U32At(bytes, heightAt) / 2;  // the height of picture and mask together is stored
  const std::size_t bits = U16At(bytes, bitsAt);
  constexpr std::array<std::size_t, 6> depths{1, 4, 8, 16, 24, 32};
  if (headerSize < bitmapHeaderSize || !IsSide(width) || !IsSide(height) ||
      std::ranges::find(depths, bits) == depths.end() || U32At(bytes, compressionAt) != 0) {
    return false;
  }
  const std::uint32_t used = U32At(bytes, usedColorsAt);
  const std::size_t allColors = bits <= 8 ? std::size_t{1} << bits : 0;
  const std::size_t colors = used == 0 ? allColors : std::min(used, maxColors);
  return headerSize + 4 * colors + height * (RowSize(width, bits) + RowSize(width, 1)) <= bytes.size();
}

}  // namespace

std::size_t IconGroupSize(std::span<const std::byte> start) {
  if (start.size() < iconGroupStartSize || U16At(start, 0) != 0 || U16At(start, 2) != iconGroupType) return 0;
  return iconGroupStartSize + iconGroupEntrySize * U16At(start, 4);
}

std::optional<std::uint16_t> ChoosePicture(std::span<const std::byte> group, const IconWish& wish) {
  const std::size_t end = std::min(IconGroupSize(group), group.size());
  std::optional<Entry> best;
  for (std::size_t offset = iconGroupStartSize; offset + iconGroupEntrySize <= end; offset += iconGroupEntrySize) {
    const Entry entry(group.subspan(offset, iconGroupEntrySize));
    if (!best || SuitsBetter(Distance(entry, wish), Distance(*best, wish))) best = entry;
  }
  if (!best) return std::nullopt;
  return best->number;
}

bool HoldsPicture(std::span<const std::byte> bytes) {
  if (!StartsAsPng(bytes)) return HoldsBitmap(bytes);
  return IsSide(BigU32At(bytes, pngStart.size())) && IsSide(BigU32At(bytes, pngStart.size() + 4));
}

}  // namespace tarvik
