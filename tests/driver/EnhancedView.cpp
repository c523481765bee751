#include "driver/EnhancedView.h"

#include <stdexcept>

#include "driver/Input.h"
#include "driver/Waiting.h"

namespace tarvik::end_to_end {

void EnhancedView::Close() const {
  window_.Post(WM_CLOSE);
  WaitUntilGone();
}

void EnhancedView::Exit() const {
  window_.Post(WM_COMMAND, frmBit_tlb_control_Exit);
  WaitUntilGone();
}

RECT EnhancedView::PictureBoundsInWindow() const {
  RECT bounds = PictureBounds();
  MapWindowPoints(nullptr, window_.Window(), reinterpret_cast<POINT*>(&bounds), 2);
  return bounds;
}

void EnhancedView::Press(int button, int times) const {
  for (int i = 0; i < times; ++i) window_.Send(WM_COMMAND, static_cast<WPARAM>(button));
}

void EnhancedView::Click(int button) const {
  end_to_end::Click(MiddleOf(Toolbar().ButtonBounds(button)));
}

void EnhancedView::WaitUntilGone() const {
  if (!Eventually([this] { return !IsOpen(); })) throw std::runtime_error("the enhanced view stays");
}

}  // namespace tarvik::end_to_end
