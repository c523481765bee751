#include "forms/ScrollBar.h"

#include <algorithm>

namespace tarvik {

void ScrollBar::SetRange(const Range& range, int page) {
  range_ = range;
  page_ = page;
  SCROLLINFO info{};
  info.cbSize = sizeof info;
  info.fMask = SIF_RANGE | SIF_PAGE;
  info.nMin = range.minimum;
  // The control stops the thumb one page before the end of its range; adding the page makes the maximum reachable.
  info.nMax = range.maximum + page - 1;
  info.nPage = static_cast<UINT>(page);
  SetScrollInfo(window_, SB_CTL, &info, TRUE);
  SetValue(value_);
}

void ScrollBar::SetValue(int value) {
  value_ = std::clamp(value, range_.minimum, std::max(range_.minimum, range_.maximum));
  SetScrollPos(window_, SB_CTL, value_, TRUE);
}

bool ScrollBar::Scroll(int request) {
  const int former = value_;
  switch (request) {
    case SB_LINEUP:
      SetValue(value_ - range_.smallStep);
      break;
    case SB_LINEDOWN:
      SetValue(value_ + range_.smallStep);
      break;
    case SB_PAGEUP:
      SetValue(value_ - range_.largeStep);
      break;
    case SB_PAGEDOWN:
      SetValue(value_ + range_.largeStep);
      break;
    case SB_TOP:
      SetValue(range_.minimum);
      break;
    case SB_BOTTOM:
      SetValue(range_.maximum);
      break;
    case SB_THUMBTRACK:
    case SB_THUMBPOSITION:
      SetValue(ThumbValue());
      break;
    default:
      break;
  }
  return value_ != former;
}

int ScrollBar::ThumbValue() const {
  // The message itself carries only 16 bits.
  SCROLLINFO info{};
  info.cbSize = sizeof info;
  info.fMask = SIF_TRACKPOS;
  GetScrollInfo(window_, SB_CTL, &info);
  return info.nTrackPos;
}

}  // namespace tarvik
