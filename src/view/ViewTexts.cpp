#include "view/ViewTexts.h"

namespace tarvik {
namespace {

constexpr Text captionText{"Enhanced View - [Height=%1, Width=%2]", "浏览窗口 - [高度=%1, 宽度=%2]",
                           "流覽窗口 - [高度=%1, 寬度=%2]"};

}  // namespace

std::optional<std::string> ViewCaption(int height, int width, std::string_view code) {
  return Compose(captionText, code, {std::to_string(height), std::to_string(width)});
}

std::string SourceText(const IconListEntry& entry) {
  return entry.path + " - " + std::to_string(entry.index);
}

}  // namespace tarvik
