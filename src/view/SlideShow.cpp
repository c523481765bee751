#include "view/SlideShow.h"

namespace tarvik {

bool SlideShow::Faster() {
  if (interval_ < leastForFaster) return false;
  interval_ -= step;
  return true;
}

bool SlideShow::Slower() {
  if (interval_ >= boundForSlower) return false;
  interval_ += step;
  return true;
}

}  // namespace tarvik
