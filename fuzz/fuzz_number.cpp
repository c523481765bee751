#include <cmath>
#include <optional>

#include "FuzzInput.h"
#include "base/Conversion.h"

namespace tarvik {
namespace {

// The number of a text, or nothing if it is refused; any exception but a run-time error aborts the run.
std::optional<int> NumberOf(const std::string& text) {
  try {
    return ToInteger16(text);
  } catch (const RuntimeError&) {
    return std::nullopt;
  }
}

void CheckReal(const std::string& text) {
  try {
    const double value = ToNumber(text);
    Require(std::isfinite(value), "a number is finite");
    Require(std::abs(RoundToEven(value) - value) <= 0.5, "rounding goes to a nearest whole number");
  } catch (const RuntimeError&) {
    Require(!NumberOf(text), "what is no number is no whole one");
  }
}

}  // namespace
}  // namespace tarvik

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string text = tarvik::TextOf(data, size);
  tarvik::CheckReal(text);
  const auto number = tarvik::NumberOf(text);
  if (!number) return 0;
  tarvik::Require(*number >= -32768 && *number <= 32767, "a whole number has sixteen bits");
  tarvik::Require(tarvik::NumberOf(std::to_string(*number)) == number, "a number is read as it is written");
  tarvik::Require(tarvik::NumberOf(" " + text + " ") == number, "blanks around a number do not count");
  return 0;
}
