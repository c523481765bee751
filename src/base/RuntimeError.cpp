#include "base/RuntimeError.h"

#include <new>
#include <stdexcept>

namespace tarvik {

const char* RuntimeError::what() const noexcept {
  switch (kind_) {
    case RuntimeErrorKind::Overflow:
      return "Overflow";
    case RuntimeErrorKind::TypeMismatch:
      return "Type mismatch";
    case RuntimeErrorKind::OutOfMemory:
      return "Out of memory";
    case RuntimeErrorKind::MissingFunction:
      return "Missing function";
    case RuntimeErrorKind::NoWindow:
      return "No window";
    case RuntimeErrorKind::UnheldName:
      return "Name that cannot be passed on";
    case RuntimeErrorKind::Unexpected:
      return "Unexpected error";
  }
  return "";
}

RuntimeError AsRuntimeError(const std::exception& error) {
  if (const auto* own = dynamic_cast<const RuntimeError*>(&error)) return *own;
  const bool outOfMemory = dynamic_cast<const std::bad_alloc*>(&error) != nullptr ||
                           dynamic_cast<const std::length_error*>(&error) != nullptr;
  if (outOfMemory) return OutOfMemoryError();
  return RuntimeError(RuntimeErrorKind::Unexpected, error.what());
}

}  // namespace tarvik
