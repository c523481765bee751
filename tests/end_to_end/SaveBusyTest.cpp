// What a save shows while it runs, what input it accepts meanwhile, and what handles it leaks.

#include <gtest/gtest.h>
#include <windows.h>

#include <functional>

#include "end_to_end/SavingTest.h"
#include "platform/Holdings.h"
#include "platform/Text.h"

namespace tarvik::end_to_end {
namespace {

// One of the batch commands and the names of its files.
struct BatchOfFiles {
  std::string name;
  int command;
  std::string prefix;
  std::string extension;
};

class SaveBusy : public Saving {
 protected:
  static constexpr std::size_t few = 20;

  // Repeats a round twenty times, so that the leak of a single round adds up. The first rounds fill the caches of the
  // system. `keptBySystem` is what the system's own dialog leaks in each round, in handles of each kind.
  void ExpectToKeepNothing(const char* name, const std::function<void()>& command, int keptBySystem) const {
    constexpr int warmUps = 2;
    constexpr int rounds = 20;
    support::Holdings before{};
    for (int round = 0; round < warmUps + rounds; ++round) {
      if (round == warmUps) before = support::HeldBy(program_.Process());
      command();
      ExpectAsFound();
    }
    EXPECT_GT(before.gdiObjects, 0);
    EXPECT_GT(before.kernelHandles, 0);
    const support::Holdings after = support::HeldBy(program_.Process());
    EXPECT_LT(after.gdiObjects, before.gdiObjects + rounds / 2) << name;
    EXPECT_LT(after.kernelHandles, before.kernelHandles + rounds * keptBySystem + rounds / 2) << name;
    EXPECT_LT(after.userHandles, before.userHandles + rounds * keptBySystem + rounds / 2) << name;
  }

  // Suspends the program once its batch has saved that many icons and most are still to come.
  void StopAfter(std::size_t icons) {
    EXPECT_TRUE(Eventually([&] { return SavedNames().size() >= icons; }));
    program_.Suspend();
    EXPECT_LT(SavedNames().size(), static_cast<std::size_t>(many)) << "the batch was over before it could be stopped";
  }

