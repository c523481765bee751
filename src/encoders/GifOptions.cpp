#include "encoders/GifOptions.h"

namespace tarvik {
namespace {

// A number of thousandths as a decimal number without trailing zeros.
std::string Thousandths(std::uint64_t number) {
  std::string decimals = std::to_string(1000 + number % 1000).substr(1);
  decimals.erase(decimals.find_last_not_of('0') + 1);
  return std::to_string(number / 1000) + (decimals.empty() ? "" : "." + decimals);
}

}  // namespace

std::string CaptionWithSize(std::uint64_t bytes) {
  return "Convert File To Gif " + std::string(" ( Its size is ") + Thousandths(bytes) + "K)";
}

}  // namespace tarvik
