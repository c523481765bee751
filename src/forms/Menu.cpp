#include "forms/Menu.h"

#include <array>
#include <optional>
#include <string_view>

#include "platform/Handles.h"
#include "platform/Text.h"

namespace tarvik {
namespace {

// The position of an item: the system's own look-up by id does not find sub-menus on every Windows.
struct ItemPosition {
  HMENU menu;
  UINT position;
};

std::optional<ItemPosition> Find(HMENU menu, int id) {
  const int count = GetMenuItemCount(menu);
  for (int position = 0; position < count; ++position) {
    MENUITEMINFOW info{};
    info.cbSize = sizeof info;
    info.fMask = MIIM_ID | MIIM_SUBMENU;
    GetMenuItemInfoW(menu, static_cast<UINT>(position), TRUE, &info);
    if (static_cast<int>(info.wID) == id) return ItemPosition{menu, static_cast<UINT>(position)};
    if (info.hSubMenu == nullptr) continue;
    if (const auto found = Find(info.hSubMenu, id)) return found;
  }
  return std::nullopt;
}

wchar_t Upper(wchar_t letter) {
  CharUpperBuffW(&letter, 1);
  return letter;
}

MENUITEMINFOW ItemInfo(UINT mask) {
  MENUITEMINFOW info{};
  info.cbSize = sizeof info;
  info.fMask = mask;
  return info;
}

void AppendLine(HMENU menu) {
  AppendMenuW(menu, MF_SEPARATOR, 0, nullptr);
}

// Appends a copy of an item, and of all items of a sub-menu.
void AppendCopy(HMENU target, const ItemPosition& source) {
  std::array<wchar_t, 128> text{};
  MENUITEMINFOW item = ItemInfo(MIIM_FTYPE | MIIM_STATE | MIIM_ID | MIIM_STRING | MIIM_SUBMENU);
  item.dwTypeData = text.data();
  item.cch = static_cast<UINT>(text.size());
  GetMenuItemInfoW(source.menu, source.position, TRUE, &item);
  MenuHandle subMenu;
  if (item.hSubMenu != nullptr) {
    subMenu.reset(CreatePopupMenu());
    const int count = GetMenuItemCount(item.hSubMenu);
    for (int position = 0; position < count; ++position)
      AppendCopy(subMenu.get(), {item.hSubMenu, static_cast<UINT>(position)});
    item.hSubMenu = subMenu.get();
  }
  const auto end = static_cast<UINT>(GetMenuItemCount(target));
  if (InsertMenuItemW(target, end, TRUE, &item) != FALSE) subMenu.release();
}

}  // namespace

int Menu::Choose(std::span<const int> ids, POINT corner) const {
  const MenuHandle menu(CreatePopupMenu());
  for (const int id : ids) {
    if (const auto source = Find(menu_, id)) {
      AppendCopy(menu.get(), *source);
    } else {
      AppendLine(menu.get());
    }
  }
  return TrackPopupMenuEx(menu.get(), TPM_RETURNCMD | TPM_RIGHTBUTTON, corner.x, corner.y, window_, nullptr);
}

bool Menu::OpensBy(wchar_t letter) const {
  const int count = GetMenuItemCount(menu_);
  for (int position = 0; position < count; ++position) {
    std::array<wchar_t, 128> buffer{};
    MENUITEMINFOW info = ItemInfo(MIIM_STRING | MIIM_STATE);
    info.dwTypeData = buffer.data();
    info.cch = static_cast<UINT>(buffer.size());
    GetMenuItemInfoW(menu_, static_cast<UINT>(position), TRUE, &info);
    const std::wstring_view text(buffer.data());
    const auto mark = text.find(L'&');
    if (mark == std::wstring_view::npos || mark + 1 == text.size() || (info.fState & MFS_DISABLED) != 0) continue;
    if (Upper(text[mark + 1]) == Upper(letter)) return true;
  }
  return false;
}

void Menu::Attach(HWND window) {
  window_ = window;
  menu_ = GetMenu(window);
}

void Menu::SetText(int id, std::string_view text) {
  std::wstring wide = ToWide(text);
  MENUITEMINFOW info = ItemInfo(MIIM_STRING);
  info.dwTypeData = wide.data();
  Change(id, info);
}

std::string Menu::Text(int id) const {
  const auto item = Find(menu_, id);
  if (!item) return {};
  std::wstring text(static_cast<std::size_t>(GetMenuStringW(item->menu, item->position, nullptr, 0, MF_BYPOSITION)) + 1,
                    L'\0');
  const int length =
      GetMenuStringW(item->menu, item->position, text.data(), static_cast<int>(text.size()), MF_BYPOSITION);
  return ToUtf8({text.data(), static_cast<std::size_t>(length)});
}

void Menu::Enable(int id, bool enabled) {
  if (IsEnabled(id) == enabled) return;
  MENUITEMINFOW info = ItemInfo(MIIM_STATE);
  info.fState = (State(id) & ~static_cast<UINT>(MFS_DISABLED)) | (enabled ? MFS_ENABLED : MFS_DISABLED);
  Change(id, info);
}

bool Menu::IsEnabled(int id) const {
  return (State(id) & MFS_DISABLED) == 0;
}

void Menu::SetChecked(int id, bool checked) {
  MENUITEMINFOW info = ItemInfo(MIIM_STATE);
  info.fState = (State(id) & ~static_cast<UINT>(MFS_CHECKED)) | (checked ? MFS_CHECKED : MFS_UNCHECKED);
  Change(id, info);
}

bool Menu::IsChecked(int id) const {
  return (State(id) & MFS_CHECKED) != 0;
}

void Menu::Change(int id, const MENUITEMINFOW& change) {
  const auto item = Find(menu_, id);
  if (!item) return;
  SetMenuItemInfoW(item->menu, item->position, TRUE, &change);
  if (item->menu == menu_) DrawMenuBar(window_);
}

UINT Menu::State(int id) const {
  const auto item = Find(menu_, id);
  if (!item) return MFS_DISABLED;
  MENUITEMINFOW info = ItemInfo(MIIM_STATE);
  GetMenuItemInfoW(item->menu, item->position, TRUE, &info);
  return info.fState;
}

}  // namespace tarvik
