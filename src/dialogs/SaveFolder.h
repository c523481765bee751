#pragma once

#include <string_view>

namespace tarvik {

// Returns true if a batch is about to write images, whose type the folder chooser then offers: for every extension but
// ".ICO" and ".CUR", in any case.
bool OffersImageTypes(std::string_view saveExtension);

}  // namespace tarvik
