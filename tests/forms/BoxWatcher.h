#pragma once

#include <windows.h>

#include <string>
#include <vector>

#include "base/NonCopyable.h"

namespace tarvik::support {

// A message box that appeared during a test: its texts, UTF-8, and the system's icon in it.
struct SeenBox {
  std::string title;
  std::string text;
  HICON sign = nullptr;
};

// While it lives, closes every message box of this thread by OK, and records its texts.
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
