#include "encoders/fSaveJPG.h"

#include <windows.h>

#include <gtest/gtest.h>

#include "encoders/EncodedImages.h"
#include "encoders/JpegOptions.h"
#include "encoders/fSaveJPGTexts.h"
#include "forms/Controls.h"
#include "forms/ModalDriver.h"
#include "platform/DiskFile.h"
#include "platform/TemporaryFolder.h"
#include "resource.h"
#include "support/MemorySink.h"
#include "support/TestRaster.h"

namespace tarvik {
namespace {

using support::ChooseRow;
using support::Command;
using support::MemorySink;
using support::ReadAll;
using support::TestRaster;
using support::TextOf;

class fSaveJPGTest : public ::testing::Test {
 protected:
  fSaveJPGTest() {
    state.CurrentLanguage = "ENG";
    application.onRuntimeError = [](Form& /*form*/, const RuntimeError& /*error*/) { ADD_FAILURE(); };
  }

  // Shows the dialog for one file; `work` operates it.
  DialogAnswer ShowSingle(support::ModalDriver::Step work) {
    form.InitJpegExport(picture, path, DialogMode::Single);
    driver.On(fSaveJPG_CboSize, std::move(work));
    return form.ShowFor(DialogMode::Single);
  }
  void MoveTo(int quality) {
    // To the lowest value, then step by step.
    Scroll(SB_TOP);
    for (int step = 1; step < quality; ++step) Scroll(SB_LINEDOWN);
  }
  void Scroll(int request) {
    SendMessageW(form.Window(), WM_HSCROLL, static_cast<WPARAM>(request),
                 reinterpret_cast<LPARAM>(form.Item(fSaveJPG_hscQuality)));
  }

