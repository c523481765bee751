// What a screen reader finds in each window, read from a second process: every control has a name.

#include <windows.h>

#include <commctrl.h>
#include <gmock/gmock.h>
#include <oleacc.h>

#include <algorithm>
#include <array>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "base/NonCopyable.h"
#include "driver/Dialogs.h"
#include "driver/SaveDialog.h"
#include "end_to_end/ViewByHand.h"
#include "platform/Text.h"

namespace tarvik::end_to_end {
namespace {

// IID_IAccessible, which the linked libraries do not define.
constexpr GUID accessibleInterface{0x618736E0, 0x3C3D, 0x11CF, {0x81, 0x0C, 0x00, 0xAA, 0x00, 0x38, 0x9B, 0x71}};

// A window's answer to a request for its accessible object.
class Accessible : NonCopyable {
 public:
  explicit Accessible(const Control& control) {
    void* object = nullptr;
    if (SUCCEEDED(AccessibleObjectFromWindow(control.Window(), static_cast<DWORD>(OBJID_CLIENT), accessibleInterface,
                                             &object)))
      object_ = static_cast<IAccessible*>(object);
  }
  ~Accessible() {
    if (object_ != nullptr) object_->Release();
  }

  std::string Name(LONG child = CHILDID_SELF) const {
    BSTR name = nullptr;
    if (object_ == nullptr || object_->get_accName(Number(child), &name) != S_OK) return {};
    std::string text = ToUtf8({name, SysStringLen(name)});
    SysFreeString(name);
    return text;
  }
  LONG Role(LONG child = CHILDID_SELF) const {
    VARIANT role{};
    return object_ != nullptr && object_->get_accRole(Number(child), &role) == S_OK ? role.lVal : 0;
  }
  LONG State(LONG child) const {
    VARIANT state{};
    return object_ != nullptr && object_->get_accState(Number(child), &state) == S_OK ? state.lVal : 0;
  }
  LONG ChildCount() const {
    LONG count = -1;
    if (object_ != nullptr) object_->get_accChildCount(&count);
    return count;
  }
  LONG Selection() const {
    VARIANT selection{};
    return object_ != nullptr && object_->get_accSelection(&selection) == S_OK ? selection.lVal : 0;
  }
  // The part at a point of the screen, -1 if there is none.
  LONG PartAt(POINT point) const {
    VARIANT part{};
    const bool found = object_ != nullptr && object_->accHitTest(point.x, point.y, &part) == S_OK;
    return found && part.vt == VT_I4 ? part.lVal : -1;
  }
  RECT Bounds(LONG child) const {
    RECT bounds{};
    LONG width = 0;
    LONG height = 0;
    if (object_ != nullptr) object_->accLocation(&bounds.left, &bounds.top, &width, &height, Number(child));
    bounds.right = bounds.left + width;
    bounds.bottom = bounds.top + height;
    return bounds;
  }

 private:
  static VARIANT Number(LONG value) {
    VARIANT variant{};
    variant.vt = VT_I4;
    variant.lVal = value;
    return variant;
  }

  IAccessible* object_ = nullptr;
};

std::string ClassOf(HWND window) {
  std::array<wchar_t, 64> name{};
  GetClassNameW(window, name.data(), static_cast<int>(name.size()));
  std::string text = ToUtf8(name.data());
  std::ranges::transform(text, text.begin(), [](char letter) {
    return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
  });
  return text;
}

std::string WithoutMark(std::string text) {
  std::erase(text, '&');
  return text;
}

// The name by which a screen reader calls a control: its own text if it has one, otherwise the static text before it,
// visible or not, as the system does. Wine does that only for text boxes.
std::string NameOf(HWND window) {
  const std::string kind = ClassOf(window);
  if (kind == "button" || kind == "static") return WithoutMark(Control(window).Text());
  if (kind == "tarvikpicture") return Accessible(Control(window)).Name();
  const HWND label = GetWindow(window, GW_HWNDPREV);
  return label != nullptr && ClassOf(label) == "static" ? WithoutMark(Control(label).Text()) : std::string();
}

// The notifications for screen readers about the selection in a window.
class SelectionEvents : NonCopyable {
 public:
  explicit SelectionEvents(const Control& window) {
    window_ = window.Window();
    last_ = 0;
  }
  ~SelectionEvents() { UnhookWinEvent(hook_); }

