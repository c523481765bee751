// The limit of icons per search, and searches that end in a message.

#include <gmock/gmock.h>

#include <filesystem>

#include "driver/Screen.h"
#include "end_to_end/EndToEndTest.h"
#include "platform/IconFiles.h"
#include "platform/Text.h"

namespace tarvik::end_to_end {
namespace {

using support::IconFileOf;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

class Limit : public EndToEnd {
 protected:
  // Files that hold that many icons in all: libraries of 2,000 and 100, and icon files for the rest.
  void MakeIcons(int count) const {
    int files = 0;
    const auto next = [&](const char* extension) { return In(std::to_string(1000 + ++files) + extension); };
    for (; count >= 2000; count -= 2000) CopyTwoThousandIcons(next(".dll"));
    for (; count >= 100; count -= 100) CopyHundredIcons(next(".dll"));
    for (; count > 0; --count) tree_.MakeFile("single" + std::to_string(count) + ".ico", IconFileOf(0xFF0000));
  }
  void StartWithIcons(int count, IconSizeChoice size) {
    MakeIcons(count);
    Start();
    Tick({Ico, Dll});
    ChooseSize(size);
  }
  // Checks the state after a search that ended in a message.
  void ExpectRefused() const {
    EXPECT_THAT(Entries(), IsEmpty());
    EXPECT_EQ(List().Columns().size(), 3U);
    EXPECT_TRUE(IsEnabled(FrmFindIcon_CmdFind));
    EXPECT_TRUE(IsEnabled(FrmFindIcon_CmdClose));
    EXPECT_FALSE(IsEnabled(FrmFindIcon_CmdOk));
  }
};

TEST_F(Limit, ListsAllIconsWhenTheyAreExactlyAsManyAsTheLimit) {
  const struct {
    IconSizeChoice size;
    int count;
  } rows[] = {{Size64, 100}, {Size48, 150}, {Size32, 300}, {Size16, 400}};
  int made = 0;
  Start();
  Tick({Ico, Dll});
  for (const auto& row : rows) {
    while (made < row.count) {
      if (row.count - made >= 100) {
        CopyHundredIcons(In(std::to_string(made) + ".dll"));
        made += 100;
      } else {
        tree_.MakeFile(std::to_string(made) + ".ico", IconFileOf(0xFF0000));
        ++made;
      }
    }
    ChooseSize(row.size);
    ASSERT_EQ(made, row.count);
    Find();
    EXPECT_EQ(List().RowCount(), row.count);
  }
}

TEST_F(Limit, RefusesOneIconMoreAndAsksToRaiseTheLimit) {
  StartWithIcons(401, Size16);
  EXPECT_EQ(FindAndReadMessage(),
            "Found 401 icons.\r\nOnce search only support Maximum 400 icons!\r\n"
            "Try again after increasing  icons number of list.");
  ExpectRefused();
}

TEST_F(Limit, RefusesAsManyAsTheHighestLimitAndAsksForFewerFolders) {
  StartWithIcons(4000, Size16);
  EXPECT_EQ(FindAndReadMessage(), "Found 4000 icons.\r\nOnce search only support Maximum 4000 icons!");
  ExpectRefused();
}

TEST_F(Limit, RefusesMoreThanTheHighestLimitEvenWhereTheLimitIsRaisedToIt) {
  StartWithIcons(4001, Size16);
  SetLimit("4000");
  EXPECT_EQ(FindAndReadMessage(), "Found 4001 icons.\r\nOnce search only support Maximum 4000 icons!");
  ExpectRefused();
}

TEST_F(Limit, ListsAsManyAsTheHighestLimitOnceTheLimitIsRaisedToIt) {
  StartWithIcons(4000, Size16);
  SetLimit("4000");
  Find();
  EXPECT_EQ(List().RowCount(), 4000);
  EXPECT_EQ(List().Row(3999), (std::vector<std::string>{"4000", In("1002.dll"), "1999"}));
  // 130 rows of 31 icons.
  const RECT grid = program_.Item(FrmFindIcon_PicIcons).Bounds();
  EXPECT_EQ(grid.bottom - grid.top, 2860);
}

TEST_F(Limit, ARaisedLimitListsWhatWasRefused) {
  StartWithIcons(401, Size16);
  FindAndReadMessage();
  SetLimit("401");
  Find();
  EXPECT_EQ(List().RowCount(), 401);
}

TEST_F(Limit, BothRefusalsAreInformationBoxesOfTheProgramWithOneButton) {
  StartWithIcons(4000, Size16);
  for (const char* remedy : {"Maximum 4000 icons!", "Maximum 400 icons!"}) {
    const Box box = FindAndWaitForBox();
    EXPECT_THAT(box.Text(), HasSubstr(remedy));
    EXPECT_EQ(box.Title(), "Brindle Tarvik");
    EXPECT_TRUE(ShowsSign(box, IDI_INFORMATION));
    EXPECT_THAT(box.Buttons(), ElementsAre(IDOK));
    box.Press(IDOK);
    EXPECT_TRUE(Eventually([&] { return IsEnabled(FrmFindIcon_CmdFind); }));
    std::filesystem::remove(ToWide(In("1001.dll")));
  }
}

TEST_F(Limit, WithoutIconsTheMessageBeginsWithTheFirstTwentyCharactersOfTheFolder) {
  Start("C:\\Program Files\\Common Files");
  const Box box = FindAndWaitForBox();
  EXPECT_EQ(box.Title(), "Brindle Tarvik");
  EXPECT_EQ(box.Text(), "C:\\Program Files\\Com ... contains no icons.");
  EXPECT_TRUE(ShowsSign(box, IDI_INFORMATION));
  EXPECT_THAT(box.Buttons(), ElementsAre(IDOK));
  box.Press(IDOK);
  EXPECT_TRUE(Eventually([&] { return IsEnabled(FrmFindIcon_CmdFind); }));
  ExpectRefused();
}

TEST_F(Limit, CountsCharactersOfTheFolderNotBytes) {
  const ExtraDrive drive(tree_.Path(), "");
  tree_.MakeFolder("一二三四五六七八九十甲乙丙丁戊己庚辛壬癸");
  Start("R:\\一二三四五六七八九十甲乙丙丁戊己庚辛壬癸");
  EXPECT_EQ(FindAndReadMessage(), "R:\\一二三四五六七八九十甲乙丙丁戊己庚 ... contains no icons.");
  EXPECT_EQ(program_.Close(), 0U);
}

TEST_F(Limit, AShortFolderStandsWholeInTheNoIconsMessage) {
  Start("C:\\windows");
  Tick({Icl});
  EXPECT_EQ(FindAndReadMessage(), "C:\\windows ... contains no icons.");
}

struct BadLimitRow {
  const char* limit;
  std::optional<std::string> language;
  const char* text;
  const char* title;
  friend void PrintTo(const BadLimitRow& row, std::ostream* out) {
    *out << '"' << row.limit << "\" " << row.language.value_or("no language");
  }
};

class BadLimit : public Limit, public ::testing::WithParamInterface<BadLimitRow> {};

TEST_P(BadLimit, ShowsTheErrorAndLeavesTheWindowUsable) {
  const LanguageValue language(GetParam().language);
  StartWithIcons(3, Size32);
  SetLimit(GetParam().limit);
  const Box box = FindAndWaitForBox();
  EXPECT_EQ(box.Text(), GetParam().text);
  EXPECT_EQ(box.Title(), GetParam().title);
  EXPECT_TRUE(ShowsSign(box, IDI_EXCLAMATION));
  EXPECT_THAT(box.Buttons(), ElementsAre(IDOK));
  box.Press(IDOK);
  EXPECT_TRUE(Eventually([&] { return IsEnabled(FrmFindIcon_CmdFind); }));
  ExpectRefused();
  SetLimit("3");
  Find();
  EXPECT_EQ(List().RowCount(), 3);
}

INSTANTIATE_TEST_SUITE_P(Texts, BadLimit,
                         ::testing::Values(BadLimitRow{"abc", std::nullopt, "Type mismatch", "Brindle Tarvik - Error"},
                                           BadLimitRow{"", std::nullopt, "Type mismatch", "Brindle Tarvik - Error"},
                                           BadLimitRow{"99999", std::nullopt, "Overflow", "Brindle Tarvik - Error"},
                                           BadLimitRow{"abc", "CHS", "类型不匹配", "Brindle Tarvik - 错误"},
                                           BadLimitRow{"99999", "CHS", "溢出", "Brindle Tarvik - 错误"},
                                           BadLimitRow{"abc", "CHT", "型態不符合", "Brindle Tarvik - 錯誤"},
                                           BadLimitRow{"99999", "CHT", "溢位", "Brindle Tarvik - 錯誤"}));

TEST_F(Limit, MoreIconsThanSixteenBitsHoldAreAnOverflowAtTheFileThatHasOneTooMany) {
  StartWithIcons(34000, Size16);
  EXPECT_EQ(FindAndReadMessage(), "Overflow\r\n" + In("1017.dll"));
  EXPECT_THAT(Entries(), IsEmpty());
  EXPECT_TRUE(IsEnabled(FrmFindIcon_CmdFind));
}

}  // namespace
}  // namespace tarvik::end_to_end
