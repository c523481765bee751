// Libraries of icons for 16-bit Windows, in the program as it is on current Windows, whose shell finds no icon in them.
// The tests' own shell is Wine's, which does find them: it provides the expected icons.

#include <windows.h>

#include <gmock/gmock.h>

#include <algorithm>
#include <sstream>

#include "damaged_files/Libraries.h"
#include "driver/SeenFiles.h"
#include "driver/UnixProgram.h"
#include "end_to_end/GridByHand.h"
#include "end_to_end/SavingTest.h"
#include "end_to_end/TodaysProgram.h"
#include "end_to_end/ViewByHand.h"
#include "platform/PastedPicture.h"
#include "platform/Text.h"
#include "search/icons/RandomModules.h"
#include "view/Zoom.h"

namespace tarvik::end_to_end {

namespace {

using support::BitmapPicture;
using support::IconPicture;
using support::SixteenBitLibrary;
using ::testing::SizeIs;

// One icon of each depth.
support::Bytes EveryDepth() {
  std::vector<IconPicture> pictures;
  for (const int bits : {1, 4, 8, 24, 32}) pictures.push_back(BitmapPicture(32, bits, 0x2040C0, 0x30B010));
  return SixteenBitLibrary(pictures).bytes;
}

class ModulesInTheGrid : public GridPicture, public ::testing::WithParamInterface<Geometry> {};

TEST_P(ModulesInTheGrid, AreShownAsAShellThatReadsThemDrawsThem) {
  for (const char* name : {"a.icl", "b.exe", "c.dll", "d.ocx"}) tree_.MakeFile(name, EveryDepth());
  for (std::uint32_t number = 0; number < 10; ++number)
    tree_.MakeFile("random" + std::to_string(number) + ".icl", support::MakeRandomModule(number).bytes);
  CopyThreeIcons(In("three.dll"));  // in which the shell finds icons
  tree_.MakeFile("other.fon", EveryDepth());
  TakeTodaysShell(program_);
  Start();
  Tick({AllFiles});
  ChooseSize(GetParam().choice);
  Find();
  ASSERT_GT(Entries().size(), 33U);
  EXPECT_EQ(std::ranges::count(Entries(), In("a.icl"), &Entry::path), 5);
  EXPECT_EQ(std::ranges::count(Entries(), In("other.fon"), &Entry::path), 0);
  EXPECT_TRUE(Shows(*ExpectedPicture(GetParam()), 0));
}

INSTANTIATE_TEST_SUITE_P(Sizes, ModulesInTheGrid, ::testing::ValuesIn(geometries));

class SavedModules : public Saving {
 protected:
  void FindModule() {
    std::vector<IconPicture> icons;
    icons.reserve(pictures.size());
    for (const Picture& picture : pictures)
      icons.push_back(BitmapPicture(32, picture.bits, picture.left, picture.right));
    tree_.MakeFile("pictures.icl", SixteenBitLibrary(icons).bytes);
    tree_.MakeFolder(outName);
    TakeTodaysShell(program_);
    Start();
    Tick({Icl});
    FindAll();
  }
};

TEST_F(SavedModules, HaveTheirIconsSavedAndCopied) {
  FindModule();
  SaveBatch(FrmFindIcon_mnuSaveAll);
  SaveBatch(FrmFindIcon_mnuSaveAll2);
  ExpectAsFound();
  auto files = SeeFiles(Out());
  EXPECT_THAT(files, SizeIs(10));
  for (int entry = 0; entry < 5; ++entry) {
    const std::string number = std::to_string(entry + 1);
    EXPECT_EQ(files["Icon " + number + ".ico"].pixels, IconPixels(entry)) << entry;
    EXPECT_EQ(files["Images " + number + ".bmp"].pixels, BitmapPixels(entry)) << entry;
    ClickCell(entry);
    EmptyTheClipboard();
    program_.Command(FrmFindIcon_mnuCopy);
    EXPECT_TRUE(Eventually([&] {
      Pixels pasted;
      for (const Color color : support::Paste().pixels) pasted.push_back(0xFF000000U | color);
      return pasted == ComposedPixels(entry);
    })) << entry;
  }
}

class ViewedModules : public ViewByHand {};

TEST_F(ViewedModules, HaveTheirIconsShownEnlarged) {
  const std::string path = tree_.MakeFile("a.icl", EveryDepth());
  TakeTodaysShell(program_);
  Start();
  Tick({Icl});
  Find();
  ASSERT_EQ(List().RowCount(), 5);
  const EnhancedView view = OpenOn(1);
  for (int index = 0; index < 5; ++index) {
    const auto isShown = [&] { return view.Status() == path + " - " + std::to_string(index); };
    if (index != 0) ClickUntil(view, frmBit_tlb_control_MoveNext, isShown);
    EXPECT_TRUE(isShown()) << view.Status();
    ExpectPicture(view, {path, index}, 32, openingZoom);
  }
}

class CountedModules : public EndToEnd {};

TEST_F(CountedModules, HaveAsManyIconsAsAnotherProgramCounts) {
  for (std::uint32_t number = 0; number < 60; ++number)
    tree_.MakeFile("m" + std::to_string(number) + ".icl", support::MakeRandomModule(number).bytes);
  const UnixAnswer answer =
      RunUnix("cd " + QuoteForUnix(ToWide(tree_.Path())) +
              " && for f in *.icl; do echo \"$f $(wrestool -l --type=group_icon $f 2>/dev/null | wc -l)\"; done");
  ASSERT_EQ(answer.exitCode, 0) << answer.output;
  TakeTodaysShell(program_);
  Start();
  Tick({Icl});
  ChooseSize(Size16);
  SetLimit("4000");
  Find();
  const auto entries = Entries();
  std::istringstream lines(answer.output);
  std::string name;
  int modules = 0;
  for (int count = 0; lines >> name >> count; ++modules) {
    EXPECT_EQ(std::ranges::count(entries, In(name), &Entry::path), count) << name;
  }
  EXPECT_EQ(modules, 60);
}

}  // namespace
}  // namespace tarvik::end_to_end
