// Actions that concern the main window as a whole: its size, its keys, what is dropped on it, and the pointer over it.
#include <windows.h>

#include <commctrl.h>

#include <algorithm>
#include <cstring>
#include <string>
#include <vector>

#include "model/Driver.h"
#include "platform/DroppedBlock.h"
#include "platform/PastedPicture.h"

namespace tarvik::model {
namespace {

constexpr const char* formerText = "copied before";

constexpr Room largestRoom{200, 140};  // that surely fits the screen

Room RoomOf(HWND window, const RECT& first) {
  RECT now{};
  GetWindowRect(window, &now);
  return {static_cast<int>(now.right - now.left - (first.right - first.left)),
          static_cast<int>(now.bottom - now.top - (first.bottom - first.top))};
}

}  // namespace

// In the screen's corner, so that all of it is on the screen. The border may be dragged too far inwards.
bool Driver::ResizeMain(const Action& action) {
  const int way = action.a % 6;
  const auto command = [this](WPARAM what) { SendMessageW(Main(), WM_SYSCOMMAND, what, 0); };
  if (way == 3 && !model_.isMaximised) {
    Note("maximised");
    Perform([&] { command(SC_MAXIMIZE); });
    model_.MaximiseMain(RoomOf(Main(), controls_->First()));
  } else if (way == 4 && model_.isMaximised) {
    Note("restored");
    model_.RestoreMain();
    Perform([&] { command(SC_RESTORE); });
  } else if (way == 5) {
    Note("minimised and restored");
    Perform([&] {
      command(SC_MINIMIZE);
      command(SC_RESTORE);
    });
  } else if (!model_.isMaximised) {
    const Room wanted{action.b % (largestRoom.across + 40) - 40, action.c % (largestRoom.down + 40) - 40};
    Note(std::to_string(wanted.across) + " and " + std::to_string(wanted.down) + " larger than at first");
    model_.ResizeMain(wanted);
    const RECT& first = controls_->First();
    Perform([&] {
      SetWindowPos(Main(), nullptr, 0, 0, first.right - first.left + wanted.across,
                   first.bottom - first.top + wanted.down, SWP_NOZORDER | SWP_NOACTIVATE);
    });
  } else {
    return false;
  }
  return true;
}

// As the system does it for every window when another program changes the theme or the colours: it sends the message,
// and the whole window becomes invalid without the windows in it.
bool Driver::ChangeTheme(const Action& action) {
  const UINT message = action.a % 2 == 0 ? WM_THEMECHANGED : WM_SYSCOLORCHANGE;
  Note(message == WM_THEMECHANGED ? "theme" : "colours");
  Perform([&] {
    SendMessageW(Main(), message, 0, 0);
    RedrawWindow(Main(), nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_FRAME);
  });
  return true;
}

bool Driver::ClickFolder(const Action& action) {
  Perform([&] { ClickFolderRow(action.a); });
  return true;
}

void Driver::ClickFolderRow(int number) {
  const int row = number % static_cast<int>(model_.folderRows.size());
  Note(model_.folderRows.at(static_cast<std::size_t>(row)));
  model_.ClickFolderRow(row);
  const HWND list = Item(FrmFindIcon_Dir1);
  SendMessageW(list, LB_SETTOPINDEX, static_cast<WPARAM>(row), 0);
  RECT bounds{};
  SendMessageW(list, LB_GETITEMRECT, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&bounds));
  const LPARAM point = MAKELPARAM(bounds.left + 3, (bounds.top + bounds.bottom) / 2);
  SendMessageW(list, WM_LBUTTONDOWN, MK_LBUTTON, point);
  SendMessageW(list, WM_LBUTTONUP, 0, point);
}

void Driver::DropOnMain(const std::vector<std::string>& paths) const {
  const std::vector<std::byte> block = support::DroppedBlock(paths);
  const HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, block.size());
  std::memcpy(GlobalLock(memory), block.data(), block.size());
  GlobalUnlock(memory);
  PostMessageW(Main(), WM_DROPFILES, reinterpret_cast<WPARAM>(memory), 0);
}

void Driver::AddFile(const std::string& folder, const std::string& name) {
  Note("new file " + Joined(folder, name));
  disk_.Put(folder, name, 1);
  model_.listsAreStale = true;
}

