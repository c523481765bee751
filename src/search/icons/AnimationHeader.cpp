#include "search/icons/AnimationHeader.h"

#include <algorithm>
#include <array>
#include <limits>
#include <string_view>

namespace tarvik {
namespace {

constexpr std::uint64_t chunkHeaderSize = 8;     // a type of four characters and the size of the data
constexpr std::uint64_t listTypeSize = 4;        // a list's data starts with the list's own type
constexpr std::uint64_t pictureCountOffset = 4;  // in the data of "anih", after its own size
constexpr std::uint64_t stepCountOffset = 8;     // after the picture count
constexpr std::uint64_t sequenceEntrySize = 4;

// A type of four characters as the number that stands for it in a file.
consteval std::uint32_t TypeNumber(std::string_view type) {
  std::uint32_t number = 0;
  for (std::uint32_t i = 0; i < 4; ++i) number += std::uint32_t{static_cast<unsigned char>(type[i])} << 8 * i;
  return number;
}
constexpr std::uint32_t riffType = TypeNumber("RIFF");
constexpr std::uint32_t animationType = TypeNumber("ACON");
constexpr std::uint32_t headerType = TypeNumber("anih");
constexpr std::uint32_t sequenceType = TypeNumber("seq ");
constexpr std::uint32_t listType = TypeNumber("LIST");
constexpr std::uint32_t framesType = TypeNumber("fram");
constexpr std::uint32_t pictureType = TypeNumber("icon");

// Reads a file through a block kept in memory, so that a run of small chunks costs few reads. Bytes past the
// end, or that the file will not give, read as zero: no chunk has such a type.
class BlockReader {
 public:
  explicit BlockReader(ByteSource& file) : file_(file), size_(file.Size()) {}

  std::uint64_t Size() const { return size_; }

  // A little-endian number. Its bytes are read upwards, as all of the file is: going back would load blocks twice.
  std::uint32_t Number(std::uint64_t offset) {
    std::uint32_t number = 0;
    for (std::uint32_t i = 0; i < 4; ++i) number += Byte(offset + i) << 8 * i;
    return number;
  }

 private:
  std::uint32_t Byte(std::uint64_t offset) {
    if (offset >= size_) return 0;
    if (offset < start_ || offset - start_ >= held_) Load(offset);
    return offset - start_ < held_ ? std::to_integer<std::uint32_t>(block_[offset - start_]) : 0;
  }

  void Load(std::uint64_t offset) {
    start_ = offset - offset % block_.size();
    held_ = std::min<std::uint64_t>(block_.size(), size_ - start_);
    if (!file_.Read(start_, std::span(block_).first(held_))) std::ranges::fill(block_, std::byte{0});
  }

  ByteSource& file_;
  std::uint64_t size_;
  std::uint64_t start_ = 0;
  std::uint64_t held_ = 0;
  std::array<std::byte, 4096> block_{};
};

// A chunk as far as it lies inside the file: its data may be cut short.
struct Chunk {
  std::uint32_t type;
  std::uint64_t data;
  std::uint64_t size;  // of the data that is there
};

// Calls `visit` for each chunk between two places. Each one takes at least its header, so the walk ends.
template <typename Visit>
void ForEachChunk(BlockReader& file, std::uint64_t from, std::uint64_t end, const Visit& visit) {
  while (from < end && end - from >= chunkHeaderSize) {
    const std::uint32_t type = file.Number(from);
    const std::uint64_t written = file.Number(from + 4);
    const std::uint64_t data = from + chunkHeaderSize;
    visit(Chunk{type, data, std::min(written, end - data)});
    from = data + written + written % 2;  // chunks start at even places
  }
}

// What a file says of its steps. Where a chunk stands more than once, the largest counts: whichever of them
// the platform takes, it draws no more steps.
struct Findings {
  std::uint64_t headerPictures = 0;
  std::uint64_t headerSteps = 0;
  std::uint64_t sequenceEntries = 0;
  std::uint64_t highestEntry = 0;  // of the order: the number of a picture, from 0
  std::uint64_t pictures = 0;
  int headers = 0;
  int sequences = 0;

  std::uint64_t HeldSteps() const { return sequences > 0 ? sequenceEntries : pictures; }
};

void CountPictures(BlockReader& file, const Chunk& list, Findings& findings) {
  if (list.size < listTypeSize || file.Number(list.data) != framesType) return;
  ForEachChunk(file, list.data + listTypeSize, list.data + list.size, [&](const Chunk& chunk) {
    if (chunk.type == pictureType) ++findings.pictures;
  });
}

void NoteSequence(BlockReader& file, const Chunk& chunk, Findings& findings) {
  ++findings.sequences;
  const std::uint64_t entries = chunk.size / sequenceEntrySize;
  findings.sequenceEntries = std::max(findings.sequenceEntries, entries);
  for (std::uint64_t entry = 0; entry < entries; ++entry) {
    const std::uint64_t picture = file.Number(chunk.data + entry * sequenceEntrySize);
    findings.highestEntry = std::max(findings.highestEntry, picture);
  }
}

void Note(BlockReader& file, const Chunk& chunk, Findings& findings) {
  if (chunk.type == headerType && chunk.size >= stepCountOffset + 4) {
    ++findings.headers;
    findings.headerPictures =
        std::max<std::uint64_t>(findings.headerPictures, file.Number(chunk.data + pictureCountOffset));
    findings.headerSteps = std::max<std::uint64_t>(findings.headerSteps, file.Number(chunk.data + stepCountOffset));
  } else if (chunk.type == sequenceType) {
    NoteSequence(file, chunk, findings);
  } else if (chunk.type == listType) {
    CountPictures(file, chunk, findings);
  }
}

// What the file says and holds; nothing where it is no animation.
Findings Inspect(ByteSource& source) {
  Findings findings;
  BlockReader file(source);
  if (file.Number(0) != riffType || file.Number(chunkHeaderSize) != animationType) return findings;
  // The size that the file states for itself is often wrong and never needed.
  ForEachChunk(file, chunkHeaderSize + listTypeSize, file.Size(),
               [&](const Chunk& chunk) { Note(file, chunk, findings); });
  return findings;
}

}  // namespace

int MostAnimationSteps(ByteSource& file) {
  const Findings findings = Inspect(file);
  const std::uint64_t steps = std::min(findings.headerSteps, findings.HeldSteps());
  return static_cast<int>(std::min<std::uint64_t>(steps, std::numeric_limits<int>::max()));
}

bool HoldsWhatItSays(ByteSource& file) {
  const Findings findings = Inspect(file);
  // Of two headers or orders, nobody knows which the platform takes.
  const bool plain = findings.headers == 1 && findings.sequences <= 1;
  return plain && findings.headerPictures > 0 && findings.headerPictures <= findings.pictures &&
         findings.headerSteps > 0 && findings.headerSteps <= findings.HeldSteps() &&
         findings.highestEntry < findings.headerPictures;
}

}  // namespace tarvik
