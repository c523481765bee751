// Copying an icon to the clipboard.

#include <gmock/gmock.h>
#include <windows.h>

#include "end_to_end/SavingTest.h"
#include "platform/PastedPicture.h"

namespace tarvik::end_to_end {
namespace {

using ::testing::ElementsAre;
using testing::Paste;

class Copy : public Saving {
 protected:
  // What another program pastes, as the pixels of a composed icon.
  static Pixels Pasted() {
    Pixels pixels;
    for (const Color color : Paste().pixels) pixels.push_back(0xFF000000U | color);
    return pixels;
  }
  static void ClearClipboard() {
    ASSERT_NE(OpenClipboard(nullptr), 0);
    EmptyClipboard();
    CloseClipboard();
  }
};

TEST_F(Copy, AnotherProgramPastesTheClickedIcon) {
  FindPictures();
  found_ = Now();
  for (const int entry : {1, 2}) {
    ClearClipboard();
    ClickCell(entry);
    ExpectCurrent(entry);
    found_.status = Status();
    program_.Command(FrmFindIcon_mnuCopy);
    EXPECT_TRUE(Eventually([&] { return Pasted() == ComposedPixels(entry); })) << entry;
    ExpectAsFound();
  }
}

TEST_F(Copy, WhatIsCopiedOutlivesTheProgram) {
  FindPictures();
  ClearClipboard();
  program_.Command(FrmFindIcon_mnuCopy);
  ExpectAsFound();
  EXPECT_EQ(program_.Close(), 0U);
  EXPECT_EQ(Pasted(), ComposedPixels(0));
}

TEST_F(Copy, AHeldClipboardIsToldAndServesLater) {
  FindPictures();
  ClearClipboard();
  // Whoever opened it for a window has it to themselves.
  const HWND holder = CreateWindowW(L"Static", L"", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, nullptr, nullptr);
  ASSERT_NE(OpenClipboard(holder), 0);
  program_.Command(FrmFindIcon_mnuCopy);
  const Names messages = ReadMessages(1);
  CloseClipboard();
  DestroyWindow(holder);
  EXPECT_THAT(messages, ElementsAre("The icon was not copied: another program is using the clipboard."));
  ExpectAsFound();
  EXPECT_THAT(Pasted(), ElementsAre());
  program_.Command(FrmFindIcon_mnuCopy);
  EXPECT_TRUE(Eventually([&] { return Pasted() == ComposedPixels(0); }));
}

}  // namespace
}  // namespace tarvik::end_to_end
