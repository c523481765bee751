#pragma once

#include <windows.h>

#include <string>
#include <vector>

#include "base/NonCopyable.h"

namespace tarvik::support {

// A message box that a test met: its texts, UTF-8, and the system's icon in it.
struct SeenBox {
  std::string title;
  std::string text;
  HICON sign = nullptr;
};

// Closes every message box that this thread shows while it lives, by OK, and remembers what stood in it.
class BoxWatcher : NonCopyable {
 public:
  BoxWatcher();
  ~BoxWatcher();

  const std::vector<SeenBox>& Boxes() const { return boxes_; }

 private:
  friend struct BoxWatcherTimer;
  unsigned long long timer_;
  std::vector<SeenBox> boxes_;
};

}  // namespace tarvik::support
