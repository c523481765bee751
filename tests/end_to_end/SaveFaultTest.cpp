// Saving with obstacles: folders that accept no file, full disks, files of the user in the way.

#include <gmock/gmock.h>
#include <windows.h>

#include <filesystem>

#include "damaged_files/Libraries.h"
#include "driver/SeenFiles.h"
#include "end_to_end/SavingTest.h"
#include "platform/Holdings.h"
#include "platform/Text.h"

namespace tarvik::end_to_end {
namespace {

using support::AddAttributes;
using support::ReadAll;
using ::testing::Each;
using ::testing::ElementsAre;
using ::testing::StartsWith;

class SaveFault : public Saving {
 protected:
  // Removes first what a failed test may have left there.
  void SetUp() override { std::filesystem::remove_all(temporaryBitmap); }
  void TearDown() override {
    Saving::TearDown();
    EXPECT_EQ(GetFileAttributesW(temporaryBitmap), INVALID_FILE_ATTRIBUTES) << "the temporary bitmap is left";
  }

  void FindPicturesWithFilesUpTo(int bytes) {
    MakePictures();
    WriteSetting("Folder", tree_.Path());
    WriteSetting("Subdir", "False");
    program_.StartWithFilesUpTo(bytes);
    FindAll();
  }
  std::string IconFailed(int number) const {
    return FailureOf(FrmFindIcon_mnuSaveAs, Out("Icon " + std::to_string(number) + ".ico"));
  }
  // Saves all as icons, as cursors and as bitmaps. One of each fails; of the icons, the one with that number.
  void SaveAllWithOneFailureEach(int icon) const {
    ChooseOut(FrmFindIcon_mnuSaveAll);
    EXPECT_THAT(ReadMessages(1), ElementsAre(IconFailed(icon)));
    ExpectAsFound();
    ChooseOut(FrmFindIcon_mnuSaveAll3);
    EXPECT_THAT(ReadMessages(1), ElementsAre(cursorFailed));
    ExpectAsFound();
    ChooseOut(FrmFindIcon_mnuSaveAll2);
    EXPECT_THAT(ReadMessages(1), ElementsAre(imageFailed));
    ExpectAsFound();
  }