  // Waits until the last one is this event of item 1. They arrive while messages are served.
  bool EndWith(DWORD event) const {
    return hook_ != nullptr && Eventually([&] {
             MSG message;
             while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE) != FALSE) DispatchMessageW(&message);
             return last_ == event;
           });
  }

 private:
  static void CALLBACK Note(HWINEVENTHOOK /*hook*/, DWORD event, HWND window, LONG object, LONG child, DWORD /*thread*/,
                            DWORD /*time*/) {
    if (window == window_ && object == OBJID_CLIENT && child == 1) last_ = event;
  }

  static inline HWND window_ = nullptr;
  static inline DWORD last_ = 0;
  HWINEVENTHOOK hook_ = SetWinEventHook(EVENT_OBJECT_SELECTION, EVENT_OBJECT_SELECTIONREMOVE, nullptr, &Note, 0, 0,
                                        WINEVENT_OUTOFCONTEXT);
};

class Names : public ViewByHand, public ::testing::WithParamInterface<const char*> {
 protected:
  void SetUp() override { CoInitialize(nullptr); }
  void TearDown() override {
    ViewByHand::TearDown();
    CoUninitialize();
  }

  // The visible controls of a window by their ids, with their names, without the child windows of a control.
  static std::map<int, std::string> NamesIn(const Control& window) {
    std::map<int, std::string> names;
    EnumChildWindows(
        window.Window(),
        [](HWND child, LPARAM found) -> BOOL {
          const std::string kind = ClassOf(GetParent(child));
          if (IsWindowVisible(child) == 0 || (kind != "#32770" && kind != "tarvikpicture")) return TRUE;
          (*reinterpret_cast<std::map<int, std::string>*>(found))[GetDlgCtrlID(child)] = NameOf(child);
          return TRUE;
        },
        reinterpret_cast<LPARAM>(&names));
    return names;
  }
  // An entry's frame on the screen: the display's pixels that show any part of it.
  RECT FrameOf(int entry) const {
    const int dots = DotsOfDisplay();
    const Point corner = FrameCorner(*geometry_, entry);
    const POINT end = GridPoint(corner.x + geometry_->FrameExtent + 1, corner.y + geometry_->FrameExtent + 1);
    const RECT grid = program_.Item(FrmFindIcon_PicIcons).Bounds();
    return {grid.left + corner.x * dots / 96, grid.top + corner.y * dots / 96, end.x, end.y};
  }
  static void ExpectNames(const Control& window, const std::string& where) {
    const auto names = NamesIn(window);
    EXPECT_GE(names.size(), 2U) << where;
    std::map<std::string, int> seen;
    for (const auto& [id, name] : names) {
      EXPECT_NE(name, "") << where << ", control " << id;
      if (id != FrmFindIcon_PicIcons && ClassOf(window.Child(id).Window()) != "static") ++seen[name];
    }
    for (const auto& [name, count] : seen) EXPECT_EQ(count, 1) << where << ", " << name;
  }
};

TEST_P(Names, AreGivenToEveryControlOfTheMainWindowAndTheView) {
  const LanguageValue language(GetParam());
  CopyHundredIcons(In("hundred.dll"));
  Start();
  Tick({Dll});
  ExpectNames(program_.Window(), "main window");
  Find();
  ExpectNames(program_.Window(), "grid");
  program_.Item(FrmFindIcon_OptView1).Send(BM_CLICK);
  ExpectNames(program_.Window(), "list");
  program_.Item(FrmFindIcon_OptView0).Send(BM_CLICK);
  const EnhancedView view = OpenOn(1);
  ExpectNames(view.Window(), "enhanced view");
  for (int button = frmBit_tlb_control_MoveFirst; button <= frmBit_tlb_control_Exit; ++button)
    EXPECT_NE(view.Toolbar().ButtonText(button), "") << button;
  view.Close();
}

