// The nine ways to save, by the real menus. What they write is read back by other programs.

#include <gmock/gmock.h>

#include <array>
#include <cstdlib>
#include <functional>

#include "driver/SeenFiles.h"
#include "end_to_end/SavingTest.h"

namespace tarvik::end_to_end {
namespace {

using ::testing::AllOf;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::Not;

// Indexes of the choices in the JPEG dialog's lists.
enum Preset { Lowest, Low, Medium, High, Highest };
enum SubSampling { OneToOne, OneToTwo, TwoToOne };

class SaveIcons : public Saving {
 protected:
  static void ExpectIcon(const SeenFile& file, int entry, const char* kind) {
    EXPECT_THAT(file.told, AllOf(HasSubstr(std::string("--") + kind), HasSubstr("--width=32 --height=32")));
    EXPECT_EQ(file.pixels, IconPixels(entry)) << entry;
  }
  static void ExpectBitmap(const SeenFile& file, int entry) {
    EXPECT_THAT(file.told, HasSubstr("BMP3 32x32"));
    EXPECT_EQ(file.pixels, BitmapPixels(entry)) << entry;
  }
  // The largest difference of two pictures in any channel of any pixel.
  static int FarthestChannel(const Pixels& one, const Pixels& other) {
    if (one.size() != other.size()) return 256;
    int farthest = 0;
    for (std::size_t i = 0; i < one.size(); ++i) {
      for (unsigned shift = 0; shift < 32; shift += 8) {
        const auto channel = [shift](std::uint32_t pixel) { return static_cast<int>(pixel >> shift & 0xFFU); };
        farthest = std::max(farthest, std::abs(channel(one[i]) - channel(other[i])));
      }
    }
    return farthest;
  }
  // Checks the three plain areas of a picture away from their borders: a lossy file keeps their colours nearly.
  static void ExpectAreas(const Pixels& pixels, int side, int entry) {
    ASSERT_EQ(pixels.size(), static_cast<std::size_t>(side) * static_cast<std::size_t>(side));
    const Picture& picture = pictures.at(static_cast<std::size_t>(entry));
    const int eighth = side / 8;
    const auto at = [&](int x, int y) {
      return Pixels{pixels[static_cast<std::size_t>(y) * static_cast<std::size_t>(side) + static_cast<std::size_t>(x)]};
    };
    constexpr int closeEnough = 8;
    EXPECT_LE(FarthestChannel(at(eighth, eighth), {0xFF000000 | picture.left}), closeEnough) << entry;
    EXPECT_LE(FarthestChannel(at(side - eighth, eighth), {0xFF000000 | picture.right}), closeEnough) << entry;
    EXPECT_LE(FarthestChannel(at(side / 2, side - eighth), {0xFFFFFFFF}), closeEnough) << entry;
  }
  // The bits of a picture of black and white, in an icon file of that size: rows from the bottom up, each padded to
  // that many bytes. At 64 pixels these are two more than correct, so other programs do not read such a file as
  // intended.
  static std::string BitsOf(const std::function<bool(int x, int y)>& isWhite, int side) {
    constexpr std::array rowBytes{4, 4, 8, 10};
    std::string bits;
    for (int y = side - 1; y >= 0; --y) {
      std::string row(static_cast<std::size_t>(rowBytes.at(static_cast<std::size_t>(side) / 16 - 1)), '\0');
      for (int x = 0; x < side; ++x) {
        if (!isWhite(x, y)) continue;
        char& eightPixels = row[static_cast<std::size_t>(x / 8)];
        eightPixels =
            static_cast<char>(static_cast<unsigned char>(eightPixels) | 0x80U >> static_cast<unsigned>(x % 8));
      }
      bits += row;
    }
    return bits;
  }
  // Checks the first picture at a size: its image and its mask.
  static void ExpectFirstIcon(const std::string& file, int side) {
    constexpr std::size_t imageOffset = 6 + 16 + 40 + 8;
    const auto image = [side](int x, int y) { return y < side / 2 && x >= side / 2; };
    const auto mask = [side](int /*x*/, int y) { return y >= side / 2; };
    ASSERT_GT(file.size(), imageOffset);
    EXPECT_EQ(file.substr(imageOffset), BitsOf(image, side) + BitsOf(mask, side)) << side;
  }
  static Pixels FirstComposed(int side) {
    Pixels pixels;
    for (int y = 0; y < side; ++y)
      for (int x = 0; x < side; ++x) pixels.push_back(y < side / 2 && x < side / 2 ? 0xFF000000 : 0xFFFFFFFF);
    return pixels;
  }
  void TypeComment(const Dialog& options, const std::string& text) const {
    options.Press(fSaveJPG_cmdComment);
    const Dialog comment(program_, fComment_txtComment);
    comment.Item(fComment_txtComment).SetText(text);
    comment.End(fComment_cmdFinish);
  }
};

TEST_F(SaveIcons, TheClickedIconIsSavedInEachFormat) {
  FindPictures();
  ClickCell(1);
  ExpectCurrent(1);
  found_ = Now();
  SaveAs(FrmFindIcon_mnuSaveAs, Out("one.ico"));
  ExpectAsFound();
  SaveAs(FrmFindIcon_MnuSaveAsBitmap, Out("one.bmp"));
  ExpectAsFound();
  SaveAs(FrmFindIcon_MnuSaveAsCursor, Out("one.cur"));
  ExpectAsFound();
  auto files = SeeFiles(Out());
  EXPECT_EQ(files.size(), 3U);
  ExpectIcon(files["one.ico"], 1, "icon");
  ExpectBitmap(files["one.bmp"], 1);
  ExpectIcon(files["one.cur"], 1, "cursor");
}

TEST_F(SaveIcons, AllOfTheListIsSavedInEachFormat) {
  FindPictures();
  SaveBatch(FrmFindIcon_mnuSaveAll);
  EXPECT_THAT(SavedNames(), ElementsAre("Icon 1.ico", "Icon 2.ico", "Icon 3.ico", "Icon 4.ico", "Icon 5.ico"));
  SaveBatch(FrmFindIcon_mnuSaveAll2);
  SaveBatch(FrmFindIcon_mnuSaveAll3);
  // A second time over the existing files: the program does not ask.
  SaveBatch(FrmFindIcon_mnuSaveAll);
  auto files = SeeFiles(Out());
  EXPECT_EQ(files.size(), 15U);
  for (int entry = 0; entry < 5; ++entry) {
    const std::string number = std::to_string(entry + 1);
    ExpectIcon(files["Icon " + number + ".ico"], entry, "icon");
    ExpectBitmap(files["Images " + number + ".bmp"], entry);
    ExpectIcon(files["Curor " + number + ".cur"], entry, "cursor");
    EXPECT_THAT(files["Curor " + number + ".cur"].told, HasSubstr("--hotspot-x=0 --hotspot-y=0"));
  }
}

TEST_F(SaveIcons, TheSelectedOnesAreSavedWithoutGapsInTheirNumbers) {
  FindPictures();
  SelectByMouse({1, 4});
  found_ = Now();
  SaveBatch(FrmFindIcon_mnuSaveSel);
  SaveBatch(FrmFindIcon_mnuSaveSel2);
  SaveBatch(FrmFindIcon_mnuSaveSel3);
  auto files = SeeFiles(Out());
  EXPECT_THAT(SavedNames(),
              ElementsAre("Curor 1.cur", "Curor 2.cur", "Icon 1.ico", "Icon 2.ico", "Images 1.bmp", "Images 2.bmp"));
  for (const auto& [number, entry] : {std::pair("1", 1), std::pair("2", 4)}) {
    ExpectIcon(files[std::string("Icon ") + number + ".ico"], entry, "icon");
    ExpectBitmap(files[std::string("Images ") + number + ".bmp"], entry);
    ExpectIcon(files[std::string("Curor ") + number + ".cur"], entry, "cursor");
  }
}

TEST_F(SaveIcons, WithNoneSelectedThatIsSaidAndNoFolderAskedFor) {
  FindPictures();
  SelectByMouse({});
  found_ = Now();
  for (const int command : {FrmFindIcon_mnuSaveSel, FrmFindIcon_mnuSaveSel2, FrmFindIcon_mnuSaveSel3}) {
    program_.Command(command);
    EXPECT_TRUE(ShowsSign(program_.WaitForBox(), IDI_INFORMATION));
    EXPECT_THAT(ReadMessages(1), ElementsAre("No Icon be selected."));
    ExpectAsFound();
  }
}

TEST_F(SaveIcons, TheKeyboardAloneSaves) {
  FindPictures();
  // Alt+F belongs to the Find button.
  PressKey(VK_F10);
  PressKey(VK_DOWN);
  ASSERT_TRUE(Eventually([&] { return program_.OpenMenu().has_value(); }));
  PressKey('S');
  const SaveDialog dialog(program_);
  ASSERT_TRUE(Eventually([&] { return GetForegroundWindow() == dialog.Window().Window(); }));
  TypeText(Out("键盘"));
  PressKey(VK_RETURN);
  dialog.WaitForEnd();
  EXPECT_TRUE(Eventually([&] { return SavedNames() == Names{"键盘.ico"}; }));
  EXPECT_EQ(SeeFiles(Out())["键盘.ico"].pixels, IconPixels(0));
}

TEST_F(SaveIcons, EachSizeIsSavedAsItIsShown) {
  FindPictures();
  constexpr std::array sides{"16", "32", "48", "64"};
  for (const IconSizeChoice size : {Size16, Size32, Size48, Size64}) {
    ChooseSize(size);
    Find();
    found_ = Now();
    const std::string side = sides.at(static_cast<std::size_t>(size));
    SaveAs(FrmFindIcon_mnuSaveAs, Out(side + ".ico"));
    ExpectAsFound();
    SaveAs(FrmFindIcon_MnuSaveAsBitmap, Out(side + ".bmp"));
    ExpectAsFound();
    SaveAs(FrmFindIcon_MnuSaveAsBitmap, Out(side + ".gif"));
    Dialog(program_, FrmConvertGIF_Option1).End(FrmConvertGIF_CmdOk);
    ExpectAsFound();
    SaveAs(FrmFindIcon_MnuSaveAsBitmap, Out(side + ".jpg"));
    Dialog(program_, fSaveJPG_CboSize).End(fSaveJPG_cmdFinish1);
    ExpectAsFound();
  }
  auto files = SeeFiles(Out());
  for (const std::string side : sides) {
    EXPECT_THAT(files[side + ".ico"].told,
                HasSubstr(std::string("--width=").append(side).append(" --height=").append(side)));
    for (const char* extension : {".bmp", ".jpg"})
      EXPECT_THAT(files[side + extension].told, HasSubstr(std::string(side).append("x").append(side))) << extension;
    EXPECT_THAT(files[side + ".gif"].told,
                HasSubstr(std::string("Width = ").append(side).append(", Height = ").append(side)));
    const int pixels = std::stoi(side);
    ExpectFirstIcon(support::ReadAll(Out(side + ".ico")), pixels);
    EXPECT_EQ(files[side + ".gif"].pixels, FirstComposed(pixels)) << side;
    ExpectAreas(files[side + ".jpg"].pixels, pixels, 0);
    // The content of the 64 pixel file does not match its header.
    if (pixels != 64) {
      EXPECT_EQ(files[side + ".bmp"].pixels, FirstComposed(pixels)) << side;
    }
  }
}

TEST_F(SaveIcons, TheHotSpotIsPickedWithTheMouse) {
  FindPictures();
  program_.Command(FrmFindIcon_MnuSaveAsCursor);
  const Dialog picker(program_, FrmHotSpot_PicCursor);
  const RECT picture = picker.Item(FrmHotSpot_PicCursor).Inside();
  const POINT point{picture.left + 13, picture.top + 29};
  const auto picked = [&] { return picker.TextOf(FrmHotSpot_LblHotX) + picker.TextOf(FrmHotSpot_LblHotY); };

  // The pointer's position is shown, limited like the hot spot.
  EXPECT_TRUE(Eventually([&] {
    MovePointer(point);
    MovePointer({point.x + 100, point.y + 100});
    return picker.TextOf(FrmHotSpot_lblxy) == "00, 00";
  }));
  // The right button picks nothing. A key press follows it: once the focus has moved, the click has been processed.
  const HWND focus = program_.Focus().Window();
  RightClick(point);
  PressKey(VK_TAB);
  EXPECT_TRUE(Eventually([&] { return program_.Focus().Window() != focus; }));
  EXPECT_EQ(picked(), "0000");
  EXPECT_TRUE(Eventually([&] {
    Click(point);
    return Eventually([&] { return picked() == "0000"; }, lostAfter);
  }));
  picker.End(FrmHotSpot_CmdOk);
  SaveDialog(program_).SaveAs(Out("picked.cur"));
  EXPECT_TRUE(Eventually([&] { return SavedNames() == Names{"picked.cur"}; }));
  EXPECT_THAT(SeeFiles(Out())["picked.cur"].told, HasSubstr("--cursor --index=1 --width=32 --height=32 "
                                                            "--bit-depth=1 --palette-size=2 --hotspot-x=0 "
                                                            "--hotspot-y=0"));
}

TEST_F(SaveIcons, ThePickersCancelAndCloseBoxEndTheCommand) {
  FindPictures();
  program_.Command(FrmFindIcon_MnuSaveAsCursor);
  Dialog(program_, FrmHotSpot_PicCursor).End(FrmHotSpot_CmdCancel);
  ExpectAsFound();
  program_.Command(FrmFindIcon_MnuSaveAsCursor);
  Dialog(program_, FrmHotSpot_PicCursor).EndByCloseBox();
  ExpectAsFound();
  EXPECT_THAT(SavedNames(), ElementsAre());
}

TEST_F(SaveIcons, AJpegHasTheChosenOptionsAndComment) {
  FindPictures();
  SaveAs(FrmFindIcon_MnuSaveAsBitmap, Out("best.jpg"));
  const Dialog best(program_, fSaveJPG_CboSize);
  best.Item(fSaveJPG_CboSize).ChooseComboItem(Highest);
  EXPECT_EQ(best.TextOf(fSaveJPG_txtQual), "100");
  best.Item(fSaveJPG_cboSubSample).ChooseComboItem(OneToOne);
  TypeComment(best, "图标的说明");
  best.End(fSaveJPG_cmdFinish1);
  ExpectAsFound();

  // From 60 by two pages and by five steps of the bar: the preset stays where it was at 40.
  SaveAs(FrmFindIcon_MnuSaveAsBitmap, Out("plain.jpg"));
  const Dialog plain(program_, fSaveJPG_CboSize);
  for (int page = 0; page < 2; ++page) plain.Item(fSaveJPG_hscQuality).Send(WM_KEYDOWN, VK_PRIOR);
  EXPECT_EQ(plain.TextOf(fSaveJPG_txtQual), "40");
  EXPECT_EQ(plain.Item(fSaveJPG_CboSize).ComboChoice(), Low);
  for (int step = 0; step < 5; ++step) plain.Item(fSaveJPG_hscQuality).Send(WM_KEYDOWN, VK_LEFT);
  EXPECT_EQ(plain.TextOf(fSaveJPG_txtQual), "35");
  EXPECT_EQ(plain.Item(fSaveJPG_CboSize).ComboChoice(), Low);
  plain.End(fSaveJPG_cmdFinish1);
  ExpectAsFound();

  auto files = SeeFiles(Out());
  EXPECT_THAT(files["best.jpg"].told,
              AllOf(HasSubstr("32x32 quality 100 sampling 1x1,1x1,1x1"), HasSubstr("图标的说明")));
  EXPECT_LE(FarthestChannel(files["best.jpg"].pixels, ComposedPixels(0)), 2);
  EXPECT_THAT(files["plain.jpg"].told,
              AllOf(HasSubstr("32x32 quality 35 sampling 2x2,1x1,1x1"), Not(HasSubstr("图标的说明"))));
}

TEST_F(SaveIcons, AGifHasTheChosenPaletteAndTransparency) {
  FindPictures();
  SaveAs(FrmFindIcon_MnuSaveAsBitmap, Out("best.gif"));
  Dialog(program_, FrmConvertGIF_Option1).End(FrmConvertGIF_CmdOk);
  ExpectAsFound();
  SaveAs(FrmFindIcon_MnuSaveAsBitmap, Out("web.gif"));
  const Dialog options(program_, FrmConvertGIF_Option1);
  EXPECT_TRUE(options.Item(FrmConvertGIF_Option1).IsChecked());
  options.Item(FrmConvertGIF_Check1).Send(BM_CLICK);
  options.Item(FrmConvertGIF_Option2).Send(BM_CLICK);
  options.End(FrmConvertGIF_CmdOk);
  ExpectAsFound();

  auto files = SeeFiles(Out());
  EXPECT_EQ(files["best.gif"].pixels, ComposedPixels(0));
  EXPECT_THAT(files["best.gif"].told, Not(HasSubstr("Transparency on")));
  // The top-left pixel is black, so black becomes the transparent colour.
  Pixels seenThrough = ComposedPixels(0);
  std::ranges::replace(seenThrough, 0xFF000000U, 0U);
  EXPECT_EQ(files["web.gif"].pixels, seenThrough);
  EXPECT_THAT(files["web.gif"].told, AllOf(HasSubstr("Transparency on"), HasSubstr("BitsPerPixel = 8")));
}

TEST_F(SaveIcons, EachJpegOfABatchHasTheOptionsChosenOnce) {
  FindPictures();
  ChooseOut(FrmFindIcon_mnuSaveAll2, Jpg);
  const Dialog options(program_, fSaveJPG_CboSize);
  options.Item(fSaveJPG_CboSize).ChooseComboItem(High);
  options.Item(fSaveJPG_cboSubSample).ChooseComboItem(TwoToOne);
  TypeComment(options, "all of them");
  options.End(fSaveJPG_cmdFinish1);
  ExpectAsFound();
  SelectByMouse({2, 3});
  found_ = Now();
  tree_.MakeFolder("grey");
  const FolderChooser chooser = AskForFolder(FrmFindIcon_mnuSaveSel2);
  chooser.Open("grey");
  chooser.ChooseType(Jpg);
  chooser.Ok();
  const Dialog grey(program_, fSaveJPG_CboSize);
  EXPECT_EQ(grey.TextOf(fSaveJPG_txtQual), "60") << "of the batch before";
  grey.Item(fSaveJPG_chkGreyscale).Send(BM_CLICK);
  EXPECT_FALSE(grey.Item(fSaveJPG_cboSubSample).IsEnabled());
  grey.End(fSaveJPG_cmdFinish1);
  ExpectAsFound();

  auto colored = SeeFiles(Out());
  EXPECT_EQ(colored.size(), 5U);
  for (int entry = 0; entry < 5; ++entry)
    ExpectAreas(colored["Images " + std::to_string(entry + 1) + ".jpg"].pixels, 32, entry);
  for (const auto& [name, file] : colored) {
    EXPECT_THAT(file.told, AllOf(HasSubstr("32x32 quality 80 sampling 2x1,1x1,1x1"), HasSubstr("all of them"))) << name;
    EXPECT_THAT(name, ::testing::MatchesRegex("Images .\\.jpg"));
  }
  const auto greys = SeeFiles(In("grey"));
  EXPECT_EQ(NamesIn(In("grey")), (Names{"Images 1.jpg", "Images 2.jpg"}));
  for (const auto& [name, file] : greys)
    EXPECT_THAT(file.told, AllOf(HasSubstr("quality 60 sampling 1x1\n"), Not(HasSubstr("all of them")))) << name;
}

TEST_F(SaveIcons, EachGifOfABatchHasTheOptionsChosenOnce) {
  FindPictures();
  ChooseOut(FrmFindIcon_mnuSaveAll2, Gif);
  const Dialog options(program_, FrmConvertGIF_Option1);
  options.Item(FrmConvertGIF_Check1).Send(BM_CLICK);
  options.End(FrmConvertGIF_CmdOk);
  ExpectAsFound();
  auto files = SeeFiles(Out());
  EXPECT_EQ(files.size(), 5U);
  for (int entry = 0; entry < 5; ++entry) {
    const SeenFile& file = files["Images " + std::to_string(entry + 1) + ".gif"];
    Pixels seenThrough = ComposedPixels(entry);
    std::ranges::replace(seenThrough, std::uint32_t{seenThrough.front()}, 0U);
    EXPECT_EQ(file.pixels, seenThrough) << entry;
    EXPECT_THAT(file.told, HasSubstr("Transparency on")) << entry;
  }
}

TEST_F(SaveIcons, CancelOfTheOptionsEndsABatchAndWritesNothing) {
  FindPictures();
  ChooseOut(FrmFindIcon_mnuSaveAll2, Jpg);
  Dialog(program_, fSaveJPG_CboSize).End(fSaveJPG_cmdFinish0);
  ExpectAsFound();
  ChooseOut(FrmFindIcon_mnuSaveAll2, Jpg);
  Dialog(program_, fSaveJPG_CboSize).EndByCloseBox();
  ExpectAsFound();
  ChooseOut(FrmFindIcon_mnuSaveAll2, Gif);
  Dialog(program_, FrmConvertGIF_Option1).End(FrmConvertGIF_CmdCancel);
  ExpectAsFound();
  ChooseOut(FrmFindIcon_mnuSaveAll2, Gif);
  Dialog(program_, FrmConvertGIF_Option1).EndByCloseBox();
  ExpectAsFound();
  EXPECT_THAT(SavedNames(), ElementsAre());
}

}  // namespace
}  // namespace tarvik::end_to_end
