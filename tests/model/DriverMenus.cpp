// Actions in the main window's list and menus.
#include <windows.h>

#include <commctrl.h>

#include <algorithm>
#include <string>
#include <vector>

#include "model/Compared.h"
#include "model/Driver.h"
#include "platform/PastedPicture.h"

namespace tarvik::model {

bool Driver::SwitchView(const Action& action) {
  const bool list = action.a % 2 == 1;
  const bool byButton = action.b % 2 == 0;
  Note(std::string(list ? "list" : "grid") + (byButton ? " by the button" : ""));
  model_.ShowList(list);
  Perform([&] {
    if (byButton) {
      SendMessageW(Item(list ? FrmFindIcon_OptView1 : FrmFindIcon_OptView0), BM_CLICK, 0, 0);
    } else {
      Command(Main(), list ? FrmFindIcon_mnuViewopt1 : FrmFindIcon_mnuViewopt0);
    }
  });
  return true;
}

bool Driver::ClickList(const Action& action) {
  if (!model_.listShown || model_.entries.empty()) return false;
  const int count = static_cast<int>(model_.entries.size());
  const int row = action.a % count;
  const bool ctrl = action.b % 3 == 1;
  const bool shift = action.c % 3 == 1 && model_.anchor.has_value();
  Note("row " + std::to_string(row + 1) + (ctrl ? " Ctrl" : "") + (shift ? " Shift" : ""));
  const HWND list = Item(FrmFindIcon_Lv);
  model_.ClickRow(row, ctrl, shift);
  Perform([&] {
    SendMessageW(list, LVM_ENSUREVISIBLE, static_cast<WPARAM>(row), FALSE);
    RECT label{};
    label.left = LVIR_LABEL;
    SendMessageW(list, LVM_GETITEMRECT, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&label));
    const LPARAM point = MAKELPARAM(label.left + 3, (label.top + label.bottom) / 2);
    const WPARAM keys = (ctrl ? MK_CONTROL : 0U) | (shift ? MK_SHIFT : 0U);
    HoldKeys(ctrl, shift);
    SendMessageW(list, WM_LBUTTONDOWN, keys | MK_LBUTTON, point);
    SendMessageW(list, WM_LBUTTONUP, keys, point);
    HoldKeys(false, false);
  });
  return true;
}

bool Driver::DoubleClickList(const Action& action) {
  if (!model_.listShown || model_.entries.empty()) return false;
  const Action plain{action.what, action.a, 0, 0};
  ClickList(plain);
  const int row = action.a % static_cast<int>(model_.entries.size());
  const bool byKey = action.b % 3 == 0;
  if (byKey) Note("Enter");
  rest_.push_back([this, row, byKey] {
    model_.OpenView();
    Perform([&] {
      if (byKey) return ServeKey(Item(FrmFindIcon_Lv), VK_RETURN);
      const HWND list = Item(FrmFindIcon_Lv);
      RECT label{};
      label.left = LVIR_LABEL;
      SendMessageW(list, LVM_GETITEMRECT, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&label));
      const LPARAM point = MAKELPARAM(label.left + 3, (label.top + label.bottom) / 2);
      SendMessageW(list, WM_LBUTTONDBLCLK, MK_LBUTTON, point);
    });
  });
  return true;
}

bool Driver::SelectAll(const Action& /*action*/) {
  if (!model_.listShown || model_.entries.empty()) return false;
  model_.SelectAllRows();
  Perform([&] { ServeKey(Item(FrmFindIcon_Lv), 'A', true); });
  return true;
}

bool Driver::OpenRowMenu(const Action& action) {
  if (!model_.listShown || model_.entries.empty()) return false;
  const int row = action.a % static_cast<int>(model_.entries.size());
  Note("row " + std::to_string(row + 1));
  const HWND list = Item(FrmFindIcon_Lv);
  model_.OpenRowMenu(row);
  Perform([&] {
    SendMessageW(list, LVM_ENSUREVISIBLE, static_cast<WPARAM>(row), FALSE);
    RECT label{};
    label.left = LVIR_LABEL;
    SendMessageW(list, LVM_GETITEMRECT, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(&label));
    POINT point{label.left + 3, (label.top + label.bottom) / 2};
    ClientToScreen(list, &point);
    SendMessageW(Main(), WM_CONTEXTMENU, reinterpret_cast<WPARAM>(list), MAKELPARAM(point.x, point.y));
  });
  return true;
}

