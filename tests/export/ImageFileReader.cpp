#include "export/ImageFileReader.h"

#include <cstddef>
#include <stdexcept>

namespace tarvik {
namespace {

class Reader {
 public:
  explicit Reader(const std::vector<std::uint8_t>& file) : file_(file) {}

  std::uint32_t U8(std::size_t offset) const { return file_.at(offset); }
  std::uint32_t U16(std::size_t offset) const { return U8(offset) | U8(offset + 1) << 8U; }
  std::uint32_t U32(std::size_t offset) const { return U16(offset) | U16(offset + 2) << 16U; }
  Color BlueGreenRed(std::size_t offset) const { return U8(offset) << 16U | U8(offset + 1) << 8U | U8(offset + 2); }

  // The value of the pixel x in the row that starts at `row`, high bits first.
  std::uint32_t Bits(std::size_t row, std::size_t x, std::size_t bits) const {
    const std::size_t bit = x * bits;
    return U8(row + bit / 8) >> (8 - bits - bit % 8) & ((1U << bits) - 1);
  }

 private:
  const std::vector<std::uint8_t>& file_;
};

struct Header {
  std::size_t width = 0;
  std::size_t height = 0;  // as in the header
  std::size_t bits = 0;
  std::size_t paletteStart = 0;
  std::size_t paletteEntries = 0;
};

std::size_t Stride(std::size_t width, std::size_t bits) {
  return (width * bits + 31) / 32 * 4;
}

Header ReadHeader(const Reader& reader, std::size_t start) {
  Header header;
  header.width = reader.U32(start + 4);
  header.height = reader.U32(start + 8);
  header.bits = reader.U16(start + 14);
  const bool known = header.bits == 1 || header.bits == 4 || header.bits == 8 || header.bits == 24;
  if (reader.U32(start) != 40 || reader.U16(start + 12) != 1 || !known || reader.U32(start + 16) != 0) {
    throw std::runtime_error("no plain bitmap header");
  }
  header.paletteStart = start + 40;
  const std::size_t used = reader.U32(start + 32);
  header.paletteEntries = used != 0 ? used : header.bits == 24 ? 0 : std::size_t{1} << header.bits;
  return header;
}

std::vector<Color> ReadColors(const Reader& reader, const Header& header, std::size_t start, std::size_t height) {
  std::vector<Color> colors;
  for (std::size_t y = 0; y < height; ++y) {
    const std::size_t row = start + (height - 1 - y) * Stride(header.width, header.bits);
    for (std::size_t x = 0; x < header.width; ++x) {
      const std::size_t offset =
          header.bits == 24 ? row + 3 * x : header.paletteStart + std::size_t{4} * reader.Bits(row, x, header.bits);
      colors.push_back(reader.BlueGreenRed(offset));
    }
  }
  return colors;
}

}  // namespace

ReadImage ReadIconOrCursor(const std::vector<std::uint8_t>& file) {
  const Reader reader(file);
  if (reader.U16(0) != 0 || reader.U16(4) != 1) throw std::runtime_error("no directory of one image");
  const std::size_t start = reader.U32(18);
  const Header header = ReadHeader(reader, start);
  const std::size_t height = header.height / 2;
  if (reader.U8(6) != header.width || reader.U8(7) != height) throw std::runtime_error("the two sizes differ");
  const std::size_t imageStart = header.paletteStart + 4 * header.paletteEntries;
  const std::size_t maskStart = imageStart + height * Stride(header.width, header.bits);

  ReadImage image;
  image.width = static_cast<int>(header.width);
  image.height = static_cast<int>(height);
  image.bitsPerPixel = static_cast<int>(header.bits);
  image.colors = ReadColors(reader, header, imageStart, height);
  for (std::size_t y = 0; y < height; ++y) {
    const std::size_t row = maskStart + (height - 1 - y) * Stride(header.width, 1);
    for (std::size_t x = 0; x < header.width; ++x) image.transparent.push_back(reader.Bits(row, x, 1) == 1);
  }
  image.fileType = static_cast<int>(reader.U16(2));
  image.word10 = static_cast<int>(reader.U16(10));
  image.word12 = static_cast<int>(reader.U16(12));
  image.sizeField = reader.U32(14);
  return image;
}

ReadImage ReadBitmap(const std::vector<std::uint8_t>& file) {
  const Reader reader(file);
  if (reader.U8(0) != 'B' || reader.U8(1) != 'M') throw std::runtime_error("no bitmap file");
  const Header header = ReadHeader(reader, 14);
  ReadImage image;
  image.width = static_cast<int>(header.width);
  image.height = static_cast<int>(header.height);
  image.bitsPerPixel = static_cast<int>(header.bits);
  image.colors = ReadColors(reader, header, reader.U32(10), header.height);
  image.sizeField = reader.U32(2);
  return image;
}

}  // namespace tarvik
