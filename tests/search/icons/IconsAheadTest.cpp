#include "search/icons/IconsAhead.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <set>
#include <string>
#include <utility>
#include <vector>

#include "base/NonCopyable.h"
#include "support/FakeSearch.h"

namespace tarvik {
namespace {

using support::Script;
using ::testing::ElementsAre;
using Lines = std::vector<std::string>;

// A file as the shell sees it now.
struct ShellFile {
  int icons = 0;
  std::set<int> broken = {};  // that cannot be extracted
  std::uint64_t written = 1;
  bool isThere = true;
};

// An icon that knows its own name; living icons are counted.
class NamedIcon final : public ExtractedIcon, NonCopyable {
 public:
  NamedIcon(std::string name, int& alive) : name_(std::move(name)), alive_(alive) { ++alive_; }
  ~NamedIcon() override { --alive_; }
  bool Draw(DrawSurface&, Point, int, int, DrawPart) override { return true; }
  int StepBound() const override { return 1; }
  const std::string& Name() const { return name_; }

 private:
  std::string name_;
  int& alive_;
};

// A shell that logs every call.
class CountingShell final : public IconSource {
 public:
  int CountIcons(const std::string& path) override {
    script.Add("count " + path);
    return files[path].icons;
  }
  std::unique_ptr<ExtractedIcon> Extract(const std::string& path, int index) override {
    script.Add("take " + Name(path, index));
    return Yields(path, index) ? Take(path, index) : nullptr;
  }
  std::vector<std::unique_ptr<ExtractedIcon>> ExtractGroup(const std::string& path, int first, int count) override {
    script.Add("take " + Name(path, first) + " to " + std::to_string(first + count - 1));
    std::vector<std::unique_ptr<ExtractedIcon>> group;
    for (int index = first; index < first + count && Yields(path, index); ++index) group.push_back(Take(path, index));
    if (static_cast<int>(group.size()) < count) group.clear();
    return group;
  }
  std::optional<FileStamp> StampOf(const std::string& path) override {
    const ShellFile& file = files[path];
    if (!file.isThere) return std::nullopt;
    return FileStamp{100, file.written};
  }

  Script script;
  std::map<std::string, ShellFile> files;
  int alive = 0;
  int maxAlive = 0;
  int taken = 0;

 private:
  bool Yields(const std::string& path, int index) {
    const ShellFile& file = files[path];
    return file.isThere && index < file.icons && !file.broken.contains(index);
  }
  std::unique_ptr<ExtractedIcon> Take(const std::string& path, int index) {
    auto icon = std::make_unique<NamedIcon>(Name(path, index) + " of " + std::to_string(files[path].written), alive);
    maxAlive = std::max(maxAlive, alive);
    ++taken;
    return icon;
  }
  static std::string Name(const std::string& path, int index) { return path + "#" + std::to_string(index); }
};

class IconsAheadTest : public ::testing::Test {
 protected:
  // The icon's name; the icon itself is released.
  std::string Icon(const std::string& path, int index) {
    const auto icon = icons.Extract(path, index);
    return icon ? static_cast<NamedIcon&>(*icon).Name() : "none";
  }
  // In the order of the listing pass.
  Lines List(const std::string& path) {
    Lines names;
    const int count = icons.CountIcons(path);
    for (int index = 0; index < count; ++index) names.push_back(Icon(path, index));
    return names;
  }
  Lines ExpectedIcons(const std::string& path, int count, int written = 1) const {
    Lines names;
    for (int index = 0; index < count; ++index)
      names.push_back(path + "#" + std::to_string(index) + " of " + std::to_string(written));
    return names;
  }

