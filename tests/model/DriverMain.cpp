// Actions in the main window.
#include <windows.h>

#include <commctrl.h>
#include <windowsx.h>

#include <algorithm>
#include <array>

#include "model/Driver.h"
#include "model/Seen.h"
#include "resource.h"

namespace tarvik::model {
namespace {

constexpr std::array<int, 12> iconCounts{0, 1, 2, 5, 15, 16, 20, 45, 61, 76, 91, 130};

constexpr std::size_t deepest =
    4;  // folders in a chain that get sub-folders: in a tip, a longer path has several lines

std::string NumberText(int number) {
  return std::to_string(number);
}

}  // namespace

void Driver::Command(HWND window, int id, int code) const {
  SendMessageW(window, WM_COMMAND, MAKEWPARAM(id, code), reinterpret_cast<LPARAM>(GetDlgItem(window, id)));
}

void Driver::HoldKeys(bool ctrl, bool shift, bool leftButton) {
  std::array<BYTE, 256> keys{};
  constexpr BYTE down = 0x80;
  keys[VK_CONTROL] = keys[VK_LCONTROL] = ctrl ? down : BYTE{0};
  keys[VK_SHIFT] = keys[VK_LSHIFT] = shift ? down : BYTE{0};
  keys[VK_LBUTTON] = leftButton ? down : BYTE{0};
  SetKeyboardState(keys.data());
}

void Driver::ServeKey(HWND control, WPARAM key, bool ctrl) {
  HoldKeys(ctrl, false);
  PostMessageW(control, WM_KEYDOWN, key, 0);
  program_->ServeWaiting();
  HoldKeys(false, false);
}

void Driver::Find(const std::function<void()>& press) {
  model_.Find();
  Perform(press);
}

bool Driver::FindByButton(const Action& /*action*/) {
  Find([this] { Command(Main(), FrmFindIcon_CmdFind); });
  return true;
}

bool Driver::FindByMenu(const Action& /*action*/) {
  if (!model_.fileEnabled) return false;
  Find([this] { Command(Main(), FrmFindIcon_mnuStart); });
  return true;
}

// Enter presses the default button, whichever control has the focus.
bool Driver::FindByEnter(const Action& /*action*/) {
  Find([this] {
    SetFocus(Item(FrmFindIcon_txtMax));
    ServeKey(Item(FrmFindIcon_txtMax), VK_RETURN);
  });
  return true;
}

// The search processes the waiting messages: clicks, commands, drops and requests to close have no effect then. A
// search that ended with an error is over when its message box opens.
bool Driver::FindWithClicksWaiting(const Action& action) {
  const POINT point = PointOnGrid(action);
  Find([this, point] {
    PostMessageW(Grid(), WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(point.x, point.y));
    PostMessageW(Grid(), WM_LBUTTONUP, 0, MAKELPARAM(point.x, point.y));
    PostMessageW(Main(), WM_COMMAND, FrmFindIcon_mnuRem, 0);
    PostMessageW(Main(), WM_COMMAND, FrmFindIcon_mnuSaveAs, 0);
    DropOnMain({"D:\\a\\k.ico"});
    const bool isOver = model_.Foremost() == Front::Box && !model_.IsBusy();
    if (!isOver) PostMessageW(Main(), WM_CLOSE, 0, 0);
    Command(Main(), FrmFindIcon_CmdFind);
  });
  return true;
}

// A point in the part of the picture that the viewport shows, mostly on an icon.
POINT Driver::PointOnGrid(const Action& action) const {
  const int top = model_.grid.Scroll();
  const int x = action.a % gridWidth;
  const int y = top + action.b % viewportHeight;
  const int count = static_cast<int>(model_.entries.size());
  if (count == 0 || action.c % 4 == 0) return {x, y};
  const Geometry& size = model_.Size();
  const int index = action.a % count;
  const POINT onIcon{index % size.columns * size.pitch + 1 + action.b % (size.pitch - 1),
                     index / size.columns * size.pitch + 1 + action.c % (size.pitch - 1)};
  const bool inSight = onIcon.y >= top && onIcon.y < top + viewportHeight;
  return inSight ? onIcon : POINT{x, y};
}

bool Driver::ClickGrid(const Action& action) {
  if (model_.listShown) return false;
  struct Button {
    UINT down;
    UINT up;
    WPARAM held;
  };
  static constexpr Button buttons[] = {{WM_LBUTTONDOWN, WM_LBUTTONUP, MK_LBUTTON},
                                       {WM_RBUTTONDOWN, WM_RBUTTONUP, MK_RBUTTON},
                                       {WM_MBUTTONDOWN, WM_MBUTTONUP, MK_MBUTTON}};
  const POINT point = PointOnGrid(action);
  const int way = action.what / 128;
  const bool ctrl = way % 2 == 1;
  const bool shift = way % 9 == 0;
  const Button& button = buttons[way % 7 == 0 ? 1 + way / 7 % 2 : 0];
  Note("(" + NumberText(point.x) + ", " + NumberText(point.y) + ")" + (ctrl ? " Ctrl" : "") + (shift ? " Shift" : ""));
  const WPARAM keys = (ctrl ? MK_CONTROL : 0U) | (shift ? MK_SHIFT : 0U);
  model_.ClickGrid(point.x, point.y, ctrl && !shift);
  Perform([&] {
    SendMessageW(Grid(), button.down, keys | button.held, MAKELPARAM(point.x, point.y));
    SendMessageW(Grid(), button.up, keys, MAKELPARAM(point.x, point.y));
  });
  return true;
}

// The second release comes while the view is open and goes to the window that has captured the mouse, or it comes after
// the view is closed.
bool Driver::DoubleClickGrid(const Action& action) {
  if (model_.listShown) return false;
  const POINT point = PointOnGrid(action);
  const bool ctrl = action.what / 128 % 4 == 1;
  const bool later = action.what / 512 % 4 == 1;
  Note("(" + NumberText(point.x) + ", " + NumberText(point.y) + ")" + (ctrl ? " Ctrl" : "") +
       (later ? ", held until the view is closed" : ""));
  const WPARAM keys = ctrl ? MK_CONTROL : 0U;
  const LPARAM at = MAKELPARAM(point.x, point.y);
  const LPARAM further = MAKELPARAM(point.x + 2 * model_.Size().pitch, point.y);
  model_.ClickGrid(point.x, point.y, ctrl);
  model_.OpenView();
  const bool opens = model_.Foremost() == Front::View;
  if (opens && !later) {
    rest_.push_back([this, keys, further] {
      if (GetCapture() == Grid()) SendMessageW(Grid(), WM_LBUTTONUP, keys, further);
      PostTick();
    });
  }
  Perform([&] {
    SendMessageW(Grid(), WM_LBUTTONDOWN, keys | MK_LBUTTON, at);
    SendMessageW(Grid(), WM_LBUTTONUP, keys, at);
    HoldKeys(ctrl, false, later);
    SendMessageW(Grid(), WM_LBUTTONDBLCLK, keys | MK_LBUTTON, at);
    HoldKeys(false, false);
    if (IsWindow(Grid()) != FALSE && (later || !opens)) SendMessageW(Grid(), WM_LBUTTONUP, keys, opens ? further : at);
  });
  return true;
}

bool Driver::Scroll(const Action& action) {
  if (model_.listShown || !model_.grid.Scrolls()) return false;
  static constexpr int requests[] = {SB_LINEDOWN, SB_LINEUP, SB_PAGEDOWN,      SB_PAGEUP,
                                     SB_BOTTOM,   SB_TOP,    SB_THUMBPOSITION, SB_THUMBTRACK};
  const int request = requests[action.a % 8];
  const bool rests = action.c / 4 % 2 == 0;
  const POINT point = PointOnGrid(action);
  const int thumb = action.b % (std::max(0, model_.grid.InnerHeight() - viewportHeight) + 1);
  const HWND bar = Item(FrmFindIcon_Vsb);
  const int steps[] = {model_.grid.LineStep(), -model_.grid.LineStep(), viewportHeight, -viewportHeight};
  if (request == SB_BOTTOM) {
    model_.grid.ScrollToEnd();
  } else if (request == SB_TOP) {
    model_.grid.ScrollTo(0);
  } else if (request == SB_THUMBPOSITION || request == SB_THUMBTRACK) {
    model_.grid.ScrollTo(thumb);
  } else {
    model_.grid.ScrollBy(steps[action.a % 8]);
  }
  model_.tip = "";
  Note("request " + NumberText(request) + " to " + NumberText(model_.grid.Scroll()));
  Perform([&] {
    if (rests) RestOn(point);
    if (request == SB_THUMBPOSITION || request == SB_THUMBTRACK) SetScrollPos(bar, SB_CTL, thumb, FALSE);
    SendMessageW(Main(), WM_VSCROLL, MAKEWPARAM(request, thumb), reinterpret_cast<LPARAM>(bar));
  });
  return true;
}

// Mostly the wheel is turned over an icon, whose tip is there.
bool Driver::TurnWheel(const Action& action) {
  if (model_.listShown) return false;
  static constexpr int deltas[] = {-120, 120, -240, -30, 40, -7, 360};
  const int delta = deltas[action.a % 7];
  Note(NumberText(delta));
  UINT lines = 0;
  SystemParametersInfoW(SPI_GETWHEELSCROLLLINES, 0, &lines, 0);
  const POINT point = PointOnGrid(action);
  const bool rests = action.b % 3 != 0;
  if (rests) model_.Hover(point.x, point.y);
  if (model_.grid.Scrolls()) {
    model_.grid.Turn(delta, static_cast<int>(lines));
    model_.tip = "";
  }
  RECT frame{};
  GetWindowRect(Item(FrmFindIcon_PicFrame), &frame);
  const POINT middle{(frame.left + frame.right) / 2, (frame.top + frame.bottom) / 2};
  if (rests) RestOn(point);
  PostMessageW(Item(FrmFindIcon_CmdFind), WM_MOUSEWHEEL, MAKEWPARAM(0, delta), MAKELPARAM(middle.x, middle.y));
  PostTick();
  return true;
}

bool Driver::TickType(const Action& action) {
  const int box = action.a % 7;
  Note(NumberText(box));
  model_.TickType(box);
  Perform([&] { SendMessageW(Item(FrmFindIcon_ChkFileType0 + box), BM_CLICK, 0, 0); });
  return true;
}

bool Driver::TickSubDir(const Action& /*action*/) {
  model_.TickSubDir();
  Perform([&] { SendMessageW(Item(FrmFindIcon_chkSubDir), BM_CLICK, 0, 0); });
  return true;
}

bool Driver::ChooseSize(const Action& action) {
  const int row = action.a % 4;
  Note(NumberText(geometries.at(static_cast<std::size_t>(row)).size));
  model_.ChooseSize(row);
  Perform([&] {
    SendMessageW(Item(FrmFindIcon_CboIconSize), CB_SETCURSEL, static_cast<WPARAM>(row), 0);
    Command(Main(), FrmFindIcon_CboIconSize, CBN_SELCHANGE);
  });
  return true;
}

bool Driver::TypeLimit(const Action& action) {
  const LimitText& text = limitTexts.at(static_cast<std::size_t>(action.a) % limitTexts.size());
  Note(text.text);
  model_.TypeLimit(text);
  Perform([&] { SetWindowTextA(Item(FrmFindIcon_txtMax), text.text); });
  return true;
}

bool Driver::Spin(const Action& action) {
  const bool up = action.a % 2 == 0;
  Note(up ? "up" : "down");
  model_.Spin(up);
  Perform([&] {
    SendMessageW(Main(), WM_VSCROLL, up ? SB_LINEUP : SB_LINEDOWN, reinterpret_cast<LPARAM>(Item(FrmFindIcon_udMain)));
  });
  return true;
}

bool Driver::OpenFolder(const Action& action) {
  const int row = action.a % static_cast<int>(model_.folderRows.size());
  Note(model_.folderRows.at(static_cast<std::size_t>(row)));
  const bool byKey = action.b % 3 == 0;
  model_.OpenFolderRow(row);
  Perform([&] {
    SendMessageW(Item(FrmFindIcon_Dir1), LB_SETCURSEL, static_cast<WPARAM>(row), 0);
    if (byKey) {
      SendMessageW(Item(FrmFindIcon_Dir1), WM_KEYDOWN, VK_RETURN, 0);
    } else {
      Command(Main(), FrmFindIcon_Dir1, LBN_DBLCLK);
    }
  });
  return true;
}

bool Driver::ChooseDrive(const Action& action) {
  const int row = action.a % 3;
  const Disk::Drive& chosen = Disk::Drives().at(static_cast<std::size_t>(row));
  Note(chosen.root);
  model_.ChooseDrive(chosen);
  Perform([&] {
    SendMessageW(Item(FrmFindIcon_Drive1), CB_SETCURSEL, static_cast<WPARAM>(row), 0);
    Command(Main(), FrmFindIcon_Drive1, CBN_SELCHANGE);
  });
  return true;
}

// Files and folders are added, changed and deleted without the program's knowledge.
bool Driver::ChangeDisk(const Action& action) {
  static constexpr const char* folders[] = {
      "C:\\", "C:\\icons", "C:\\icons\\deep", "C:\\icons\\deep\\deeper", "C:\\icons\\many", "C:\\program",
      "D:\\", "D:\\a"};
  const std::string folder = action.c % 2 == 0 ? model_.folder : folders[action.a % 8];
  if (action.b / 8 % 4 == 0) {
    ChangeFolders(folder, action);
  } else {
    ChangeFiles(folder, action);
  }
  PostTick();
  return true;
}

// A sub-folder appears, with one file, or goes. In the list it comes before or after the others.
void Driver::ChangeFolders(const std::string& above, const Action& action) {
  static constexpr const char* names[] = {"after all", "zigzag"};
  if (Chain(above).size() > deepest) return AddFile(above, "n.ico");
  const std::string path = Joined(above, names[action.b % 2]);
  const bool goes = disk_.IsReadable(path);
  Note((goes ? "no folder " : "folder ") + path);
  if (goes) {
    disk_.RemoveFolder(path);
  } else if (disk_.MakeFolder(path)) {
    disk_.Put(path, "n.ico", 2);
  }
  model_.listsAreStale = true;
}

void Driver::ChangeFiles(const std::string& folder, const Action& action) {
  static constexpr const char* names[] = {"a.ico", "b.dll", "c.ani", "d.ico", "e.exe", "g.ico", "h.ocx", "z.ico"};
  const std::string name = names[action.b % 8];
  const int icons = iconCounts.at(static_cast<std::size_t>(action.c) / 2 % iconCounts.size());
  const bool goes = action.c / 32 % 3 == 0;
  Note((goes ? "no " : "") + Joined(folder, name) + (goes ? "" : " with " + NumberText(icons)));
  if (goes) {
    disk_.Remove(folder, name);
  } else {
    disk_.Put(folder, name, icons);
  }
  model_.listsAreStale = true;
}

}  // namespace tarvik::model
