#include "search/icons/AnimationHeader.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <span>
#include <string>

#include "support/BytesInMemory.h"
#include "support/LongFile.h"

namespace tarvik {
namespace {

using support::BytesInMemory;
using support::LongFile;

// Reads beyond the end of the file are allowed: its chunks may claim more data than there is.
BytesInMemory FileOf(const std::string& bytes) {
  const auto view = std::as_bytes(std::span(bytes));
  return BytesInMemory({view.begin(), view.end()}, BytesInMemory::Strictness::None);
}

std::string Number(std::uint32_t number) {
  std::string bytes;
  for (int i = 0; i < 4; ++i, number /= 256) bytes += static_cast<char>(number % 256);
  return bytes;
}

// A chunk that states `size` for its data.
std::string Chunk(const std::string& type, const std::string& data, std::uint32_t size) {
  return type + Number(size) + data + (data.size() % 2 == 0 ? "" : std::string(1, '\0'));
}
std::string Chunk(const std::string& type, const std::string& data) {
  return Chunk(type, data, static_cast<std::uint32_t>(data.size()));
}

std::string Header(std::uint32_t pictures, std::uint32_t steps) {
  std::string data = Number(36) + Number(pictures) + Number(steps);
  for (const std::uint32_t field : {0U, 0U, 0U, 0U, 6U, 1U}) data += Number(field);
  return Chunk("anih", data);
}

std::string Pictures(int count) {
  std::string data = "fram";
  for (int i = 0; i < count; ++i) data += Chunk("icon", "odd");
  return Chunk("LIST", data);
}

std::string Sequence(int entries) {
  std::string data;
  for (int i = 0; i < entries; ++i) data += Number(0);
  return Chunk("seq ", data);
}

std::string Animation(const std::string& chunks) {
  return Chunk("RIFF", "ACON" + chunks);
}

int StepsOf(const std::string& bytes) {
  BytesInMemory file = FileOf(bytes);
  return InspectAnimation(file).maxSteps;
}

TEST(MaxAnimationSteps, CountsTheStepsOfTheHeader) {
  EXPECT_EQ(StepsOf(Animation(Header(8, 8) + Pictures(8))), 8);
  EXPECT_EQ(StepsOf(Animation(Header(8, 5) + Pictures(8))), 5);
}

TEST(MaxAnimationSteps, BelievesTheHeaderOnlyAsFarAsThereArePictures) {
  EXPECT_EQ(StepsOf(Animation(Header(8, 0xFFFFFFFF) + Pictures(3))), 3);
  EXPECT_EQ(StepsOf(Animation(Header(8, 8))), 0);
}

TEST(MaxAnimationSteps, LetsAnOrderRepeatPictures) {
  EXPECT_EQ(StepsOf(Animation(Header(2, 6) + Sequence(6) + Pictures(2))), 6);
  EXPECT_EQ(StepsOf(Animation(Header(2, 6) + Sequence(4) + Pictures(2))), 4);
  EXPECT_EQ(StepsOf(Animation(Header(9, 9) + Sequence(4) + Pictures(9))), 4);
}

TEST(MaxAnimationSteps, PassesOverOtherChunksAndTheirPadding) {
  const std::string info = Chunk("LIST", "INFO" + Chunk("icon", "x") + Chunk("IART", "me!"));
  EXPECT_EQ(StepsOf(Animation(info + Header(2, 7) + Chunk("rate", Number(6) + "x") + Pictures(2))), 2);
}

TEST(MaxAnimationSteps, FindsChunksAcrossTheBlocksThatAreRead) {
  for (std::size_t size = 4060; size < 4110; ++size) {
    EXPECT_EQ(StepsOf(Animation(Chunk("junk", std::string(size, 'j')) + Header(2, 2) + Pictures(2))), 2) << size;
  }
}

TEST(MaxAnimationSteps, IsNoneForAFileThatIsNoAnimation) {
  EXPECT_EQ(StepsOf(""), 0);
  EXPECT_EQ(StepsOf("RIFF"), 0);
  EXPECT_EQ(StepsOf(Chunk("RIFF", "WAVE" + Header(2, 2) + Pictures(2))), 0);
  EXPECT_EQ(StepsOf(std::string("\0\0\1\0\1\0", 6) + std::string(100, 'x')), 0);
  EXPECT_EQ(StepsOf("x" + Animation(Header(2, 2) + Pictures(2))), 0);
  EXPECT_EQ(StepsOf(Animation("")), 0);
}

TEST(MaxAnimationSteps, CountsWhatIsLeftOfAFileThatIsCutShort) {
  const std::string whole = Animation(Header(4, 4) + Pictures(4));
  const std::size_t pictureSize = 8 + 4;
  EXPECT_EQ(StepsOf(whole.substr(0, whole.size() - pictureSize)), 3);
  EXPECT_EQ(StepsOf(whole.substr(0, 12 + 8 + 36)), 0);
  const std::string sequence = Animation(Header(4, 4) + Sequence(4));
  EXPECT_EQ(StepsOf(sequence.substr(0, sequence.size() - 5)), 2) << "two whole entries are left";
  for (std::size_t size = 0; size <= whole.size(); ++size) EXPECT_LE(StepsOf(whole.substr(0, size)), 4);
}

TEST(MaxAnimationSteps, TrustsNoSizeThatTheFileStates) {
  const std::string header = Header(2, 2);
  EXPECT_EQ(StepsOf(Chunk("RIFF", "ACON" + header + Pictures(2), 0)), 2);
  EXPECT_EQ(StepsOf(Chunk("RIFF", "ACON" + header + Pictures(2), 0xFFFFFFFF)), 2);
  EXPECT_EQ(StepsOf(Animation(header + Chunk("LIST", "fram" + Chunk("icon", "ab", 0xFFFFFFFF), 0xFFFFFFFF))), 1);
  EXPECT_EQ(StepsOf(Animation(Header(2, 99) + Chunk("seq ", Number(0), 0xFFFFFFFE))), 1);
  EXPECT_EQ(StepsOf(Animation(Chunk("junk", "", 0xFFFFFFFF) + header + Pictures(2))), 0);
  EXPECT_EQ(StepsOf(Animation(header + Chunk("LIST", "fr", 2) + Pictures(2))), 2);
  EXPECT_EQ(StepsOf(Animation(Chunk("anih", Number(36)) + Pictures(2))), 0) << "a header without its step count";
}

TEST(MaxAnimationSteps, TakesTheLargestWhereAChunkStandsTwice) {
  EXPECT_EQ(StepsOf(Animation(Header(3, 1) + Header(3, 3) + Pictures(1) + Pictures(2))), 3);
  EXPECT_EQ(StepsOf(Animation(Header(3, 9) + Sequence(5) + Sequence(2) + Pictures(1))), 5);
}

TEST(MaxAnimationSteps, ReadsARunOfEmptyChunksInBlocks) {
  std::string chunks;
  for (int i = 0; i < 10000; ++i) chunks += Chunk("icon", "");
  BytesInMemory file = FileOf(Animation(Header(1, 0xFFFFFFFF) + Chunk("LIST", "fram" + chunks)));
  EXPECT_EQ(InspectAnimation(file).maxSteps, 10000);
  EXPECT_LE(file.reads, 25) << "about 80,000 bytes in blocks of 4,096";
}

TEST(MaxAnimationSteps, FindsNothingInAFileThatCannotBeRead) {
  BytesInMemory file = FileOf(Animation(Header(2, 2) + Pictures(2)));
  file.readsBeforeItFails = 0;
  EXPECT_EQ(InspectAnimation(file).maxSteps, 0);
}

bool IsWhole(const std::string& bytes) {
  BytesInMemory file = FileOf(bytes);
  return InspectAnimation(file).holdsWhatItSays;
}

TEST(HoldsWhatItSays, IsTrueOfAWholeAnimation) {
  EXPECT_TRUE(IsWhole(Animation(Header(8, 8) + Pictures(8))));
  EXPECT_TRUE(IsWhole(Animation(Header(2, 5) + Sequence(5) + Pictures(2))));
  EXPECT_TRUE(IsWhole(Animation(Header(2, 2) + Pictures(3))));
}

TEST(HoldsWhatItSays, IsFalseWhereTheHeaderSaysMoreThanThereIs) {
  EXPECT_FALSE(IsWhole(Animation(Header(3, 2) + Pictures(2)))) << "pictures";
  EXPECT_FALSE(IsWhole(Animation(Header(2, 3) + Pictures(2)))) << "steps";
  EXPECT_FALSE(IsWhole(Animation(Header(2, 6) + Sequence(5) + Pictures(2)))) << "steps in an order";
  EXPECT_FALSE(IsWhole(Animation(Header(2, 0x40000001) + Sequence(5) + Pictures(2))));
  EXPECT_FALSE(IsWhole(Animation(Header(0xFFFFFFFF, 2) + Pictures(2))));
}

TEST(HoldsWhatItSays, IsFalseWhereTheHeaderSaysThereIsNothing) {
  EXPECT_FALSE(IsWhole(Animation(Header(0, 5) + Sequence(5) + Pictures(2)))) << "no pictures";
  EXPECT_FALSE(IsWhole(Animation(Header(2, 0) + Pictures(2)))) << "no steps";
}

TEST(HoldsWhatItSays, IsFalseWhereTheOrderNamesAPictureThatIsNotThere) {
  const auto ordered = [](std::uint32_t picture) {
    return Animation(Header(2, 2) + Chunk("seq ", Number(0) + Number(picture)) + Pictures(2));
  };
  EXPECT_TRUE(IsWhole(ordered(1)));
  EXPECT_FALSE(IsWhole(ordered(2)));
  EXPECT_FALSE(IsWhole(ordered(0xFFFFFFFF)));
}

TEST(HoldsWhatItSays, IsFalseOfTwoHeadersOrOrders) {
  EXPECT_FALSE(IsWhole(Animation(Header(2, 2) + Header(2, 2) + Pictures(2))));
  EXPECT_FALSE(IsWhole(Animation(Header(2, 2) + Sequence(2) + Sequence(2) + Pictures(2))));
}

TEST(HoldsWhatItSays, IsFalseOfWhatIsNoAnimation) {
  EXPECT_FALSE(IsWhole(""));
  EXPECT_FALSE(IsWhole(Animation("")));
  EXPECT_FALSE(IsWhole(Animation(Header(0, 0))));
  EXPECT_FALSE(IsWhole(Chunk("RIFF", "WAVE" + Header(2, 2) + Pictures(2))));
}

bool IsStillCursor(const std::string& bytes) {
  BytesInMemory file = FileOf(bytes);
  return InspectAnimation(file).isStillCursor;
}

TEST(InspectAnimation, KnowsAStillCursorByItsStart) {
  EXPECT_TRUE(IsStillCursor(std::string("\0\0\2\0\1\0", 6)));
  EXPECT_TRUE(IsStillCursor(std::string("\0\0\2\0", 4)));
  EXPECT_FALSE(IsStillCursor(std::string("\0\0\2", 3) + "x"));
  EXPECT_FALSE(IsStillCursor(std::string("\0\0\1\0\1\0", 6))) << "an icon";
  EXPECT_FALSE(IsStillCursor(Animation(Header(2, 2) + Pictures(2))));
  EXPECT_FALSE(IsStillCursor(""));
}

constexpr std::uint64_t fiveGigabytes = std::uint64_t{5} << 30U;

// Each run of eight zeros is a chunk without data. A file of 512 MB once took a search 14 seconds, and with one of 5 GB
// it did not end.
TEST(InspectAnimation, LooksAtSoManyChunksAndNoMore) {
  LongFile file(fiveGigabytes, "RIFF" + Number(0xFFFFFFFF) + "ACON" + Header(2, 2) + Pictures(2));
  const AnimationFacts facts = InspectAnimation(file);
  EXPECT_EQ(facts.maxSteps, 2);
  EXPECT_FALSE(facts.holdsWhatItSays) << "it goes on beyond what was read";
  EXPECT_LE(file.bytesRead, maxAnimationChunks * 8U + 4096);
}

TEST(InspectAnimation, LooksAtSoManyEntriesOfAnOrderAndNoMore) {
  const std::string start = Header(2, 0x40000000) + Pictures(2) + "seq " + Number(0xFFFFFFFC);
  LongFile file(fiveGigabytes, "RIFF" + Number(0xFFFFFFFF) + "ACON" + start);
  const AnimationFacts facts = InspectAnimation(file);
  EXPECT_EQ(facts.maxSteps, maxSequenceEntries);
  EXPECT_FALSE(facts.holdsWhatItSays);
  EXPECT_LE(file.bytesRead, maxSequenceEntries * 4U + maxAnimationChunks * 8U + 4 * 4096);
}

// A file with its chunks so far apart that each costs a block.
class FarApart : public LongFile {
 public:
  FarApart() : LongFile(fiveGigabytes, "RIFF" + Number(0xFFFFFFFF) + "ACON") {}
  bool Read(std::uint64_t offset, std::span<std::byte> bytes) override {
    if (!LongFile::Read(offset, bytes)) return false;
    const std::uint64_t start = span - 1 - (offset + span - 1 - firstChunk) % span;
    const std::string chunk = "icon" + Number(span - 8);
    if (start + chunk.size() > bytes.size()) return true;
    std::copy_n(reinterpret_cast<const std::byte*>(chunk.data()), chunk.size(), &bytes[start]);
    return true;
  }

