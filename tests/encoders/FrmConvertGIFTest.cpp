#include "encoders/FrmConvertGIF.h"

#include <windows.h>

#include <gtest/gtest.h>

#include "encoders/EncodedImages.h"
#include "encoders/FrmConvertGIFTexts.h"
#include "encoders/GifOptions.h"
#include "forms/Controls.h"
#include "forms/ModalDriver.h"
#include "platform/DiskFile.h"
#include "platform/TemporaryFolder.h"
#include "resource.h"
#include "support/MemorySink.h"

namespace tarvik {
namespace {

using support::ByteAt;
using support::Command;
using support::MemorySink;
using support::ReadAll;
using support::TextOf;

constexpr std::size_t firstPaletteEntry = 13;

class FrmConvertGIFTest : public ::testing::Test {
 protected:
  FrmConvertGIFTest() {
    state.CurrentLanguage = "ENG";
    SetPixel(icon.Dc(), 0, 0, RGB(10, 20, 30));
  }

  DialogAnswer Show(DialogMode mode, support::ModalDriver::Step work) {
    driver.On(FrmConvertGIF_Option1, std::move(work));
    if (mode == DialogMode::Single) form.InitGifExport(icon, path);
    return form.ShowFor(mode);
  }
  static void Tick(HWND window, int id) {
    if (id == FrmConvertGIF_Check1) {
      CheckDlgButton(window, id, BST_CHECKED);
    } else {
      CheckRadioButton(window, FrmConvertGIF_Option1, FrmConvertGIF_Option2, id);
    }
  }
  static bool HasTransparency(const std::string& gif) { return gif.find("\x21\xF9\x04\x01") != std::string::npos; }