  Application application{GetModuleHandleW(nullptr)};
  ProgramState state;
  support::TemporaryFolder folder;
  std::string path = folder.In("图.jpg");
  TestRaster picture{32, [](int x, int y) { return static_cast<Color>(x * 8 + y * 8 * 256); }};
  DiskFile files;
  support::ModalDriver driver;
  fSaveJPG form{application, state, nullptr, files};
};

TEST_F(fSaveJPGTest, OpensWithMediumQualityAndTheDefaultSampling) {
  form.Show();
  EXPECT_EQ(form.ItemText(fSaveJPG_txtQual), "60");
  EXPECT_EQ(form.ItemText(fSaveJPG_CboSize), "Medium");
  EXPECT_EQ(form.ItemText(fSaveJPG_cboSubSample), "2:2  [Default]");
  EXPECT_EQ(support::RowCount(form.Window(), fSaveJPG_CboSize), 5);
  EXPECT_EQ(support::RowCount(form.Window(), fSaveJPG_cboSubSample), 16);
}

TEST_F(fSaveJPGTest, ShowsItsTextsInEachLanguage) {
  for (const std::string language : {"ENG", "CHS", "CHT"}) {
    state.CurrentLanguage = language;
    form.Load();
    for (const FormText& row : saveJpgTexts) {
      const std::string shown = row.id == formCaption ? TextOf(form.Window()) : form.ItemText(row.id);
      EXPECT_EQ(shown, *Pick(row.text, language));
    }
    for (int preset = 0; preset < 5; ++preset)
      EXPECT_EQ(support::RowText(form.Window(), fSaveJPG_CboSize, preset),
                *Pick(qualityPresets.at(static_cast<std::size_t>(preset)), language));
    form.Unload();
  }
}

TEST_F(fSaveJPGTest, SetsTheQualityByThePreset) {
  form.Load();
  for (const auto& [preset, quality] : {std::pair{4, "100"}, {0, "20"}, {1, "40"}, {3, "80"}, {2, "60"}}) {
    ChooseRow(form.Window(), fSaveJPG_CboSize, preset);
    EXPECT_EQ(form.ItemText(fSaveJPG_txtQual), quality);
  }
}

TEST_F(fSaveJPGTest, MovesThePresetAtTheEndsOfItsStepsOnly) {
  form.Load();
  MoveTo(35);
  EXPECT_EQ(form.ItemText(fSaveJPG_txtQual), "35");
  EXPECT_EQ(form.ItemText(fSaveJPG_CboSize), "Low") << "as it was on the way, at 21";
  ChooseRow(form.Window(), fSaveJPG_CboSize, 4);
  for (int step = 100; step > 85; --step) Scroll(SB_LINEUP);
  EXPECT_EQ(form.ItemText(fSaveJPG_txtQual), "85");
  EXPECT_EQ(form.ItemText(fSaveJPG_CboSize), "Highest");
  for (int step = 85; step > 80; --step) Scroll(SB_LINEUP);
  EXPECT_EQ(form.ItemText(fSaveJPG_CboSize), "High");
  MoveTo(40);
  EXPECT_EQ(form.ItemText(fSaveJPG_CboSize), "Low");
  MoveTo(7);
  EXPECT_EQ(form.ItemText(fSaveJPG_CboSize), "Lowest");
  EXPECT_EQ(form.ItemText(fSaveJPG_txtQual), "7");
}

TEST_F(fSaveJPGTest, WritesTheFileWithTheChosenOptions) {
  EXPECT_EQ(ShowSingle([](HWND window) {
              ChooseRow(window, fSaveJPG_CboSize, 4);
              ChooseRow(window, fSaveJPG_cboSubSample, 10);
              Command(window, fSaveJPG_cmdFinish1);
            }),
            DialogAnswer::Ok);
  const std::string jpeg = ReadAll(path);
  EXPECT_EQ(support::ComponentsOf(jpeg), 3);
  EXPECT_EQ(support::LuminanceFactorsOf(jpeg), 0x41);
  EXPECT_EQ(support::FirstQuantiser(jpeg), 1) << "quality 100";
  EXPECT_FALSE(form.IsLoaded());
}

TEST_F(fSaveJPGTest, DisablesTheSamplingForGreyscaleAndTakesItUpAgain) {
  ShowSingle([](HWND window) {
    ChooseRow(window, fSaveJPG_cboSubSample, 2);
    CheckDlgButton(window, fSaveJPG_chkGreyscale, BST_CHECKED);
    Command(window, fSaveJPG_chkGreyscale);
    EXPECT_FALSE(IsWindowEnabled(GetDlgItem(window, fSaveJPG_cboSubSample)));
    Command(window, fSaveJPG_cmdFinish1);
  });
  EXPECT_EQ(support::ComponentsOf(ReadAll(path)), 1);
  ShowSingle([](HWND window) {
    ChooseRow(window, fSaveJPG_cboSubSample, 2);
    for (const UINT check : {UINT{BST_CHECKED}, UINT{BST_UNCHECKED}}) {
      CheckDlgButton(window, fSaveJPG_chkGreyscale, check);
      Command(window, fSaveJPG_chkGreyscale);
    }
    EXPECT_TRUE(IsWindowEnabled(GetDlgItem(window, fSaveJPG_cboSubSample)));
    Command(window, fSaveJPG_cmdFinish1);
  });
  EXPECT_EQ(support::ComponentsOf(ReadAll(path)), 3);
  EXPECT_EQ(support::LuminanceFactorsOf(ReadAll(path)), 0x21);
}

TEST_F(fSaveJPGTest, WritesNothingWhereItIsCancelledOrClosed) {
  for (const auto& leave :
       {std::pair<UINT, WPARAM>{WM_COMMAND, fSaveJPG_cmdFinish0}, {WM_COMMAND, IDCANCEL}, {WM_CLOSE, 0}}) {
    EXPECT_EQ(ShowSingle([&](HWND window) { PostMessageW(window, leave.first, leave.second, 0); }),
              DialogAnswer::Cancelled);
    EXPECT_EQ(ReadAll(path), "");
    EXPECT_FALSE(form.IsLoaded());
  }
}

TEST_F(fSaveJPGTest, ReplacesAReadOnlyFile) {
  folder.MakeFile("图.jpg", "former");
  support::AddAttributes(path, FILE_ATTRIBUTE_READONLY);
  EXPECT_EQ(ShowSingle([](HWND window) { Command(window, fSaveJPG_cmdFinish1); }), DialogAnswer::Ok);
  EXPECT_EQ(support::ByteAt(ReadAll(path), 1), 0xD8);
}

TEST_F(fSaveJPGTest, ShowsTheHourglassWhileItWrites) {
  const HCURSOR hourglass = LoadCursorW(nullptr, IDC_WAIT);
  MemorySink file;
  HCURSOR seen = nullptr;
  file.onOpen = [&seen] { seen = GetCursor(); };
  fSaveJPG dialog(application, state, nullptr, file);
  dialog.InitJpegExport(picture, path, DialogMode::Single);
  driver.On(fSaveJPG_CboSize, [&](HWND window) {
    const HCURSOR former = GetCursor();
    EXPECT_NE(former, hourglass);
    Command(window, fSaveJPG_cmdFinish1);
    EXPECT_EQ(GetCursor(), former);
  });
  EXPECT_EQ(dialog.ShowFor(DialogMode::Single), DialogAnswer::Ok);
  EXPECT_EQ(seen, hourglass);
}

TEST_F(fSaveJPGTest, TellsAFileThatCannotBeWritten) {
  path = folder.MakeFolder("a.jpg");
  EXPECT_EQ(ShowSingle([](HWND window) { Command(window, fSaveJPG_cmdFinish1); }), DialogAnswer::Failed);
  path = folder.In("missing\\a.jpg");
  EXPECT_EQ(ShowSingle([](HWND window) { Command(window, fSaveJPG_cmdFinish1); }), DialogAnswer::Failed);
}

TEST_F(fSaveJPGTest, KeepsTheOptionsForABatchAndWritesNothingItself) {
  driver.On(fSaveJPG_CboSize, [](HWND window) {
    ChooseRow(window, fSaveJPG_CboSize, 0);
    CheckDlgButton(window, fSaveJPG_chkGreyscale, BST_CHECKED);
    Command(window, fSaveJPG_chkGreyscale);
    Command(window, fSaveJPG_cmdFinish1);
  });
  EXPECT_EQ(form.ShowFor(DialogMode::NoSingle), DialogAnswer::Ok);
  EXPECT_TRUE(form.IsLoaded());
  EXPECT_FALSE(IsWindowVisible(form.Window()));
  for (const char* name : {"1.jpg", "2.jpg"}) {
    form.InitJpegExport(picture, folder.In(name), DialogMode::NoSingle);
    EXPECT_TRUE(form.SaveToJPGForNoSingle(folder.In(name)));
    EXPECT_EQ(support::ComponentsOf(ReadAll(folder.In(name))), 1);
    EXPECT_GT(support::FirstQuantiser(ReadAll(folder.In(name))), 16) << "quality 20";
  }
  form.FreeObj();
  EXPECT_FALSE(form.IsLoaded());
  // The picture belongs to the caller and may no longer exist.
  EXPECT_FALSE(form.SaveToJPGForNoSingle(folder.In("3.jpg")));
  EXPECT_EQ(ReadAll(folder.In("3.jpg")), "");
}

TEST_F(fSaveJPGTest, BeginsWithAnEncoderOfItsOwnAfterItWasFreed) {
  driver.On(fSaveJPG_CboSize, [](HWND window) { PostMessageW(window, WM_COMMAND, fSaveJPG_cmdComment, 0); });
  driver.On(fComment_txtComment, [&](HWND window) {
    support::SetText(window, fComment_txtComment, "of the first batch");
    Command(window, fComment_cmdFinish);
  });
  driver.On(fSaveJPG_CboSize, [](HWND window) { Command(window, fSaveJPG_cmdFinish1); });
  EXPECT_EQ(form.ShowFor(DialogMode::NoSingle), DialogAnswer::Ok);
  form.FreeObj();
  driver.On(fSaveJPG_CboSize, [](HWND window) { PostMessageW(window, WM_COMMAND, fSaveJPG_cmdComment, 0); });
  driver.On(fComment_txtComment, [&](HWND window) {
    EXPECT_EQ(TextOf(window, fComment_txtComment), "");
    Command(window, fComment_cmdFinish);
  });
  driver.On(fSaveJPG_CboSize, [](HWND window) { Command(window, fSaveJPG_cmdFinish1); });
  EXPECT_EQ(form.ShowFor(DialogMode::NoSingle), DialogAnswer::Ok);
  form.FreeObj();
}

TEST_F(fSaveJPGTest, WritesTheCommentThatWasTyped) {
  for (const std::string comment : {"eins\r\n二", ""}) {
    form.InitJpegExport(picture, path, DialogMode::Single);
    driver.On(fSaveJPG_CboSize, [](HWND window) { PostMessageW(window, WM_COMMAND, fSaveJPG_cmdComment, 0); });
    driver.On(fComment_txtComment, [&](HWND window) {
      EXPECT_EQ(TextOf(window), "Comment");
      support::SetText(window, fComment_txtComment, comment);
      Command(window, fComment_cmdFinish);
    });
    driver.On(fSaveJPG_CboSize, [](HWND window) { PostMessageW(window, WM_COMMAND, fSaveJPG_cmdComment, 0); });
    driver.On(fComment_txtComment, [&](HWND window) {
      EXPECT_EQ(TextOf(window, fComment_txtComment), comment) << "the text that the encoder holds";
      support::SetText(window, fComment_txtComment, "left by Esc");
      Command(window, IDCANCEL);
    });
    driver.On(fSaveJPG_CboSize, [](HWND window) { Command(window, fSaveJPG_cmdFinish1); });
    EXPECT_EQ(form.ShowFor(DialogMode::Single), DialogAnswer::Ok);
    EXPECT_EQ(support::CommentOf(ReadAll(path)), comment);
  }
}

TEST_F(fSaveJPGTest, TakesEnterInTheCommentForANewLine) {
  form.InitJpegExport(picture, path, DialogMode::Single);
  driver.On(fSaveJPG_CboSize, [](HWND window) { PostMessageW(window, WM_COMMAND, fSaveJPG_cmdComment, 0); });
  driver.On(fComment_txtComment, [](HWND window) {
    const HWND text = GetDlgItem(window, fComment_txtComment);
    support::SetText(window, fComment_txtComment, "eins");
    SetFocus(text);
    SendMessageW(text, EM_SETSEL, 4, 4);
    PostMessageW(text, WM_KEYDOWN, VK_RETURN, 1);
  });
  // If Enter pressed the button, this step would never come.
  driver.On(fComment_txtComment, [](HWND window) {
    EXPECT_EQ(TextOf(window, fComment_txtComment), "eins\r\n");
    Command(window, fComment_cmdFinish);
  });
  driver.On(fSaveJPG_CboSize, [](HWND window) { Command(window, fSaveJPG_cmdFinish1); });
  EXPECT_EQ(form.ShowFor(DialogMode::Single), DialogAnswer::Ok);
  EXPECT_EQ(support::CommentOf(ReadAll(path)), "eins\r\n");
}

TEST_F(fSaveJPGTest, TakesAnOpenCommentWithItWhereItIsClosed) {
  for (int round = 0; round < 2; ++round) {
    form.InitJpegExport(picture, path, DialogMode::Single);
    driver.On(fSaveJPG_CboSize, [](HWND window) { PostMessageW(window, WM_COMMAND, fSaveJPG_cmdComment, 0); });
    driver.On(fComment_txtComment, [this](HWND) { PostMessageW(form.Window(), WM_CLOSE, 0, 0); });
    EXPECT_EQ(form.ShowFor(DialogMode::Single), DialogAnswer::Cancelled);
    EXPECT_TRUE(driver.IsDone());
  }
  application.Run();  // returns because no form is left
}

TEST(fComment, HasTheSizeOf4800By3460Twips) {
  Application application{GetModuleHandleW(nullptr)};
  ProgramState state;
  state.CurrentLanguage = "CHT";
  fComment form(application, state);
  form.Load();
  RECT bounds;
  GetWindowRect(form.Window(), &bounds);
  const int dots = 96;
  EXPECT_NEAR(bounds.right - bounds.left, 4800 * dots / 1440.0, 0.5);
  EXPECT_NEAR(bounds.bottom - bounds.top, 3460 * dots / 1440.0, 0.7);
  EXPECT_EQ(TextOf(form.Window()), "內容");
  EXPECT_EQ(form.ItemText(fComment_cmdFinish), "確定(&O)");
}

}  // namespace
}  // namespace tarvik