bool Driver::Drop(const Action& action) {
  static constexpr const char* all[] = {"C:\\icons",
                                        "C:\\icons\\a.ico",
                                        "C:\\icons\\deep",
                                        "C:\\icons\\deep\\deeper\\e.exe",
                                        "C:\\icons\\b.dll",
                                        "C:\\icons\\many",
                                        "D:\\",
                                        "C:\\icons\\many\\h.ocx",
                                        "D:\\a\\k.ico",
                                        "C:\\icons\\c.ani",
                                        "D:\\a\\l.txt",
                                        "C:\\icons\\many\\i.icl",
                                        "C:\\empty",
                                        "Q:\\gone\\other.ico"};
  std::vector<std::string> paths{all[action.a % 14]};
  // Sometimes a file of the shown folder, which the list may not have yet.
  if (action.b % 8 == 1) AddFile(model_.folder, "new " + std::to_string(action.c % 20) + ".ico");
  const std::vector<std::string> files = disk_.Files(model_.folder, "*.*");
  if (action.b % 4 == 1 && !files.empty())
    paths.front() = Joined(model_.folder, files[static_cast<std::size_t>(action.c) % files.size()]);
  if (action.b % 3 == 0) paths.emplace_back(all[action.c % 14]);
  Note(paths.front() + (paths.size() > 1 ? " and another" : ""));
  model_.Drop(paths);
  Perform([&] {
    DropOnMain(paths);
    program_->ServeWaiting();
  });
  return true;
}

// Has no effect while another window waits for an answer.
bool Driver::DropBelow(const Action& /*action*/) {
  DropOnMain({"D:\\a\\k.ico"});
  PostTick();
  return true;
}

// A text box keeps the keys that it has a meaning for.
bool Driver::PressShortcut(const Action& action) {
  static constexpr WPARAM keys[] = {VK_F5, 'C', 'S', 'A', VK_F5};
  static constexpr int controls[] = {FrmFindIcon_CmdFind, FrmFindIcon_Dir1, FrmFindIcon_txtMax};
  const WPARAM key = keys[action.a % 5];
  const int control = controls[action.b % 3];
  const bool isText = control == FrmFindIcon_txtMax;
  Note(std::string(key == VK_F5 ? "F5"
                   : key == 'C' ? "Ctrl+C"
                   : key == 'S' ? "Ctrl+S"
                                : "Ctrl+A") +
       (isText ? " in the limit" : ""));
  const bool hasIcon = !model_.entries.empty();
  const bool copies = key == 'C' && hasIcon && !isText;
  const bool copiesText = key == 'C' && isText;
  if (key == VK_F5 && action.c % 2 == 0) MakeNews(action);
  const Picture copied = copies ? model_.Copied() : Picture();
  program_->AnswerPath("D:\\refused.ico");
  if (key == VK_F5) model_.ReadAgain();
  if (key == 'S' && hasIcon) model_.SaveOne(Kind::Icon, "D:\\refused.ico");
  if (key == 'A' && model_.listShown && !isText) model_.SelectAllRows();
  Perform([&] {
    if (copiesText) {
      support::CopyText(formerText);
      SendMessageW(Item(control), EM_SETSEL, 0, -1);
    }
    ServeKey(Item(control), key, key != VK_F5);
    if (copies) ExpectOnClipboard(copied);
    if (copiesText) ExpectOnClipboard(model_.limitText.empty() ? formerText : model_.limitText);
  });
  return true;
}

// The reason to press F5: a new file, or a folder that is new or gone. Sometimes a folder is chosen before.
void Driver::MakeNews(const Action& action) {
  if (action.c / 2 % 2 == 0) ClickFolderRow(action.a);
  if (action.c / 4 % 2 == 0) {
    ChangeFolders(model_.folder, action);
  } else {
    AddFile(model_.folder, "new " + std::to_string(action.a % 20) + ".ico");
  }
}

bool Driver::HoverGrid(const Action& action) {
  if (model_.listShown) return false;
  const POINT point = PointOnGrid(action);
  Note("(" + std::to_string(point.x) + ", " + std::to_string(point.y) + ")");
  model_.Hover(point.x, point.y);
  Perform([&] { RestOn(point); });
  return true;
}

void Driver::RestOn(POINT point) const {
  SendMessageW(Grid(), WM_MOUSEMOVE, 0, MAKELPARAM(point.x, point.y));
}

bool Driver::ScrollByKey(const Action& action) {
  if (model_.listShown || !model_.grid.Scrolls()) return false;
  static constexpr WPARAM keys[] = {VK_DOWN, VK_UP, VK_NEXT, VK_PRIOR, VK_END, VK_HOME};
  const int way = action.a % 6;
  const int steps[] = {model_.grid.LineStep(), -model_.grid.LineStep(), viewportHeight, -viewportHeight};
  if (way < 4) {
    model_.grid.ScrollBy(steps[way]);
  } else if (way == 4) {
    model_.grid.ScrollToEnd();
  } else {
    model_.grid.ScrollTo(0);
  }
  model_.tip = "";
  Note("to " + std::to_string(model_.grid.Scroll()));
  const HWND bar = Item(FrmFindIcon_Vsb);
  Perform([&] {
    SendMessageW(bar, WM_KEYDOWN, keys[way], 0);
    SendMessageW(bar, WM_KEYUP, keys[way], 0);
  });
  return true;
}

}  // namespace tarvik::model
