// The main window's search options, as a user sees and uses them.

#include <gmock/gmock.h>

#include "driver/Input.h"
#include "end_to_end/EndToEndTest.h"

namespace tarvik::end_to_end {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class Options : public EndToEnd {
 protected:
  // One file of each type, one of no type, and one that matches only the pattern in force while no type is ticked.
  void MakeOneFileOfEachType() const {
    for (const char* name : {"a.ico", "b.ani", "c.icl", "d.ocx", "e.dll", "f.exe", "g.txt", "aaa.aaa"})
      tree_.MakeFile(name);
  }
  bool IsTicked(int type) const { return program_.Item(FrmFindIcon_ChkFileType0 + type).IsChecked(); }
};

TEST_F(Options, StartAtThirtyTwoPixelsAndThreeHundredIcons) {
  Start();
  const Control sizes = program_.Item(FrmFindIcon_CboIconSize);
  EXPECT_THAT(sizes.ComboItems(), ElementsAre("16 x 16", "32 x 32", "48 x 48", "64 x 64"));
  EXPECT_EQ(sizes.ComboChoice(), Size32);
  EXPECT_EQ(TextOf(FrmFindIcon_txtMax), "300");
}

TEST_F(Options, StartWithIconFilesTickedAsThePatternSays) {
  MakeOneFileOfEachType();
  Start();
  for (int type = 0; type < fileTypeCount; ++type) EXPECT_EQ(IsTicked(type), type == Ico) << type;
  EXPECT_THAT(FileNames(), ElementsAre("a.ico"));
}

TEST_F(Options, StartWithAnEmptyGridAndNothingToHandOver) {
  Start();
  EXPECT_FALSE(IsEnabled(FrmFindIcon_CmdOk));
  EXPECT_TRUE(IsEnabled(FrmFindIcon_CmdFind));
  EXPECT_TRUE(IsEnabled(FrmFindIcon_CmdClose));
  EXPECT_FALSE(IsEnabled(FrmFindIcon_Vsb));
  EXPECT_TRUE(program_.Item(FrmFindIcon_PicFrame).IsVisible());
  EXPECT_FALSE(program_.Item(FrmFindIcon_Lv).IsVisible());
  EXPECT_THAT(Entries(), IsEmpty());
  EXPECT_THAT(List().Columns(), IsEmpty());
  EXPECT_EQ(Status(), "Click the Start button to start search");
}

TEST_F(Options, TheMainWindowFitsASmallScreen) {
  Start();
  const RECT bounds = program_.Window().Bounds();
  EXPECT_LE(bounds.right - bounds.left, 800);
  EXPECT_LE(bounds.bottom - bounds.top, 600);
}

TEST_F(Options, TheViewportShowsTheWidestGridAnd190Rows) {
  Start();
  const RECT inside = program_.Item(FrmFindIcon_PicFrame).Inside();
  EXPECT_EQ(inside.right - inside.left, 685);
  EXPECT_EQ(inside.bottom - inside.top, 190);
}

TEST_F(Options, TickedTypesDecideWhichFilesAreListed) {
  MakeOneFileOfEachType();
  Start();
  const struct {
    std::initializer_list<FileType> ticked;
    std::vector<std::string> names;
  } rows[] = {
      {{Ani}, {"b.ani"}},
      {{Icl}, {"c.icl"}},
      {{Ocx}, {"d.ocx"}},
      {{Dll, Exe}, {"e.dll", "f.exe"}},
      {{Ico, Ani, Icl, Ocx, Dll, Exe}, {"a.ico", "b.ani", "c.icl", "d.ocx", "e.dll", "f.exe"}},
  };
  for (const auto& row : rows) {
    Tick(row.ticked);
    EXPECT_EQ(FileNames(), row.names);
  }
}

TEST_F(Options, WithoutATickedTypeOnlyTheNameThatStandsForNothingIsListed) {
  MakeOneFileOfEachType();
  Start();
  Tick({});
  EXPECT_THAT(FileNames(), ElementsAre("aaa.aaa"));
}

TEST_F(Options, AllFilesTicksTheOthersAndListsEveryFile) {
  MakeOneFileOfEachType();
  Start();
  program_.Item(FrmFindIcon_ChkFileType6).Send(BM_CLICK);
  for (int type = 0; type < fileTypeCount; ++type) EXPECT_TRUE(IsTicked(type)) << type;
  EXPECT_THAT(FileNames(), ElementsAre("a.ico", "aaa.aaa", "b.ani", "c.icl", "d.ocx", "e.dll", "f.exe", "g.txt"));
}

TEST_F(Options, ATypeCannotBeUntickedWhileAllFilesIsTicked) {
  MakeOneFileOfEachType();
  Start();
  program_.Item(FrmFindIcon_ChkFileType6).Send(BM_CLICK);
  program_.Item(FrmFindIcon_ChkFileType4).Send(BM_CLICK);
  EXPECT_TRUE(IsTicked(Dll));
  EXPECT_EQ(FileNames().size(), 8U);
}

TEST_F(Options, UntickingAllFilesLeavesTheSixTypesTicked) {
  MakeOneFileOfEachType();
  Start();
  program_.Item(FrmFindIcon_ChkFileType6).Send(BM_CLICK);
  program_.Item(FrmFindIcon_ChkFileType6).Send(BM_CLICK);
  EXPECT_THAT(FileNames(), ElementsAre("a.ico", "b.ani", "c.icl", "d.ocx", "e.dll", "f.exe"));
}

TEST_F(Options, AClickWithTheMouseTicksABox) {
  MakeOneFileOfEachType();
  Start();
  Click(MiddleOf(program_.Item(FrmFindIcon_ChkFileType4).Bounds()));
  EXPECT_TRUE(Eventually([&] { return IsTicked(Dll); }));
  EXPECT_TRUE(Eventually([&] { return FileNames() == std::vector<std::string>{"a.ico", "e.dll"}; }));
}

TEST_F(Options, ASizeSetsTheLimitAndItsHighestValue) {
  Start();
  const struct {
    IconSizeChoice size;
    const char* limit;
    const char* highest;
  } rows[] = {{Size16, "400", "4000"}, {Size32, "300", "2400"}, {Size48, "150", "1800"}, {Size64, "100", "1200"}};
  const Control spinner = program_.Item(FrmFindIcon_udMain);
  for (const auto& row : rows) {
    ChooseSize(row.size);
    EXPECT_TRUE(Eventually([&] { return TextOf(FrmFindIcon_txtMax) == row.limit; })) << TextOf(FrmFindIcon_txtMax);
    spinner.Send(WM_KEYDOWN, VK_HOME);  // to the upper end
    spinner.Send(WM_KEYUP, VK_HOME);
    EXPECT_EQ(TextOf(FrmFindIcon_txtMax), row.highest);
  }
}

TEST_F(Options, TheSpinnersArrowsChangeTheLimitByTen) {
  Start();
  const RECT bounds = program_.Item(FrmFindIcon_udMain).Bounds();
  const LONG x = (bounds.left + bounds.right) / 2;
  Click({x, bounds.top + 2});
  EXPECT_TRUE(Eventually([&] { return TextOf(FrmFindIcon_txtMax) == "310"; })) << TextOf(FrmFindIcon_txtMax);
  Click({x, bounds.bottom - 3});
  EXPECT_TRUE(Eventually([&] { return TextOf(FrmFindIcon_txtMax) == "300"; })) << TextOf(FrmFindIcon_txtMax);
}

TEST_F(Options, TheSpinnerStopsAtItsEnds) {
  Start();
  ChooseSize(Size64);
  const Control spinner = program_.Item(FrmFindIcon_udMain);
  const auto press = [&](WPARAM key) { spinner.Send(WM_KEYDOWN, key); };
  press(VK_HOME);
  press(VK_UP);
  EXPECT_EQ(TextOf(FrmFindIcon_txtMax), "1200");
  press(VK_END);
  press(VK_DOWN);
  EXPECT_EQ(TextOf(FrmFindIcon_txtMax), "1");
}

TEST_F(Options, TheViewSwitchesBetweenGridAndList) {
  Start();
  const auto showsList = [&] {
    return program_.Item(FrmFindIcon_Lv).IsVisible() && !program_.Item(FrmFindIcon_PicFrame).IsVisible() &&
           program_.Item(FrmFindIcon_OptView1).IsChecked() && !program_.Item(FrmFindIcon_OptView0).IsChecked();
  };
  const auto showsGrid = [&] {
    return !program_.Item(FrmFindIcon_Lv).IsVisible() && program_.Item(FrmFindIcon_PicFrame).IsVisible() &&
           !program_.Item(FrmFindIcon_OptView1).IsChecked() && program_.Item(FrmFindIcon_OptView0).IsChecked();
  };
  Click(MiddleOf(program_.Item(FrmFindIcon_OptView1).Bounds()));
  EXPECT_TRUE(Eventually(showsList));
  Click(MiddleOf(program_.Item(FrmFindIcon_OptView0).Bounds()));
  EXPECT_TRUE(Eventually(showsGrid));
  program_.Command(FrmFindIcon_mnuViewopt1);
  EXPECT_TRUE(Eventually(showsList));
  program_.Command(FrmFindIcon_mnuViewopt0);
  EXPECT_TRUE(Eventually(showsGrid));
}

}  // namespace
}  // namespace tarvik::end_to_end
