#include "startup/Guide.h"

#include "startup/Language.h"

namespace tarvik {
namespace {

constexpr Text page{"guide-eng.html", "guide-chs.html", "guide-cht.html"};

}  // namespace

std::string GuidePath(const std::string& programFolder, std::string_view code) {
  return std::string(programFolder).append("\\guide\\").append(Pick(page, code).value_or(page.eng));
}

}  // namespace tarvik