  // Does `something` while a batch is suspended in its middle, then lets it finish.
  void DuringBatch(int command, const std::function<void()>& something) {
    ChooseOut(command);
    StopAfter(few);
    const HCURSOR pointer = ShownPointer();
    something();
    program_.Resume();
    EXPECT_NE(pointer, found_.pointer) << "no hourglass";
    ASSERT_TRUE(Eventually([&] { return Status() != "Saving..."; }));
  }
};

class EveryBatch : public SaveBusy, public ::testing::WithParamInterface<BatchOfFiles> {};

TEST_P(EveryBatch, ShowsThatItRunsAndTakesNoCommands) {
  FindMany();
  DuringBatch(GetParam().command, [&] {
    for (const int command : {FrmFindIcon_mnuExit, FrmFindIcon_mnuStart, FrmFindIcon_mnuSaveAs, FrmFindIcon_mnuSaveSel2,
                              FrmFindIcon_mnuCopy, FrmFindIcon_mnuRem, FrmFindIcon_MnuAbout, FrmFindIcon_CmdFind})
      program_.Command(command);
    program_.Window().Post(WM_CLOSE);
    program_.Window().Post(WM_SYSCOMMAND, SC_CLOSE);
    ClickCell(5);
    PressKey(VK_RETURN);
    PressKey(VK_F4, {VK_MENU});
  });
  ASSERT_TRUE(program_.IsRunning());
  EXPECT_TRUE(IsEnabled(FrmFindIcon_CmdFind));
  EXPECT_EQ(program_.CountWindows(), found_.windows);
  EXPECT_EQ(Status(), found_.status);
  EXPECT_EQ(List().RowCount(), many);
  EXPECT_EQ(TextOf(FrmFindIcon_lblInfo), "Icon No 1 Selected.");
  EXPECT_EQ(SavedNames().size(), static_cast<std::size_t>(many));
  for (const int number : {1, 7, 1000, many})
    EXPECT_FALSE(support::ReadAll(Out(GetParam().prefix + std::to_string(number) + GetParam().extension)).empty())
        << number;
}

INSTANTIATE_TEST_SUITE_P(SaveBusy, EveryBatch,
                         ::testing::Values(BatchOfFiles{"Icons", FrmFindIcon_mnuSaveAll, "Icon ", ".ico"},
                                           BatchOfFiles{"Images", FrmFindIcon_mnuSaveAll2, "Images ", ".bmp"},
                                           BatchOfFiles{"Cursors", FrmFindIcon_mnuSaveAll3, "Curor ", ".cur"}),
                         [](const auto& batch) { return batch.param.name; });

TEST_F(SaveBusy, ABatchPaintsTheWindow) {
  FindMany();
  const RECT grid = program_.Item(FrmFindIcon_PicFrame).Inside();
  const Screenshot before(grid);
  const auto differences = [&] { return CountDifferences(Screenshot(grid), before); };
  ChooseOut(FrmFindIcon_mnuSaveAll);
  StopAfter(few);
  const HWND cover =
      CreateWindowExW(WS_EX_TOPMOST, L"Static", L"", WS_POPUP | WS_VISIBLE, grid.left, grid.top, grid.right - grid.left,
                      grid.bottom - grid.top, nullptr, nullptr, nullptr, nullptr);
  UpdateWindow(cover);
  EXPECT_GT(differences(), 0);
  DestroyWindow(cover);
  EXPECT_GT(differences(), 0) << "painted without the program";
  program_.Resume();
  // It must be painted before the batch is over, so the screen is compared each time the program is suspended in the
  // batch.
  bool painted = false;
  for (std::size_t icons = 2 * few; !painted && icons < many && !HasFailure(); icons += few) {
    StopAfter(icons);
    painted = differences() == 0;
    program_.Resume();
  }
  EXPECT_TRUE(painted);
  ASSERT_TRUE(Eventually([&] { return Status() != "Saving..."; }));
}

TEST_F(SaveBusy, TwentyRoundsOfEachCommandKeepNothing) {
  FindPictures();
  const auto saveOne = [this](int command, const char* name) {
    DeleteFileW(ToWide(Out(name)).c_str());
    SaveAs(command, Out(name));
  };
  // Wine's Save dialog, in any program, leaks a registry key and a USER handle each time it is shown.
  constexpr int saveDialog = 1;
  struct Row {
    const char* name;
    std::function<void()> round;
    int keptBySystem = 0;
  };
  const Row commands[] = {
      {"icon", [&] { saveOne(FrmFindIcon_mnuSaveAs, "a.ico"); }, saveDialog},
      {"cursor", [&] { saveOne(FrmFindIcon_MnuSaveAsCursor, "a.cur"); }, saveDialog},
      {"bitmap", [&] { saveOne(FrmFindIcon_MnuSaveAsBitmap, "a.bmp"); }, saveDialog},
      {"JPEG",
       [&] {
         saveOne(FrmFindIcon_MnuSaveAsBitmap, "a.jpg");
         const Dialog options(program_, fSaveJPG_CboSize);
         options.Press(fSaveJPG_cmdComment);
         Dialog(program_, fComment_txtComment).End(fComment_cmdFinish);
         options.End(fSaveJPG_cmdFinish1);
       },
       saveDialog},
      {"GIF",
       [&] {
         saveOne(FrmFindIcon_MnuSaveAsBitmap, "a.gif");
         Dialog(program_, FrmConvertGIF_Option1).End(FrmConvertGIF_CmdOk);
       },
       saveDialog},
      {"cancelled name", [&] { AskForName(FrmFindIcon_mnuSaveAs).Cancel(); }, saveDialog},
      {"cancelled hot spot",
       [&] {
         program_.Command(FrmFindIcon_MnuSaveAsCursor);
         Dialog(program_, FrmHotSpot_PicCursor).End(FrmHotSpot_CmdCancel);
       }},
      {"icons", [&] { ChooseOut(FrmFindIcon_mnuSaveAll); }},
      {"cursors", [&] { ChooseOut(FrmFindIcon_mnuSaveAll3); }},
      {"cursors of which one fails",
       [&] {
         const std::wstring inTheWay = ToWide(Out("Curor 2.cur"));
         DeleteFileW(inTheWay.c_str());
         CreateDirectoryW(inTheWay.c_str(), nullptr);
         ChooseOut(FrmFindIcon_mnuSaveAll3);
         ReadMessages(1);
         RemoveDirectoryW(inTheWay.c_str());
       }},
      {"cancelled folder", [&] { AskForFolder(FrmFindIcon_mnuSaveAll).Cancel(); }},
      {"selected icons", [&] { ChooseOut(FrmFindIcon_mnuSaveSel); }},
      {"selected bitmaps", [&] { ChooseOut(FrmFindIcon_mnuSaveSel2); }},
      {"selected cursors",
       [&] {
         const FolderChooser chooser = AskForFolder(FrmFindIcon_mnuSaveSel3);
         NewFolderDialog(program_, chooser).End(frmDirCreate_CmdCancel);
         chooser.Ok();
       }},
      {"bitmaps", [&] { ChooseOut(FrmFindIcon_mnuSaveAll2); }},
      {"JPEGs",
       [&] {
         ChooseOut(FrmFindIcon_mnuSaveAll2, Jpg);
         Dialog(program_, fSaveJPG_CboSize).End(fSaveJPG_cmdFinish1);
       }},
      {"GIFs",
       [&] {
         ChooseOut(FrmFindIcon_mnuSaveAll2, Gif);
         Dialog(program_, FrmConvertGIF_Option1).End(FrmConvertGIF_CmdOk);
       }},
      {"copy", [&] { program_.Command(FrmFindIcon_mnuCopy); }},
  };
  for (const Row& row : commands) ExpectToKeepNothing(row.name, row.round, row.keptBySystem);
}

}  // namespace
}  // namespace tarvik::end_to_end
