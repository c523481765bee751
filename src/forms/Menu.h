#pragma once

#include <windows.h>

#include <span>
#include <string>
#include <string_view>

namespace tarvik {

// A window's menu bar, its items and sub-menus reached by id. The window destroys it.
class Menu {
 public:
  void Attach(HWND window);

  void SetText(int id, std::string_view text);  // UTF-8
  std::string Text(int id) const;
  void Enable(int id, bool enabled);
  bool IsEnabled(int id) const;
  void SetChecked(int id, bool checked);
  bool IsChecked(int id) const;
  // Shows a menu of its own with copies of these items and sub-menus, in that order, 0 for a line, and its top left
  // corner at that point of the screen. Returns the id of the item that the user chose, 0 if none.
  int Choose(std::span<const int> ids, POINT corner) const;
  // Whether the bar has a menu that can be opened and underlines that letter, in either case.
  bool OpensBy(wchar_t letter) const;

 private:
  void Change(int id, const MENUITEMINFOW& change);
  UINT State(int id) const;

  HWND window_ = nullptr;
  HMENU menu_ = nullptr;
};

}  // namespace tarvik
