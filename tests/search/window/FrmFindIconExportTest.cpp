#include <windows.h>

#include <commctrl.h>

#include <gtest/gtest.h>

#include <future>
#include <thread>

#include "base/RuntimeError.h"
#include "encoders/EncodedImages.h"
#include "forms/Controls.h"
#include "forms/ModalDriver.h"
#include "platform/PastedPicture.h"
#include "platform/TemporaryFolder.h"
#include "search/window/FindIconFixture.h"
#include "startup/MessageTexts.h"

namespace tarvik {
namespace {

using support::Command;
using support::FindIconFixture;
using support::ReadAll;
using support::SmallMachine;
using support::TemporaryFolder;

class FrmFindIconExportTest : public FindIconFixture {
 protected:
  void SelectOnly(std::initializer_list<int> numbers) {
    // The first icon of a search is selected automatically.
    Choose(1, MK_CONTROL);
    for (const int number : numbers) Choose(number, MK_CONTROL);
  }
  void Choose(int number, WPARAM keys) const { ReleaseOnGrid(10 + (number - 1) * 38, 10, keys); }

  static std::vector<std::string> NamesIn(const std::string& path) {
    std::vector<std::string> names;
    WIN32_FIND_DATAW data;
    const FindHandle find(FindFirstFileW(ToWide(path + "\\*").c_str(), &data));
    do {
      const std::string name = ToUtf8(data.cFileName);
      if (name != "." && name != "..") names.push_back(name);
    } while (FindNextFileW(find.get(), &data) != 0);
    return names;
  }
  static std::uint8_t Byte(const std::string& bytes, std::size_t offset) {
    return static_cast<std::uint8_t>(bytes.at(offset));
  }

