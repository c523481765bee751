#include "base/Conversion.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <string>

namespace tarvik {
namespace {

constexpr std::string_view blanks = " \t";

std::string_view Trim(std::string_view text) {
  const auto first = text.find_first_not_of(blanks);
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(blanks) - first + 1);
}

bool IsDigit(char character) {
  return character >= '0' && character <= '9';
}

// Removes the commas between two digits; any other comma is kept and makes the text invalid as a number.
std::string RemoveThousandsCommas(std::string_view text) {
  std::string digits;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const bool separates =
        text[i] == ',' && i > 0 && i + 1 < text.size() && IsDigit(text[i - 1]) && IsDigit(text[i + 1]);
    if (!separates) digits += text[i];
  }
  return digits;
}

double ToHexadecimal(std::string_view digits) {
  std::uint64_t value = 0;
  const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), value, 16);
  if (error == std::errc::result_out_of_range) throw OverflowError();
  if (error != std::errc() || end != digits.data() + digits.size()) throw TypeMismatchError();
  return static_cast<double>(value);
}

// Whether a number outside a double's range is too large, not too small: decided by the position of its first non-zero
// digit, counted from the decimal point, and its exponent.
bool IsTooLarge(std::string_view number) {
  const auto exponentAt = number.find_first_of("eE");
  const std::string_view digits = number.substr(0, exponentAt);
  const auto point = std::min(digits.find('.'), digits.size());
  const auto first = digits.find_first_of("123456789");
  const double magnitude = first < point ? static_cast<double>(point - first) : -static_cast<double>(first - point - 1);
  if (exponentAt == std::string_view::npos) return magnitude > 0;
  std::string_view exponent = number.substr(exponentAt + 1);
  const bool negative = exponent.starts_with('-');
  if (negative || exponent.starts_with('+')) exponent.remove_prefix(1);
  double size = 0;
  for (const char digit : exponent) size = size * 10 + (digit - '0');
  return magnitude + (negative ? -size : size) > 0;
}

}  // namespace

ReadNumber ReadUnsignedNumber(std::string_view text) {
  // The library would accept "inf", "nan" and a sign.
  if (text.empty() || (!IsDigit(text[0]) && text[0] != '.')) return {};
  double value = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
  const auto length = static_cast<std::size_t>(end - text.data());
  if (error == std::errc::result_out_of_range)
    return {IsTooLarge(text.substr(0, length)) ? ReadNumber::tooLarge : 0, length};
  if (error != std::errc()) return {};
  return {value, length};
}

double RoundToEven(double value) {
  const double below = std::floor(value);
  const double rest = value - below;
  if (rest < 0.5) return below;
  if (rest > 0.5) return below + 1;
  return std::fmod(below, 2) == 0 ? below : below + 1;
}

double ToNumber(std::string_view text) {
  text = Trim(text);
  if (text.starts_with("&H") || text.starts_with("&h")) return ToHexadecimal(text.substr(2));

  const bool negative = text.starts_with('-');
  if (negative || text.starts_with('+')) text.remove_prefix(1);
  const std::string digits = RemoveThousandsCommas(text);
  const auto [value, length] = ReadUnsignedNumber(digits);
  if (length == 0 || length != digits.size()) throw TypeMismatchError();
  if (value == ReadNumber::tooLarge) throw OverflowError();
  return negative ? -value : value;
}

Integer16 ToInteger16(std::string_view text) {
  const double value = RoundToEven(ToNumber(text));
  if (std::abs(value) > 1e9) throw OverflowError();
  return {static_cast<std::int64_t>(value)};
}

}  // namespace tarvik
