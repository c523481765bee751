#include "export/SaveCommands.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <new>

#include "export/FakeSaveWindow.h"

namespace tarvik {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::Not;

class SaveCommandsTest : public ::testing::Test {
 protected:
  SaveCommandsTest() { state.CurrentLanguage = "ENG"; }

  void List(int entries, std::initializer_list<int> selected = {}) {
    for (int number = 1; number <= entries; ++number) list.Add("C:\\some.dll", number - 1);
    for (const int number : selected) list.Select(number);
  }
  // What was written, in order.
  std::vector<std::string> Files() const {
    std::vector<std::string> paths;
    for (const std::string& line : script)
      if (line.starts_with("file ")) paths.push_back(line.substr(5));
    return paths;
  }
  // One byte of a file that was written.
  int Byte(const std::string& path, std::size_t place) { return std::to_integer<int>(files.bytes.at(path).at(place)); }

  testing::Script script;
  ProgramState state;
  IconList list;
  SearchState search;
  testing::FakeSaveWindow window{script};
  testing::NotedFiles files{script};
  testing::FakeSaveDialogs dialogs{script, state};
  testing::FakeTemporaryPicture temporary{script};
  SaveCommands commands{window, {dialogs, files, temporary}, list, search, state};
};

// Save As

TEST_F(SaveCommandsTest, SavesTheCurrentIconWithHourglassAndProgress) {
  List(3);
  search.CurrentIndex = 1;
  dialogs.path = "D:\\a.ico";
  commands.mnuSaveAs_Click();
  EXPECT_THAT(script, ElementsAre("render 2", "hourglass", "status Saving...", "ask - Save As", "file D:\\a.ico",
                                  "status standing", "pointer back"));
  EXPECT_EQ(Byte("D:\\a.ico", 2), 1) << "the type of an icon file";
}

TEST_F(SaveCommandsTest, PutsPointerAndStatusBackWhereSaveAsIsCancelled) {
  List(1);
  commands.mnuSaveAs_Click();
  EXPECT_THAT(script, ElementsAre("render 1", "hourglass", "status Saving...", "ask - Save As", "status standing",
                                  "pointer back"));
}

TEST_F(SaveCommandsTest, NamesTheIconThatCouldNotBeSaved) {
  struct Row {
    const char* language;
    const char* message;
  };
  List(1);
  dialogs.path = "D:\\100%1.ico";
  files.refused = {dialogs.path};
  for (const Row& row : {Row{"ENG", "failure Unable to save the file D:\\100%1.ico"},
                         {"CHS", "failure 保存文件D:\\100%1.ico失败."},
                         {"CHT", "failure 保存檔案D:\\100%1.ico失敗."}}) {
    state.CurrentLanguage = row.language;
    commands.mnuSaveAs_Click();
    EXPECT_EQ(script.back(), row.message) << "after the pointer and the status text are back";
  }
}

TEST_F(SaveCommandsTest, ShowsTheProgressInEachLanguage) {
  List(1);
  for (const auto& [language, text] :
       std::map<std::string, std::string>{{"ENG", "Saving..."}, {"CHS", "正在保存..."}, {"CHT", "正在存儲..."}}) {
    state.CurrentLanguage = language;
    commands.mnuSaveAs_Click();
    EXPECT_THAT(script, Contains("status " + text));
  }
}

TEST_F(SaveCommandsTest, ShowsNoTextOfALanguageThatIsNone) {
  List(1);
  state.CurrentLanguage = "XYZ";
  dialogs.path = "D:\\a.ico";
  files.refused = {dialogs.path};
  commands.mnuSaveAs_Click();
  EXPECT_THAT(script, ElementsAre("render 1", "hourglass", "ask - Save As", "refused D:\\a.ico", "status standing",
                                  "pointer back"));
}

TEST_F(SaveCommandsTest, DoesNothingWithoutACurrentEntry) {
  commands.mnuSaveAs_Click();
  commands.MnuSaveAsBitmap_Click();
  commands.MnuSaveAsCursor_Click();
  commands.mnuCopy_Click();
  EXPECT_THAT(script, IsEmpty());
}

// Save As Image

TEST_F(SaveCommandsTest, ChoosesTheImageFormatByTheExtensionInAnyCase) {
  struct Row {
    const char* path;
    const char* step;
  };
  List(1);
  for (const Row& row : {Row{"D:\\a.Jpg", "jpeg init D:\\a.Jpg single"},
                         {"D:\\a.JPG", "jpeg init D:\\a.JPG single"},
                         {"D:\\a.gIf", "gif show single D:\\a.gIf"},
                         {"D:\\a.png", "file D:\\a.png"},
                         {"D:\\a.bmp", "file D:\\a.bmp"},
                         {"D:\\a.jpeg", "file D:\\a.jpeg"},
                         {"D:\\jpg", "file D:\\jpg"},
                         {"D:\\some.jpg\\a", "file D:\\some.jpg\\a"}}) {
    script.clear();
    dialogs.path = row.path;
    commands.MnuSaveAsBitmap_Click();
    EXPECT_THAT(script, Contains(row.step));
  }
}

TEST_F(SaveCommandsTest, WritesAPngNameAsABitmapOfTheComposedIcon) {
  List(2);
  search.CurrentIndex = 1;
  dialogs.path = "D:\\a.png";
  commands.MnuSaveAsBitmap_Click();
  EXPECT_THAT(script, ElementsAre("render 2", "ask - Save As Image", "hourglass", "status Saving...", "file D:\\a.png",
                                  "status standing", "pointer back"));
  EXPECT_EQ(Byte("D:\\a.png", 0), 'B');
  EXPECT_EQ(Byte("D:\\a.png", 1), 'M');
  EXPECT_EQ(Byte("D:\\a.png", 14 + 40 + 1), 2) << "the green of entry 2's first colour in the palette";
}

TEST_F(SaveCommandsTest, SaysThatAnImageFailed) {
  List(1);
  dialogs.path = "D:\\a.bmp";
  files.refused = {dialogs.path};
  for (const auto& [language, text] : std::map<std::string, std::string>{
           {"ENG", "Failed to Save Icon As Bitmap."}, {"CHS", "无法另存为位图文件."}, {"CHT", "無法另存為點陣圖檔."}}) {
    state.CurrentLanguage = language;
    commands.MnuSaveAsBitmap_Click();
    EXPECT_EQ(script.back(), "failure " + text);
  }
}

TEST_F(SaveCommandsTest, SavesNoImageWhereNoNameIsGiven) {
  List(1);
  commands.MnuSaveAsBitmap_Click();
  EXPECT_THAT(script, ElementsAre("render 1", "ask - Save As Image"));
}

TEST_F(SaveCommandsTest, HandsAJpegToItsDialogByWayOfTheTemporaryBitmap) {
  List(3);
  search.CurrentIndex = 2;
  dialogs.path = "D:\\a.jpg";
  commands.MnuSaveAsBitmap_Click();
  EXPECT_THAT(script, ElementsAre("render 3", "ask - Save As Image", "temporary", "jpeg init D:\\a.jpg single",
                                  "jpeg show single", "delete temporary"));
  EXPECT_EQ(dialogs.jpeg.lastPixel, 0x000300U) << "the composed surface";
}

TEST_F(SaveCommandsTest, OffersNoJpegDialogForAPictureThatCouldNotBeHad) {
  List(1);
  dialogs.path = "D:\\a.jpg";
  temporary.works = false;
  commands.MnuSaveAsBitmap_Click();
  EXPECT_THAT(script, ElementsAre("render 1", "ask - Save As Image", "temporary", "delete temporary",
                                  "failure Failed to Save Icon As Bitmap."));
}

TEST_F(SaveCommandsTest, DeletesTheTemporaryBitmapWhereAnErrorEndsTheDialog) {
  List(1);
  dialogs.path = "D:\\a.jpg";
  dialogs.jpeg.onShow = [] { throw std::bad_alloc(); };
  EXPECT_THROW(commands.MnuSaveAsBitmap_Click(), std::bad_alloc);
  EXPECT_EQ(script.back(), "delete temporary");
  EXPECT_EQ(window.held, 0);
}

TEST_F(SaveCommandsTest, SaysThatAJpegOrGifFailedAndNothingWhereItWasCancelled) {
  List(1);
  for (const char* path : {"D:\\a.jpg", "D:\\a.gif"}) {
    dialogs.path = path;
    dialogs.jpeg.answer = dialogs.gif.answer = DialogAnswer::Failed;
    commands.MnuSaveAsBitmap_Click();
    EXPECT_EQ(script.back(), "failure Failed to Save Icon As Bitmap.");
    script.clear();
    dialogs.jpeg.answer = dialogs.gif.answer = DialogAnswer::Cancelled;
    commands.MnuSaveAsBitmap_Click();
    EXPECT_THAT(script, Not(Contains("failure Failed to Save Icon As Bitmap.")));
  }
}

// Save As Cursor

TEST_F(SaveCommandsTest, AsksForTheHotSpotBeforeTheNameOfACursor) {
  List(1);
  state.HotSpotX = 3;
  state.HotSpotY = 7;
  dialogs.path = "D:\\a.cur";
  commands.MnuSaveAsCursor_Click();
  EXPECT_THAT(script, ElementsAre("render 1", "hot spot", "ask - Save As Cursor", "hourglass", "status Saving...",
                                  "file D:\\a.cur", "status standing", "pointer back"));
  EXPECT_EQ(Byte("D:\\a.cur", 2), 2) << "the type of a cursor file";
  EXPECT_EQ(Byte("D:\\a.cur", 10), 3);
  EXPECT_EQ(Byte("D:\\a.cur", 12), 7);
}

TEST_F(SaveCommandsTest, AsksForNoNameWhereTheHotSpotPickerIsCancelled) {
  List(1);
  dialogs.hotSpotCancelled = true;
  dialogs.path = "D:\\a.cur";
  commands.MnuSaveAsCursor_Click();
  EXPECT_THAT(script, ElementsAre("render 1", "hot spot"));
}

TEST_F(SaveCommandsTest, SaysThatACursorFailed) {
  List(1);
  dialogs.path = "D:\\a.cur";
  files.refused = {dialogs.path};
  for (const auto& [language, text] : std::map<std::string, std::string>{
           {"ENG", "Failed to Save Icon As Cursor."}, {"CHS", "无法另存为光标文件."}, {"CHT", "無法另存為游標文件."}}) {
    state.CurrentLanguage = language;
    commands.MnuSaveAsCursor_Click();
    EXPECT_EQ(script.back(), "failure " + text);
  }
}

// Batches

TEST_F(SaveCommandsTest, NumbersTheFilesOfABatchAsTheEntries) {
  List(3, {2});
  dialogs.folder = "D:\\out";
  commands.mnuSaveAll_Click();
  EXPECT_THAT(script, ElementsAre("folder for .ICO", "hourglass", "status Saving...", "render 1",
                                  "file D:\\out\\Icon 1.ico", "paint", "render 2", "file D:\\out\\Icon 2.ico", "paint",
                                  "render 3", "file D:\\out\\Icon 3.ico", "paint", "status standing", "pointer back"));
}

TEST_F(SaveCommandsTest, NumbersTheFilesOfSelectedEntriesFromOneOn) {
  List(6, {2, 5});
  dialogs.folder = "D:\\out";
  commands.mnuSaveSel3_Click();
  EXPECT_THAT(script, Contains("folder for .CUR"));
  EXPECT_THAT(Files(), ElementsAre("D:\\out\\Curor 1.cur", "D:\\out\\Curor 2.cur"));
  EXPECT_THAT(script, Contains("render 5"));
  EXPECT_THAT(script, Not(Contains("render 3")));
  EXPECT_THAT(script, Not(Contains("hot spot")));
}

TEST_F(SaveCommandsTest, NamesTheFilesOfEachKindOfBatch) {
  List(1, {1});
  dialogs.folder = "D:\\out";
  commands.mnuSaveAll_Click();
  commands.mnuSaveSel_Click();
  commands.mnuSaveAll2_Click();
  commands.mnuSaveSel2_Click();
  commands.mnuSaveAll3_Click();
  commands.mnuSaveSel3_Click();
  EXPECT_THAT(Files(), ElementsAre("D:\\out\\Icon 1.ico", "D:\\out\\Icon 1.ico", "D:\\out\\Images 1.bmp",
                                   "D:\\out\\Images 1.bmp", "D:\\out\\Curor 1.cur", "D:\\out\\Curor 1.cur"));
}

TEST_F(SaveCommandsTest, WritesNumbersWithoutLeadingZeros) {
  List(12);
  dialogs.folder = "D:\\out";
  commands.mnuSaveAll_Click();
  EXPECT_EQ(Files()[8], "D:\\out\\Icon 9.ico");
  EXPECT_EQ(Files()[11], "D:\\out\\Icon 12.ico");
}

TEST_F(SaveCommandsTest, TakesADriveRootAsItStands) {
  List(1);
  dialogs.folder = "C:\\";
  commands.mnuSaveAll_Click();
  EXPECT_THAT(Files(), ElementsAre("C:\\Icon 1.ico"));
}

TEST_F(SaveCommandsTest, SavesNoBatchWhereNoFolderIsChosen) {
  List(2, {1});
  commands.mnuSaveAll_Click();
  commands.mnuSaveAll2_Click();
  commands.mnuSaveSel3_Click();
  EXPECT_THAT(script, ElementsAre("folder for .ICO", "folder for .bmp", "folder for .CUR"));
}

TEST_F(SaveCommandsTest, SaysThatNoEntryIsSelectedBeforeItAsksForAFolder) {
  List(3);
  commands.mnuSaveSel_Click();
  commands.mnuSaveSel2_Click();
  commands.mnuSaveSel3_Click();
  EXPECT_THAT(script,
              ElementsAre("hint No Icon be selected.", "hint No Icon be selected.", "hint No Icon be selected."));
  for (const auto& [language, text] :
       std::map<std::string, std::string>{{"CHS", "hint 未所中任何图标."}, {"CHT", "hint 未所中任何圖示."}}) {
    state.CurrentLanguage = language;
    commands.mnuSaveSel_Click();
    EXPECT_EQ(script.back(), text);
  }
}

TEST_F(SaveCommandsTest, GoesOnAfterAFileThatFailed) {
  List(3);
  dialogs.folder = "D:\\out";
  files.refused = {"D:\\out\\Icon 2.ico", "D:\\out\\Images 1.bmp", "D:\\out\\Curor 3.cur"};
  commands.mnuSaveAll_Click();
  EXPECT_THAT(script, Contains("failure Unable to save the file D:\\out\\Icon 2.ico"));
  commands.mnuSaveAll2_Click();
  EXPECT_THAT(script, Contains("failure Failed to Save Icon As Bitmap."));
  commands.mnuSaveAll3_Click();
  EXPECT_THAT(script, Contains("failure Failed to Save Icon As Cursor."));
  EXPECT_THAT(Files(), ElementsAre("D:\\out\\Icon 1.ico", "D:\\out\\Icon 3.ico", "D:\\out\\Images 2.bmp",
                                   "D:\\out\\Images 3.bmp", "D:\\out\\Curor 1.cur", "D:\\out\\Curor 2.cur"));
  EXPECT_EQ(window.status, "standing");
}

TEST_F(SaveCommandsTest, WritesBitmapsUnderTheExtensionOfTheChosenType) {
  List(1);
  dialogs.folder = "D:\\out";
  for (const char* extension : {".png", ".wbmp", ".emf"}) {
    dialogs.chosenExtension = extension;
    commands.mnuSaveAll2_Click();
    const std::string path = std::string("D:\\out\\Images 1") + extension;
    EXPECT_EQ(Files().back(), path);
    EXPECT_EQ(Byte(path, 0), 'B');
  }
}

TEST_F(SaveCommandsTest, ShowsTheJpegDialogOnceBeforeABatch) {
  List(2);
  dialogs.folder = "D:\\out";
  dialogs.chosenExtension = ".jpg";
  commands.mnuSaveAll2_Click();
  EXPECT_THAT(script, ElementsAre("folder for .bmp", "jpeg show batch", "hourglass", "status Saving...", "render 1",
                                  "temporary", "jpeg init D:\\out\\Images 1.jpg batch",
                                  "jpeg save D:\\out\\Images 1.jpg", "paint", "render 2", "temporary",
                                  "jpeg init D:\\out\\Images 2.jpg batch", "jpeg save D:\\out\\Images 2.jpg", "paint",
                                  "status standing", "pointer back", "delete temporary", "jpeg free"));
}

TEST_F(SaveCommandsTest, ShowsTheGifDialogOnceBeforeABatch) {
  List(3, {1, 3});
  dialogs.folder = "D:\\out";
  dialogs.chosenExtension = ".gif";
  commands.mnuSaveSel2_Click();
  EXPECT_THAT(script,
              ElementsAre("folder for .bmp", "gif show batch", "hourglass", "status Saving...", "render 1",
                          "gif save D:\\out\\Images 1.gif", "paint", "render 3", "gif save D:\\out\\Images 2.gif",
                          "paint", "status standing", "pointer back", "gif free"));
}

TEST_F(SaveCommandsTest, WritesNothingWhereTheOptionsOfABatchAreCancelled) {
  List(2);
  dialogs.folder = "D:\\out";
  dialogs.jpeg.answer = dialogs.gif.answer = DialogAnswer::Cancelled;
  dialogs.chosenExtension = ".jpg";
  commands.mnuSaveAll2_Click();
  dialogs.chosenExtension = ".gif";
  commands.mnuSaveAll2_Click();
  EXPECT_THAT(script, ElementsAre("folder for .bmp", "jpeg show batch", "jpeg free", "folder for .bmp",
                                  "gif show batch", "gif free"));
}

TEST_F(SaveCommandsTest, GoesOnAfterAnEncodedFileThatFailed) {
  List(2);
  dialogs.folder = "D:\\out";
  dialogs.chosenExtension = ".jpg";
  dialogs.jpeg.refused = {"D:\\out\\Images 1.jpg"};
  commands.mnuSaveAll2_Click();
  EXPECT_THAT(script, Contains("failure Failed to Save Icon As Bitmap.").Times(1));
  EXPECT_THAT(script, Contains("jpeg save D:\\out\\Images 2.jpg"));
  dialogs.chosenExtension = ".gif";
  dialogs.gif.refused = {"D:\\out\\Images 1.gif"};
  commands.mnuSaveAll2_Click();
  EXPECT_THAT(script, Contains("failure Failed to Save Icon As Bitmap.").Times(2));
  EXPECT_THAT(script, Contains("gif save D:\\out\\Images 2.gif"));
}

TEST_F(SaveCommandsTest, ReportsEachFileWhoseTemporaryBitmapFails) {
  List(2);
  dialogs.folder = "D:\\out";
  dialogs.chosenExtension = ".jpg";
  temporary.works = false;
  commands.mnuSaveAll2_Click();
  EXPECT_THAT(script, Contains("failure Failed to Save Icon As Bitmap.").Times(2));
}

TEST_F(SaveCommandsTest, TakesNoOtherCommandMeanwhile) {
  List(1);
  dialogs.path = "D:\\a.jpg";
  int heldInDialog = 0;
  dialogs.jpeg.onShow = [&] { heldInDialog = window.held; };
  commands.MnuSaveAsBitmap_Click();
  EXPECT_EQ(heldInDialog, 1);
  EXPECT_EQ(window.held, 0);
}

// Copy

TEST_F(SaveCommandsTest, CopiesTheCurrentIcon) {
  List(2);
  search.CurrentIndex = 1;
  commands.mnuCopy_Click();
  EXPECT_THAT(script, ElementsAre("render 2", "copy"));
}

TEST_F(SaveCommandsTest, SaysThatAnotherProgramHoldsTheClipboard) {
  List(1);
  window.clipboardFree = false;
  for (const auto& [language, text] : std::map<std::string, std::string>{
           {"ENG", "failure The icon was not copied: another program is using the clipboard."},
           {"CHS", "failure 未能复制图标: 剪贴板正被其他程序使用."},
           {"CHT", "failure 未能複製圖示: 剪貼簿正被其他程式使用."}}) {
    state.CurrentLanguage = language;
    commands.mnuCopy_Click();
    EXPECT_EQ(script.back(), text);
  }
}

TEST_F(SaveCommandsTest, DeletesTheTemporaryBitmapAndTheEncodersAtTheEnd) {
  commands.CleanUp();
  EXPECT_THAT(script, ElementsAre("delete temporary", "free encoders"));
}

}  // namespace
}  // namespace tarvik