  Application application{GetModuleHandleW(nullptr)};
  ProgramState state;
  support::TemporaryFolder folder;
  std::string path = folder.In("图.gif");
  Surface icon{32, 32, 0x332211};
  DiskFile files;
  support::ModalDriver driver;
  FrmConvertGIF form{application, state, nullptr, {files, FileLength}};
};

TEST_F(FrmConvertGIFTest, ShowsItsTextsInEachLanguage) {
  for (const std::string language : {"ENG", "CHS", "CHT"}) {
    state.CurrentLanguage = language;
    form.Load();
    for (const FormText& row : convertGifTexts) {
      const std::string shown = row.id == formCaption ? TextOf(form.Window()) : form.ItemText(row.id);
      EXPECT_EQ(shown, *Pick(row.text, language));
    }
    form.Unload();
  }
}

TEST_F(FrmConvertGIFTest, WritesTheIconsOwnColoursByDefault) {
  EXPECT_EQ(Show(DialogMode::Single,
                 [](HWND window) {
                   EXPECT_EQ(IsDlgButtonChecked(window, FrmConvertGIF_Option1), UINT{BST_CHECKED});
                   EXPECT_EQ(TextOf(window, FrmConvertGIF_Label1), "图.gif");
                   Command(window, FrmConvertGIF_CmdOk);
                 }),
            DialogAnswer::Ok);
  const std::string gif = ReadAll(path);
  EXPECT_EQ(gif.substr(0, 3), "GIF");
  EXPECT_EQ(ByteAt(gif, 6), 32);
  EXPECT_EQ(gif.substr(firstPaletteEntry, 6), (std::string{10, 20, 30, 0x11, 0x22, 0x33}));
  EXPECT_FALSE(HasTransparency(gif));
  EXPECT_FALSE(form.IsLoaded());
}

TEST_F(FrmConvertGIFTest, MakesTheTopLeftColourTransparentOnDemand) {
  Show(DialogMode::Single, [](HWND window) {
    Tick(window, FrmConvertGIF_Check1);
    Command(window, FrmConvertGIF_CmdOk);
  });
  const std::string gif = ReadAll(path);
  ASSERT_TRUE(HasTransparency(gif));
  const int index = ByteAt(gif, gif.find("\x21\xF9\x04\x01") + 6);
  EXPECT_EQ(gif.substr(firstPaletteEntry + static_cast<std::size_t>(index) * 3, 3), (std::string{10, 20, 30}));
}

TEST_F(FrmConvertGIFTest, WritesTheWebPaletteOnDemand) {
  Show(DialogMode::Single, [](HWND window) {
    Tick(window, FrmConvertGIF_Option2);
    Command(window, FrmConvertGIF_CmdOk);
  });
  EXPECT_EQ(ReadAll(path).substr(firstPaletteEntry, 9), (std::string{0, 0, 0, 0, 0, 51, 0, 0, 102}));
}

TEST_F(FrmConvertGIFTest, WritesNothingWhereItIsCancelledOrClosed) {
  for (const auto& leave :
       {std::pair<UINT, WPARAM>{WM_COMMAND, FrmConvertGIF_CmdCancel}, {WM_COMMAND, IDCANCEL}, {WM_CLOSE, 0}}) {
    EXPECT_EQ(Show(DialogMode::Single, [&](HWND window) { PostMessageW(window, leave.first, leave.second, 0); }),
              DialogAnswer::Cancelled);
    EXPECT_EQ(ReadAll(path), "");
  }
}

// The window closes as soon as the caption is set, so the text is read from the message that sets it.
std::string captionSet;
LRESULT CALLBACK WatchCaption(int code, WPARAM wParam, LPARAM lParam) {
  const auto& message = *reinterpret_cast<const CWPSTRUCT*>(lParam);
  if (message.message == WM_SETTEXT && GetDlgItem(message.hwnd, FrmConvertGIF_Option1) != nullptr)
    captionSet = ToUtf8(reinterpret_cast<const wchar_t*>(message.lParam));
  return CallNextHookEx(nullptr, code, wParam, lParam);
}

TEST_F(FrmConvertGIFTest, TellsTheSizeOfTheFileInItsCaption) {
  HHOOK const hook = SetWindowsHookExW(WH_CALLWNDPROC, WatchCaption, nullptr, GetCurrentThreadId());
  Show(DialogMode::Single, [](HWND window) { Command(window, FrmConvertGIF_CmdOk); });
  UnhookWindowsHookEx(hook);
  EXPECT_EQ(captionSet, CaptionWithSize(ReadAll(path).size()));
}

// How many pixels of a control are clearly red.
int CountRedPixels(HWND control) {
  RECT bounds;
  GetClientRect(control, &bounds);
  const WindowDc dc(control);
  int count = 0;
  for (int y = 0; y < bounds.bottom; ++y) {
    for (int x = 0; x < bounds.right; ++x) {
      const COLORREF color = GetPixel(dc.get(), x, y);
      count += GetRValue(color) > GetGValue(color) + 64 && GetRValue(color) > GetBValue(color) + 64 ? 1 : 0;
    }
  }
  return count;
}

TEST_F(FrmConvertGIFTest, ShowsThatItConverts) {
  const HCURSOR hourglass = LoadCursorW(nullptr, IDC_WAIT);
  MemorySink file;
  FrmConvertGIF dialog{application, state, nullptr, {file, FileLength}};
  int conversions = 0;
  file.onOpen = [&] {
    ++conversions;
    EXPECT_EQ(GetCursor(), hourglass);
    EXPECT_FALSE(IsWindowEnabled(dialog.Item(FrmConvertGIF_CmdOk)));
    EXPECT_GT(CountRedPixels(dialog.Item(FrmConvertGIF_Label1)), 0);
  };
  driver.On(FrmConvertGIF_Option1, [&](HWND window) {
    EXPECT_EQ(CountRedPixels(GetDlgItem(window, FrmConvertGIF_Label1)), 0);
    const HCURSOR former = GetCursor();
    Command(window, FrmConvertGIF_CmdOk);
    EXPECT_EQ(GetCursor(), former);
    EXPECT_NE(former, hourglass);
  });
  dialog.InitGifExport(icon, path);
  EXPECT_EQ(dialog.ShowFor(DialogMode::Single), DialogAnswer::Ok);
  EXPECT_EQ(conversions, 1);
}

TEST_F(FrmConvertGIFTest, ReplacesAReadOnlyFileAndTellsWhatCannotBeWritten) {
  folder.MakeFile("图.gif", "former");
  support::AddAttributes(path, FILE_ATTRIBUTE_READONLY);
  EXPECT_EQ(Show(DialogMode::Single, [](HWND window) { Command(window, FrmConvertGIF_CmdOk); }), DialogAnswer::Ok);
  EXPECT_EQ(ReadAll(path).substr(0, 3), "GIF");
  path = folder.MakeFolder("a.gif");
  EXPECT_EQ(Show(DialogMode::Single, [](HWND window) { Command(window, FrmConvertGIF_CmdOk); }), DialogAnswer::Failed);
}

TEST_F(FrmConvertGIFTest, KeepsTheOptionsForABatchAndWritesNothingItself) {
  EXPECT_EQ(Show(DialogMode::NoSingle,
                 [](HWND window) {
                   Tick(window, FrmConvertGIF_Check1);
                   Tick(window, FrmConvertGIF_Option2);
                   Command(window, FrmConvertGIF_CmdOk);
                 }),
            DialogAnswer::Ok);
  EXPECT_EQ(ReadAll(path), "");
  for (const char* name : {"1.gif", "2.gif"}) {
    form.InitGifExport(icon, folder.In(name));
    EXPECT_TRUE(form.SaveToGIFNoSingle(folder.In(name)));
    const std::string gif = ReadAll(folder.In(name));
    EXPECT_TRUE(HasTransparency(gif));
    EXPECT_EQ(gif.substr(firstPaletteEntry, 6), (std::string{0, 0, 0, 0, 0, 51}));
  }
  EXPECT_FALSE(form.SaveToGIFNoSingle(folder.In("missing\\3.gif")));
  form.FreeGifObj();
  EXPECT_FALSE(form.IsLoaded());
}

}  // namespace
}  // namespace tarvik
