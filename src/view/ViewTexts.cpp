#include "view/ViewTexts.h"

namespace tarvik {

std::optional<std::string> ViewCaption(int height, int width, std::string_view code) {
  return Compose(viewCaption, code, {std::to_string(height), std::to_string(width)});
}

std::string SourceText(const IconListEntry& entry) {
  return entry.path + " - " + std::to_string(entry.index);
}

}  // namespace tarvik