  static constexpr const wchar_t* temporaryBitmap = L"C:\\tmp.bmp";
};

TEST_F(SaveFault, EachFileIsReportedWhereNobodyMayWrite) {
  const ExtraDrive locked(lockedFolder, "");
  FindPictures();
  ExpectEachFileReportedOnDriveR();
}

TEST_F(SaveFault, ABatchGoesOnAfterANameThatIsAFolder) {
  FindPictures();
  for (const char* name : {"Icon 2.ico", "Curor 1.cur", "Images 3.bmp", "Images 4.jpg", "Images 5.gif"})
    tree_.MakeFolder(std::string(outName) + "\\" + name);
  SaveAllWithOneFailureEach(2);
  ChooseOut(FrmFindIcon_mnuSaveAll2, Jpg);
  AcceptJpegOptions();
  EXPECT_THAT(ReadMessages(1), ElementsAre(imageFailed));
  ExpectAsFound();
  ChooseOut(FrmFindIcon_mnuSaveAll2, Gif);
  AcceptGifOptions();
  EXPECT_THAT(ReadMessages(1), ElementsAre(imageFailed));
  ExpectAsFound();
  EXPECT_EQ(SavedNames().size(), 25U);
  int files = 0;
  for (const std::string& name : SavedNames()) files += ReadAll(Out(name)).empty() ? 0 : 1;
  EXPECT_EQ(files, 20);
}

TEST_F(SaveFault, AFolderThatGoesAwayBeforeOkIsReportedFileByFile) {
  FindPictures();
  const FolderChooser chooser = AskForFolder(FrmFindIcon_mnuSaveAll);
  chooser.Open(outName);
  ASSERT_NE(RemoveDirectoryW(ToWide(Out()).c_str()), 0);
  chooser.Ok();
  EXPECT_THAT(ReadMessages(5), ElementsAre(IconFailed(1), IconFailed(2), IconFailed(3), IconFailed(4), IconFailed(5)));
  ExpectAsFound();
}

TEST_F(SaveFault, ADriveWithoutADiskIsReportedFileByFile) {
  const EmptyDrive drive;
  FindPictures();
  const FolderChooser chooser = AskForFolder(FrmFindIcon_mnuSaveAll);
  chooser.ChooseDrive('q');
  EXPECT_EQ(chooser.Path(), "Q:\\");
  chooser.Ok();
  EXPECT_EQ(ReadMessages(5).back(), "Unable to save the file Q:\\Icon 5.ico");
  ExpectAsFound();
}

TEST_F(SaveFault, AWriteThatFailsInTheMiddleIsReportedAndTheBatchGoesOn) {
  // Icons of two and of sixteen colours fit; one with a palette of 256 does not, nor does a true-colour bitmap.
  FindPicturesWithFilesUpTo(1024);
  SaveAllWithOneFailureEach(3);
  auto files = SeeFiles(Out());
  for (const int entry : {0, 1, 3, 4}) {
    const std::string number = std::to_string(entry + 1);
    EXPECT_EQ(files["Icon " + number + ".ico"].pixels, IconPixels(entry));
    EXPECT_EQ(files["Curor " + number + ".cur"].pixels, IconPixels(entry));
    EXPECT_EQ(files["Images " + number + ".bmp"].pixels, BitmapPixels(entry));
  }
  // The part of each other file that fitted stays.
  for (const char* name : {"Icon 3.ico", "Curor 3.cur", "Images 3.bmp"}) EXPECT_EQ(ReadAll(Out(name)).size(), 1024U);

  // Saving as JPEG needs the temporary bitmap, which does not fit: each failure is reported, and no JPEG is created.
  ChooseOut(FrmFindIcon_mnuSaveAll2, Jpg);
  AcceptJpegOptions();
  EXPECT_THAT(ReadMessages(5), Each(imageFailed));
  ExpectAsFound();
  SaveAs(FrmFindIcon_MnuSaveAsBitmap, Out("a.jpg"));
  EXPECT_THAT(ReadMessages(1), ElementsAre(imageFailed));
  ExpectAsFound();
  EXPECT_EQ(SavedNames().size(), 15U);
}

// The same as with a file of any other format.
TEST_F(SaveFault, WhatFittedOfAGifIsLeft) {
  // A GIF of few colours fits; one with the whole web palette does not.
  FindPicturesWithFilesUpTo(512);
  ChooseOut(FrmFindIcon_mnuSaveAll2, Gif);
  AcceptGifOptions();
  ExpectAsFound();
  EXPECT_EQ(SavedNames().size(), 5U);
  ChooseOut(FrmFindIcon_mnuSaveSel2, Gif);
  const Dialog options(program_, FrmConvertGIF_Option1);
  options.Item(FrmConvertGIF_Option2).Send(BM_CLICK);
  options.End(FrmConvertGIF_CmdOk);
  EXPECT_THAT(ReadMessages(1), ElementsAre(imageFailed));
  ExpectAsFound();
  EXPECT_EQ(SavedNames().size(), 5U);
  EXPECT_EQ(ReadAll(Out("Images 1.gif")).size(), 512U);
}

TEST_F(SaveFault, AReadOnlyFileStaysButAJpegOrGifReplacesIt) {
  FindPictures();
  const auto saveOverReadOnly = [this](int command, const std::string& name) {
    AddAttributes(tree_.MakeFile(std::string(outName) + "\\" + name, "kept"), FILE_ATTRIBUTE_READONLY);
    const SaveDialog dialog = AskForName(command);
    dialog.Save(Out(name));
    program_.WaitForBox().Press(IDYES);
    dialog.WaitForEnd();
  };
  saveOverReadOnly(FrmFindIcon_mnuSaveAs, "a.ico");
  EXPECT_THAT(ReadMessages(1), ElementsAre(FailureOf(FrmFindIcon_mnuSaveAs, Out("a.ico"))));
  ExpectAsFound();
  saveOverReadOnly(FrmFindIcon_MnuSaveAsCursor, "a.cur");
  EXPECT_THAT(ReadMessages(1), ElementsAre(cursorFailed));
  ExpectAsFound();
  saveOverReadOnly(FrmFindIcon_MnuSaveAsBitmap, "a.bmp");
  EXPECT_THAT(ReadMessages(1), ElementsAre(imageFailed));
  ExpectAsFound();
  for (const char* name : {"a.ico", "a.cur", "a.bmp"}) EXPECT_EQ(ReadAll(Out(name)), "kept");

  saveOverReadOnly(FrmFindIcon_MnuSaveAsBitmap, "a.jpg");
  AcceptJpegOptions();
  ExpectAsFound();
  saveOverReadOnly(FrmFindIcon_MnuSaveAsBitmap, "a.gif");
  AcceptGifOptions();
  ExpectAsFound();
  EXPECT_THAT(ReadAll(Out("a.jpg")), StartsWith("\xFF\xD8"));
  EXPECT_THAT(ReadAll(Out("a.gif")), StartsWith("GIF8"));
}

TEST_F(SaveFault, TheIconOfAFileThatIsGoneIsSavedBlank) {
  FindPictures();
  for (int entry = 0; entry < 5; ++entry) ASSERT_NE(DeleteFileW(ToWide(In(std::to_string(entry) + ".ico")).c_str()), 0);
  SaveBatch(FrmFindIcon_mnuSaveAll);
  SaveBatch(FrmFindIcon_mnuSaveAll3);
  EXPECT_EQ(SavedNames().size(), 10U);
  for (const std::string& name : SavedNames()) {
    const std::string bytes = ReadAll(Out(name));
    // Headers and a palette of two colours, then the image and the mask. Transparent pixels that are not black would
    // invert the background below the icon.
    constexpr std::size_t imageOffset = 6 + 16 + 40 + 8;
    constexpr std::size_t imageBytes = std::size_t{4} * 32;
    ASSERT_EQ(bytes.size(), imageOffset + 2 * imageBytes) << name;
    EXPECT_EQ(bytes.substr(imageOffset, imageBytes), std::string(imageBytes, '\0')) << name;
    EXPECT_EQ(bytes.substr(imageOffset + imageBytes), std::string(imageBytes, '\xFF')) << name;
  }
}

// Each attempt to load such an icon costs the system at least a view of the file, which it never releases.
TEST_F(SaveFault, AnIconThatTheSystemBreaksOnIsAskedForOnce) {
  constexpr int broken = 20;
  MakePictures();
  for (int i = 0; i < broken; ++i) tree_.MakeFile("broken" + std::to_string(i) + ".dll", support::CutOffLibrary());
  Start();
  Tick({Ico, Dll});
  Find();
  ASSERT_EQ(List().RowCount(), broken + 5);
  KeepAsFound();
  SaveBatch(FrmFindIcon_mnuSaveAll);
  const int objects = support::HeldBy(program_.Process()).gdiObjects;
  const int views = support::CountMappedViews(program_.Process());
  for (int i = 0; i < 3; ++i) SaveBatch(FrmFindIcon_mnuSaveAll);
  // The system leaks a few objects of its own at times, but not one for each of these icons.
  EXPECT_LT(support::HeldBy(program_.Process()).gdiObjects, objects + broken);
  EXPECT_LT(support::CountMappedViews(program_.Process()), views + broken);
  EXPECT_EQ(SavedNames().size(), broken + 5U);
}

TEST_F(SaveFault, TheTemporaryBitmapIsThereWhileTheJpegOptionsAreOpenAndThenGone) {
  FindPictures();
  for (const int button : {fSaveJPG_cmdFinish1, fSaveJPG_cmdFinish0}) {
    SaveAs(FrmFindIcon_MnuSaveAsBitmap, Out("a" + std::to_string(button) + ".jpg"));
    const Dialog options(program_, fSaveJPG_CboSize);
    // Headers of 14 and 40 bytes and three bytes per pixel: true colour, whatever depth the icon has.
    EXPECT_EQ(std::filesystem::file_size(temporaryBitmap), 14U + 40U + 32U * 32U * 3U);
    options.End(button);
    ExpectAsFound();
    EXPECT_EQ(GetFileAttributesW(temporaryBitmap), INVALID_FILE_ATTRIBUTES);
  }
  EXPECT_EQ(SavedNames().size(), 1U);
}

TEST_F(SaveFault, AFileOfTheUsersWithTheTemporaryBitmapsNameStays) {
  FindPictures();
  std::filesystem::copy_file(ToWide(In("0.ico")), temporaryBitmap);
  const std::string own = ReadAll(In("0.ico"));
  SaveAs(FrmFindIcon_MnuSaveAsBitmap, Out("a.jpg"));
  AcceptJpegOptions();
  ExpectAsFound();
  ChooseOut(FrmFindIcon_mnuSaveAll2, Jpg);
  AcceptJpegOptions();
  ExpectAsFound();
  EXPECT_EQ(ReadAll("C:\\tmp.bmp"), own);
  EXPECT_EQ(program_.Close(), 0U);
  EXPECT_EQ(ReadAll("C:\\tmp.bmp"), own);
  DeleteFileW(temporaryBitmap);
  for (const auto& [name, file] : SeeFiles(Out())) EXPECT_EQ(file.pixels.size(), 32U * 32U) << name;
  EXPECT_EQ(SavedNames().size(), 6U);
}

}  // namespace
}  // namespace tarvik::end_to_end