  TemporaryFolder folder;
  support::ModalDriver driver;
};

TEST_F(FrmFindIconExportTest, EnablesTheCommandsWhileTheListHoldsAnEntry) {
  constexpr int items[] = {FrmFindIcon_mnuSaveAs,   FrmFindIcon_MnuSaveAsBitmap, FrmFindIcon_MnuSaveAsCursor,
                           FrmFindIcon_mnuSaveSel,  FrmFindIcon_mnuSaveAll,      FrmFindIcon_mnuSaveSel2,
                           FrmFindIcon_mnuSaveAll2, FrmFindIcon_mnuSaveSel3,     FrmFindIcon_mnuSaveAll3,
                           FrmFindIcon_mnuCopy};
  Open();
  for (const int item : items) EXPECT_FALSE(IsEnabled(item)) << item;
  Find(2);
  for (const int item : items) EXPECT_TRUE(IsEnabled(item)) << item;
  Find(0);
  for (const int item : items) EXPECT_FALSE(IsEnabled(item)) << item;
}

TEST_F(FrmFindIconExportTest, SavesTheCurrentIcon) {
  Open();
  Find(3);
  Choose(2, 0);
  dialogs.path = folder.In("图标.ico");
  const std::string status = Status();
  Click(FrmFindIcon_mnuSaveAs);
  EXPECT_EQ(dialogs.asked, std::vector<std::string>{" - Save As"});
  const std::string bytes = ReadAll(dialogs.path);
  EXPECT_EQ(Byte(bytes, 2), 1) << "an icon file";
  EXPECT_EQ(Byte(bytes, 6), 32) << "32 pixels wide";
  EXPECT_EQ(Status(), status);
}

TEST_F(FrmFindIconExportTest, SavesAllEntriesOfAListOfThree) {
  Open();
  Find(3);
  dialogs.folder = folder.Path();
  const std::string status = Status();
  Click(FrmFindIcon_mnuSaveAll);
  EXPECT_EQ(NamesIn(folder.Path()), (std::vector<std::string>{"Icon 1.ico", "Icon 2.ico", "Icon 3.ico"}));
  EXPECT_EQ(Status(), status);
  EXPECT_TRUE(boxes.Boxes().empty());
}

TEST_F(FrmFindIconExportTest, NamesFilesByEntryWhateverTheLabelsCount) {
  machine.files["C:\\icons"] = {"a.dll", "some.dll"};
  machine.icons["C:\\icons\\a.dll"] = 2;
  Open();
  Find(2);
  Click(FrmFindIcon_mnuIL2);
  dialogs.folder = folder.Path();
  Click(FrmFindIcon_mnuSaveAll);
  EXPECT_EQ(NamesIn(folder.Path()), (std::vector<std::string>{"Icon 1.ico", "Icon 2.ico", "Icon 3.ico", "Icon 4.ico"}));
}

TEST_F(FrmFindIconExportTest, SavesTheSelectedEntriesAsCursors) {
  Open();
  Find(6);
  SelectOnly({2, 5});
  dialogs.folder = folder.Path();
  Click(FrmFindIcon_mnuSaveSel3);
  EXPECT_EQ(NamesIn(folder.Path()), (std::vector<std::string>{"Curor 1.cur", "Curor 2.cur"}));
  EXPECT_EQ(Byte(ReadAll(folder.In("Curor 1.cur")), 2), 2);
}

TEST_F(FrmFindIconExportTest, WritesTheComposedIconAsBitmap) {
  Open();
  Find(5);
  dialogs.folder = folder.Path();
  Click(FrmFindIcon_mnuSaveAll2);
  EXPECT_EQ(dialogs.asked, std::vector<std::string>{".bmp"});
  const std::string bytes = ReadAll(folder.In("Images 4.bmp"));
  constexpr std::size_t palette = 14 + 40;
  const Color color = SmallMachine::ColorOf(3);
  EXPECT_EQ(Byte(bytes, palette), BlueOf(color));
  EXPECT_EQ(Byte(bytes, palette + 1), GreenOf(color));
  EXPECT_EQ(Byte(bytes, palette + 2), RedOf(color));
}

TEST_F(FrmFindIconExportTest, SaysThatNoEntryIsSelected) {
  Open();
  Find(3);
  SelectOnly({});
  for (const int item : {FrmFindIcon_mnuSaveSel, FrmFindIcon_mnuSaveSel2, FrmFindIcon_mnuSaveSel3}) Click(item);
  ASSERT_EQ(boxes.Boxes().size(), 3U);
  EXPECT_EQ(boxes.Boxes()[0].title, "Brindle Tarvik - Error");
  EXPECT_EQ(boxes.Boxes()[0].text, "No Icon be selected.");
  EXPECT_TRUE(dialogs.asked.empty());
}

TEST_F(FrmFindIconExportTest, ReportsEachFileThatFailsAndGoesOn) {
  Open();
  Find(3);
  folder.MakeFolder("Icon 1.ico");
  support::AddAttributes(folder.MakeFile("Icon 3.ico", "kept"), FILE_ATTRIBUTE_READONLY);
  dialogs.folder = folder.Path();
  Click(FrmFindIcon_mnuSaveAll);
  ASSERT_EQ(boxes.Boxes().size(), 2U);
  EXPECT_EQ(boxes.Boxes()[0].title, "Brindle Tarvik - Error");
  EXPECT_EQ(boxes.Boxes()[0].text, "Unable to save the file " + folder.In("Icon 1.ico"));
  EXPECT_EQ(boxes.Boxes()[1].text, "Unable to save the file " + folder.In("Icon 3.ico"));
  EXPECT_FALSE(ReadAll(folder.In("Icon 2.ico")).empty());
  EXPECT_EQ(ReadAll(folder.In("Icon 3.ico")), "kept");
}

TEST_F(FrmFindIconExportTest, ReplacesFilesOfTheSameNameWithoutAsking) {
  Open();
  Find(1);
  folder.MakeFile("Icon 1.ico", "former");
  dialogs.folder = folder.Path();
  Click(FrmFindIcon_mnuSaveAll);
  EXPECT_EQ(Byte(ReadAll(folder.In("Icon 1.ico")), 2), 1);
  EXPECT_TRUE(boxes.Boxes().empty());
}

TEST_F(FrmFindIconExportTest, WritesNoCursorWhereThePickerIsCancelled) {
  Open();
  Find(1);
  dialogs.path = folder.In("a.cur");
  driver.On(FrmHotSpot_PicCursor, [](HWND picker) { Command(picker, FrmHotSpot_CmdCancel); });
  Click(FrmFindIcon_MnuSaveAsCursor);
  EXPECT_TRUE(dialogs.asked.empty());
  EXPECT_TRUE(NamesIn(folder.Path()).empty());
}

TEST_F(FrmFindIconExportTest, ShowsThePickerTheCurrentIconMagnified) {
  Open();
  Find(3);
  Choose(3, 0);
  dialogs.path = folder.In("a.cur");
  Color shown = 0;
  Color margin = 0;
  driver.On(FrmHotSpot_PicCursor, [&](HWND picker) {
    UpdateWindow(GetDlgItem(picker, FrmHotSpot_PicCursor));
    const WindowDc dc(GetDlgItem(picker, FrmHotSpot_PicCursor));
    shown = GetPixel(dc.get(), 383, 383);
    margin = GetPixel(dc.get(), 384, 384);
    Command(picker, FrmHotSpot_CmdOk);
  });
  Click(FrmFindIcon_MnuSaveAsCursor);
  EXPECT_EQ(shown, SmallMachine::ColorOf(2));
  EXPECT_EQ(margin, white);
  EXPECT_EQ(Byte(ReadAll(folder.In("a.cur")), 2), 2);
}

// A file of four icons, of which the second fails to draw when GDI objects run out.
class ScarceIcons final : public IconSource {
 public:
  int CountIcons(const std::string& /*path*/) override { return 4; }
  std::unique_ptr<ExtractedIcon> Extract(const std::string& /*path*/, int index) override {
    if (exhausted && index == 1) throw OutOfMemoryError();
    return std::make_unique<support::SquareIcon>(SmallMachine::ColorOf(index));
  }
  bool exhausted = false;
};

TEST_F(FrmFindIconExportTest, SaysThatThereIsNoRoomForAnIconInsteadOfSavingABlank) {
  ScarceIcons icons;
  OpenOver(icons, machine);
  Find(4);
  const std::string status = Status();
  dialogs.folder = folder.Path();
  icons.exhausted = true;
  Click(FrmFindIcon_mnuSaveAll);
  ASSERT_EQ(boxes.Boxes().size(), 1U);
  EXPECT_EQ(boxes.Boxes()[0].title, "Brindle Tarvik - Error");
  EXPECT_EQ(boxes.Boxes()[0].text, RuntimeErrorTextOf(RuntimeErrorKind::OutOfMemory).eng);
  EXPECT_EQ(NamesIn(folder.Path()), std::vector<std::string>{"Icon 1.ico"});
  EXPECT_EQ(Status(), status);
  icons.exhausted = false;
  Click(FrmFindIcon_mnuSaveAll);
  EXPECT_EQ(NamesIn(folder.Path()).size(), 4U) << "the window takes commands again";
}

TEST_F(FrmFindIconExportTest, SavesABlankWhereTheFileYieldsNoIconAnyMore) {
  Open();
  Find(2);
  machine.icons.clear();
  dialogs.path = folder.In("a.ico");
  Click(FrmFindIcon_mnuSaveAs);
  const std::string icon = ReadAll(dialogs.path);
  constexpr std::size_t imageOffset = 6 + 16 + 40 + 8;
  EXPECT_EQ(icon.substr(imageOffset), std::string(128, '\0') + std::string(128, '\xFF')) << "image and mask";
  dialogs.path = folder.In("a.bmp");
  Click(FrmFindIcon_MnuSaveAsBitmap);
  EXPECT_EQ(ReadAll(dialogs.path).size(), 14U + 40U + 2U * 4U + 32U * 4U) << "black and white alone";
  EXPECT_TRUE(boxes.Boxes().empty());
}

// An icon with an opaque left half. Its right half is transparent and inverts a part of the background.
class HalfIcon final : public ExtractedIcon {
 public:
  static constexpr Color opaque = 0x20C040;
  static constexpr Color inverting = 0x404000;

