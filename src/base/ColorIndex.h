#pragma once

#include <array>
#include <cassert>
#include <cstddef>
#include <cstdint>
#include <optional>

#include "base/PixelView.h"

namespace tarvik {

// A number for each of up to 257 colours, found at once however many there are: one more than a palette holds, so
// that a picture with too many colours can be told. A hash table of fixed size with open addressing; needs no memory
// of its own and can be built for every picture.
class ColorIndex {
 public:
  static constexpr int capacity = 257;

  // Gives `color` that number, 0 to 65534. False, and no change, when it has one. Count() must be under the capacity.
  bool Insert(Color color, int number) {
    Slot& slot = slots_[SlotOf(color)];
    if (slot.numberPlusOne != 0) return false;
    assert(count_ < capacity);
    slot = {color, static_cast<std::uint16_t>(number + 1)};
    ++count_;
    return true;
  }

  // The colour's number, or none.
  std::optional<int> Find(Color color) const {
    const Slot& slot = slots_[SlotOf(color)];
    if (slot.numberPlusOne == 0) return std::nullopt;
    return slot.numberPlusOne - 1;
  }

  int Count() const { return count_; }

 private:
  struct Slot {
    Color color = 0;
    std::uint16_t numberPlusOne = 0;  // 0 marks a free slot
  };

  // At least half of the slots stay free, so that a search always ends, and soon.
  static constexpr unsigned slotBits = 10;
  static constexpr std::size_t slotCount = std::size_t{1} << slotBits;
  static_assert(slotCount / 2 >= capacity);

  // The slot that holds `color`, or the free one where it belongs.
  std::size_t SlotOf(Color color) const {
    constexpr std::uint32_t goldenRatio = 2654435769U;  // 2^32 divided by the golden ratio: spreads close colours
    std::size_t slot = (color * goldenRatio) >> (32U - slotBits);
    while (slots_[slot].numberPlusOne != 0 && slots_[slot].color != color) slot = (slot + 1) % slotCount;
    return slot;
  }

  std::array<Slot, slotCount> slots_{};
  int count_ = 0;
};

}  // namespace tarvik
