#pragma once

#include <windows.h>

#include <cstddef>
#include <vector>

#include "forms/Form.h"
#include "grid/IconGrid.h"
#include "search/window/ExtraRoom.h"

namespace tarvik {

// Where the controls of the main window are. At first it is as large as its controls need, which is its smallest size;
// in a larger one the lists grow (see ExtraRoom), and what is to the right of them or below them moves.
class FindIconLayout {
 public:
  // Lays the loaded window out at its smallest size, with its texts set and its grid attached.
  void Begin(const Form& form, IconGrid& grid);
  // Puts everything into its place for the size that the window has now. Does nothing before Begin, and while the
  // window is minimised.
  void Arrange(bool listShown);
  // Of the whole window, in display pixels; none before Begin.
  SIZE SmallestSize() const { return smallest_; }

 private:
  struct Placed {
    HWND control;
    RECT bounds;
    std::size_t row;  // of the table that says how it follows the window
  };

  static void LayOutLimit(const Form& form);
  void Record(const Form& form);
  SIZE NeededWithGrid(const Form& form) const;
  void ArrangeControl(const Placed& placed, const ExtraRoom& room) const;
  void ArrangeGrid(int insideWidth, const ExtraRoom& room) const;

  const Form* form_ = nullptr;
  IconGrid* grid_ = nullptr;
  std::vector<Placed> placed_;  // as they are at the size `needed_`
  SIZE needed_{};               // the inside of the window that the controls other than the grid need
  RECT gridBounds_{};           // of the grid and its bar at the smallest size
  SIZE smallestInside_{};
  ExtraRoom arranged_;  // what everything was last placed for
  SIZE smallest_{};
};

}  // namespace tarvik
