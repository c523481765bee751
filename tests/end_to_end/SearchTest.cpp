// Searches that list, from the Find button to the icon list.

#include <gmock/gmock.h>

#include <utility>

#include "driver/Input.h"
#include "driver/Screen.h"
#include "end_to_end/EndToEndTest.h"
#include "platform/IconFiles.h"

namespace tarvik::end_to_end {
namespace {

using support::AnimationFile;
using support::IconFileOf;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

class Search : public EndToEnd {
 protected:
  void MakeIcon(std::string_view name) const { tree_.MakeFile(name, IconFileOf(0x0000FF)); }
};

TEST_F(Search, ListsTheIconsOfALibraryUnderItsPath) {
  CopyThreeIcons(In("three.dll"));
  Start();
  Tick({Dll});
  Find();
  const std::string path = In("three.dll");
  EXPECT_THAT(Entries(), ElementsAre(Entry{path, 0}, Entry{path, 1}, Entry{path, 2}));
}

TEST_F(Search, ListsTheStepsOfAnAnimatedCursor) {
  const Color colors[] = {1, 2, 3, 4, 5, 6, 7, 8};
  const std::string path = tree_.MakeFile("spin.ANI", AnimationFile(colors));
  Start();
  Tick({Ani});
  Find();
  std::vector<Entry> expected;
  for (int step = 0; step < 8; ++step) expected.push_back({path, step});
  EXPECT_EQ(Entries(), expected);
}

TEST_F(Search, NamesTheColumnsInChineseWhateverTheLanguage) {
  MakeIcon("a.ico");
  Start();
  Find();
  EXPECT_THAT(List().Columns(), ElementsAre(ReportView::Column{"序号", 40}, ReportView::Column{"文件路径", 460},
                                            ReportView::Column{"图标索引", 80}));
}

TEST_F(Search, TellsWhatItFound) {
  MakeIcon("a.ico");
  MakeIcon("b.ico");
  Start();
  Find();
  EXPECT_EQ(Caption(), "Brindle Tarvik - " + tree_.Path() + " - 2 Icons");
  EXPECT_EQ(Status(), "2 Icons Added. Double click an icon for enhanced view.");
  EXPECT_EQ(TextOf(FrmFindIcon_lblInfo), "Icon No 1 Selected.");
}

TEST_F(Search, EnablesWhatAFoundIconIsNeededFor) {
  MakeIcon("a.ico");
  Start();
  Find();
  for (const int id : {FrmFindIcon_CmdFind, FrmFindIcon_CmdOk, FrmFindIcon_CmdClose}) EXPECT_TRUE(IsEnabled(id)) << id;
}

TEST_F(Search, SelectsTheFirstEntryAndNoOther) {
  MakeIcon("a.ico");
  MakeIcon("b.ico");
  Start();
  Find();
  EXPECT_TRUE(List().IsSelected(0));
  EXPECT_FALSE(List().IsSelected(1));
}

TEST_F(Search, MarksTheFirstRowOfTheListInRed) {
  constexpr Color red = 0x0000FF;
  MakeIcon("a.ico");
  MakeIcon("b.ico");
  Start();
  Find();
  program_.Item(FrmFindIcon_OptView1).Send(BM_CLICK);
  MovePointer({0, 0});
  EXPECT_TRUE(Eventually([&] { return CountPixels(Screenshot(List().RowBounds(0)), red) > 0; }));
  EXPECT_EQ(CountPixels(Screenshot(List().RowBounds(1)), red), 0);
}

TEST_F(Search, GreysFileAndEditInTheMenuBarFromARefusalToTheNextSuccess) {
  MakeIcon("a.ico");
  Start();
  RECT bar = program_.Window().Inside();
  bar.bottom = bar.top;
  bar.top -= GetSystemMetrics(SM_CYMENU);
  MovePointer({0, 0});
  // The window may not be painted yet: the picture is valid once it shows text and stays the same.
  Screenshot enabled(bar);
  ASSERT_TRUE(Eventually([&] {
    const Screenshot before = std::exchange(enabled, Screenshot(bar));
    return CountPixels(enabled, black) > 0 && CountDifferences(enabled, before) == 0;
  }));
  Tick({Exe});
  FindAndReadMessage();
  EXPECT_TRUE(Eventually([&] { return CountDifferences(Screenshot(bar), enabled) > 0; }));
  Tick({Ico});
  Find();
  EXPECT_TRUE(Eventually([&] { return CountDifferences(Screenshot(bar), enabled) == 0; }));
}

TEST_F(Search, OkWithoutAnEntryDoesNothing) {
  Start();
  program_.Command(FrmFindIcon_CmdOk);
  program_.Command(FrmFindIcon_mnuViewopt1);  // processed after it
  EXPECT_TRUE(Eventually([&] { return program_.Item(FrmFindIcon_Lv).IsVisible(); }));
}

TEST_F(Search, VisitsFilesByNameThenSubFoldersByName) {
  for (const char* folder : {"b", "A", "A\\deep"}) tree_.MakeFolder(folder);
  for (const char* name : {"z.ico", "Y.ico", "b\\1.ico", "A\\2.ico", "A\\deep\\3.ico"}) MakeIcon(name);
  Start({}, true);
  Find();
  EXPECT_THAT(Entries(), ElementsAre(Entry{In("Y.ico"), 0}, Entry{In("z.ico"), 0}, Entry{In("A\\2.ico"), 0},
                                     Entry{In("A\\deep\\3.ico"), 0}, Entry{In("b\\1.ico"), 0}));
}

TEST_F(Search, PutsTheFolderListBackAfterASearchOfSubFolders) {
  tree_.MakeFolder("inner");
  MakeIcon("inner\\in.ico");
  MakeIcon("out.ico");
  Start({}, true);
  const auto before = FolderNames();
  Find();
  EXPECT_EQ(FolderNames(), before);
  EXPECT_THAT(FileNames(), ElementsAre("out.ico"));
  EXPECT_EQ(Caption(), "Brindle Tarvik - " + tree_.Path() + " - 2 Icons");
}

TEST_F(Search, LeavesSubFoldersOutUnlessAsked) {
  tree_.MakeFolder("inner");
  MakeIcon("inner\\in.ico");
  MakeIcon("out.ico");
  Start();
  Find();
  EXPECT_THAT(Entries(), ElementsAre(Entry{In("out.ico"), 0}));
}

TEST_F(Search, ASecondSearchReplacesTheFirst) {
  MakeIcon("a.ico");
  CopyThreeIcons(In("three.dll"));
  Start();
  Find();
  ASSERT_THAT(Entries(), ElementsAre(Entry{In("a.ico"), 0}));
  Tick({Dll});
  Find();
  EXPECT_EQ(Entries().size(), 3U);
  EXPECT_EQ(Entries().front(), (Entry{In("three.dll"), 0}));
  EXPECT_EQ(List().Columns().size(), 3U);
  EXPECT_EQ(Caption(), "Brindle Tarvik - " + tree_.Path() + " - 3 Icons");
}

TEST_F(Search, ARefusedSearchAfterAFilledOneLeavesTheListEmpty) {
  MakeIcon("a.ico");
  Start();
  Find();
  Tick({Exe});
  FindAndReadMessage();
  EXPECT_THAT(Entries(), IsEmpty());
  EXPECT_EQ(List().Columns().size(), 3U);
  EXPECT_FALSE(IsEnabled(FrmFindIcon_CmdOk));
  EXPECT_TRUE(IsEnabled(FrmFindIcon_CmdFind));
  EXPECT_TRUE(IsEnabled(FrmFindIcon_CmdClose));
}

TEST_F(Search, JoinsTheRootOfADriveAndANameWithABackslash) {
  const ExtraDrive drive(tree_.Path(), "extra");
  MakeIcon("a.ico");
  Start("R:\\");
  Find();
  EXPECT_THAT(Entries(), ElementsAre(Entry{"R:\\\\a.ico", 0}));
}

TEST_F(Search, StartsFromTheFileMenu) {
  MakeIcon("a.ico");
  Start();
  program_.Command(FrmFindIcon_mnuStart);
  EXPECT_TRUE(Eventually([&] { return IsEnabled(FrmFindIcon_CmdOk); }));
  EXPECT_EQ(Entries().size(), 1U);
}

TEST_F(Search, OkClosesTheProgram) {
  MakeIcon("a.ico");
  Start();
  Find();
  program_.Item(FrmFindIcon_CmdOk).Press();
  EXPECT_EQ(program_.WaitForEnd(), 0U);
}

TEST_F(Search, SeesWhatChangedOnTheDiskSinceTheFolderWasShown) {
  MakeIcon("a.ico");
  Start();
  MakeIcon("b.ico");
  Find();
  EXPECT_THAT(Entries(), ElementsAre(Entry{In("a.ico"), 0}, Entry{In("b.ico"), 0}));
}

}  // namespace
}  // namespace tarvik::end_to_end
