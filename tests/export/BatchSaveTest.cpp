// The save commands that write many files.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "export/SaveCommandsFixture.h"

namespace tarvik {
namespace {

using support::TestRaster;
using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::Not;
using ::testing::StartsWith;

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
  EXPECT_THAT(script, Not(Contains(StartsWith("hot spot"))));
}

TEST_F(SaveCommandsTest, SaysHowFarABatchIs) {
  List(6, {2, 5});
  dialogs.folder = "D:\\out";
  commands.mnuSaveSel_Click();
  EXPECT_THAT(window.progress, ElementsAre("1/2", "2/2", "none"));
  window.progress.clear();
  files.refused = {"D:\\out\\Images 2.bmp"};
  commands.mnuSaveAll2_Click();
  EXPECT_THAT(window.progress, ElementsAre("1/6", "2/6", "3/6", "4/6", "5/6", "6/6", "none"));
  window.progress.clear();
  commands.mnuSaveAs_Click();
  EXPECT_THAT(window.progress, ElementsAre()) << "a single file";
}

TEST_F(SaveCommandsTest, WritesTheHotSpotStoredLastIntoEveryCursorOfABatch) {
  List(2);
  dialogs.folder = "D:\\out";
  state.HotSpotX = 3;
  state.HotSpotY = 7;
  commands.mnuSaveAll3_Click();
  for (const char* path : {"D:\\out\\Curor 1.cur", "D:\\out\\Curor 2.cur"}) {
    EXPECT_EQ(Byte(path, 10), 3) << path;
    EXPECT_EQ(Byte(path, 12), 7) << path;
  }
}

// 255 colours besides black and white fill a bitmap's palette; an icon's palette has room for two fewer.
TEST_F(SaveCommandsTest, CountsTheColoursOfTheImageForIconsAndOfTheComposedIconForBitmaps) {
  const auto colors = [](int count) {
    return TestRaster(32,
                      [count](int x, int y) { return static_cast<Color>(0x400001 + (x + 32 * y) % count * 0x100); });
  };
  List(1);
  dialogs.folder = "D:\\out";
  struct Row {
    int image;
    int composed;
    int iconBits;
    int bitmapBits;
  };
  for (const Row& row : {Row{254, 257, 8, 24}, Row{255, 255, 24, 8}, Row{255, 256, 24, 8}, Row{254, 200, 8, 8}}) {
    window.RenderAs(colors(row.image), colors(row.composed));
    commands.mnuSaveAll_Click();
    commands.mnuSaveAll2_Click();
    commands.mnuSaveAll3_Click();
    EXPECT_EQ(Byte("D:\\out\\Icon 1.ico", 36), row.iconBits) << row.image;
    EXPECT_EQ(Byte("D:\\out\\Curor 1.cur", 36), row.iconBits) << row.image;
    EXPECT_EQ(Byte("D:\\out\\Images 1.bmp", 28), row.bitmapBits) << row.composed;
  }
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

TEST_F(SaveCommandsTest, TakesNoOtherCommandDuringABatchOfAnyKind) {
  List(2, {1, 2});
  dialogs.folder = "D:\\out";
  using Batch = void (SaveCommands::*)();
  struct Row {
    const char* name;
    Batch batch;
    const char* extension;
  };
  for (const Row& row :
       {Row{"icons", &SaveCommands::mnuSaveAll_Click, ""}, Row{"selected icons", &SaveCommands::mnuSaveSel_Click, ""},
        Row{"cursors", &SaveCommands::mnuSaveAll3_Click, ""},
        Row{"selected cursors", &SaveCommands::mnuSaveSel3_Click, ""},
        Row{"bitmaps", &SaveCommands::mnuSaveAll2_Click, ".bmp"},
        Row{"selected bitmaps", &SaveCommands::mnuSaveSel2_Click, ".bmp"},
        Row{"JPEGs", &SaveCommands::mnuSaveAll2_Click, ".jpg"},
        Row{"GIFs", &SaveCommands::mnuSaveAll2_Click, ".gif"}}) {
    dialogs.chosenExtension = row.extension;
    window.heldWhenServed.clear();
    int heldInChooser = 0;
    dialogs.onShowDir = [&] { heldInChooser = window.held; };
    (commands.*row.batch)();
    EXPECT_EQ(heldInChooser, 1) << row.name;
    EXPECT_EQ(window.heldWhenServed, (std::vector<int>{1, 1})) << row.name;
    EXPECT_EQ(window.held, 0) << row.name;
  }
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
                                  "status standing", "pointer back", "jpeg free", "delete temporary"));
}

TEST_F(SaveCommandsTest, ShowsTheGifDialogOnceBeforeABatch) {
  List(3, {1, 3});
  dialogs.folder = "D:\\out";
  dialogs.chosenExtension = ".gif";
  commands.mnuSaveSel2_Click();
  EXPECT_THAT(script, ElementsAre("folder for .bmp", "gif show batch", "hourglass", "status Saving...", "render 1",
                                  "gif init D:\\out\\Images 1.gif", "gif save D:\\out\\Images 1.gif", "paint",
                                  "render 3", "gif init D:\\out\\Images 2.gif", "gif save D:\\out\\Images 2.gif",
                                  "paint", "status standing", "pointer back", "gif free"));
  EXPECT_EQ(dialogs.gif.lastPixel, 0x000300U);
}

TEST_F(SaveCommandsTest, WritesNothingWhereTheOptionsOfABatchAreCancelled) {
  List(2);
  dialogs.folder = "D:\\out";
  dialogs.jpeg.answer = dialogs.gif.answer = DialogAnswer::Cancelled;
  dialogs.chosenExtension = ".jpg";
  commands.mnuSaveAll2_Click();
  dialogs.chosenExtension = ".gif";
  commands.mnuSaveAll2_Click();
  EXPECT_THAT(script, ElementsAre("folder for .bmp", "jpeg show batch", "jpeg free", "delete temporary",
                                  "folder for .bmp", "gif show batch", "gif free"));
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

}  // namespace
}  // namespace tarvik
