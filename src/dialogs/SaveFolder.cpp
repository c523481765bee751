#include "dialogs/SaveFolder.h"

#include <algorithm>
#include <string>

#include "base/AsciiCase.h"

namespace tarvik {

bool OffersImageTypes(std::string_view saveExtension) {
  std::string upper(saveExtension);
  std::ranges::transform(upper, upper.begin(), UpperAscii);
  return upper != ".ICO" && upper != ".CUR";
}

}  // namespace tarvik
