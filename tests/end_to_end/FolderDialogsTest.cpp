// The folder chooser of the batch saves and the dialog that makes a folder in it, on a real disk.

#include <gmock/gmock.h>
#include <windows.h>

#include <algorithm>

#include "base/FolderPath.h"
#include "end_to_end/SavingTest.h"
#include "platform/Text.h"

namespace tarvik::end_to_end {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::Not;

constexpr const char* cannotCreate =
    "Unable to create folder. Please check that whether the name you entered is valid and contains no invalid "
    "characters";

class ChooseFolder : public Saving {
 protected:
  static bool IsFolder(const std::string& path) {
    const DWORD attributes = GetFileAttributesW(ToWide(path).c_str());
    return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
  }
  // The dialog refuses the name and stays open with what was typed.
  void ExpectRefused(const NewFolderDialog& dialog, const std::string& name) const {
    dialog.Create(name);
    const Box box = program_.WaitForBox();
    EXPECT_EQ(box.Title(), "Cannot Create");
    EXPECT_EQ(box.Text(), cannotCreate);
    box.Press(IDOK);
    EXPECT_TRUE(dialog.IsOpen());
    EXPECT_EQ(dialog.Name(), name);
  }
};

TEST_F(ChooseFolder, TheTypesAreListedTwiceAtFirstAndOnceMoreAfterEachChoice) {
  FindPictures();
  const FolderChooser chooser = AskForFolder(FrmFindIcon_mnuSaveAll2);
  ASSERT_TRUE(chooser.OffersTypes());
  const Names nine{"Windows Bitmap (*.bmp)", "GIF Files (*.gif)",   "JPG Files (*.jpg)",
                   "PNG Files (*.png)",      "WBMP Files (*.wbmp)", "TIF Files (*.tif)",
                   "TGA Files (*.tga)",      "WMF Files (*.wmf)",   "EMF Files (*.emf)"};
  Names expected = nine;
  const auto grow = [&] { expected.insert(expected.end(), nine.begin(), nine.end()); };
  grow();
  EXPECT_EQ(chooser.Types(), expected);
  // The last choice is after the first nine and leaves the type unchanged.
  for (const int choice : {5, 3, 3, 12}) {
    chooser.ChooseType(choice);
    grow();
    EXPECT_EQ(chooser.Types(), expected);
  }
  chooser.Open(outName);
  chooser.Ok();
  ExpectAsFound();
  EXPECT_THAT(SavedNames(),
              ElementsAre("Images 1.png", "Images 2.png", "Images 3.png", "Images 4.png", "Images 5.png"));

  // The next dialog starts from scratch.
  const FolderChooser next = AskForFolder(FrmFindIcon_mnuSaveAll2);
  EXPECT_EQ(next.Types().size(), 18U);
  next.Cancel();
  for (const int command : {FrmFindIcon_mnuSaveAll, FrmFindIcon_mnuSaveAll3, FrmFindIcon_mnuSaveSel}) {
    const FolderChooser without = AskForFolder(command);
    EXPECT_FALSE(without.OffersTypes());
    without.Cancel();
  }
  ExpectAsFound();
}

TEST_F(ChooseFolder, CancelAndEscWriteNothing) {
  FindPictures();
  const FolderChooser cancelled = AskForFolder(FrmFindIcon_mnuSaveAll);
  EXPECT_EQ(cancelled.Path(), tree_.Path());
  cancelled.Open(outName);
  EXPECT_EQ(cancelled.Path(), Out());
  cancelled.Cancel();
  ExpectAsFound();
  const FolderChooser escaped = AskForFolder(FrmFindIcon_mnuSaveAll);
  EXPECT_EQ(escaped.Path(), tree_.Path()) << "not where the last one was left";
  escaped.Open(outName);
  PressKey(VK_ESCAPE);
  escaped.WaitForEnd();
  ExpectAsFound();
  EXPECT_THAT(SavedNames(), ElementsAre());
  EXPECT_THAT(NamesIn(tree_.Path()), Not(Contains("Icon 1.ico")));
}

TEST_F(ChooseFolder, TheCloseBoxTakesTheFolderLastShown) {
  FindPictures();
  const FolderChooser chooser = AskForFolder(FrmFindIcon_mnuSaveAll);
  chooser.Open(outName);
  chooser.EndByCloseBox();
  ExpectAsFound();
  EXPECT_EQ(SavedNames().size(), 5U);
  AskForFolder(FrmFindIcon_mnuSaveAll).EndByCloseBox();
  ExpectAsFound();
  EXPECT_THAT(NamesIn(tree_.Path()), Contains("Icon 5.ico"));
}

TEST_F(ChooseFolder, AnotherDriveIsChosenAndItsRootTakenAsItStands) {
  const support::TemporaryFolder stick;
  stick.MakeFolder("Icon 2.ico");
  const ExtraDrive drive(stick.Path(), "stick");
  FindPictures();
  const FolderChooser chooser = AskForFolder(FrmFindIcon_mnuSaveAll);
  chooser.ChooseDrive('r');
  EXPECT_EQ(chooser.Path(), "R:\\");
  const NewFolderDialog newFolder(program_, chooser);
  EXPECT_EQ(newFolder.Title(), "Create In R:\\");
  newFolder.Create("新");
  newFolder.WaitForEnd();
  EXPECT_EQ(chooser.Path(), "R:\\新");
  EXPECT_TRUE(IsFolder(stick.In("新")));
  chooser.Open("R:\\");
  chooser.Ok();
  EXPECT_THAT(ReadMessages(1), ElementsAre("Unable to save the file R:\\Icon 2.ico"));
  ExpectAsFound();
  for (const char* name : {"Icon 1.ico", "Icon 3.ico", "Icon 4.ico", "Icon 5.ico"})
    EXPECT_THAT(NamesIn(stick.Path()), Contains(name));
  // The main window shows the same folder as before.
  EXPECT_EQ(program_.Item(FrmFindIcon_Dir1).ListItems().at(FolderChain(tree_.Path()).size() - 1),
            FolderName(tree_.Path()));
}

TEST_F(ChooseFolder, ANewFolderIsMadeAndChosen) {
  FindPictures();
  const FolderChooser chooser = AskForFolder(FrmFindIcon_mnuSaveAll);
  chooser.Open(outName);
  const NewFolderDialog suggested(program_, chooser);
  EXPECT_EQ(suggested.Title(), "Create In " + Out());
  EXPECT_EQ(suggested.Name(), "New Folder");
  // The whole name is selected, so that typing replaces it.
  DWORD start = 1;
  DWORD end = 0;
  suggested.Item(frmDirCreate_txt).Send(EM_GETSEL, reinterpret_cast<WPARAM>(&start), reinterpret_cast<LPARAM>(&end));
  EXPECT_EQ(start, 0U);
  EXPECT_EQ(end, 10U);
  suggested.End(frmDirCreate_CmdCancel);
  EXPECT_THAT(SavedNames(), ElementsAre());
  EXPECT_EQ(chooser.Path(), Out());

  const NewFolderDialog named(program_, chooser);
  named.Create("子目录");
  named.WaitForEnd();
  EXPECT_EQ(chooser.Path(), Out("子目录"));
  EXPECT_EQ(chooser.Folders().back(), "子目录");
  chooser.Ok();
  ExpectAsFound();
  EXPECT_EQ(NamesIn(Out("子目录")).size(), 5U);
}

TEST_F(ChooseFolder, TheListShowsWhatCameWhileANewFolderWasAskedFor) {
  FindPictures();
  const FolderChooser chooser = AskForFolder(FrmFindIcon_mnuSaveAll);
  EXPECT_EQ(chooser.Folders().back(), outName);
  const NewFolderDialog dialog(program_, chooser);
  tree_.MakeFolder("来");
  dialog.End(frmDirCreate_CmdCancel);
  EXPECT_TRUE(Eventually([&] {
    const Names folders = chooser.Folders();
    return std::ranges::find(folders, "来") != folders.end();
  }));
  EXPECT_EQ(chooser.Path(), tree_.Path());
  chooser.Cancel();
  ExpectAsFound();
}

TEST_F(ChooseFolder, ANameOfNoFolderIsRefusedAndTheDialogStays) {
  FindPictures();
  tree_.MakeFolder(std::string(outName) + "\\there");
  const FolderChooser chooser = AskForFolder(FrmFindIcon_mnuSaveAll);
  chooser.Open(outName);
  const NewFolderDialog dialog(program_, chooser);
  for (const char* name : {"", ":", "there", "a\\b", "a/b", "a:b", "a*b", "a?b", "a\"b", "a<b", "a>b", "a|b"})
    ExpectRefused(dialog, name);
  EXPECT_THAT(SavedNames(), ElementsAre("there"));
  // Another try with a good name.
  dialog.Create("ab");
  dialog.WaitForEnd();
  EXPECT_THAT(SavedNames(), ElementsAre("ab", "there"));
  chooser.Cancel();
  ExpectAsFound();
}

TEST_F(ChooseFolder, WhereNobodyMayWriteNoFolderIsMade) {
  const ExtraDrive locked(lockedFolder, "");
  FindPictures();
  const FolderChooser chooser = AskForFolder(FrmFindIcon_mnuSaveAll);
  chooser.ChooseDrive('r');
  const NewFolderDialog dialog(program_, chooser);
  ExpectRefused(dialog, "tarvik");
  dialog.End(frmDirCreate_CmdCancel);
  EXPECT_EQ(chooser.Path(), "R:\\");
  chooser.Cancel();
  ExpectAsFound();
}

}  // namespace
}  // namespace tarvik::end_to_end
