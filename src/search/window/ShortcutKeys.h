#pragma once

#include <algorithm>
#include <array>

#include "grid/Selection.h"
#include "resource.h"

namespace tarvik {

// A key of the main window by its virtual-key code, and the command that it triggers. No menu shows it.
struct ShortcutKey {
  int key;
  bool ctrl;        // with Ctrl alone; otherwise with neither Ctrl, Shift nor Alt
  int command;      // a menu item's id, or one of its own
  int menu;         // that item's menu, which can be disabled as a whole; 0 if it has none
  bool leftToText;  // a text box handles this key itself
};

inline constexpr auto shortcutKeys = std::to_array<ShortcutKey>({
    {0x74, false, FrmFindIcon_keyRefresh, 0, false},                 // F5
    {'A', true, FrmFindIcon_keySelectAll, 0, true},                  // Ctrl+A
    {'C', true, FrmFindIcon_mnuCopy, FrmFindIcon_mnuEdit, true},     // Ctrl+C
    {'S', true, FrmFindIcon_mnuSaveAs, FrmFindIcon_mnuFile, false},  // Ctrl+S
});

// The row of a key, or null for every other key. `heldKeys` is a mask: 1 Shift, 2 Ctrl, 4 Alt.
constexpr const ShortcutKey* FindShortcut(int key, int heldKeys) {
  const auto* const row = std::ranges::find_if(shortcutKeys, [=](const ShortcutKey& candidate) {
    return candidate.key == key && heldKeys == (candidate.ctrl ? ctrlAlone : 0);
  });
  return row == shortcutKeys.end() ? nullptr : row;
}

}  // namespace tarvik
