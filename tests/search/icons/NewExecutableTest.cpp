#include "search/icons/NewExecutable.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <utility>
#include <vector>

#include "search/icons/Modules.h"
#include "support/BytesInMemory.h"
#include "support/LongFile.h"

namespace tarvik {
namespace {

using support::BytesInMemory;
using support::LongFile;
using support::MakeModule;
using support::ModuleIcon;
using support::ModuleLayout;
using support::ModulePicture;
using support::PlainBitmap;
using support::PlainIcons;
using Bytes = std::vector<std::byte>;

constexpr std::size_t headerOffsetField = 0x3C;  // of the first header
constexpr std::size_t table = support::tableOfModule;
constexpr std::size_t header = support::newHeaderOfModule;
// In a plain module, the entries of pictures and groups: after the shift and the start of the first type.
constexpr std::size_t firstPicture = table + 2 + 8;
constexpr std::size_t entrySize = 12;

std::size_t FirstGroup(std::size_t pictures) {
  return firstPicture + entrySize * pictures + 8;
}

Bytes With(Bytes bytes, std::size_t offset, std::uint32_t number, std::size_t width = 2) {
  for (std::size_t i = 0; i < width; ++i) bytes[offset + i] = static_cast<std::byte>(number >> (8 * i));
  return bytes;
}

std::uint32_t U16(const Bytes& bytes, std::size_t offset) {
  return std::to_integer<std::uint32_t>(bytes[offset]) | std::to_integer<std::uint32_t>(bytes[offset + 1]) << 8U;
}

Bytes Cut(Bytes bytes, std::size_t size) {
  bytes.resize(size);
  return bytes;
}

ModulePicture Picture(int size, int bits, std::uint8_t mark) {
  return {size, size, bits, PlainBitmap(size, size, bits, mark)};
}

int CountOf(const Bytes& bytes) {
  BytesInMemory file(bytes);
  return NewExecutable(file, bytes.size()).IconCount();
}

Bytes PictureOf(const Bytes& bytes, int index, const IconWish& wish = {}) {
  BytesInMemory file(bytes);
  return NewExecutable(file, bytes.size()).Picture(file, index, wish);
}

// The mark of the picture that is found for an icon; -1 if there is none.
int MarkOf(const Bytes& bytes, int index, const IconWish& wish = {}) {
  const Bytes picture = PictureOf(bytes, index, wish);
  return picture.empty() ? -1 : std::to_integer<int>(picture.at(40));
}

std::vector<int> Marks(const Bytes& bytes) {
  std::vector<int> marks(static_cast<std::size_t>(CountOf(bytes)));
  for (std::size_t index = 0; index < marks.size(); ++index) marks[index] = MarkOf(bytes, static_cast<int>(index));
  return marks;
}

TEST(NewExecutable, HasItsGroupsInTheOrderOfTheTable) {
  EXPECT_EQ(Marks(MakeModule(PlainIcons(1))), (std::vector{1}));
  EXPECT_EQ(Marks(MakeModule(PlainIcons(5))), (std::vector{1, 2, 3, 4, 5}));
  EXPECT_EQ(CountOf(MakeModule(PlainIcons(200))), 200);
}

TEST(NewExecutable, HasItsTypesInAnyOrderAmongOthers) {
  for (const bool groupsFirst : {false, true}) {
    const ModuleLayout layout{.groupsFirst = groupsFirst, .otherResources = true};
    EXPECT_EQ(Marks(MakeModule(PlainIcons(3), layout)), (std::vector{1, 2, 3})) << groupsFirst;
  }
}

TEST(NewExecutable, HasNamedGroupsToo) {
  std::vector<ModuleIcon> icons = PlainIcons(3);
  icons[1].name = "A NAME";
  EXPECT_EQ(Marks(MakeModule(icons)), (std::vector{1, 2, 3}));
}

TEST(NewExecutable, FindsResourcesAtEveryAlignment) {
  for (unsigned shift = 0; shift <= 15; ++shift) {
    EXPECT_EQ(Marks(MakeModule(PlainIcons(3), {.shift = shift})), (std::vector{1, 2, 3})) << shift;
  }
  // Offsets that need more than 16 bits.
  std::vector<ModuleIcon> icons = PlainIcons(2);
  icons.insert(icons.begin() + 1, {.pictures = {{255, 255, 32, Bytes(70'000)}}});
  EXPECT_EQ(Marks(MakeModule(icons, {.shift = 9})), (std::vector{1, -1, 2}));
}

TEST(NewExecutable, HasNoIconsAtAnAlignmentThatIsNone) {
  const Bytes module = MakeModule(PlainIcons(1), {.shift = 15});
  EXPECT_EQ(CountOf(module), 1);
  EXPECT_EQ(CountOf(MakeModule(PlainIcons(1), {.shift = 16})), 0);
  for (const std::uint32_t shift : {16U, 32U, 64U, 0x100U, 0xFFFFU}) EXPECT_EQ(CountOf(With(module, table, shift)), 0);
}

TEST(NewExecutable, GivesThePictureThatSuitsBest) {
  const std::vector<ModuleIcon> icons{
      {.pictures = {Picture(16, 4, 1), Picture(32, 1, 2), Picture(32, 4, 3), Picture(48, 8, 4)}},
      {.pictures = {Picture(40, 4, 5), Picture(16, 8, 6)}}};
  const Bytes module = MakeModule(icons);
  EXPECT_EQ(MarkOf(module, 0), 3);
  EXPECT_EQ(MarkOf(module, 0, {.width = 32, .height = 32, .bits = 1}), 2);
  EXPECT_EQ(MarkOf(module, 0, {.width = 48, .height = 48, .bits = 32}), 4);
  EXPECT_EQ(MarkOf(module, 1), 5);
  EXPECT_EQ(MarkOf(module, 1, {.width = 16, .height = 16, .bits = 32}), 6);
}

TEST(NewExecutable, GivesTheWholePicture) {
  const Bytes bitmap = PlainBitmap(32, 32, 8, 77);
  Bytes found = PictureOf(MakeModule(std::vector<ModuleIcon>{{.pictures = {{32, 32, 8, bitmap}}}}, {.shift = 0}), 0);
  EXPECT_EQ(found, bitmap);
}

TEST(NewExecutable, FindsResourcesThatShareTheirBytesOrOverlap) {
  std::vector<ModuleIcon> icons = PlainIcons(3);
  icons.push_back(icons[0]);
  EXPECT_EQ(Marks(MakeModule(icons, {.sharedData = true})), (std::vector{1, 2, 3, 1}));
  EXPECT_EQ(Marks(MakeModule(icons, {.overlappingData = true})), (std::vector{1, 2, 3, 1}));
  // Two groups at one offset.
  const Bytes module = MakeModule(PlainIcons(2));
  const std::size_t group = FirstGroup(2);
  EXPECT_EQ(Marks(With(module, group + entrySize, U16(module, group))), (std::vector{1, 1}));
}

TEST(NewExecutable, IsNoneWithoutItsTwoHeaders) {
  const Bytes module = MakeModule(PlainIcons(2));
  EXPECT_EQ(CountOf({}), 0);
  EXPECT_EQ(CountOf(With(module, 0, 0x4D5A)), 0) << "ZM";
  EXPECT_EQ(CountOf(With(module, header, 0x4550)), 0) << "PE";
  EXPECT_EQ(CountOf(With(module, header, 0x454C)), 0) << "LE";
  EXPECT_EQ(CountOf(With(module, headerOffsetField, 0, 4)), 0);
  EXPECT_EQ(CountOf(With(module, headerOffsetField, 0xFFFFFFFF, 4)), 0);
  EXPECT_EQ(CountOf(With(module, headerOffsetField, header + 0x10000, 4)), 0);
  EXPECT_EQ(CountOf(With(module, headerOffsetField, header + 0x1000000, 4)), 0);
  const auto size = static_cast<std::uint32_t>(module.size());
  for (const std::uint32_t start : {size, size - 1, size - 63}) {
    EXPECT_EQ(CountOf(With(module, headerOffsetField, start, 4)), 0) << start;
  }
}

// The new header may be anywhere, even at the very end or inside the other one.
TEST(NewExecutable, IsFoundWhereTheFirstHeaderSays) {
  const Bytes module = MakeModule(PlainIcons(2));
  Bytes moved = module;
  const std::size_t offset = moved.size();
  moved.insert(moved.end(), module.begin() + header, module.begin() + header + 64);
  moved = With(moved, headerOffsetField, static_cast<std::uint32_t>(offset), 4);
  EXPECT_EQ(CountOf(moved), 0) << "its table would be beyond the end";
  const Bytes tableBytes(module.begin() + table, module.end());
  moved.insert(moved.end(), tableBytes.begin(), tableBytes.end());
  EXPECT_EQ(Marks(moved), (std::vector{1, 2}));
}

TEST(NewExecutable, HasNoIconsWithoutATable) {
  const Bytes module = MakeModule(PlainIcons(2));
  EXPECT_EQ(CountOf(With(module, header + 0x24, 0xFFFF)), 0);
  EXPECT_EQ(CountOf(With(module, header + 0x26, 0x40)), 0) << "the names are where the table is";
  EXPECT_EQ(CountOf(With(module, header + 0x26, 0x39)), 0);
  EXPECT_EQ(CountOf(With(module, header + 0x26, 0x41)), 0) << "a table of one byte";
  EXPECT_EQ(CountOf(With(module, header + 0x26, 0x42)), 0);
  EXPECT_EQ(CountOf(MakeModule({})), 0);
}

TEST(NewExecutable, TakesNothingBehindTheEndOfItsTable) {
  const Bytes module = MakeModule(PlainIcons(3));
  const auto ending = [&](std::size_t offset) {
    return CountOf(With(module, header + 0x26, static_cast<std::uint32_t>(offset - header)));
  };
  const std::size_t groups = FirstGroup(3);
  EXPECT_EQ(ending(groups + 3 * entrySize), 3);
  EXPECT_EQ(ending(groups + 3 * entrySize - 1), 2);
  EXPECT_EQ(ending(groups + entrySize), 1);
  EXPECT_EQ(ending(groups), 0);
  EXPECT_EQ(ending(groups - 1), 0);
  // A table that claims to be longer than its file.
  EXPECT_EQ(CountOf(With(Cut(module, groups + 2 * entrySize), header + 0x26, 0xFFFF)), 0) << "its data is gone";
}

TEST(NewExecutable, EndsItsTableAtATypeOfZero) {
  const Bytes module = MakeModule(PlainIcons(3));
  EXPECT_EQ(CountOf(With(module, FirstGroup(3) - 8, 0)), 0);
  EXPECT_EQ(CountOf(With(module, firstPicture - 8, 0)), 0);
  // The groups come after it: after two other resources, then the pictures, and a type between.
  const Bytes mixed = MakeModule(PlainIcons(3), {.otherResources = true});
  const std::size_t between = table + 2 + 8 + 2 * entrySize + 8 + 3 * entrySize;
  ASSERT_EQ(U16(mixed, between) & 0x8000U, 0U) << "a type with a name";
  EXPECT_EQ(CountOf(mixed), 3);
  EXPECT_EQ(CountOf(With(mixed, between, 0)), 0);
  EXPECT_EQ(CountOf(With(mixed, between, 1)), 3);
}

TEST(NewExecutable, HasNoMoreIconsThanThereIsRoomForInItsTable) {
  const Bytes module = MakeModule(PlainIcons(3));
  const std::size_t count = FirstGroup(3) - 6;
  EXPECT_EQ(CountOf(With(module, count, 2)), 2);
  EXPECT_EQ(CountOf(With(module, count, 0)), 0);
  // The names after the table are then read as entries, if there are enough bytes for one.
  const Bytes exact = With(module, header + 0x26, static_cast<std::uint32_t>(FirstGroup(3) + 3 * entrySize - header));
  EXPECT_EQ(CountOf(With(exact, count, 0xFFFF)), 3);
}

TEST(NewExecutable, HasNoIconsWithoutPictures) {
  const Bytes module = MakeModule(PlainIcons(3));
  EXPECT_EQ(CountOf(With(module, firstPicture - 8, 0x8002)), 0);
  EXPECT_EQ(CountOf(With(module, firstPicture - 8, 3)), 0) << "the offset of a name, not a number";
  EXPECT_EQ(CountOf(With(module, FirstGroup(3) - 8, 14)), 0);
}

TEST(NewExecutable, HasTheIconsBeforeAGroupBehindItsEnd) {
  const Bytes module = MakeModule(PlainIcons(4));
  const auto units = static_cast<std::uint32_t>(module.size() / 16);
  ASSERT_EQ(module.size() % 16, 0U);
  EXPECT_EQ(Marks(With(module, FirstGroup(4) + 2 * entrySize, units)), (std::vector{1, 2}));
  EXPECT_EQ(CountOf(With(module, FirstGroup(4) + 2 * entrySize, units - 1)), 4) << "the last unit is there";
  EXPECT_EQ(CountOf(With(module, FirstGroup(4), 0xFFFF)), 0);
  // If the groups come first, the pictures are found all the same.
  const Bytes turned = MakeModule(PlainIcons(4), {.groupsFirst = true});
  EXPECT_EQ(Marks(With(turned, firstPicture + entrySize, 0xFFFF)), (std::vector{1}));
}

TEST(NewExecutable, LacksAPictureBehindItsEndAndNoOther) {
  const Bytes module = MakeModule(PlainIcons(4));
  EXPECT_EQ(Marks(With(module, firstPicture + entrySize, 0xFFFF)), (std::vector{1, -1, 3, 4}));
}

TEST(NewExecutable, TakesALastPictureThatIsNotFilledUp) {
  const ModuleLayout layout{.shift = 9, .groupsFirst = true};
  const std::size_t size = PlainBitmap(16, 16, 1).size();
  const Bytes module = MakeModule(PlainIcons(2), layout);
  const std::size_t end = module.size() - 512 + size;
  EXPECT_EQ(Marks(Cut(module, end)), (std::vector{1, 2}));
  EXPECT_EQ(PictureOf(Cut(module, end), 1).size(), size);
  EXPECT_EQ(Marks(Cut(module, end - 1)), (std::vector{1, -1}));
}

TEST(NewExecutable, HasNoIconOfAnotherIndex) {
  const Bytes module = MakeModule(PlainIcons(2));
  EXPECT_EQ(MarkOf(module, -1), -1);
  EXPECT_EQ(MarkOf(module, 2), -1);
  EXPECT_EQ(MarkOf(module, 1'000'000), -1);
}

TEST(NewExecutable, FindsAPictureByItsNumber) {
  const Bytes module = MakeModule(PlainIcons(3));
  const auto numbered = [&](std::size_t picture, std::uint32_t id) {
    return Marks(With(module, firstPicture + entrySize * picture + 6, id));
  };
  EXPECT_EQ(numbered(0, 0x8009), (std::vector{-1, 2, 3}));
  EXPECT_EQ(numbered(1, 2), (std::vector{1, -1, 3})) << "the offset of a name, not a number";
  EXPECT_EQ(numbered(1, 0x8001), (std::vector{1, -1, 3})) << "the first of two";
}

TEST(NewExecutable, GivesNothingForAGroupThatIsNone) {
  const Bytes module = MakeModule(PlainIcons(2));
  const std::size_t group = FirstGroup(2);
  EXPECT_EQ(Marks(With(module, group, 0)), (std::vector{-1, 2})) << "the DOS header";
  EXPECT_EQ(Marks(With(module, group + 2, 0)), (std::vector{-1, 2})) << "of no length";
  EXPECT_EQ(Marks(With(module, group + 2, 1)), (std::vector{-1, 2})) << "its only entry is cut off";
}

TEST(NewExecutable, GivesNothingForAPictureThatIsNone) {
  std::vector<ModuleIcon> icons = PlainIcons(3);
  icons[0].pictures[0].data.assign(5000, std::byte{0x55});
  icons[1].pictures[0].data.resize(60);
  EXPECT_EQ(Marks(MakeModule(icons, {.shift = 0})), (std::vector{-1, -1, 3}));
}

TEST(NewExecutable, ReadsItsHeadersAndItsTableOnce) {
  const Bytes module = MakeModule(PlainIcons(20), {.otherResources = true});
  BytesInMemory file(module);
  const NewExecutable executable(file, module.size());
  const std::size_t tableSize = U16(module, header + 0x26) - 0x40U;
  EXPECT_EQ(file.bytesRead, 512 + tableSize);
  // For an icon, its group, whose start is read first, and its picture.
  file.bytesRead = 0;
  const std::size_t picture = executable.Picture(file, 7, {}).size();
  EXPECT_EQ(file.bytesRead, 6 + 20 + picture);
}

TEST(NewExecutable, ReadsTheHeadersAloneOfAFileThatIsNoModule) {
  const auto readOf = [](const Bytes& bytes) {
    BytesInMemory file(bytes);
    EXPECT_EQ(NewExecutable(file, bytes.size()).IconCount(), 0);
    return file.bytesRead;
  };
  EXPECT_EQ(readOf({}), 0U);
  EXPECT_EQ(readOf(Bytes(5000, std::byte{'x'})), 512U);
  EXPECT_EQ(readOf(Bytes(100, std::byte{'x'})), 100U);
  EXPECT_EQ(readOf(With(MakeModule(PlainIcons(20)), header, 0x4550)), 512U);
  // The new header is in the first block; if not, it is read separately.
  const Bytes library = With(Bytes(5000), 0, 0x5A4D);
  EXPECT_EQ(readOf(With(library, headerOffsetField, 512 - 64, 4)), 512U);
  EXPECT_EQ(readOf(With(library, headerOffsetField, 512 - 63, 4)), 512U + 64U);
  EXPECT_EQ(readOf(With(library, headerOffsetField, 5000 - 64, 4)), 512U + 64U);
  EXPECT_EQ(readOf(With(library, headerOffsetField, 5000 - 63, 4)), 512U);
}

TEST(NewExecutable, ReadsNoMoreOfAPictureThanAnyHas) {
  std::vector<ModuleIcon> icons = PlainIcons(1);
  icons[0].pictures[0].data.resize(3'000'000);
  const Bytes module = MakeModule(icons, {.shift = 9});
  BytesInMemory file(module);
  const NewExecutable executable(file, module.size());
  file.bytesRead = 0;
  EXPECT_EQ(executable.Picture(file, 0, {}).size(), maxPictureBytes);
  EXPECT_EQ(file.bytesRead, 6 + 20 + maxPictureBytes);
}

TEST(NewExecutable, ReadsAsLittleOfAFileOfGigabytes) {
  constexpr std::uint64_t fiveGigabytes = std::uint64_t{5} << 30U;
  const Bytes module = MakeModule(PlainIcons(20));
  const auto longFile = [](const Bytes& bytes) {
    return LongFile(fiveGigabytes, {reinterpret_cast<const char*>(bytes.data()), bytes.size()});
  };
  LongFile intact = longFile(module);
  EXPECT_EQ(NewExecutable(intact, fiveGigabytes).IconCount(), 20);
  EXPECT_LT(intact.bytesRead, module.size());

  // A table that claims 65,535 groups and goes on as far as a table can.
  const std::size_t groups = FirstGroup(20) - 8;
  LongFile endless = longFile(With(With(module, groups + 2, 0xFFFF), header + 0x26, 0xFFFF));
  const NewExecutable executable(endless, fiveGigabytes);
  EXPECT_GT(executable.IconCount(), 5000) << "the zeros after the table count as groups";
  EXPECT_LE(executable.IconCount(), 65'535 / 12);
  EXPECT_LE(endless.bytesRead, 512U + 65'535U);
  endless.bytesRead = 0;
  EXPECT_TRUE(executable.Picture(endless, executable.IconCount() - 1, {}).empty());
  EXPECT_LE(endless.bytesRead, 12U);
}

TEST(NewExecutable, HasNoIconsWhereTheFileCannotBeRead) {
  const Bytes module = MakeModule(PlainIcons(2));
  for (int reads = 0; reads < 2; ++reads) {
    BytesInMemory file(module);
    file.readsBeforeItFails = reads;
    EXPECT_EQ(NewExecutable(file, module.size()).IconCount(), 0) << reads;
  }
  for (int reads = 0; reads < 3; ++reads) {
    BytesInMemory file(module);
    const NewExecutable executable(file, module.size());
    file.readsBeforeItFails = reads;
    EXPECT_TRUE(executable.Picture(file, 0, {}).empty()) << reads;
  }
}

TEST(NewExecutable, HasTheIconsThatAreLeftWhereTheFileIsCutOff) {
  const Bytes module = MakeModule(PlainIcons(5), {.shift = 2, .otherResources = true});
  int before = 0;
  for (std::size_t size = 0; size <= module.size(); ++size) {
    const Bytes part = Cut(module, size);
    const int count = CountOf(part);
    EXPECT_GE(count, before) << size;
    // The group of the last icon may be cut off.
    for (int index = 0; index < count - 1; ++index) EXPECT_EQ(MarkOf(part, index), index + 1);
    before = count;
  }
  EXPECT_EQ(before, 5);
}

}  // namespace
}  // namespace tarvik