TEST_P(Names, AreGivenToEveryControlOfTheDialogs) {
  const LanguageValue language(GetParam());
  FindFiles(2);
  program_.Command(FrmFindIcon_mnuSaveAll2);
  const FolderChooser chooser(program_);
  ExpectNames(chooser.Window(), "folder chooser");
  EXPECT_NE(NamesIn(chooser.Window())[frmDir_CboFileType], chooser.Path());
  const NewFolderDialog newFolder(program_, chooser);
  ExpectNames(newFolder.Window(), "new folder");
  newFolder.End(frmDirCreate_CmdCancel);
  chooser.Cancel();
  program_.Command(FrmFindIcon_MnuSaveAsBitmap);
  SaveDialog(program_).SaveAs(home_.In("a.jpg"));
  const Dialog jpeg(program_, fSaveJPG_CboSize);
  ExpectNames(jpeg.Window(), "JPEG");
  jpeg.Press(fSaveJPG_cmdComment);
  const Dialog comment(program_, fComment_txtComment);
  ExpectNames(comment.Window(), "comment");
  comment.End(fComment_cmdFinish);
  jpeg.End(fSaveJPG_cmdFinish0);
  program_.Command(FrmFindIcon_MnuSaveAsBitmap);
  SaveDialog(program_).SaveAs(home_.In("a.gif"));
  const Dialog gif(program_, FrmConvertGIF_Option1);
  ExpectNames(gif.Window(), "GIF");
  gif.End(FrmConvertGIF_CmdCancel);
  program_.Command(FrmFindIcon_MnuSaveAsCursor);
  const Dialog hotSpot(program_, FrmHotSpot_PicCursor);
  MovePointer(MiddleOf(hotSpot.Item(FrmHotSpot_PicCursor).Bounds()));
  ExpectNames(hotSpot.Window(), "hot spot");
  hotSpot.End(FrmHotSpot_CmdCancel);
}

TEST_P(Names, AreGivenToEveryControlOfTheStartUpWindowAndTheAboutBox) {
  const LanguageValue language(GetParam());
  program_.Launch();
  ExpectNames(program_.WaitForStartUpWindow(), "start-up window");
  program_.WaitForMainWindow();
  program_.Command(FrmFindIcon_MnuAbout);
  const Control about = program_.WaitForStartUpWindow();
  ExpectNames(about, "About box");
  about.Child(FrmSpash_CmdOk).Press();
}

TEST_P(Names, OfTheGridsIconSayNumberFileAndIndex) {
  const LanguageValue language(GetParam());
  FindFiles(5);
  const Control grid = program_.Item(FrmFindIcon_PicIcons);
  const std::string word = std::string(GetParam()) == "ENG"   ? "Icon "
                           : std::string(GetParam()) == "CHS" ? "图标 "
                                                              : "圖示 ";
  for (const int entry : {0, 3}) {
    ClickCell(entry);
    ExpectRows({entry});
    const Accessible icons(grid);
    EXPECT_EQ(icons.Role(), ROLE_SYSTEM_LIST);
    EXPECT_EQ(icons.Name(), Control(program_.Item(FrmFindIcon_PicFrame)).Text());
    ASSERT_EQ(icons.ChildCount(), 1);
    EXPECT_EQ(icons.Selection(), 1);
    EXPECT_EQ(icons.Role(1), ROLE_SYSTEM_LISTITEM);
    EXPECT_NE(icons.State(1) & STATE_SYSTEM_SELECTED, 0);
    EXPECT_THAT(icons.Name(1), ::testing::StartsWith(word + std::to_string(entry + 1)));
    EXPECT_THAT(icons.Name(1), ::testing::HasSubstr(In(FileName(entry + 1))));
    EXPECT_THAT(icons.Name(1), ::testing::EndsWith(" 0"));
    const RECT bounds = icons.Bounds(1);
    EXPECT_TRUE(PtInRect(&bounds, CellMiddle(entry)));
    const RECT frame = FrameOf(entry);
    EXPECT_TRUE(EqualRect(&bounds, &frame)) << entry;
    EXPECT_EQ(icons.PartAt(CellMiddle(entry)), 1);
    EXPECT_EQ(icons.PartAt(CellMiddle(1)), CHILDID_SELF);
  }
}

