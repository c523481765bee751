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
constexpr std::uint32_t stillCursorStart = 0x20000;  // two 16-bit numbers: a zero, and 2 for a cursor
constexpr std::size_t maxLooks = 10'000;             // how many files are remembered

// A type of four characters as its number in a file.
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

// Reads a file through a block kept in memory, so that a run of small chunks needs few reads. Bytes past the end of the
// file or past the bound, and bytes that cannot be read, are returned as zero: no chunk has such a type.
class BlockReader {
 public:
  explicit BlockReader(ByteSource& file) : file_(file), size_(file.Stamp().size) {}

  std::uint64_t Size() const { return size_; }
  // The first offset that was not examined because of the bounds; beyond the end of any file if there is none.
  std::uint64_t StopOffset() const { return stopOffset_; }

  // A little-endian number. Its bytes are read in ascending order, like the whole file: going back would load blocks
  // twice.
  std::uint32_t Number(std::uint64_t offset) {
    std::uint32_t number = 0;
    for (std::uint32_t i = 0; i < 4; ++i) number += Byte(offset + i) << 8 * i;
    return number;
  }

  // Whether one more chunk, or one more entry of an order, may be examined: the one at that offset.
  bool MayTakeChunk(std::uint64_t offset) { return MayTake(chunksLeft_, offset); }
  bool MayTakeEntry(std::uint64_t offset) { return MayTake(entriesLeft_, offset); }

 private:
  bool MayTake(int& left, std::uint64_t offset) {
    if (left == 0 || bytesLeft_ == 0) {
      GiveUp(offset);
      return false;
    }
    --left;
    return true;
  }
  void GiveUp(std::uint64_t offset) { stopOffset_ = std::min(stopOffset_, offset); }

  std::uint32_t Byte(std::uint64_t offset) {
    if (offset >= size_) return 0;
    if (offset < start_ || offset - start_ >= held_) Load(offset);
    return offset - start_ < held_ ? std::to_integer<std::uint32_t>(block_[offset - start_]) : 0;
  }

  void Load(std::uint64_t offset) {
    if (bytesLeft_ < block_.size()) {
      bytesLeft_ = 0;
      return GiveUp(offset);
    }
    start_ = offset - offset % block_.size();
    held_ = std::min<std::uint64_t>(block_.size(), size_ - start_);
    bytesLeft_ -= held_;
    if (!file_.Read(start_, std::span(block_).first(held_))) std::ranges::fill(block_, std::byte{0});
  }

  ByteSource& file_;
  std::uint64_t size_;
  std::uint64_t start_ = 0;
  std::uint64_t held_ = 0;
  std::uint64_t bytesLeft_ = maxAnimationBytes;
  int chunksLeft_ = maxAnimationChunks;
  int entriesLeft_ = maxSequenceEntries;
  std::uint64_t stopOffset_ = std::numeric_limits<std::uint64_t>::max();
  std::array<std::byte, 4096> block_{};
};

// The part of a chunk that lies inside the file: its data may be truncated.
struct Chunk {
  std::uint32_t type;
  std::uint64_t data;
  std::uint64_t size;  // of the data that is in the file
};

// Calls `visit` for each chunk between two offsets, as far as the bounds allow.
template <typename Visit>
void ForEachChunk(BlockReader& file, std::uint64_t from, std::uint64_t end, const Visit& visit) {
  while (from < end && end - from >= chunkHeaderSize && file.MayTakeChunk(from)) {
    const std::uint32_t type = file.Number(from);
    const std::uint64_t written = file.Number(from + 4);
    const std::uint64_t data = from + chunkHeaderSize;
    visit(Chunk{type, data, std::min(written, end - data)});
    from = data + written + written % 2;  // chunks start at even offsets
  }
}

// What a file declares about its steps. If there are several chunks of a kind, the largest counts: whichever of them
// the platform uses, it draws no more steps.
struct Findings {
  std::uint64_t headerPictures = 0;
  std::uint64_t headerSteps = 0;
  std::uint64_t sequenceEntries = 0;
  std::uint64_t maxEntry = 0;  // of the order: a picture's number, from 0
  std::uint64_t pictures = 0;
  int headers = 0;
  int sequences = 0;

  std::uint64_t StepCount() const { return sequences > 0 ? sequenceEntries : pictures; }
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
  std::uint64_t entry = 0;
  for (; entry < entries; ++entry) {
    const std::uint64_t offset = chunk.data + entry * sequenceEntrySize;
    if (!file.MayTakeEntry(offset)) break;
    findings.maxEntry = std::max<std::uint64_t>(findings.maxEntry, file.Number(offset));
  }
  findings.sequenceEntries = std::max(findings.sequenceEntries, entry);
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

bool HoldsWhatItSays(const Findings& findings) {
  // If there are two headers or orders, it is unknown which one the platform uses.
  const bool plain = findings.headers == 1 && findings.sequences <= 1;
  return plain && findings.headerPictures > 0 && findings.headerPictures <= findings.pictures &&
         findings.headerSteps > 0 && findings.headerSteps <= findings.StepCount() &&
         findings.maxEntry < findings.headerPictures;
}

}  // namespace

AnimationFacts InspectAnimation(ByteSource& source) {
  BlockReader file(source);
  const std::uint32_t start = file.Number(0);
  const std::uint64_t statedEnd = file.Number(4) + chunkHeaderSize;
  if (start != riffType || file.Number(chunkHeaderSize) != animationType) {
    return {.isStillCursor = start == stillCursorStart};
  }
  Findings findings;
  // The size that the file declares for itself is often wrong, so the bytes after it are examined too.
  ForEachChunk(file, chunkHeaderSize + listTypeSize, file.Size(),
               [&](const Chunk& chunk) { Note(file, chunk, findings); });
  const std::uint64_t steps = std::min(findings.headerSteps, findings.StepCount());
  const bool seen = file.StopOffset() >= std::min(statedEnd, file.Size());
  return {.maxSteps = static_cast<int>(steps), .holdsWhatItSays = seen && HoldsWhatItSays(findings)};
}

AnimationFacts AnimationLooks::Of(const std::string& path, ByteSource& file) {
  const FileStamp stamp = file.Stamp();
  const auto known = looks_.find(path);
  if (known != looks_.end() && known->second.stamp == stamp) return known->second.facts;
  if (looks_.size() >= maxLooks) looks_.clear();
  const AnimationFacts facts = InspectAnimation(file);
  looks_.insert_or_assign(path, Look{stamp, facts});
  return facts;
}

}  // namespace tarvik
