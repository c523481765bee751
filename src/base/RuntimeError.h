#pragma once

#include <exception>
#include <string>
#include <utility>

namespace tarvik {

// The kinds of run-time errors, each of which has a text (runtimeErrorTexts).
enum class RuntimeErrorKind {
  Overflow,         // a value does not fit into its 16-bit number
  TypeMismatch,     // a text that should be a number is not one
  OutOfMemory,      // memory ran out, or the space for one more picture
  MissingFunction,  // the system lacks a function that the program calls
  NoWindow,         // the system created no window
  UnheldName,       // the calls that the program makes do not accept a name
  Unexpected,       // any other exception
};

// A run-time error: it ends the handler in which it happens, unless documented otherwise. The handler's boundary shows
// it to the user; the window stays usable.
class RuntimeError : public std::exception {
 public:
  explicit RuntimeError(RuntimeErrorKind kind, std::string detail = {}) : kind_(kind), detail_(std::move(detail)) {}

  RuntimeErrorKind Kind() const { return kind_; }
  // Details beyond the kind, for the user, UTF-8: which function is missing, the message of an exception. Empty for
  // most kinds.
  const std::string& Detail() const { return detail_; }
  // The path of the file at which it happened, UTF-8; empty if no file is concerned.
  const std::string& File() const { return file_; }
  void SetFile(const std::string& path) { file_ = path; }
  // The kind in a few English words, for traces.
  const char* what() const noexcept override;

 private:
  RuntimeErrorKind kind_;
  std::string detail_;
  std::string file_;
};

class OverflowError : public RuntimeError {
 public:
  OverflowError() : RuntimeError(RuntimeErrorKind::Overflow) {}
};

class TypeMismatchError : public RuntimeError {
 public:
  TypeMismatchError() : RuntimeError(RuntimeErrorKind::TypeMismatch) {}
};

class OutOfMemoryError : public RuntimeError {
 public:
  OutOfMemoryError() : RuntimeError(RuntimeErrorKind::OutOfMemory) {}
};

// Its detail is "Function (library.dll)".
class MissingFunctionError : public RuntimeError {
 public:
  MissingFunctionError(const std::string& function, const std::string& library)
      : RuntimeError(RuntimeErrorKind::MissingFunction, function + " (" + library + ")") {}
};

class NoWindowError : public RuntimeError {
 public:
  NoWindowError() : RuntimeError(RuntimeErrorKind::NoWindow) {}
};

// A name with characters that the current code page lacks. Its detail is the path, with "?" in their places.
class UnheldNameError : public RuntimeError {
 public:
  explicit UnheldNameError(const std::string& path) : RuntimeError(RuntimeErrorKind::UnheldName, path) {}
};

// Converts an exception that stopped a handler to a run-time error: a RuntimeError is returned unchanged,
// std::bad_alloc and std::length_error become OutOfMemory, everything else becomes Unexpected with its message as
// detail.
RuntimeError AsRuntimeError(const std::exception& error);

}  // namespace tarvik