  CountingShell shell;
  IconsAhead icons{shell};
};

TEST_F(IconsAheadTest, TakesTheIconsOfAFileInGroupsOfSixtyFour) {
  shell.files["a.dll"] = {.icons = 150};
  const auto search = icons.InTurn();
  EXPECT_EQ(List("a.dll"), ExpectedIcons("a.dll", 150));
  EXPECT_THAT(shell.script.Lines(),
              ElementsAre("count a.dll", "take a.dll#0 to 63", "take a.dll#64 to 127", "take a.dll#128 to 149"));
  EXPECT_EQ(shell.maxAlive, 64);
  EXPECT_EQ(shell.alive, 0);
}

TEST_F(IconsAheadTest, TakesASingleIconAsOne) {
  shell.files["one.ico"] = {.icons = 1};
  shell.files["more.dll"] = {.icons = 65};
  const auto search = icons.InTurn();
  EXPECT_EQ(List("one.ico"), ExpectedIcons("one.ico", 1));
  EXPECT_EQ(List("more.dll"), ExpectedIcons("more.dll", 65));
  EXPECT_THAT(shell.script.Lines("take"), ElementsAre("take one.ico#0", "take more.dll#0 to 63", "take more.dll#64"));
}

TEST_F(IconsAheadTest, TakesOneByOneOutsideASearchOrBatch) {
  shell.files["a.dll"] = {.icons = 3};
  EXPECT_EQ(List("a.dll"), ExpectedIcons("a.dll", 3));
  static_cast<void>(icons.InTurn());
  EXPECT_EQ(List("a.dll"), ExpectedIcons("a.dll", 3));
  const Lines oneByOne{"count a.dll", "take a.dll#0", "take a.dll#1", "take a.dll#2"};
  Lines twice = oneByOne;
  twice.insert(twice.end(), oneByOne.begin(), oneByOne.end());
  EXPECT_EQ(shell.script.Lines(), twice);
}

// A batch does not count the icons first, and its first icon may be any.
TEST_F(IconsAheadTest, ReadsAheadFromTheSecondIconOnThatIsAskedForInTurn) {
  shell.files["a.dll"] = {.icons = 100};
  const auto batch = icons.InTurn();
  for (int index = 10; index < 100; ++index)
    EXPECT_EQ(Icon("a.dll", index), "a.dll#" + std::to_string(index) + " of 1");
  EXPECT_THAT(shell.script.Lines(),
              ElementsAre("take a.dll#10", "count a.dll", "take a.dll#11 to 74", "take a.dll#75 to 99"));
}

TEST_F(IconsAheadTest, TakesIconsOutOfTurnOneByOne) {
  shell.files["a.dll"] = {.icons = 100};
  const auto batch = icons.InTurn();
  for (const int index : {3, 9, 8, 50, 50}) EXPECT_NE(Icon("a.dll", index), "none");
  EXPECT_THAT(shell.script.Lines(),
              ElementsAre("take a.dll#3", "take a.dll#9", "take a.dll#8", "take a.dll#50", "take a.dll#50"));
}

TEST_F(IconsAheadTest, DropsWhatItHoldsWhenAnIconOutOfTurnIsAskedFor) {
  shell.files["a.dll"] = {.icons = 100};
  const auto search = icons.InTurn();
  icons.CountIcons("a.dll");
  EXPECT_EQ(Icon("a.dll", 0), "a.dll#0 of 1");
  EXPECT_EQ(shell.alive, 63);
  EXPECT_EQ(Icon("a.dll", 50), "a.dll#50 of 1");
  EXPECT_EQ(shell.alive, 0);
}

TEST_F(IconsAheadTest, DropsWhatItHoldsWhenAnotherFileIsAskedFor) {
  shell.files["a.dll"] = {.icons = 100};
  shell.files["b.dll"] = {.icons = 1};
  const auto search = icons.InTurn();
  for (const bool counting : {true, false}) {
    icons.CountIcons("a.dll");
    Icon("a.dll", 0);
    ASSERT_EQ(shell.alive, 63);
    if (counting) icons.CountIcons("b.dll");
    if (!counting) Icon("b.dll", 0);
    EXPECT_EQ(shell.alive, 0) << counting;
  }
}

TEST_F(IconsAheadTest, DropsWhatItHoldsAtTheEnd) {
  shell.files["a.dll"] = {.icons = 100};
  auto search = icons.InTurn();
  icons.CountIcons("a.dll");
  Icon("a.dll", 0);
  ASSERT_EQ(shell.alive, 63);
  search.Now();
  EXPECT_EQ(shell.alive, 0);
}

TEST_F(IconsAheadTest, ShowsNoIconOfAFileAsItWasBeforeItLetGo) {
  shell.files["a.dll"] = {.icons = 100};
  const auto search = icons.InTurn();
  icons.CountIcons("a.dll");
  Icon("a.dll", 0);
  icons.LetGo();
  EXPECT_EQ(shell.alive, 0);
  shell.files["a.dll"].written = 2;
  EXPECT_EQ(Icon("a.dll", 1), "a.dll#1 of 2");
  EXPECT_EQ(Icon("a.dll", 2), "a.dll#2 of 2");
  EXPECT_THAT(shell.script.Lines(),
              ElementsAre("count a.dll", "take a.dll#0 to 63", "count a.dll", "take a.dll#1 to 2"));
}

TEST_F(IconsAheadTest, KeepsWhatItHoldsIfTheFileIsAsItWas) {
  shell.files["a.dll"] = {.icons = 64};
  const auto batch = icons.InTurn();
  icons.CountIcons("a.dll");
  for (int index = 0; index < 64; ++index) {
    EXPECT_EQ(Icon("a.dll", index), "a.dll#" + std::to_string(index) + " of 1");
    icons.LetGoIfChanged();
  }
  EXPECT_THAT(shell.script.Lines(), ElementsAre("count a.dll", "take a.dll#0 to 63"));
}

TEST_F(IconsAheadTest, DropsWhatItHoldsIfTheFileIsNotAsItWas) {
  const auto batch = icons.InTurn();
  for (const ShellFile& changed : {ShellFile{.icons = 100, .written = 2}, ShellFile{.isThere = false}}) {
    shell.files["a.dll"] = {.icons = 100};
    icons.CountIcons("a.dll");
    EXPECT_EQ(Icon("a.dll", 0), "a.dll#0 of 1");
    ASSERT_EQ(shell.alive, 63);
    shell.files["a.dll"] = changed;
    icons.LetGoIfChanged();
    EXPECT_EQ(shell.alive, 0);
    EXPECT_EQ(Icon("a.dll", 1), changed.isThere ? "a.dll#1 of 2" : "none");
  }
}

// A batch that writes slowly processes messages after every few icons.
TEST_F(IconsAheadTest, TakesLittleMoreThanIsUsedWhereItOftenLetsGo) {
  shell.files["a.dll"] = {.icons = 2000};
  const auto batch = icons.InTurn();
  icons.CountIcons("a.dll");
  for (int index = 0; index < 2000; ++index) {
    EXPECT_EQ(Icon("a.dll", index), "a.dll#" + std::to_string(index) + " of 1");
    if (index % 10 == 9) icons.LetGo();
  }
  EXPECT_LE(shell.taken, 2000 * 5 / 4);
  EXPECT_LE(shell.script.Lines("take").size(), 2000U / 4) << "and yet in groups";
}

TEST_F(IconsAheadTest, TakesWholeGroupsAgainAfterAWhileWithoutLettingGo) {
  shell.files["a.dll"] = {.icons = 2000};
  const auto search = icons.InTurn();
  icons.CountIcons("a.dll");
  Icon("a.dll", 0);
  icons.LetGo();
  for (int index = 1; index < 2000; ++index) Icon("a.dll", index);
  EXPECT_LE(shell.script.Lines("take").size(), 2000U / 64 + 20);
}

TEST_F(IconsAheadTest, AsksForNoIconBeyondWhatTheFileHasByThen) {
  shell.files["a.dll"] = {.icons = 100};
  const auto search = icons.InTurn();
  icons.CountIcons("a.dll");
  Icon("a.dll", 0);
  icons.LetGo();
  shell.files["a.dll"] = {.icons = 3, .written = 2};
  EXPECT_EQ(Icon("a.dll", 1), "a.dll#1 of 2");
  EXPECT_EQ(Icon("a.dll", 2), "a.dll#2 of 2");
  EXPECT_EQ(Icon("a.dll", 3), "none");
  shell.files["a.dll"].isThere = false;
  EXPECT_EQ(Icon("a.dll", 4), "none");
}

TEST_F(IconsAheadTest, TakesAFileThatGivesNoWholeGroupOneByOne) {
  shell.files["a.dll"] = {.icons = 100, .broken = {40}};
  const auto search = icons.InTurn();
  Lines expected = ExpectedIcons("a.dll", 100);
  expected[40] = "none";
  EXPECT_EQ(List("a.dll"), expected);
  EXPECT_EQ(shell.script.Lines("take").size(), 1U + 100U) << "one try, then each icon";
  EXPECT_EQ(shell.script.Lines("take")[0], "take a.dll#0 to 63");
  EXPECT_EQ(shell.script.Lines("take")[1], "take a.dll#0");
  EXPECT_EQ(shell.alive, 0);
}

TEST_F(IconsAheadTest, RemembersSuchAFileForTheRunAsLongAsItStaysAsItIs) {
  shell.files["a.dll"] = {.icons = 3, .broken = {1}};
  List("a.dll");
  for (int search = 0; search < 3; ++search) {
    const auto inTurn = icons.InTurn();
    List("a.dll");
  }
  EXPECT_THAT(shell.script.Lines("take a.dll#0 to"), ElementsAre("take a.dll#0 to 2"));
  shell.files["a.dll"] = {.icons = 3, .written = 2};
  const auto inTurn = icons.InTurn();
  EXPECT_EQ(List("a.dll"), ExpectedIcons("a.dll", 3, 2));
  EXPECT_EQ(shell.script.Lines("take a.dll#0 to").size(), 2U);
}

TEST_F(IconsAheadTest, TakesAnimationsAsTheyAre) {
  shell.files["a.ani"] = {.icons = 5};
  const auto search = icons.InTurn();
  for (int i = 0; i < 3; ++i) Icon("a.ani", 0);
  Icon("a.ani", 1);
  EXPECT_THAT(shell.script.Lines(), ElementsAre("take a.ani#0", "take a.ani#0", "take a.ani#0", "take a.ani#1"));
}

TEST_F(IconsAheadTest, CountsAFileOnceInASearchAsLongAsItStaysAsItIs) {
  shell.files["a.dll"] = {.icons = 2};
  shell.files["b.dll"] = {.icons = 2};
  auto search = icons.InTurn();
  for (int pass = 0; pass < 2; ++pass) {
    EXPECT_EQ(icons.CountIcons("a.dll"), 2);
    EXPECT_EQ(icons.CountIcons("b.dll"), 2);
    if (pass == 0) shell.files["b.dll"].written = 2;
  }
  EXPECT_THAT(shell.script.Lines(), ElementsAre("count a.dll", "count b.dll", "count b.dll"));
  search.Now();
  const auto next = icons.InTurn();
  icons.CountIcons("a.dll");
  EXPECT_EQ(shell.script.Lines("count a.dll").size(), 2U) << "nothing is remembered beyond the search";
}

TEST_F(IconsAheadTest, CountsAFileThatCannotBeAskedForItsTimeEachTime) {
  shell.files["a.dll"] = {.icons = 2, .isThere = false};
  const auto search = icons.InTurn();
  icons.CountIcons("a.dll");
  icons.CountIcons("a.dll");
  EXPECT_EQ(shell.script.Lines("count").size(), 2U);
}

TEST_F(IconsAheadTest, GoesOnUntilTheLastUserEnds) {
  shell.files["a.dll"] = {.icons = 3};
  auto first = icons.InTurn();
  auto second = icons.InTurn();
  first.Now();
  List("a.dll");
  second.Now();
  EXPECT_THAT(shell.script.Lines("take"), ElementsAre("take a.dll#0 to 2"));
}

}  // namespace
}  // namespace tarvik
