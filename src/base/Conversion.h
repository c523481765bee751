#pragma once

#include <limits>
#include <string_view>

#include "base/Integer16.h"

namespace tarvik {

// The whole number nearest to `value`; a half goes to the even neighbour (2.5 gives 2, 3.5 gives 4).
double RoundToEven(double value);

// A number at the start of a text, and its length in characters: 0 if the text starts with no number.
struct ReadNumber {
  static constexpr double tooLarge = std::numeric_limits<double>::infinity();

  double value = 0;  // tooLarge above a double's range; 0 below it
  std::size_t length = 0;
};

// Reads digits with an optional decimal point and exponent, without a sign. The decimal mark is a point whatever the
// locale.
ReadNumber ReadUnsignedNumber(std::string_view text);

// Converts a text to a number. Allowed are blanks around it, a sign, digits with an optional decimal point, commas
// between digits, and an exponent; "&H" starts a hexadecimal number. The decimal mark is a point whatever the locale.
// Throws TypeMismatchError for any other text, also an empty one, and OverflowError for a number above a double's
// range.
double ToNumber(std::string_view text);

// ToNumber, rounded by RoundToEven. Throws OverflowError outside -32768 to 32767.
Integer16 ToInteger16(std::string_view text);

}  // namespace tarvik