  bool Draw(DrawSurface& surface, Point corner, int size, int step, DrawPart part) override {
    if (step >= 1) return false;
    const HDC dc = static_cast<Surface&>(surface).Dc();
    const auto fill = [&](int from, int to, Color color) {
      const RECT bounds{corner.x + from, corner.y, corner.x + to, corner.y + size};
      const BrushHandle brush(CreateSolidBrush(color));
      FillRect(dc, &bounds, brush.get());
    };
    fill(0, size / 2, part == DrawPart::Mask ? black : opaque);
    if (part != DrawPart::Normal) fill(size / 2, size, part == DrawPart::Mask ? white : inverting);
    return true;
  }
  int StepBound() const override { return 1; }
};

class HalfIcons final : public IconSource {
 public:
  int CountIcons(const std::string& /*path*/) override { return 1; }
  std::unique_ptr<ExtractedIcon> Extract(const std::string& /*path*/, int /*index*/) override {
    return std::make_unique<HalfIcon>();
  }
};

TEST_F(FrmFindIconExportTest, CopiesWhatLiesBelowTheTransparentPixels) {
  HalfIcons icons;
  OpenOver(icons, machine);
  Find(1);
  Click(FrmFindIcon_mnuCopy);
  const std::vector<Color> pasted = support::Paste().pixels;
  ASSERT_EQ(pasted.size(), 32U * 32U);
  for (std::size_t i = 0; i < pasted.size(); ++i)
    ASSERT_EQ(pasted[i], i % 32 < 16 ? HalfIcon::opaque : white ^ HalfIcon::inverting) << i;
}

TEST_F(FrmFindIconExportTest, CopiesMaskAndImageComposed) {
  Open();
  Find(4);
  Choose(4, 0);
  Click(FrmFindIcon_mnuCopy);
  const std::vector<Color> pasted = support::Paste().pixels;
  ASSERT_EQ(pasted.size(), 32U * 32U);
  const Surface& mask = window->Captured().Surfaces().Mask();
  const Surface& image = window->Captured().Surfaces().Image();
  for (int y = 0; y < 32; ++y) {
    for (int x = 0; x < 32; ++x) {
      const Color expected = (white & mask.Pixel(x, y)) ^ image.Pixel(x, y);
      ASSERT_EQ(pasted[static_cast<std::size_t>(y * 32 + x)], expected) << x << ' ' << y;
    }
  }
  EXPECT_EQ(mask.Pixel(0, 0), black);
  EXPECT_EQ(image.Pixel(0, 0), SmallMachine::ColorOf(3));
}

TEST_F(FrmFindIconExportTest, SaysThatTheClipboardIsHeld) {
  Open();
  Find(1);
  std::promise<bool> held;
  std::promise<void> done;
  std::thread other([&] {
    const HWND own = CreateWindowW(L"Static", L"", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, nullptr, nullptr);
    held.set_value(OpenClipboard(own) != 0);
    done.get_future().wait();
    CloseClipboard();
    DestroyWindow(own);
  });
  EXPECT_TRUE(held.get_future().get());
  Click(FrmFindIcon_mnuCopy);
  done.set_value();
  other.join();
  ASSERT_EQ(boxes.Boxes().size(), 1U);
  EXPECT_EQ(boxes.Boxes()[0].title, "Brindle Tarvik - Error");
  EXPECT_EQ(boxes.Boxes()[0].text, "The icon was not copied: another program is using the clipboard.");
}

TEST_F(FrmFindIconExportTest, TakesNoCommandAndDoesNotCloseWhileItSaves) {
  Open();
  Find(2);
  dialogs.path = folder.In("a.cur");
  driver.On(FrmHotSpot_PicCursor, [&](HWND picker) {
    Click(FrmFindIcon_CmdFind);
    Click(FrmFindIcon_mnuSaveAll);
    SendMessageW(window->Window(), WM_CLOSE, 0, 0);
    EXPECT_TRUE(window->IsLoaded());
    Command(picker, FrmHotSpot_CmdCancel);
  });
  Click(FrmFindIcon_MnuSaveAsCursor);
  EXPECT_TRUE(dialogs.asked.empty());
  Click(FrmFindIcon_CmdClose);
  EXPECT_FALSE(window->IsLoaded());
}

TEST_F(FrmFindIconExportTest, WritesEveryFileOfAJpegBatchWithTheOptionsChosenOnce) {
  Open();
  Find(3);
  folder.MakeFolder("Images 2.jpg");
  dialogs.folder = folder.Path();
  dialogs.extension = ".jpg";
  const std::string status = Status();
  driver.On(fSaveJPG_CboSize, [](HWND options) {
    CheckDlgButton(options, fSaveJPG_chkGreyscale, BST_CHECKED);
    Command(options, fSaveJPG_chkGreyscale);
    Command(options, fSaveJPG_cmdFinish1);
  });
  Click(FrmFindIcon_mnuSaveAll2);
  for (const char* name : {"Images 1.jpg", "Images 3.jpg"})
    EXPECT_EQ(support::ComponentsOf(ReadAll(folder.In(name))), 1) << name;
  ASSERT_EQ(boxes.Boxes().size(), 1U);
  EXPECT_EQ(boxes.Boxes()[0].text, "Failed to Save Icon As Bitmap.");
  EXPECT_EQ(Status(), status);
  EXPECT_EQ(temporaryBitmap.Path(), "");
}

TEST_F(FrmFindIconExportTest, WritesEveryFileOfAGifBatch) {
  Open();
  Find(2);
  dialogs.folder = folder.Path();
  dialogs.extension = ".gif";
  driver.On(FrmConvertGIF_Option1, [](HWND options) { Command(options, FrmConvertGIF_CmdOk); });
  Click(FrmFindIcon_mnuSaveAll2);
  EXPECT_EQ(NamesIn(folder.Path()), (std::vector<std::string>{"Images 1.gif", "Images 2.gif"}));
  const Color color = SmallMachine::ColorOf(1);
  const std::string gif = ReadAll(folder.In("Images 2.gif"));
  EXPECT_EQ(Byte(gif, 13), RedOf(color));
  EXPECT_EQ(Byte(gif, 15), BlueOf(color));
}

TEST_F(FrmFindIconExportTest, WritesNothingWhereTheOptionsOfABatchAreCancelled) {
  Open();
  Find(2);
  dialogs.folder = folder.Path();
  dialogs.extension = ".jpg";
  driver.On(fSaveJPG_CboSize, [](HWND options) { Command(options, fSaveJPG_cmdFinish0); });
  Click(FrmFindIcon_mnuSaveAll2);
  dialogs.extension = ".gif";
  driver.On(FrmConvertGIF_Option1, [](HWND options) { Command(options, FrmConvertGIF_CmdCancel); });
  Click(FrmFindIcon_mnuSaveAll2);
  EXPECT_TRUE(NamesIn(folder.Path()).empty());
}

TEST_F(FrmFindIconExportTest, DeletesATemporaryBitmapThatIsLeft) {
  Open();
  ASSERT_NE(temporaryBitmap.PassThrough(Surface(16, 16, white)), nullptr);
  Click(FrmFindIcon_CmdClose);
  EXPECT_EQ(temporaryBitmap.Path(), "");
}

}  // namespace
}  // namespace tarvik