 private:
  static constexpr std::uint32_t firstChunk = 12;
  static constexpr std::uint32_t span = 40'960;
};

TEST(InspectAnimation, ReadsSoManyBytesAndNoMore) {
  FarApart file;
  EXPECT_FALSE(InspectAnimation(file).holdsWhatItSays);
  EXPECT_LE(file.bytesRead, maxAnimationBytes);
  EXPECT_GT(file.bytesRead, maxAnimationBytes - 8192) << "the chunks are not as far apart as meant";
}

// Lists inside lists are chunks like others: none is entered, so a picture in them is none of the animation's.
TEST(InspectAnimation, ReadsNestedListsOnceHoweverDeepTheyAre) {
  constexpr std::uint32_t depth = 20'000;
  const std::string picture = Chunk("icon", "even");
  const auto pictureSize = static_cast<std::uint32_t>(picture.size());
  std::string lists;
  for (std::uint32_t left = depth; left > 0; --left) lists += "LIST" + Number(12 * left - 8 + pictureSize) + "fram";
  BytesInMemory file = FileOf(Animation(Header(1, 1) + lists + picture));
  EXPECT_EQ(InspectAnimation(file).maxSteps, 0);
  EXPECT_LE(file.bytesRead, lists.size() + 2 * 4096);
}

TEST(InspectAnimation, ReadsNoMoreOfEightMillionChunksThanItMayLookAt) {
  constexpr std::size_t chunks = 8'000'000;
  std::string many;
  many.reserve(8 * chunks);
  for (std::size_t i = 0; i < chunks; ++i) many.append("junk\0\0\0\0", 8);
  BytesInMemory file = FileOf(Animation(Header(1, 1) + many + Pictures(1)));
  const AnimationFacts facts = InspectAnimation(file);
  EXPECT_EQ(facts.maxSteps, 0) << "the picture is beyond what was read";
  EXPECT_FALSE(facts.holdsWhatItSays);
  EXPECT_LE(file.bytesRead, maxAnimationChunks * 8U + 4096);
}

TEST(InspectAnimation, BelievesAnAnimationWithALongTailBehindItsStatedSize) {
  LongFile file(fiveGigabytes, Animation(Header(3, 3) + Pictures(3)));
  const AnimationFacts facts = InspectAnimation(file);
  EXPECT_EQ(facts.maxSteps, 3);
  EXPECT_TRUE(facts.holdsWhatItSays);
}

TEST(InspectAnimation, BelievesAsManyStepsAsASearchLists) {
  // Pictures far apart: each costs a block.
  std::string pictures = "fram";
  for (int i = 0; i < 4000; ++i) pictures += Chunk("icon", std::string(5000, 'p'));
  EXPECT_TRUE(IsWhole(Animation(Header(4000, 4000) + Chunk("LIST", pictures))));
}

TEST(AnimationLooks, LookThroughAFileOnceAsLongAsItStaysAsItIs) {
  AnimationLooks looks;
  BytesInMemory file = FileOf(Animation(Header(2, 2) + Pictures(2)));
  EXPECT_EQ(looks.Of("a.ani", file).maxSteps, 2);
  const int reads = file.reads;
  ASSERT_GT(reads, 0);
  EXPECT_EQ(looks.Of("a.ani", file).maxSteps, 2);
  EXPECT_TRUE(looks.Of("a.ani", file).holdsWhatItSays);
  EXPECT_EQ(file.reads, reads);
}

TEST(AnimationLooks, LookAgainAtAFileOfAnotherSizeOrTime) {
  AnimationLooks looks;
  BytesInMemory former = FileOf(Animation(Header(2, 2) + Pictures(2)));
  ASSERT_EQ(looks.Of("a.ani", former).maxSteps, 2);
  BytesInMemory longer = FileOf(Animation(Header(3, 3) + Pictures(3)));
  EXPECT_EQ(looks.Of("a.ani", longer).maxSteps, 3);
  BytesInMemory rewritten = FileOf(Animation(Header(3, 1) + Pictures(3)));
  rewritten.written = 1;
  EXPECT_EQ(looks.Of("a.ani", rewritten).maxSteps, 1);
  BytesInMemory other = FileOf(Animation(Header(3, 3) + Pictures(3)));
  EXPECT_EQ(looks.Of("b.ani", other).maxSteps, 3) << "another file of the same size and time";
}

TEST(AnimationLooks, ForgetWhatTheyAreToldToForget) {
  AnimationLooks looks;
  BytesInMemory file = FileOf(Animation(Header(2, 2) + Pictures(2)));
  looks.Of("a.ani", file);
  const int reads = file.reads;
  looks.Forget();
  looks.Of("a.ani", file);
  EXPECT_GT(file.reads, reads);
}

}  // namespace
}  // namespace tarvik