// It was reported as selected after Ctrl took it out of the selection.
TEST_P(Names, OfTheGridsIconStayWhenCtrlTakesItOutOfTheSelection) {
  const LanguageValue language(GetParam());
  FindFiles(5);
  const Accessible icons(program_.Item(FrmFindIcon_PicIcons));
  const SelectionEvents events(program_.Item(FrmFindIcon_PicIcons));
  ClickCell(4);
  ClickCell(2, {VK_CONTROL});
  ExpectRows({2, 4});
  const std::string name = icons.Name(1);
  EXPECT_THAT(name, ::testing::HasSubstr(In(FileName(3))));
  EXPECT_EQ(icons.State(1), STATE_SYSTEM_SELECTABLE | STATE_SYSTEM_SELECTED);
  EXPECT_EQ(icons.Selection(), 1);
  EXPECT_TRUE(events.EndWith(EVENT_OBJECT_SELECTION));
  ClickCell(2, {VK_CONTROL});
  ExpectRows({4});
  EXPECT_TRUE(events.EndWith(EVENT_OBJECT_SELECTIONREMOVE));
  EXPECT_EQ(icons.Name(1), name);
  EXPECT_EQ(icons.State(1), STATE_SYSTEM_SELECTABLE);
  EXPECT_EQ(icons.Selection(), 0);
  EXPECT_EQ(icons.ChildCount(), 1);
}

// The object outlives the list that it tells of.
TEST_P(Names, OfTheGridsIconFollowTheNextSearch) {
  const LanguageValue language(GetParam());
  FindFiles(5);
  const Accessible icons(program_.Item(FrmFindIcon_PicIcons));
  ClickCell(3);
  ExpectRows({3});
  tree_.MakeFile("0.ico", support::IconFileOf(0xFF));
  Find();
  EXPECT_EQ(List().RowCount(), 6);
  EXPECT_THAT(icons.Name(1), ::testing::HasSubstr(In("0.ico")));
  EXPECT_EQ(icons.Selection(), 1);
  program_.Item(FrmFindIcon_ChkFileType0).Send(BM_CLICK);
  program_.Item(FrmFindIcon_CmdFind).Press();
  program_.WaitForBox().Press(IDOK);
  EXPECT_EQ(icons.ChildCount(), 0);
  EXPECT_EQ(icons.Name(1), "");
  EXPECT_EQ(icons.Name(), Control(program_.Item(FrmFindIcon_PicFrame)).Text());
}

INSTANTIATE_TEST_SUITE_P(Languages, Names, ::testing::Values("ENG", "CHS", "CHT"),
                         [](const auto& row) { return std::string(row.param); });

class AboutBox : public EndToEnd, public ::testing::WithParamInterface<const char*> {};

TEST_P(AboutBox, ShowsVersionCopyrightAndLicenceToRead) {
  const LanguageValue language(GetParam());
  Start();
  program_.Command(FrmFindIcon_MnuAbout);
  const Control about = program_.WaitForStartUpWindow();
  for (const int id : {FrmSpash_lblVersion, FrmSpash_lblCopyright, FrmSpash_lblLicence}) {
    EXPECT_TRUE(about.Child(id).IsVisible()) << id;
    const RECT bounds = about.Child(id).Bounds();
    EXPECT_LE(bounds.bottom, about.Inside().bottom) << id;
  }
  EXPECT_THAT(about.Child(FrmSpash_lblVersion).Text(), ::testing::EndsWith(TARVIK_VERSION));
  EXPECT_EQ(about.Child(FrmSpash_lblCopyright).Text(), "Copyright 2026 The Brindle Tarvik developers");
  EXPECT_THAT(about.Child(FrmSpash_lblLicence).Text(), ::testing::HasSubstr("MIT"));
  about.Child(FrmSpash_CmdOk).Press();
}

INSTANTIATE_TEST_SUITE_P(Languages, AboutBox, ::testing::Values("ENG", "CHS", "CHT"),
                         [](const auto& row) { return std::string(row.param); });

}  // namespace
}  // namespace tarvik::end_to_end
