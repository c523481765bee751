#include "view/SlideShow.h"

namespace tarvik {

bool SlideShow::Faster() {
  if (interval_ < minForFaster) return false;
  interval_ -= step;
  return true;
}

bool SlideShow::Slower() {
  if (interval_ >= boundForSlower) return false;
  interval_ += step;
  return true;
}

}  // namespace tarvik
