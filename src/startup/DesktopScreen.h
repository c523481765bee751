#pragma once

#include "startup/Screen.h"

namespace tarvik {

// The screen of this session: the primary monitor.
class DesktopScreen final : public Screen {
 public:
  // Each call takes a device context of the whole screen and keeps it for the rest of the run (deliberate: oddities 1).
  // The start-up asks twice and never again.
  int BitsPerPixel() override;
  int Width() override;
  int Height() override;
};

}  // namespace tarvik
