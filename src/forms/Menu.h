#pragma once

#include <windows.h>

#include <span>
#include <string>
#include <string_view>

namespace tarvik {

// A window's menu bar. Items and sub-menus are accessed by id. The window destroys it.
class Menu {
 public:
  void Attach(HWND window);

  void SetText(int id, std::string_view text);  // UTF-8
  std::string Text(int id) const;
  void Enable(int id, bool enabled);
  bool IsEnabled(int id) const;
  void SetChecked(int id, bool checked);
  bool IsChecked(int id) const;
  // Shows a pop-up menu with copies of these items and sub-menus, in that order, 0 for a separator, with its top left
  // corner at that point of the screen. Returns the id of the chosen item, 0 if none.
  int Choose(std::span<const int> ids, POINT corner) const;
  // Whether the bar has an enabled menu that underlines that letter, in either case.
  bool OpensBy(wchar_t letter) const;

 private:
  void Change(int id, const MENUITEMINFOW& change);
  UINT State(int id) const;

  HWND window_ = nullptr;
  HMENU menu_ = nullptr;
};

}  // namespace tarvik
