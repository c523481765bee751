#pragma once

#include <exception>

namespace tarvik {

// A run-time error: it stops the handler that it happens in, unless a rule says what happens instead. The handler's
// boundary shows it to the user and leaves the window usable.
class RuntimeError : public std::exception {};

// A value does not fit the 16-bit number it belongs in.
class OverflowError : public RuntimeError {
 public:
  const char* what() const noexcept override { return "Overflow"; }
};

// A text that should be a number is none.
class TypeMismatchError : public RuntimeError {
 public:
  const char* what() const noexcept override { return "Type mismatch"; }
};

// There is no memory, or no room for one more picture.
class OutOfMemoryError : public RuntimeError {
 public:
  const char* what() const noexcept override { return "Out of memory"; }
};

}  // namespace tarvik
