#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <utility>
#include <vector>

#include "base/PixelView.h"

namespace tarvik {

// Maps colours to numbers in constant time. A hash table with open addressing; it initially has space for more colours
// than a palette holds, and grows.
class ColorIndex {
 public:
  // The colour's number; a colour without one gets `ifNew`, 0 or more.
  int NumberOf(Color color, int ifNew) {
    Slot& slot = slots_[SlotOf(color)];
    if (slot.numberPlusOne != 0) return static_cast<int>(slot.numberPlusOne - 1);
    slot = {color, static_cast<std::uint32_t>(ifNew) + 1};
    if (++count_ * 2 > slots_.size()) Grow();
    return ifNew;
  }

  // Gives the colour that number. Returns false and changes nothing if it already has one.
  bool Insert(Color color, int number) {
    const std::size_t before = count_;
    NumberOf(color, number);
    return count_ != before;
  }

  // The colour's number, or none.
  std::optional<int> Find(Color color) const {
    const Slot& slot = slots_[SlotOf(color)];
    if (slot.numberPlusOne == 0) return std::nullopt;
    return static_cast<int>(slot.numberPlusOne - 1);
  }

  int Count() const { return static_cast<int>(count_); }

 private:
  struct Slot {
    Color color = 0;
    std::uint32_t numberPlusOne = 0;  // 0 marks a free slot
  };

  static constexpr unsigned initialBits = 10;

  // The slot that holds `color`, or the free one where it belongs. At least half of the slots stay free, so that every
  // search ends, and quickly.
  std::size_t SlotOf(Color color) const {
    constexpr std::uint32_t goldenRatio = 2654435769U;  // 2^32 divided by the golden ratio: spreads close colours
    std::size_t slot = (color * goldenRatio) >> (32U - bits_);
    while (slots_[slot].numberPlusOne != 0 && slots_[slot].color != color) slot = (slot + 1) % slots_.size();
    return slot;
  }

  void Grow() {
    ++bits_;
    const std::vector<Slot> former = std::exchange(slots_, std::vector<Slot>(slots_.size() * 2));
    for (const Slot& slot : former)
      if (slot.numberPlusOne != 0) slots_[SlotOf(slot.color)] = slot;
  }

  unsigned bits_ = initialBits;
  std::vector<Slot> slots_ = std::vector<Slot>(std::size_t{1} << initialBits);  // always 2^bits_ of them
  std::size_t count_ = 0;
};

}  // namespace tarvik
