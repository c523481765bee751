#pragma once

#include <algorithm>
#include <array>
#include <optional>

#include "resource.h"

namespace tarvik {

// A key of the enhanced view, by its virtual-key code, and the toolbar button that it presses.
struct ViewKey {
  int key;
  int button;
};

inline constexpr auto viewKeys = std::to_array<ViewKey>({
    {32, frmBit_tlb_control_MoveNext},  // Space
    {34, frmBit_tlb_control_MoveNext},  // Page Down
    {33, frmBit_tlb_control_MovePrev},  // Page Up
    {187, frmBit_tlb_control_Faster},   // the key with = and +
    {189, frmBit_tlb_control_Slower},   // the key with -
});

// The button that a key presses, or nothing for every other key.
constexpr std::optional<int> ButtonOfKey(int key) {
  const auto* const row = std::ranges::find(viewKeys, key, &ViewKey::key);
  return row == viewKeys.end() ? std::nullopt : std::optional(row->button);
}

}  // namespace tarvik
