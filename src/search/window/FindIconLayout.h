#pragma once

#include <windows.h>

#include <cstddef>
#include <vector>

#include "forms/Form.h"
#include "grid/IconGrid.h"
#include "search/window/ExtraRoom.h"

namespace tarvik {

// The layout of the main window. At first the window is as large as its controls need, which is its smallest size; in a
// larger one the lists grow (see ExtraRoom), and controls to the right of them or below them move.
class FindIconLayout {
 public:
  // Lays the loaded window out at its smallest size. Its texts are set and its grid is attached before.
  void Begin(const Form& form, IconGrid& grid);
  // Places all controls for the current size of the window. Does nothing before Begin, and while the window is
  // minimised.
  void Arrange(bool listShown);
  // Of the whole window, in display pixels; none before Begin.
  SIZE SmallestSize() const { return smallest_; }
  // How much wider grid and icon list are than at the smallest size, in display pixels.
  int ExtraListWidth() const { return extraListWidth_; }

 private:
  struct Placed {
    HWND control;
    RECT bounds;
    std::size_t row;  // of the table that says how the control follows the window
  };

  static void LayOutLimit(const Form& form);
  void Record(const Form& form);
  SIZE NeededWithGrid(const Form& form) const;
  void ArrangeControl(const Placed& placed, const ExtraRoom& room) const;
  void ArrangeGrid(const ExtraRoom& room) const;

  const Form* form_ = nullptr;
  IconGrid* grid_ = nullptr;
  std::vector<Placed> placed_;  // as they are at the size `needed_`
  SIZE needed_{};               // client size that the controls other than the grid need
  RECT gridBounds_{};           // of the grid and its bar at the smallest size
  SIZE smallestInside_{};
  ExtraRoom arranged_;  // the extra size at the last arrangement
  SIZE smallest_{};
  int extraListWidth_ = 0;
};

}  // namespace tarvik
