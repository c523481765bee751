#include "export/SaveCommands.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <new>

#include "export/SaveCommandsFixture.h"

namespace tarvik {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::Not;

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
  EXPECT_THAT(script, ElementsAre("render 1", "hourglass", "ask - Save As", "refused D:\\a.ico", "pointer back"));
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
                         {"D:\\a.gIf", "gif init D:\\a.gIf"},
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
  EXPECT_THAT(script, ElementsAre("render 1", "hot spot on 4 pixels", "ask - Save As Cursor", "hourglass",
                                  "status Saving...", "file D:\\a.cur", "status standing", "pointer back"));
  EXPECT_EQ(Byte("D:\\a.cur", 2), 2) << "the type of a cursor file";
  EXPECT_EQ(Byte("D:\\a.cur", 10), 3);
  EXPECT_EQ(Byte("D:\\a.cur", 12), 7);
}

TEST_F(SaveCommandsTest, AsksForNoNameWhereTheHotSpotPickerIsCancelled) {
  List(1);
  dialogs.hotSpotCancelled = true;
  dialogs.path = "D:\\a.cur";
  commands.MnuSaveAsCursor_Click();
  EXPECT_THAT(script, ElementsAre("render 1", "hot spot on 4 pixels"));
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
