// The order in which a search walks through a folder and its sub-folders.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <new>
#include <string>

#include "base/RuntimeError.h"
#include "search/SearchDriverFixture.h"

namespace tarvik {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

class SearchWalkTest : public SearchDriverTest {
 protected:
  SearchWalkTest() {
    window.subDir = true;
    AddSubFolder("C:\\a", "C:\\a\\b");
    AddSubFolder("C:\\a", "C:\\a\\d");
    AddSubFolder("C:\\a\\b", "C:\\a\\b\\c");
    AddFile("C:\\a", "1.dll", {.icons = 1});
    AddFile("C:\\a\\b", "2.dll", {.icons = 2});
    AddFile("C:\\a\\b\\c", "3.dll", {.icons = 3});
    AddFile("C:\\a\\d", "4.dll", {.icons = 4});
  }

  // What the walk did to the two lists, and where the second pass starts.
  Lines Moves() const {
    Lines moves;
    for (const std::string& line : script.Lines()) {
      for (const std::string start : {"Dir1 ", "File1 ", "files of ", "sub-folders of ", "clear grid"}) {
        if (line.starts_with(start)) moves.push_back(line);
      }
    }
    return moves;
  }
};

TEST_F(SearchWalkTest, MovesTheListsThroughEachFolderInOrderInBothPasses) {
  const Lines pass{
      "File1 C:\\a",       "files of C:\\a",       "Dir1 C:\\a",       "sub-folders of C:\\a",       "Dir1 C:\\a",
      "File1 C:\\a\\b",    "files of C:\\a\\b",    "Dir1 C:\\a\\b",    "sub-folders of C:\\a\\b",    "Dir1 C:\\a\\b",
      "File1 C:\\a\\b\\c", "files of C:\\a\\b\\c", "Dir1 C:\\a\\b\\c", "sub-folders of C:\\a\\b\\c", "Dir1 C:\\a",
      "File1 C:\\a\\d",    "files of C:\\a\\d",    "Dir1 C:\\a\\d",    "sub-folders of C:\\a\\d",    "Dir1 C:\\a"};
  Find();
  EXPECT_EQ(Moves(), Join({pass, {"clear grid"}, pass}));
  EXPECT_EQ(window.dir1, "C:\\a");
  EXPECT_EQ(window.file1, "C:\\a");
}

TEST_F(SearchWalkTest, ListsInTheOrderOfTheWalk) {
  Find();
  Lines paths;
  for (int number = 1; number <= list.Count(); ++number) paths.push_back(list.Item(number).path);
  EXPECT_THAT(paths, ElementsAre("C:\\a\\1.dll", "C:\\a\\b\\2.dll", "C:\\a\\b\\2.dll", "C:\\a\\b\\c\\3.dll",
                                 "C:\\a\\b\\c\\3.dll", "C:\\a\\b\\c\\3.dll", "C:\\a\\d\\4.dll", "C:\\a\\d\\4.dll",
                                 "C:\\a\\d\\4.dll", "C:\\a\\d\\4.dll"));
}

// Dir1 still shows the parent while a nested folder is searched.
TEST_F(SearchWalkTest, ShowsTheFolderThatDir1StandsAt) {
  Find();
  EXPECT_THAT(script.Lines("status Wait"),
              ElementsAre("status Wait..., Searching C:\\a", "status Wait..., Searching C:\\a",
                          "status Wait..., Searching C:\\a\\b", "status Wait..., Searching C:\\a"));
  EXPECT_THAT(script.Lines("caption"),
              ElementsAre("caption Brindle Tarvik - C:\\a - 1 Icons", "caption Brindle Tarvik - C:\\a - 3 Icons",
                          "caption Brindle Tarvik - C:\\a\\b - 6 Icons", "caption Brindle Tarvik - C:\\a - 10 Icons",
                          "caption Brindle Tarvik - C:\\a - 10 Icons"));
}

TEST_F(SearchWalkTest, SaysTheCountSoFarAfterEachFolderIsLeft) {
  Find();
  EXPECT_THAT(script.Lines("status 6"), ElementsAre("status 6 Icons Added. Double click an icon for enhanced view.",
                                                    "status 6 Icons Added. Double click an icon for enhanced view."));
  EXPECT_THAT(script.Lines("status 10"), ElementsAre("status 10 Icons Added. Double click an icon for enhanced view.",
                                                     "status 10 Icons Added. Double click an icon for enhanced view."));
}

TEST_F(SearchWalkTest, SizesTheGridAndYieldsOncePerFolderWhileListing) {
  Find();
  EXPECT_EQ(script.Lines("size grid").size(), 4U);
  EXPECT_EQ(script.Lines("events").size(), 4U);
}

TEST_F(SearchWalkTest, ShowsTheHourglassOverEachPass) {
  Find();
  Lines pointers;
  for (const std::string& line : script.Lines()) {
    if (line.starts_with("hourglass") || line.starts_with("pointer")) pointers.push_back(line);
  }
  EXPECT_THAT(pointers, ElementsAre("hourglass 1", "pointer back 1", "hourglass 1", "pointer back 1"));
}

TEST_F(SearchWalkTest, ReadsTheSubFoldersOfAFolderOnceAPass) {
  for (int i = 0; i < 1000; ++i) AddSubFolder("C:\\a", "C:\\a\\side" + std::to_string(i));
  Find();
  EXPECT_THAT(script.Lines("sub-folders of C:\\a"), testing::SizeIs(2 * (1 + 3 + 1000)));
}

TEST_F(SearchWalkTest, GoesDeeperThanACallStackReaches) {
  window.folders.clear();
  AddFile("C:\\a", "1.dll", {.icons = 1});
  std::string folder = "C:\\a";
  for (int depth = 0; depth < 20000; ++depth) {
    const std::string inside = "C:\\a\\" + std::to_string(depth);
    AddSubFolder(folder, inside);
    folder = inside;
  }
  AddFile(folder, "last.dll", {.icons = 1});
  Find();
  ASSERT_EQ(list.Count(), 2);
  EXPECT_EQ(list.Item(2).path, "C:\\a\\19999\\last.dll");
}

TEST_F(SearchWalkTest, AsksForNoFoldersIdentityWhereNoVolumeIsMounted) {
  Find();
  EXPECT_THAT(script.Lines("identity"), IsEmpty());
}

TEST_F(SearchWalkTest, EntersAMountedVolumeAndWhatIsInIt) {
  window.folders["C:\\a\\b"].isMounted = true;
  Find();
  EXPECT_EQ(list.Count(), 10);
}

TEST_F(SearchWalkTest, EntersNoFolderThatItIsInAlready) {
  // In b, a volume is mounted whose root is the folder in which the walk started.
  AddSubFolder("C:\\a\\b", "C:\\a\\b\\again");
  window.folders["C:\\a\\b\\again"].isMounted = true;
  window.folders["C:\\a\\b\\again"].identity = "C:\\a";
  AddFile("C:\\a\\b\\again", "1.dll", {.icons = 1});
  Find();
  EXPECT_EQ(list.Count(), 10) << "each icon once";
  EXPECT_THAT(script.Lines("File1 C:\\a\\b\\again"), IsEmpty());
}

TEST_F(SearchWalkTest, EntersNoFolderThatItIsInAlreadyBehindAMountedVolumeEither) {
  // The root of the volume mounted in b is above the folder in which the walk started, so it contains that folder.
  AddSubFolder("C:\\a\\b", "C:\\a\\b\\root");
  window.folders["C:\\a\\b\\root"].isMounted = true;
  window.folders["C:\\a\\b\\root"].identity = "C:\\";
  AddFile("C:\\a\\b\\root", "5.dll", {.icons = 5});
  AddSubFolder("C:\\a\\b\\root", "C:\\a\\b\\root\\a");
  window.folders["C:\\a\\b\\root\\a"].identity = "C:\\a";
  AddFile("C:\\a\\b\\root\\a", "1.dll", {.icons = 1});
  AddSubFolder("C:\\a\\b\\root", "C:\\a\\b\\root\\z");
  AddFile("C:\\a\\b\\root\\z", "6.dll", {.icons = 6});
  Find();
  EXPECT_EQ(list.Count(), 10 + 5 + 6);
  EXPECT_THAT(script.Lines("File1 C:\\a\\b\\root\\a"), IsEmpty());
}

TEST_F(SearchWalkTest, EntersAVolumeThatIsMountedTwiceSideBySideTwice) {
  window.folders["C:\\a\\b"].isMounted = true;
  window.folders["C:\\a\\d"].isMounted = true;
  window.folders["C:\\a\\d"].identity = "C:\\a\\b";
  Find();
  EXPECT_EQ(list.Count(), 10);
}

TEST_F(SearchWalkTest, EntersNoMountedVolumeThatCannotBeOpened) {
  window.folders["C:\\a\\b"].isMounted = true;
  window.unknown.insert("C:\\a\\b");
  Find();
  EXPECT_EQ(list.Count(), 5);
}

TEST_F(SearchWalkTest, SaysAtWhichFileTheCountOverflows) {
  icons.files["C:\\a\\b\\c\\3.dll"].icons = 32767;
  try {
    Find();
    ADD_FAILURE() << "no overflow";
  } catch (const OverflowError& error) {
    EXPECT_EQ(error.File(), "C:\\a\\b\\c\\3.dll");
  }
}

TEST_F(SearchWalkTest, SaysAtWhichFileTheGridOverflows) {
  // The last file was replaced by a larger one after it was counted.
  window.onEvents = [&] { icons.files["C:\\a\\d\\4.dll"].icons = 13'000; };
  try {
    Find();
    ADD_FAILURE() << "no overflow";
  } catch (const OverflowError& error) {
    EXPECT_EQ(error.File(), "C:\\a\\d\\4.dll");
  }
}

TEST_F(SearchWalkTest, NamesNoFileWhereTheLimitIsTooLarge) {
  window.max = "99999";
  try {
    Find();
    ADD_FAILURE() << "no overflow";
  } catch (const OverflowError& error) {
    EXPECT_EQ(error.File(), "");
  }
}

TEST_F(SearchWalkTest, NamesTheStartingFolderInTheNoIconsBox) {
  icons.files.clear();
  Find();
  EXPECT_THAT(script.Lines("box"), ElementsAre("box C:\\a ... contains no icons."));
  EXPECT_EQ(window.dir1, "C:\\a");
}

TEST_F(SearchWalkTest, StaysInTheFilesFolderWithoutSubFolders) {
  window.subDir = false;
  Find();
  EXPECT_EQ(Moves(), (Lines{"files of C:\\a", "clear grid", "files of C:\\a"}));
  EXPECT_EQ(list.Count(), 1);
}

// The user can change the options each time the search processes messages.

TEST_F(SearchWalkTest, AsksForSubFoldersAnewInEachFolder) {
  window.onEvents = [&] { window.subDir = false; };
  Find();
  EXPECT_EQ(list.Count(), 1) << "unticked while the first folder was listed";
  EXPECT_EQ(window.dir1, "C:\\a");
}

TEST_F(SearchWalkTest, ReadsTheLimitAnewInEachFolder) {
  window.onEvents = [&] {
    if (list.Count() == 3) window.max = "2";
  };
  Find();
  EXPECT_EQ(list.Count(), 3) << "lowered before the third folder was listed";
}

TEST_F(SearchWalkTest, PutsDir1BackWhenCountingFails) {
  icons.files["C:\\a\\b\\c\\3.dll"].icons = 32767;
  EXPECT_THROW(Find(), OverflowError);
  EXPECT_EQ(window.dir1, "C:\\a");
  EXPECT_EQ(window.file1, "C:\\a");
}

TEST_F(SearchWalkTest, PutsDir1AndThePointerBackWhenListingFails) {
  window.onEvents = [&] {
    if (list.Count() == 3) window.max = "x";
  };
  EXPECT_THROW(Find(), TypeMismatchError);
  EXPECT_EQ(window.dir1, "C:\\a");
  EXPECT_THAT(script.Lines("pointer"), ElementsAre("pointer back 1", "pointer back 1"));
  EXPECT_EQ(list.Count(), 0) << "no list with a blank grid";
  EXPECT_EQ(script.Lines().back(), "clear grid");
}

TEST_F(SearchWalkTest, LeavesNothingHalfDoneWhenMemoryIsOut) {
  window.onEvents = [&] {
    if (list.Count() == 3) throw std::bad_alloc();
  };
  EXPECT_THROW(Find(), std::bad_alloc);
  EXPECT_FALSE(state.IsSearching);
  EXPECT_EQ(window.dir1, "C:\\a");
  EXPECT_EQ(list.Count(), 0);
  EXPECT_EQ(script.Lines().back(), "clear grid");
}

}  // namespace
}  // namespace tarvik
