#pragma once

#include <cstdint>
#include <limits>

#include "base/RuntimeError.h"

namespace tarvik {

// A signed 16-bit integer that never wraps: a value outside -32768 to 32767 throws OverflowError, and the old value is
// kept. Converts to int, so that arithmetic is done in int and checked on assignment.
class Integer16 {
 public:
  constexpr Integer16() = default;
  constexpr Integer16(std::int64_t value) : value_(Check(value)) {}  // NOLINT(google-explicit-constructor)

  constexpr operator int() const { return value_; }  // NOLINT(google-explicit-constructor)

  constexpr Integer16& operator+=(std::int64_t summand) {
    value_ = Check(std::int64_t{value_} + summand);
    return *this;
  }
  constexpr Integer16& operator-=(std::int64_t subtrahend) {
    value_ = Check(std::int64_t{value_} - subtrahend);
    return *this;
  }

 private:
  static constexpr std::int16_t Check(std::int64_t value) {
    if (value < std::numeric_limits<std::int16_t>::min() || value > std::numeric_limits<std::int16_t>::max()) {
      throw OverflowError();
    }
    return static_cast<std::int16_t>(value);
  }

  std::int16_t value_ = 0;
};

}  // namespace tarvik
