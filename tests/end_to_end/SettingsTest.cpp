// What the program remembers from one run to the next.

#include <gmock/gmock.h>

#include "base/FolderPath.h"
#include "end_to_end/EndToEndTest.h"
#include "platform/IconFiles.h"
#include "platform/Text.h"

namespace tarvik::end_to_end {
namespace {

using ::testing::ElementsAre;

class Settings : public EndToEnd {
 protected:
  bool SubDirTicked() const { return program_.Item(FrmFindIcon_chkSubDir).IsChecked(); }
  // The name of the folder selected in the folder list.
  std::string ChosenFolder() const {
    const Control folders = program_.Item(FrmFindIcon_Dir1);
    return folders.ListItems().at(static_cast<std::size_t>(folders.ListChoice()));
  }
};

TEST_F(Settings, WithoutAFileTheProgramsOwnFolderIsShownWithoutSubFolders) {
  ASSERT_FALSE(std::filesystem::exists(program_.SettingsFile()));
  program_.Start();
  EXPECT_EQ(ChosenFolder(), FolderName(home_.Path()));
  EXPECT_FALSE(SubDirTicked());
}

TEST_F(Settings, AreWrittenWhenTheProgramEnds) {
  program_.Start();
  EXPECT_EQ(program_.Close(), 0U);
  EXPECT_EQ(ReadSetting("Folder"), home_.Path());
  EXPECT_EQ(ReadSetting("Subdir"), "False");
}

TEST_F(Settings, FolderAndSubFoldersAreKeptOverARestart) {
  tree_.MakeFolder("图 标");
  tree_.MakeFile("图 标\\in.ico");
  Start(In("图 标"));
  program_.Item(FrmFindIcon_chkSubDir).Send(BM_CLICK);
  EXPECT_EQ(program_.Close(), 0U);
  EXPECT_EQ(ReadSetting("Folder"), In("图 标"));
  EXPECT_EQ(ReadSetting("Subdir"), "True");
  program_.Start();
  EXPECT_THAT(FileNames(), ElementsAre("in.ico"));
  EXPECT_TRUE(SubDirTicked());
}

TEST_F(Settings, TheFolderOfASearchIsKeptNotTheLastOneWalked) {
  tree_.MakeFolder("inner");
  tree_.MakeFile("inner\\in.ico", support::IconFileOf(0xFF));
  Start({}, true);
  Find();
  EXPECT_EQ(program_.Close(), 0U);
  EXPECT_EQ(ReadSetting("Folder"), tree_.Path());
}

TEST_F(Settings, SubFoldersAreTickedByTrueInAnyCaseAndByNothingElse) {
  const std::pair<const char*, bool> rows[] = {
      {"TRUE", true}, {"true", true}, {"yes", false}, {"1", false}, {"False", false}};
  for (const auto& [value, ticked] : rows) {
    WriteSetting("Subdir", value);
    program_.Start();
    EXPECT_EQ(SubDirTicked(), ticked) << value;
    EXPECT_EQ(program_.Close(), 0U);
  }
}

TEST_F(Settings, AFolderWithDotsIsTheOneThatItMeans) {
  tree_.MakeFolder("inner");
  tree_.MakeFile("out.ico");
  Start(In("inner\\..\\.\\inner\\.."));
  EXPECT_THAT(FileNames(), ElementsAre("out.ico"));
  EXPECT_EQ(ChosenFolder(), FolderName(tree_.Path()));
  EXPECT_EQ(program_.Close(), 0U);
  EXPECT_EQ(ReadSetting("Folder"), tree_.Path());
}

TEST_F(Settings, AFolderWithoutARootStartsAtTheProgramsOwn) {
  const std::pair<const char*, std::string> rows[] = {
      {".", home_.Path()}, {"..", ParentFolder(home_.Path())}, {"icons\\", home_.MakeFolder("icons")}};
  for (const auto& [value, folder] : rows) {
    Start(value);
    EXPECT_EQ(ChosenFolder(), FolderName(folder)) << value;
    EXPECT_EQ(program_.Close(), 0U);
    EXPECT_EQ(ReadSetting("Folder"), folder) << value;
  }
}

TEST_F(Settings, AFolderThatIsGoneFallsBackToTheProgramsOwn) {
  Start(In("gone"));
  EXPECT_EQ(ChosenFolder(), FolderName(home_.Path()));
}

TEST_F(Settings, AnEmptyFolderFallsBackToTheProgramsOwn) {
  WriteSetting("Folder", "");
  program_.Start();
  EXPECT_EQ(ChosenFolder(), FolderName(home_.Path()));
}

TEST_F(Settings, ASavedFolderInAnyCaseChoosesItsDrive) {
  Start("c:\\windows");
  const Control drives = program_.Item(FrmFindIcon_Drive1);
  EXPECT_EQ(drives.ComboItems().at(static_cast<std::size_t>(drives.ComboChoice())), "c:");
}

TEST_F(Settings, TheFileIsNamedAfterTheProgram) {
  Program renamed(home_.Path(), "我的 icons.v2.exe");
  renamed.Start();
  EXPECT_EQ(renamed.Close(), 0U);
  EXPECT_TRUE(std::filesystem::exists(ToWide(home_.In("我的 icons.v2.dat"))));
}

TEST_F(Settings, ACommandThatClosesTheProgramSavesThemToo) {
  const int commands[] = {FrmFindIcon_mnuExit, FrmFindIcon_CmdClose};
  for (const int command : commands) {
    Start();
    program_.Item(FrmFindIcon_chkSubDir).Send(BM_CLICK);
    program_.Command(command);
    EXPECT_EQ(program_.WaitForEnd(), 0U);
    EXPECT_EQ(ReadSetting("Subdir"), "True");
  }
}

}  // namespace
}  // namespace tarvik::end_to_end
