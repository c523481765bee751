#include "platform/IconFiles.h"

#include <gtest/gtest.h>
#include <windows.h>

#include <algorithm>
#include <array>
#include <string_view>

#include "platform/Text.h"
#include "support/AppendBytes.h"

namespace tarvik::support {
namespace {

constexpr std::size_t directoryHeaderSize = 6;
constexpr std::size_t directoryEntrySize = 16;

void Append16(Bytes& bytes, std::uint64_t value) {
  Append(bytes, value, 2);
}
void Append32(Bytes& bytes, std::uint64_t value) {
  Append(bytes, value, 4);
}

void AppendBlueGreenRed(Bytes& bytes, Color color) {
  Append(bytes, BlueOf(color), 1);
  Append(bytes, GreenOf(color), 1);
  Append(bytes, RedOf(color), 1);
}

void PadTo4(Bytes& bytes, std::size_t start) {
  while ((bytes.size() - start) % 4 != 0) bytes.push_back(std::byte{0});
}

// A row of a picture with a palette: black, the left colour, the right colour.
void AppendIndexRow(Bytes& bytes, int size, int bits, bool transparent) {
  const int pixelsPerByte = 8 / bits;
  for (int x = 0; x < size; x += pixelsPerByte) {
    unsigned packed = 0;
    for (int i = 0; i < pixelsPerByte; ++i) {
      // With one bit there is no third entry: 0 is the left colour and also the colour of transparent pixels.
      const unsigned left = bits == 1 ? 0 : 1;
      const unsigned index = transparent ? 0 : left + (x + i < size / 2 ? 0 : 1);
      packed = packed << static_cast<unsigned>(bits) | index;
    }
    bytes.push_back(static_cast<std::byte>(packed));
  }
}

void AppendColorRow(Bytes& bytes, int size, int bits, bool transparent, Color left, Color right) {
  for (int x = 0; x < size; ++x) {
    AppendBlueGreenRed(bytes, transparent ? black : x < size / 2 ? left : right);
    if (bits == 32) Append(bytes, transparent ? 0 : 0xFF, 1);
  }
}

void AppendPalette(Bytes& bytes, int bits, Color left, Color right) {
  std::vector<Color> palette(std::size_t{1} << static_cast<unsigned>(bits), black);
  const std::size_t first = bits == 1 ? 0 : 1;
  palette[first] = left;
  palette[first + 1] = right;
  for (const Color color : palette) {
    AppendBlueGreenRed(bytes, color);
    Append(bytes, 0, 1);
  }
}

// Transparent in the lower half. Rows are stored from the bottom up.
void AppendMask(Bytes& bytes, int size) {
  for (int y = size - 1; y >= 0; --y) {
    const std::size_t start = bytes.size();
    for (int x = 0; x < size; x += 8) bytes.push_back(y >= size / 2 ? std::byte{0xFF} : std::byte{0});
    PadTo4(bytes, start);
  }
}

// A zlib stream in which the bytes are stored uncompressed; at most 65,535 bytes.
Bytes ZlibStreamOf(const Bytes& content) {
  Bytes stream{std::byte{0x78}, std::byte{0x01}, std::byte{1}};
  Append16(stream, content.size());
  Append16(stream, ~content.size());
  Append(stream, content);
  std::uint32_t low = 1;
  std::uint32_t high = 0;
  for (const std::byte value : content) {
    low = (low + static_cast<std::uint32_t>(value)) % 65521;
    high = (high + low) % 65521;
  }
  AppendBig32(stream, high << 16U | low);
  return stream;
}

void AppendChunk(Bytes& file, std::string_view type, const Bytes& data, std::optional<std::uint32_t> size = {}) {
  Append(file, type);
  Append32(file, size.value_or(static_cast<std::uint32_t>(data.size())));
  Append(file, data);
  if (data.size() % 2 != 0) file.push_back(std::byte{0});
}

}  // namespace

IconPicture BitmapPicture(int size, int bits, Color left, Color right) {
  IconPicture picture{size, bits, {}};
  Bytes& data = picture.data;
  Append32(data, 40);
  Append32(data, static_cast<std::uint64_t>(size));
  Append32(data, static_cast<std::uint64_t>(size) * 2);  // picture and mask
  Append16(data, 1);
  Append16(data, static_cast<std::uint64_t>(bits));
  for (int i = 0; i < 6; ++i) Append32(data, 0);
  if (bits <= 8) AppendPalette(data, bits, left, right);
  for (int y = size - 1; y >= 0; --y) {
    const std::size_t start = data.size();
    const bool transparent = y >= size / 2;
    if (bits <= 8) {
      AppendIndexRow(data, size, bits, transparent);
    } else {
      AppendColorRow(data, size, bits, transparent, left, right);
    }
    PadTo4(data, start);
  }
  AppendMask(data, size);
  return picture;
}

IconPicture PngPicture(int size, Color left, Color right) {
  Bytes header;
  AppendBig32(header, static_cast<std::uint32_t>(size));
  AppendBig32(header, static_cast<std::uint32_t>(size));
  Append(header, 8, 1);  // bits per channel
  Append(header, 6, 1);  // red, green, blue, alpha
  Append(header, 0, 3);
  Bytes rows;
  for (int y = 0; y < size; ++y) {
    Append(rows, 0, 1);  // no filter
    for (int x = 0; x < size; ++x) {
      const Color color = x < size / 2 ? left : right;
      Append(rows, y >= size / 2 ? 0 : color | 0xFF000000, 4);
    }
  }
  IconPicture picture{size, 32, {}};
  Append(picture.data, "\x89PNG\r\n\x1A\n");
  AppendPngChunk(picture.data, "IHDR", header);
  AppendPngChunk(picture.data, "IDAT", ZlibStreamOf(rows));
  AppendPngChunk(picture.data, "IEND", {});
  return picture;
}

Bytes IconFile(std::span<const IconPicture> pictures, IconFileKind kind) {
  Bytes file;
  Append16(file, 0);
  Append16(file, static_cast<std::uint64_t>(kind));
  Append16(file, pictures.size());
  std::size_t offset = directoryHeaderSize + directoryEntrySize * pictures.size();
  for (const IconPicture& picture : pictures) {
    Append(file, static_cast<std::uint64_t>(picture.size), 1);
    Append(file, static_cast<std::uint64_t>(picture.size), 1);
    Append16(file, 0);
    // Planes and bits of an icon; the hot spot of a cursor.
    Append16(file, 1);
    Append16(file, kind == IconFileKind::Icon ? static_cast<std::uint64_t>(picture.bits) : 1);
    Append32(file, picture.data.size());
    Append32(file, offset);
    offset += picture.data.size();
  }
  for (const IconPicture& picture : pictures) Append(file, picture.data);
  return file;
}

Bytes IconFileOf(Color color, IconFileKind kind) {
  const std::array pictures{BitmapPicture(32, 24, color, color)};
  return IconFile(pictures, kind);
}

Bytes AnimationFile(std::span<const Color> colors, const AnimationClaims& claims) {
  const auto pictures = static_cast<std::uint32_t>(colors.size());
  const std::uint32_t steps = claims.sequence.empty() ? pictures : static_cast<std::uint32_t>(claims.sequence.size());
  constexpr std::uint32_t picturesAreIcons = 1;
  constexpr std::uint32_t hasSequence = 2;

  Bytes header;
  Append32(header, 36);
  Append32(header, claims.frames.value_or(pictures));
  Append32(header, claims.steps.value_or(steps));
  for (int i = 0; i < 4; ++i) Append32(header, 0);
  Append32(header, 10);  // sixtieths of a second per step
  Append32(header, picturesAreIcons | (claims.sequence.empty() ? 0 : hasSequence));

  Bytes list;
  Append(list, "fram");
  for (const Color color : colors) AppendChunk(list, "icon", IconFileOf(color, IconFileKind::Cursor));

  Bytes content;
  Append(content, "ACON");
  AppendChunk(content, "anih", header);
  if (!claims.sequence.empty()) {
    Bytes sequence;
    for (const std::uint32_t picture : claims.sequence) Append32(sequence, picture);
    AppendChunk(content, "seq ", sequence);
  }
  AppendChunk(content, "LIST", list, claims.listSize);

  Bytes file;
  AppendChunk(file, "RIFF", content);
  return file;
}

Bytes IconGroup(const IconPicture& picture, std::uint16_t number) {
  Bytes directory;
  for (const int value : {0, 1, 1}) Append16(directory, static_cast<std::uint64_t>(value));
  Append(directory, static_cast<std::uint64_t>(picture.size), 1);
  Append(directory, static_cast<std::uint64_t>(picture.size), 1);
  Append16(directory, 0);
  Append16(directory, 1);
  Append16(directory, static_cast<std::uint64_t>(picture.bits));
  Append32(directory, picture.data.size());
  Append16(directory, number);
  return directory;
}

void AddIcons(const std::string& path, std::span<const IconPicture> pictures) {
  const HANDLE update = BeginUpdateResourceW(ToWide(path).c_str(), FALSE);
  ASSERT_NE(update, nullptr) << path;
  std::uint16_t number = 0;
  for (const IconPicture& picture : pictures) {
    ++number;
    const auto add = [&](LPCWSTR type, Bytes bytes) {
      EXPECT_NE(
          UpdateResourceW(update, type, MAKEINTRESOURCEW(number), 0, bytes.data(), static_cast<DWORD>(bytes.size())),
          0);
    };
    add(MAKEINTRESOURCEW(3), picture.data);                 // RT_ICON
    add(MAKEINTRESOURCEW(14), IconGroup(picture, number));  // RT_GROUP_ICON
  }
  EXPECT_NE(EndUpdateResourceW(update, FALSE), 0) << path;
}

}  // namespace tarvik::support
