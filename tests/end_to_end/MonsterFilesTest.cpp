// Files that would cost a search far more than they are worth: it reads little of them, holds little memory and leaves
// no handle open. The program is also run with the shell of current Windows, so that its own reader of modules is used.

#include <windows.h>

#include <gmock/gmock.h>

#include <array>
#include <cstdio>
#include <functional>
#include <vector>

#include "damaged_files/Libraries.h"
#include "damaged_files/MonsterFiles.h"
#include "driver/Costs.h"
#include "driver/UnixProgram.h"
#include "end_to_end/EndToEndTest.h"
#include "end_to_end/TodaysProgram.h"
#include "platform/Holdings.h"
#include "platform/IconFiles.h"
#include "platform/Text.h"

namespace tarvik::end_to_end {
namespace {

using support::BitmapPicture;
using support::Bytes;
using support::IconPicture;
using ::testing::Contains;

constexpr std::uint64_t megabyte = std::uint64_t{1} << 20U;
constexpr std::uint64_t fiveGigabytes = 5 * 1024 * megabyte;

enum class Shell { OfThisMachine, OfCurrentWindows };

class MonsterFiles : public EndToEnd, public ::testing::WithParamInterface<Shell> {
 protected:
  // The system's libraries are loaded by a first search, which finds one icon.
  void StartAndFindOne() {
    if (GetParam() == Shell::OfCurrentWindows) TakeTodaysShell(program_);
    tree_.MakeFile("000.ico", support::IconFileOf(0xFF));
    Start();
    Tick({Ico, Ani, Icl, Dll, Exe});
    Find();
    ASSERT_EQ(List().RowCount(), 1);
  }
  // An intact file of each kind before and after the others in the order of a search.
  void MakeIntactFiles() {
    for (const char* name : {"aaa.ico", "zzz.ico"})
      intact_.push_back({tree_.MakeFile(name, support::IconFileOf(0xFF)), 0});
    for (const char* name : {"aaa.dll", "zzz.dll"}) {
      CopyThreeIcons(In(name));
      for (int index = 0; index < 3; ++index) intact_.push_back({In(name), index});
    }
  }
  void ExpectIntactFiles() const {
    const std::vector<Entry> entries = Entries();
    for (const Entry& entry : intact_) EXPECT_THAT(entries, Contains(entry));
  }

  // Does a search, and expects it to cost at most so much.
  void ExpectAtMost(std::uint64_t bytesRead, std::uint64_t memory, const std::function<void()>& search) {
    const Costs before = CostsOf(program_);
    const int handles = support::HeldBy(program_.Process()).kernelHandles;
    search();
    const Costs after = CostsOf(program_);
    std::printf("%llu bytes read, %llu bytes of memory more\n",
                static_cast<unsigned long long>(after.bytesRead - before.bytesRead),
                static_cast<unsigned long long>(after.peakMemory - before.peakMemory));
    EXPECT_LE(after.bytesRead - before.bytesRead, bytesRead);
    EXPECT_LE(after.peakMemory - before.peakMemory, memory);
    EXPECT_LE(support::HeldBy(program_.Process()).kernelHandles, handles + 2);
    EXPECT_FALSE(program_.FindBox());
  }

  // A search that lists the intact files.
  void FindAtMost(std::uint64_t bytesRead, std::uint64_t memory) {
    ExpectAtMost(bytesRead, memory, [this] { Find(); });
    ExpectIntactFiles();
  }

  std::vector<Entry> intact_;
};

// An icon file whose picture is said to be at that offset.
Bytes WithPictureAt(std::uint32_t offset) {
  Bytes file = support::IconFileOf(0xFF);
  constexpr std::size_t offsetField = 18;
  for (std::size_t i = 0; i < 4; ++i) file[offsetField + i] = static_cast<std::byte>(offset >> 8U * i);
  return file;
}

TEST_P(MonsterFiles, OfGigabytesAreHardlyRead) {
  StartAndFindOne();
  MakeIntactFiles();
  const std::array pictures{BitmapPicture(32, 4, 0x0000FF, 0xFF0000)};
  const Bytes library32 = support::Library(support::Bitness::Bits32, pictures).bytes;
  const Bytes library64 = support::Library(support::Bitness::Bits64, pictures).bytes;
  const Bytes library16 = support::SixteenBitLibrary(pictures).bytes;
  Bytes start(support::SixteenBitLibrary(pictures).bytes);
  start.resize(128);
  tree_.MakeSparseFile("icon.ico", support::IconFileOf(0xFF), fiveGigabytes);
  tree_.MakeSparseFile("far.ico", WithPictureAt(0xFFFFF000), fiveGigabytes);
  tree_.MakeSparseFile("entries.ico", support::ManyEntries(65'535), fiveGigabytes);
  tree_.MakeSparseFile("zeros.ico", Bytes(), fiveGigabytes);
  for (const char* extension : {".exe", ".dll", ".icl"}) {
    const std::string name = extension;
    tree_.MakeSparseFile("32" + name, library32, fiveGigabytes);
    tree_.MakeSparseFile("64" + name, library64, fiveGigabytes);
    tree_.MakeSparseFile("16" + name, library16, fiveGigabytes);
    tree_.MakeSparseFile("start" + name, start, fiveGigabytes);
    tree_.MakeSparseFile("zeros" + name, Bytes(), fiveGigabytes);
  }
  FindAtMost(megabyte, 16 * megabyte);
}

TEST_P(MonsterFiles, OfManyPartsAreHardlyRead) {
  StartAndFindOne();
  MakeIntactFiles();
  tree_.MakeFile("entries.ico", support::ManyEntries(65'535));
  tree_.MakeFile("entries.ani", support::ManyEntries(65'535));
  tree_.MakeFile("nested.ani", support::NestedLists(20'000));
  tree_.MakeFile("chunks.ani", support::ManyChunks(8'000'000));
  FindAtMost(megabyte, 16 * megabyte);
}

TEST_P(MonsterFiles, OfOneHugePictureAreHardlyRead) {
  StartAndFindOne();
  MakeIntactFiles();
  // Another program reads such a picture, if it is not as large.
  const std::string small = QuoteForUnix(ToWide(tree_.MakeFile("small.ico", support::LargePng(300))));
  EXPECT_EQ(
      RunUnix("icotool -x -o - " + small + " | convert png:- -depth 8 gray:- | od -An -v -tu1 -w1 | sort | uniq -c")
          .output,
      "  90000    0\n");
  const Bytes file = support::LargePng(30'000);
  tree_.MakeFile("huge.ico", file);
  tree_.MakeFile("huge.ani", file);
  FindAtMost(megabyte, 16 * megabyte);
}

TEST_P(MonsterFiles, OfMoreIconsThanASearchCountsAreToldAndHardlyRead) {
  StartAndFindOne();
  const std::vector pictures(65'535, BitmapPicture(16, 1, 0x0000FF, 0xFF0000));
  const std::string path = tree_.MakeFile("groups.dll", support::Library(support::Bitness::Bits64, pictures).bytes);
  ExpectAtMost(megabyte, 16 * megabyte, [&] { EXPECT_EQ(FindAndReadMessage(), "Overflow\r\n" + path); });
  EXPECT_THAT(Entries(), ::testing::IsEmpty());
}

INSTANTIATE_TEST_SUITE_P(EachShell, MonsterFiles, ::testing::Values(Shell::OfThisMachine, Shell::OfCurrentWindows),
                         [](const auto& row) {
                           return row.param == Shell::OfThisMachine ? "OfThisMachine" : "OfCurrentWindows";
                         });

}  // namespace
}  // namespace tarvik::end_to_end
