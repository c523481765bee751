#include "view/frmBit.h"

#include <gmock/gmock.h>

#include <string>

#include "forms/Controls.h"
#include "view/ViewFixture.h"
#include "view/ViewTexts.h"

namespace tarvik {
namespace {

using ::testing::ElementsAre;
using ::testing::EndsWith;

constexpr int firstButton = frmBit_tlb_control_MoveFirst;
constexpr int lastButton = frmBit_tlb_control_Exit;
constexpr int plusKey = 187;
constexpr int minusKey = 189;

class frmBitTest : public support::ViewFixture {};

TEST_F(frmBitTest, OpensOnTheSelectedEntryWithTheShowOff) {
  MakeList(5, 2);
  WhileOpen([this] {
    EXPECT_THAT(host->asked, ElementsAre(3));
    EXPECT_EQ(Status(), "C:\\icons\\3.dll - 30");
    EXPECT_EQ(Caption(), "Enhanced View - [Height=160, Width=160]");
    EXPECT_TRUE(IsButtonEnabled(frmBit_tlb_control_Start));
    EXPECT_FALSE(IsButtonEnabled(frmBit_tlb_control_Stop));
    EXPECT_EQ(SendMessageW(Item(frmBit_CboZoom), CB_GETCURSEL, 0, 0), CB_ERR) << "the zoom list shows no choice";
    EXPECT_EQ(SendMessageW(Item(frmBit_CboZoom), CB_GETCOUNT, 0, 0), 10);
    EXPECT_EQ(GetNextDlgTabItem(view->Window(), nullptr, FALSE), Item(frmBit_CboZoom)) << "what takes the focus";
    EXPECT_FALSE(TakeTimer());
  });
}

TEST_F(frmBitTest, IsModalAndSaysThatItIsOpen) {
  WhileOpen([this] {
    EXPECT_TRUE(host->viewOpen);
    EXPECT_FALSE(IsWindowEnabled(owner));
  });
  EXPECT_FALSE(host->viewOpen);
  EXPECT_TRUE(IsWindowEnabled(owner));
  EXPECT_FALSE(view->IsLoaded());
}

TEST_F(frmBitTest, LoadsOnlyAfterItsFirstEntryIsRendered) {
  bool loadedBefore = true;
  host->onDraw = [&] { loadedBefore = view->IsLoaded(); };
  WhileOpen([] {});
  EXPECT_FALSE(loadedBefore);
}

TEST_F(frmBitTest, StaysClosedForAnEmptyListAndWhileAnotherIsOpen) {
  MakeList(0);
  view->ShowSelectedEntry(owner);
  EXPECT_FALSE(view->IsLoaded());

  MakeList(3);
  host->viewOpen = true;
  view->ShowSelectedEntry(owner);
  EXPECT_FALSE(view->IsLoaded());
  EXPECT_TRUE(host->asked.empty());
}

TEST_F(frmBitTest, StepsByItsToolbar) {
  MakeList(5, 2);
  WhileOpen([this] {
    host->asked.clear();
    Click(frmBit_tlb_control_MoveFirst);
    Click(frmBit_tlb_control_MoveNext);
    Click(frmBit_tlb_control_MoveLast);
    Click(frmBit_tlb_control_MovePrev);
    Click(frmBit_tlb_control_MoveLast);
    Click(frmBit_tlb_control_MoveNext);
    EXPECT_THAT(host->asked, ElementsAre(1, 2, 5, 4, 5, 2));
    EXPECT_EQ(Status(), "C:\\icons\\2.dll - 20");
  });
}

TEST_F(frmBitTest, StepsByItsKeysWhereverTheFocusIs) {
  MakeList(5, 2);
  WhileOpen([this] {
    host->asked.clear();
    Press(VK_SPACE);
    Press(VK_NEXT);
    Press(VK_PRIOR);
    EXPECT_THAT(host->asked, ElementsAre(3, 4, 3));
    for (const int id : {frmBit_tlb_control, frmBit_img, frmBit_sbMain}) {
      PostMessageW(Item(id), WM_KEYDOWN, VK_SPACE, 1);
      application.DoEvents();
    }
    PostMessageW(view->Window(), WM_KEYDOWN, VK_SPACE, 1);
    application.DoEvents();
    EXPECT_THAT(host->asked, ElementsAre(3, 4, 3, 4, 5, 2, 3));
  });
}

TEST_F(frmBitTest, KeepsItsKeysFromTheZoomList) {
  WhileOpen([this] {
    ChooseZoom(4);
    for (const int key : {VK_SPACE, VK_NEXT, VK_PRIOR, plusKey, minusKey}) Press(key);
    EXPECT_EQ(SendMessageW(Item(frmBit_CboZoom), CB_GETCURSEL, 0, 0), 4);
  });
}

TEST_F(frmBitTest, LetsTheArrowKeysChooseTheZoom) {
  WhileOpen([this] {
    Press(VK_DOWN);
    EXPECT_EQ(Caption(), "Enhanced View - [Height=32, Width=32]");
    Press(VK_DOWN);
    EXPECT_EQ(Caption(), "Enhanced View - [Height=64, Width=64]");
  });
}

TEST_F(frmBitTest, DoesNothingOnOtherKeys) {
  WhileOpen([this] {
    host->asked.clear();
    Click(frmBit_tlb_control_Start);
    for (const int key :
         {VK_ESCAPE, VK_RETURN, VK_TAB, VK_BACK, VK_DELETE, VK_F1, VK_F5, VK_ADD, VK_SUBTRACT, int{'A'}, int{'N'}}) {
      Press(key);
    }
    Press(VK_NEXT, WM_SYSKEYDOWN);
    EXPECT_TRUE(host->asked.empty());
    EXPECT_TRUE(view->IsLoaded());
    EXPECT_FALSE(IsButtonEnabled(frmBit_tlb_control_Start));
    EXPECT_EQ(Caption(), "Enhanced View - [Height=160, Width=160]");
  });
}

TEST_F(frmBitTest, StartsAndStopsTheShow) {
  WhileOpen([this] {
    Click(frmBit_tlb_control_Start);
    EXPECT_FALSE(IsButtonEnabled(frmBit_tlb_control_Start));
    EXPECT_TRUE(IsButtonEnabled(frmBit_tlb_control_Stop));
    Click(frmBit_tlb_control_Stop);
    EXPECT_TRUE(IsButtonEnabled(frmBit_tlb_control_Start));
    EXPECT_FALSE(IsButtonEnabled(frmBit_tlb_control_Stop));
    EXPECT_FALSE(TakeTimer());
    Click(frmBit_tlb_control_Start);
    EXPECT_TRUE(TakeTimer());
  });
}

TEST_F(frmBitTest, StopsTheShowWithEveryStep) {
  WhileOpen([this] {
    for (const int button : {frmBit_tlb_control_MoveFirst, frmBit_tlb_control_MovePrev, frmBit_tlb_control_MoveNext,
                             frmBit_tlb_control_MoveLast}) {
      Click(frmBit_tlb_control_Start);
      Click(button);
      EXPECT_TRUE(IsButtonEnabled(frmBit_tlb_control_Start)) << button;
      EXPECT_FALSE(TakeTimer()) << button;
    }
    for (const int key : {VK_SPACE, VK_NEXT, VK_PRIOR}) {
      Click(frmBit_tlb_control_Start);
      Press(key);
      EXPECT_TRUE(IsButtonEnabled(frmBit_tlb_control_Start)) << key;
      EXPECT_FALSE(TakeTimer()) << key;
    }
  });
}

TEST_F(frmBitTest, StepsOnceWhereSpaceStopsTheShow) {
  WhileOpen([this] {
    Click(frmBit_tlb_control_Start);
    Tick();
    host->asked.clear();
    Press(VK_SPACE);
    EXPECT_THAT(host->asked, ElementsAre(2));
  });
}

TEST_F(frmBitTest, KeepsTheShowRunningOrNotWhateverTheSpeed) {
  WhileOpen([this] {
    for (const int button : {frmBit_tlb_control_Faster, frmBit_tlb_control_Slower}) Click(button);
    for (const int key : {plusKey, minusKey}) Press(key);
    EXPECT_FALSE(TakeTimer());
    EXPECT_TRUE(IsButtonEnabled(frmBit_tlb_control_Start));

    Click(frmBit_tlb_control_Start);
    for (const int button : {frmBit_tlb_control_Faster, frmBit_tlb_control_Slower}) Click(button);
    for (const int key : {plusKey, minusKey}) Press(key);
    EXPECT_FALSE(IsButtonEnabled(frmBit_tlb_control_Start));
    EXPECT_TRUE(TakeTimer());
  });
}

TEST_F(frmBitTest, ShowsTheNextEntryWhenTheTimerFires) {
  WhileOpen([this] {
    host->asked.clear();
    Click(frmBit_tlb_control_Start);
    for (int press = 0; press < 4; ++press) Press(plusKey);
    const ULONGLONG start = GetTickCount64();
    EXPECT_TRUE(WaitFor([this] { return host->asked.size() >= 2; }));
    EXPECT_GE(GetTickCount64() - start, 1500U) << "two seconds at the highest speed";
    EXPECT_THAT(host->asked, ElementsAre(1, 2));
  });
}

TEST_F(frmBitTest, DoesNotAdvanceOnATickThatComesAfterTheStop) {
  WhileOpen([this] {
    Click(frmBit_tlb_control_Start);
    Click(frmBit_tlb_control_Stop);
    host->asked.clear();
    Tick();
    EXPECT_TRUE(host->asked.empty());
  });
}

TEST_F(frmBitTest, DoesNotAdvanceWhileMinimised) {
  WhileOpen([this] {
    host->asked.clear();
    Click(frmBit_tlb_control_Start);
    ShowWindow(view->Window(), SW_MINIMIZE);
    Tick();
    EXPECT_TRUE(host->asked.empty());
    EXPECT_FALSE(IsButtonEnabled(frmBit_tlb_control_Start)) << "the show goes on";
    ShowWindow(view->Window(), SW_RESTORE);
    Tick();
    EXPECT_THAT(host->asked, ElementsAre(1));
  });
}

TEST_F(frmBitTest, LeavesTheListOfOneBehindAndStaysOpen) {
  MakeList(1);
  WhileOpen([this] {
    Click(frmBit_tlb_control_MoveNext);
    EXPECT_EQ(Status(), "C:\\icons\\1.dll - 10");
    Click(frmBit_tlb_control_MoveNext);
    EXPECT_EQ(Status(), "");
    EXPECT_TRUE(view->IsLoaded());
    EXPECT_EQ(errors, 0);
    Click(frmBit_tlb_control_MoveFirst);
    EXPECT_EQ(Status(), "C:\\icons\\1.dll - 10");
  });
}

TEST_F(frmBitTest, ClosesByItsExitButton) {
  WhileOpen([this] {
    Click(frmBit_tlb_control_Exit);
    EXPECT_FALSE(view->IsLoaded());
    EXPECT_FALSE(host->viewOpen);
  });
}

TEST_F(frmBitTest, ClosesDuringTheShow) {
  WhileOpen([this] {
    Click(frmBit_tlb_control_Start);
    Press(plusKey);
    Close();
    EXPECT_FALSE(view->IsLoaded());
    EXPECT_FALSE(host->viewOpen);
    EXPECT_EQ(store.values.size(), 2U) << "the size is kept";
  });
}

TEST_F(frmBitTest, OpensAgainAsTheFirstTime) {
  MakeList(5, 3);
  WhileOpen([this] {
    ChooseZoom(9);
    Click(frmBit_tlb_control_MoveFirst);
    Click(frmBit_tlb_control_Start);
    for (int press = 0; press < 4; ++press) Press(plusKey);
  });
  host->asked.clear();
  WhileOpen([this] {
    EXPECT_EQ(Caption(), "Enhanced View - [Height=160, Width=160]");
    EXPECT_EQ(SendMessageW(Item(frmBit_CboZoom), CB_GETCURSEL, 0, 0), CB_ERR);
    EXPECT_EQ(SendMessageW(Item(frmBit_CboZoom), CB_GETCOUNT, 0, 0), 10);
    EXPECT_TRUE(IsButtonEnabled(frmBit_tlb_control_Start));
    EXPECT_FALSE(TakeTimer());
    EXPECT_EQ(Status(), "C:\\icons\\4.dll - 40");
    Click(frmBit_tlb_control_MoveNext);
    EXPECT_THAT(host->asked, ElementsAre(4, 4)) << "it begins at the selection again";
  });
}

TEST_F(frmBitTest, OpensAgainWithItsFirstInterval) {
  WhileOpen([this] {
    for (int press = 0; press < 4; ++press) Press(plusKey);
  });
  host->asked.clear();
  WhileOpen([this] {
    Click(frmBit_tlb_control_Start);
    for (int press = 0; press < 3; ++press) Press(plusKey);
    const ULONGLONG start = GetTickCount64();
    EXPECT_TRUE(WaitFor([this] { return host->asked.size() >= 2; }));
    EXPECT_GE(GetTickCount64() - start, 1500U) << "from five seconds down to two";
  });
}

TEST_F(frmBitTest, TellsTheZoomInItsCaptionInEachLanguage) {
  for (const std::string language : {"ENG", "CHS", "CHT"}) {
    state.CurrentLanguage = language;
    WhileOpen([&] {
      for (int row = 0; row < 10; ++row) {
        ChooseZoom(row);
        const int side = 32 * (row + 1);
        EXPECT_EQ(Caption(), ViewCaption(side, side, language)) << language << ' ' << row;
      }
    });
  }
}

TEST_F(frmBitTest, TellsTheZoomInItsCaptionWhenItsSizeChanges) {
  WhileOpen([this] {
    SetWindowTextW(view->Window(), L"Another");
    SetWindowPos(view->Window(), nullptr, 0, 0, 600, 500, SWP_NOMOVE | SWP_NOZORDER);
    EXPECT_EQ(Caption(), "Enhanced View - [Height=160, Width=160]");
    ChooseZoom(0);
    ShowWindow(view->Window(), SW_MAXIMIZE);
    EXPECT_EQ(Caption(), "Enhanced View - [Height=32, Width=32]");
  });
}

TEST_F(frmBitTest, KeepsItsDesignedTextsInAnUnknownLanguage) {
  state.CurrentLanguage = "CHI";
  WhileOpen([this] {
    EXPECT_EQ(Caption(), "Enhanced View");
    ChooseZoom(1);
    EXPECT_EQ(Caption(), "Enhanced View");
    EXPECT_EQ(Tooltip(frmBit_tlb_control_MovePrev), "Back");
  });
}

TEST_F(frmBitTest, HasTooltipsInEachLanguage) {
  for (const std::string language : {"ENG", "CHS", "CHT"}) {
    state.CurrentLanguage = language;
    WhileOpen([&] {
      for (const FormText& row : viewTooltips) {
        EXPECT_EQ(Tooltip(row.id), *Pick(row.text, language)) << language << ' ' << row.id;
      }
    });
  }
}

TEST_F(frmBitTest, TellsItsControlsOfNewColorsAndThemes) {
  WhileOpen([this] {
    for (const int id : {frmBit_tlb_control, frmBit_sbMain})
      EXPECT_EQ(support::ChangesToldTo(Item(id), view->Window()), support::allChanges) << id;
  });
}

TEST_F(frmBitTest, ShowsNoTextBesideAButtonsPicture) {
  WhileOpen([this] {
    for (int button = firstButton; button <= lastButton; ++button) {
      const RECT bounds = ButtonBounds(button);
      EXPECT_LE(bounds.right - bounds.left, bounds.bottom - bounds.top + 8) << button;
    }
  });
}

TEST_F(frmBitTest, ShowsARunTimeErrorOnceAndStaysUsable) {
  WhileOpen([this] {
    host->failing = true;
    Click(frmBit_tlb_control_MoveFirst);
    EXPECT_EQ(errors, 1);
    Press(VK_SPACE);
    EXPECT_EQ(errors, 1) << "Next skips errors";
    host->failing = false;
    Click(frmBit_tlb_control_MoveLast);
    EXPECT_EQ(Status(), "C:\\icons\\5.dll - 50");
  });
}

// The picture is requested once while the view loads and again for its first display.
TEST_F(frmBitTest, OpensAfterThereWasNoMemoryForItsPicture) {
  for (int pictures = 0; pictures < 2; ++pictures) {
    host->picturesLeft = pictures;
    EXPECT_THROW(view->ShowSelectedEntry(owner), OutOfMemoryError);
    EXPECT_FALSE(view->IsLoaded());
    EXPECT_FALSE(host->ViewOpen());
    EXPECT_TRUE(IsWindowEnabled(owner));
  }
  host->picturesLeft.reset();
  WhileOpen([this] { EXPECT_TRUE(IsWindowVisible(view->Window())); });
}

TEST_F(frmBitTest, HasItsToolbarOnTopTheZoomListUnderItAndTheStatusBarBelow) {
  WhileOpen([this] {
    for (const bool maximised : {false, true}) {
      if (maximised) ShowWindow(view->Window(), SW_MAXIMIZE);
      RECT inner{};
      GetClientRect(view->Window(), &inner);
      EXPECT_EQ(BoundsOf(frmBit_tlb_control).top, 0);
      EXPECT_EQ(BoundsOf(frmBit_tlb_control).right, inner.right);
      EXPECT_GE(BoundsOf(frmBit_CboZoom).top, BoundsOf(frmBit_tlb_control).bottom);
      EXPECT_LE(BoundsOf(frmBit_CboZoom).bottom, 100) << "above the picture";
      EXPECT_EQ(BoundsOf(frmBit_sbMain).bottom, inner.bottom);
      EXPECT_EQ(BoundsOf(frmBit_sbMain).right, inner.right);
    }
  });
}

}  // namespace
}  // namespace tarvik