// Chooses an item with the keys of the menu, or none.
bool Driver::EndRowMenu(const Action& action) {
  const int way = action.a % 4;
  static constexpr const char* ways[] = {"by Escape", "by Invert", "by Copy", "by Save As"};
  Note(ways[way]);
  model_.CloseMenu();
  std::vector<WPARAM> keys;
  if (way == 0) keys = {VK_ESCAPE};
  if (way == 1) keys = {VK_UP, VK_RETURN};
  if (way == 2) keys = {VK_UP, VK_UP, VK_RETURN};
  if (way == 3) keys = {VK_DOWN, VK_RETURN};
  if (way == 1) model_.Invert();
  if (way == 3) {
    program_->AnswerPath("C:\\out.ico");
    model_.SaveOne(Kind::Icon, "C:\\out.ico");
  }
  Perform([&] {
    for (const WPARAM key : keys) PostMessageW(Main(), WM_KEYDOWN, key, 0);
  });
  if (way == 2)
    rest_.push_back([this] {
      ExpectOnClipboard(model_.Copied());
      PostTick();
    });
  return true;
}

bool Driver::Invert(const Action& /*action*/) {
  if (model_.entries.empty()) return false;
  model_.Invert();
  Perform([&] { Command(Main(), FrmFindIcon_mnuRem); });
  return true;
}

bool Driver::Labels(const Action& action) {
  const int which = action.a % 3;
  Note(which == 0 ? "shown or not" : which == 1 ? "in all" : "by file");
  if (which == 0) {
    model_.ToggleLabel();
  } else {
    model_.NumberByFile(which == 2);
  }
  static constexpr int items[] = {FrmFindIcon_mnuShowLabel, FrmFindIcon_mnuIL1, FrmFindIcon_mnuIL2};
  Perform([&] { Command(Main(), items[which]); });
  return true;
}

bool Driver::CopyIcon(const Action& /*action*/) {
  if (model_.entries.empty()) return false;
  const Picture expected = model_.Copied();
  Perform([&] {
    Command(Main(), FrmFindIcon_mnuCopy);
    ExpectOnClipboard(expected);
  });
  return true;
}

void Driver::ExpectOnClipboard(const Picture& expected) {
  const support::PastedPicture seen = support::Paste();
  const bool isSame = seen.width == expected.width && seen.height == expected.height &&
                      std::ranges::equal(seen.pixels, expected.pixels);
  if (!isSame) ofStep_ += "the clipboard's picture is not that of the current icon\n";
}

void Driver::ExpectOnClipboard(const std::string& expected) {
  ofStep_ += Compared("text on the clipboard", expected, support::PastedText());
}

bool Driver::SaveOne(const Action& action) {
  if (model_.entries.empty()) return false;
  static constexpr const char* paths[] = {"C:\\out.bmp",    "C:\\out",   "",           "D:\\refused.ico",
                                          "C:\\a\\out.Jpg", "C:\\b.gif", "C:\\out.png"};
  static constexpr int items[] = {FrmFindIcon_mnuSaveAs, FrmFindIcon_MnuSaveAsBitmap, FrmFindIcon_MnuSaveAsCursor};
  const int kind = action.a % 3;
  const std::string path = paths[action.b % 7];
  Note(std::to_string(kind) + " as \"" + path + "\"");
  program_->AnswerPath(path);
  model_.SaveOne(static_cast<Kind>(kind), path);
  Perform([&] { Command(Main(), items[kind]); });
  return true;
}

bool Driver::SaveMany(const Action& action) {
  if (model_.entries.empty()) return false;
  static constexpr int items[2][3] = {{FrmFindIcon_mnuSaveAll, FrmFindIcon_mnuSaveAll2, FrmFindIcon_mnuSaveAll3},
                                      {FrmFindIcon_mnuSaveSel, FrmFindIcon_mnuSaveSel2, FrmFindIcon_mnuSaveSel3}};
  const int kind = action.a % 3;
  const int scope = action.b % 2;
  Note(std::to_string(kind) + (scope == 0 ? ", all" : ", the selected"));
  model_.SaveMany(static_cast<Kind>(kind), static_cast<Scope>(scope));
  Perform([&] { Command(Main(), items[scope][kind]); });
  return true;
}

bool Driver::OpenGuide(const Action& action) {
  const bool byKey = action.a % 2 == 1;
  Note(byKey ? "by F1" : "by the menu");
  model_.OpenGuide();
  HELPINFO help{};
  help.cbSize = sizeof help;
  Perform([&] {
    if (byKey) {
      SendMessageW(Main(), WM_HELP, 0, reinterpret_cast<LPARAM>(&help));
    } else {
      Command(Main(), FrmFindIcon_MnuContent);
    }
  });
  return true;
}

bool Driver::OpenAbout(const Action& /*action*/) {
  model_.OpenAbout();
  Perform([&] { Command(Main(), FrmFindIcon_MnuAbout); });
  return true;
}

}  // namespace tarvik::model
