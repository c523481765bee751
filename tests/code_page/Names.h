#pragma once

#include <windows.h>

#include <string>

namespace tarvik::support {

// Names for the current code page: one that it can represent, with its bytes in it; and one that no Chinese code page
// can represent.
struct CodePageNames {
  std::string held;
  std::string heldBytes;
  std::string unheld = "한글";
};

inline CodePageNames Names() {
  if (GetACP() == 950) return {"圖示", "\xB9\xCF\xA5\xDC"};
  return {"图标", "\xCD\xBC\xB1\xEA"};
}

}  // namespace tarvik::support
