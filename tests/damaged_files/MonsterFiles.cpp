#include "damaged_files/MonsterFiles.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <utility>

#include "support/AppendBytes.h"

namespace tarvik::support {
namespace {

constexpr Color red = 0x0000FF;

void Set32(Bytes& bytes, std::size_t offset, std::uint64_t value) {
  for (std::size_t i = 0; i < 4; ++i, value >>= 8U) bytes[offset + i] = static_cast<std::byte>(value);
}

// An animation of one picture, split before the list of its pictures; and the size that its header states, corrected.
struct SplitAnimation {
  Bytes start;
  Bytes list;
};
SplitAnimation Split() {
  const Bytes file = AnimationFile(std::array{red});
  constexpr std::string_view type = "LIST";
  const auto list = std::ranges::search(file, type, {}, [](std::byte value) { return static_cast<char>(value); });
  return {{file.begin(), list.begin()}, {list.begin(), file.end()}};
}
Bytes WithItsSize(Bytes animation) {
  Set32(animation, 4, animation.size() - 8);
  return animation;
}

// The bits of a deflate stream: numbers from their lowest bit on, codes from their highest.
class BitWriter {
 public:
  void Code(std::uint32_t code, int length) {
    for (int bit = length - 1; bit >= 0; --bit) Bit(code >> static_cast<unsigned>(bit) & 1U);
  }
  void Bit(std::uint32_t bit) {
    held_ |= bit << count_;
    if (++count_ == 8) End();
  }
  Bytes Take() {
    if (count_ != 0) End();
    return std::move(bytes_);
  }

 private:
  void End() {
    bytes_.push_back(static_cast<std::byte>(held_));
    held_ = 0;
    count_ = 0;
  }

  Bytes bytes_;
  std::uint32_t held_ = 0;
  unsigned count_ = 0;
};

// A zlib stream of that many zeros, in one block of fixed codes: a zero, and then copies of 258 bytes from one byte
// before.
Bytes CompressedZeros(std::uint64_t count) {
  constexpr std::uint64_t copied = 258;
  constexpr std::uint32_t zero = 0b00110000;       // eight bits
  constexpr std::uint32_t copyOf258 = 0b11000101;  // eight bits, and five for the distance
  BitWriter bits;
  bits.Bit(1);  // the last block
  bits.Bit(1);  // of fixed codes
  bits.Bit(0);
  const std::uint64_t copies = (count - 1) / copied;
  for (std::uint64_t left = count - copies * copied; left > 0; --left) bits.Code(zero, 8);
  for (std::uint64_t i = 0; i < copies; ++i) {
    bits.Code(copyOf258, 8);
    bits.Code(0, 5);
  }
  bits.Code(0, 7);  // the end
  Bytes stream{std::byte{0x78}, std::byte{0x01}};
  Append(stream, bits.Take());
  // The checksum: of zeros its low half stays 1, and its high half counts them.
  AppendBig32(stream, static_cast<std::uint32_t>(count % 65521) << 16U | 1U);
  return stream;
}

}  // namespace

Bytes NestedLists(int depth) {
  constexpr std::uint64_t ownSize = 12;  // of a list: its type, its size and the type of its data
  const auto [start, list] = Split();
  Bytes file = start;
  for (int left = depth; left > 0; --left) {
    Append(file, "LIST");
    Append(file, ownSize * static_cast<std::uint64_t>(left - 1) + 4 + list.size(), 4);
    Append(file, "fram");
  }
  Append(file, list);
  return WithItsSize(std::move(file));
}

Bytes ManyChunks(int count) {
  const auto [start, list] = Split();
  Bytes file = start;
  file.reserve(start.size() + 8 * static_cast<std::size_t>(count) + list.size());
  Bytes chunk;
  Append(chunk, "junk");
  Append(chunk, 0, 4);
  for (int i = 0; i < count; ++i) Append(file, chunk);
  Append(file, list);
  return WithItsSize(std::move(file));
}

Bytes ManyEntries(int count) {
  constexpr std::size_t headerSize = 6;
  constexpr std::size_t entrySize = 16;
  const Bytes one = IconFileOf(red);
  Bytes entry(one.begin() + headerSize, one.begin() + headerSize + entrySize);
  Set32(entry, 12, headerSize + entrySize * static_cast<std::size_t>(count));
  Bytes file(one.begin(), one.begin() + 4);
  Append(file, static_cast<std::uint64_t>(count), 2);
  for (int i = 0; i < count; ++i) Append(file, entry);
  file.insert(file.end(), one.begin() + headerSize + entrySize, one.end());
  return file;
}

Bytes LargePng(std::uint32_t side) {
  Bytes header;
  AppendBig32(header, side);
  AppendBig32(header, side);
  Append(header, 1, 1);                                    // one bit per pixel
  Append(header, 0, 4);                                    // grey, and no interlacing
  const std::uint64_t rowSize = 1 + (side + 7) / 8;        // with the number of its filter
  IconPicture picture{.size = 0, .bits = 32, .data = {}};  // 0 means 256 or more
  Append(picture.data, "\x89PNG\r\n\x1A\n");
  AppendPngChunk(picture.data, "IHDR", header);
  AppendPngChunk(picture.data, "IDAT", CompressedZeros(rowSize * side));
  AppendPngChunk(picture.data, "IEND", {});
  return IconFile(std::array{picture});
}

}  // namespace tarvik::support
