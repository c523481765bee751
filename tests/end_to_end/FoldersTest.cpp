// The lists of drives, folders and files.

#include <gmock/gmock.h>
#include <windows.h>

#include <filesystem>

#include "base/Finally.h"
#include "base/FolderPath.h"
#include "driver/Input.h"
#include "driver/Screen.h"
#include "end_to_end/EndToEndTest.h"
#include "platform/IconFiles.h"
#include "platform/Text.h"

namespace tarvik::end_to_end {
namespace {

using support::AddAttributes;
using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::Not;

class Folders : public EndToEnd {
 protected:
  int RowOf(const std::string& name) const {
    const auto names = FolderNames();
    const auto found = std::ranges::find(names, name);
    EXPECT_NE(found, names.end()) << name;
    return static_cast<int>(found - names.begin());
  }
  bool ListsFile(const std::string& name) const {
    const auto names = FileNames();
    return std::ranges::find(names, name) != names.end();
  }
  void ChooseDrive(char letter) const {
    const Control drives = program_.Item(FrmFindIcon_Drive1);
    const auto items = drives.ComboItems();
    for (std::size_t i = 0; i < items.size(); ++i) {
      if (items[i].starts_with(letter)) return drives.PostComboChoice(static_cast<int>(i));
    }
    ADD_FAILURE() << "no drive " << letter;
  }
};

TEST_F(Folders, ADriveShowsItsLetterAndItsName) {
  const ExtraDrive drive(tree_.Path(), "机器");
  Start("R:\\");
  const Control drives = program_.Item(FrmFindIcon_Drive1);
  EXPECT_THAT(drives.ComboItems(), Contains("r: [机器]"));
  EXPECT_EQ(drives.ComboItems().at(static_cast<std::size_t>(drives.ComboChoice())), "r: [机器]");
}

TEST_F(Folders, ADriveThatIsPluggedInShowsWhenTheListOpens) {
  Start();
  const Control drives = program_.Item(FrmFindIcon_Drive1);
  EXPECT_THAT(drives.ComboItems(), Not(Contains("r: [stick]")));
  const ExtraDrive drive(tree_.Path(), "stick");
  Click(MiddleOf(drives.Bounds()));
  EXPECT_TRUE(Eventually([&] { return std::ranges::count(drives.ComboItems(), "r: [stick]") == 1; }));
  PressKey(VK_ESCAPE);
}

TEST_F(Folders, ADriveWithoutANameShowsItsLetterAlone) {
  Start();
  EXPECT_THAT(program_.Item(FrmFindIcon_Drive1).ComboItems(), Contains("c:"));
}

TEST_F(Folders, TheFolderListShowsTheAncestorsTheFolderAndItsSubFolders) {
  tree_.MakeFolder("beta");
  tree_.MakeFolder("Alpha");
  Start();
  std::vector<std::string> expected;
  for (const std::string& folder : FolderChain(tree_.Path())) expected.push_back(FolderName(folder));
  expected.insert(expected.end(), {"Alpha", "beta"});
  EXPECT_EQ(FolderNames(), expected);
}

TEST_F(Folders, ADoubleClickOpensAFolder) {
  tree_.MakeFolder("inner");
  tree_.MakeFile("inner\\in.ico");
  Start();
  DoubleClick(program_.Item(FrmFindIcon_Dir1).ListRowMiddle(RowOf("inner")));
  EXPECT_TRUE(Eventually([&] { return ListsFile("in.ico"); }));
}

TEST_F(Folders, EnterOpensAFolder) {
  tree_.MakeFolder("inner");
  tree_.MakeFile("inner\\in.ico");
  Start();
  Click(program_.Item(FrmFindIcon_Dir1).ListRowMiddle(RowOf("inner")));
  PressKey(VK_RETURN);
  EXPECT_TRUE(Eventually([&] { return ListsFile("in.ico"); }));
  EXPECT_FALSE(program_.FindBox()) << "Enter pressed Find, too";
}

TEST_F(Folders, AClickOnlyChoosesAFolder) {
  tree_.MakeFolder("inner");
  tree_.MakeFile("out.ico");
  Start();
  const int row = RowOf("inner");
  Click(program_.Item(FrmFindIcon_Dir1).ListRowMiddle(row));
  EXPECT_TRUE(Eventually([&] { return program_.Item(FrmFindIcon_Dir1).ListChoice() == row; }));
  EXPECT_THAT(FileNames(), ElementsAre("out.ico"));
}

TEST_F(Folders, ADoubleClickOnAnAncestorGoesBackUp) {
  tree_.MakeFolder("inner");
  tree_.MakeFile("out.ico");
  Start(In("inner"));
  DoubleClick(program_.Item(FrmFindIcon_Dir1).ListRowMiddle(RowOf(FolderName(tree_.Path()))));
  EXPECT_TRUE(Eventually([&] { return ListsFile("out.ico"); }));
}

TEST_F(Folders, HiddenFilesAreNotListedButHiddenFoldersAre) {
  AddAttributes(tree_.MakeFile("hidden.ico"), FILE_ATTRIBUTE_HIDDEN);
  AddAttributes(tree_.MakeFile("system.ico"), FILE_ATTRIBUTE_SYSTEM);
  tree_.MakeFile("shown.ico");
  AddAttributes(tree_.MakeFolder("hidden"), FILE_ATTRIBUTE_HIDDEN);
  Start();
  EXPECT_THAT(FileNames(), ElementsAre("shown.ico"));
  EXPECT_THAT(FolderNames(), Contains("hidden"));
}

// Under Wine, Desktop and Documents are such links.
TEST_F(Folders, ALinkToAFolderIsListedAndCanBeOpenedAndSearched) {
  const support::TemporaryFolder elsewhere;
  elsewhere.MakeFile("a.ico", support::IconFileOf(0xFF));
  elsewhere.MakeFolder("inner");
  elsewhere.MakeFile("inner\\b.ico", support::IconFileOf(0xFF));
  const std::string link = tree_.MakeLink("link", elsewhere.Path());
  Start({}, true);
  DoubleClick(program_.Item(FrmFindIcon_Dir1).ListRowMiddle(RowOf("link")));
  ASSERT_TRUE(Eventually([&] { return ListsFile("a.ico"); }));
  EXPECT_EQ(FolderNames().back(), "inner");
  Find();
  EXPECT_THAT(Entries(), ElementsAre(Entry{JoinPath(link, "a.ico"), 0}, Entry{JoinPath(link, "inner\\b.ico"), 0}));
  EXPECT_EQ(program_.Close(), 0U);
  EXPECT_EQ(ReadSetting("Folder"), link);
}

// The shared memory of the host system is mounted there.
TEST_F(Folders, AMountedFolderIsListedAndCanBeOpened) {
  const std::string name = FolderName(tree_.Path());
  const std::filesystem::path inside = ToWide("Z:\\dev\\shm\\" + name);
  ASSERT_TRUE(std::filesystem::create_directory(inside));
  const Finally removed([&] { std::filesystem::remove(inside); });
  Start("Z:\\dev");
  DoubleClick(program_.Item(FrmFindIcon_Dir1).ListRowMiddle(RowOf("shm")));
  EXPECT_TRUE(Eventually([&] { return std::ranges::count(FolderNames(), name) == 1; }))
      << ::testing::PrintToString(FolderNames());
}

TEST_F(Folders, ThePatternMatchesLongNamesOnlyAndWithoutRegardToCase) {
  for (const char* name : {"a.ico", "B.ICO", "c.icon", "d.ico~"}) tree_.MakeFile(name);
  Start();
  EXPECT_THAT(FileNames(), ElementsAre("a.ico", "B.ICO"));
}

TEST_F(Folders, ChoosingADriveGoesToItsRoot) {
  const ExtraDrive drive(tree_.Path(), "extra");
  tree_.MakeFile("root.ico");
  tree_.MakeFolder("inner");
  Start("C:\\windows");
  ChooseDrive('r');
  const std::vector<std::string> names{"R:\\", "inner"};
  EXPECT_TRUE(Eventually([&] { return FolderNames() == names; })) << ::testing::PrintToString(FolderNames());
  EXPECT_THAT(FileNames(), ElementsAre("root.ico"));
}

struct NotReadyRow {
  std::optional<std::string> language;
  const char* title;
  const char* text;
  friend void PrintTo(const NotReadyRow& row, std::ostream* out) { *out << row.language.value_or("no language"); }
};

class EmptyDriveMessage : public Folders, public ::testing::WithParamInterface<NotReadyRow> {};

TEST_P(EmptyDriveMessage, SaysThatTheDriveIsNotReady) {
  const LanguageValue language(GetParam().language);
  const EmptyDrive drive;
  tree_.MakeFile("here.ico");
  Start();
  ChooseDrive('q');
  const Box box = program_.WaitForBox();
  EXPECT_EQ(box.Title(), GetParam().title);
  EXPECT_EQ(box.Text(), GetParam().text);
  EXPECT_TRUE(ShowsSign(box, IDI_INFORMATION));
  EXPECT_THAT(box.Buttons(), ElementsAre(IDOK));
  box.Press(IDOK);
  EXPECT_THAT(FileNames(), ElementsAre("here.ico"));
}

INSTANTIATE_TEST_SUITE_P(Languages, EmptyDriveMessage,
                         ::testing::Values(NotReadyRow{std::nullopt, "Brindle Tarvik - Error", "Driver Not Ready!"},
                                           NotReadyRow{"CHS", "Brindle Tarvik - 错误", "路径无效!"},
                                           NotReadyRow{"CHT", "Brindle Tarvik - 錯誤", "路徑無效!"}));

TEST_F(Folders, AnUnknownLanguageShowsNoMessageForAnEmptyDrive) {
  const LanguageValue language("Chinese");
  const EmptyDrive empty;
  const ExtraDrive other(tree_.Path(), "other");
  Start();
  ChooseDrive('q');
  ChooseDrive('r');  // processed after the choice of the empty drive, and only if no message box is in the way
  EXPECT_TRUE(Eventually([&] { return FolderNames().front() == "R:\\"; }));
  EXPECT_FALSE(program_.FindBox());
}

}  // namespace
}  // namespace tarvik::end_to_end
