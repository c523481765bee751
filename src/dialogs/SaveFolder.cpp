#include "dialogs/SaveFolder.h"

#include <algorithm>
#include <string>

#include "platform/AsciiCase.h"

namespace tarvik {

bool OffersImageTypes(std::string_view saveExtension) {
  std::string upper(saveExtension);
  std::ranges::transform(upper, upper.begin(), UpperAscii);
  return upper != ".ICO" && upper != ".CUR";
}

}  // namespace tarvik
