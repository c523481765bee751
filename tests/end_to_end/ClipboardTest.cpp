// Copying an icon to the clipboard.

#include <gmock/gmock.h>
#include <windows.h>

#include <algorithm>
#include <utility>

#include "end_to_end/SavingTest.h"
#include "platform/PastedPicture.h"

namespace tarvik::end_to_end {
namespace {

using support::Paste;
using ::testing::ElementsAre;

class Copy : public Saving {
 protected:
  // The picture on the clipboard, read as another program pastes it: the pixels of a composed icon.
  static Pixels PastePixels() {
    Pixels pixels;
    for (const Color color : Paste().pixels) pixels.push_back(0xFF000000U | color);
    return pixels;
  }
};

TEST_F(Copy, AnotherProgramPastesTheClickedIcon) {
  FindPictures();
  found_ = Now();
  for (const int entry : {1, 2}) {
    EmptyTheClipboard();
    ClickCell(entry);
    ExpectCurrent(entry);
    found_.status = Status();
    program_.Command(FrmFindIcon_mnuCopy);
    EXPECT_TRUE(Eventually([&] { return PastePixels() == ComposedPixels(entry); })) << entry;
    ExpectAsFound();
  }
}

// The lower half of this icon is transparent but not black in its image. Such pixels invert the background, which is
// white.
TEST_F(Copy, PixelsThatInvertDoSoAtEverySize) {
  constexpr int side = 32;
  constexpr Color left = 0x20C040;
  constexpr Color right = 0xA06010;
  constexpr std::size_t headerSize = 40;
  constexpr std::size_t lowerHalf = std::size_t{3} * side * side / 2;
  support::IconPicture picture = support::BitmapPicture(side, 24, left, right);
  std::fill_n(picture.data.begin() + headerSize, lowerHalf, std::byte{0x40});
  tree_.MakeFile("a.ico", support::IconFile({&picture, 1}));
  Start();
  for (const auto& [choice, size] : {std::pair{Size16, 16}, {Size32, 32}, {Size48, 48}, {Size64, 64}}) {
    ChooseSize(choice);
    Find();
    ASSERT_EQ(List().RowCount(), 1);
    EmptyTheClipboard();
    program_.Command(FrmFindIcon_mnuCopy);
    Pixels expected;
    for (int y = 0; y < size; ++y) {
      for (int x = 0; x < size; ++x) {
        const Color color = y >= size / 2 ? white ^ 0x404040U : x < size / 2 ? left : right;
        expected.push_back(0xFF000000U | color);
      }
    }
    EXPECT_TRUE(Eventually([&] { return PastePixels() == expected; }, shortly)) << size;
  }
}

TEST_F(Copy, WhatIsCopiedOutlivesTheProgram) {
  FindPictures();
  EmptyTheClipboard();
  program_.Command(FrmFindIcon_mnuCopy);
  ExpectAsFound();
  EXPECT_EQ(program_.Close(), 0U);
  EXPECT_EQ(PastePixels(), ComposedPixels(0));
}

TEST_F(Copy, AHeldClipboardIsToldAndServesLater) {
  FindPictures();
  EmptyTheClipboard();
  // While a window has the clipboard open, no other window can open it.
  const HWND holder = CreateWindowW(L"Static", L"", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, nullptr, nullptr);
  Names messages;
  {
    const OpenedClipboard held(holder);
    program_.Command(FrmFindIcon_mnuCopy);
    messages = ReadMessages(1);
  }
  DestroyWindow(holder);
  EXPECT_THAT(messages, ElementsAre("The icon was not copied: another program is using the clipboard."));
  ExpectAsFound();
  EXPECT_THAT(PastePixels(), ElementsAre());
  program_.Command(FrmFindIcon_mnuCopy);
  EXPECT_TRUE(Eventually([&] { return PastePixels() == ComposedPixels(0); }));
}

}  // namespace
}  // namespace tarvik::end_to_end
