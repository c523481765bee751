#pragma once

#include <exception>
#include <string>
#include <utility>

namespace tarvik {

// The kinds of run-time errors, each of which has a text (runtimeErrorTexts).
enum class RuntimeErrorKind {
  Overflow,         // a value does not fit the 16-bit number it belongs in
  TypeMismatch,     // a text that should be a number is none
  OutOfMemory,      // there is no memory, or no room for one more picture
  MissingFunction,  // the system lacks a function that the program calls
  NoWindow,         // the system made no window
  UnheldName,       // the calls that the program makes cannot take a name
  Unexpected,       // any other exception
};

// A run-time error: it stops the handler that it happens in, unless a rule says what happens instead. The handler's
// boundary shows it to the user and leaves the window usable.
class RuntimeError : public std::exception {
 public:
  explicit RuntimeError(RuntimeErrorKind kind, std::string detail = {}) : kind_(kind), detail_(std::move(detail)) {}

  RuntimeErrorKind Kind() const { return kind_; }
  // What the kind does not say by itself, as a user is told it, UTF-8: which function is missing, what an exception
  // says. Empty for most.
  const std::string& Detail() const { return detail_; }
  // The path of the file that it happened at, UTF-8; empty if it is about no file.
  const std::string& File() const { return file_; }
  void SetFile(const std::string& path) { file_ = path; }
  // The kind in a few words of English, for whoever reads a trace.
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

// A name with characters that the code page in force lacks. Its detail is the path, with "?" in their places.
class UnheldNameError : public RuntimeError {
 public:
  explicit UnheldNameError(const std::string& path) : RuntimeError(RuntimeErrorKind::UnheldName, path) {}
};

// What stopped a handler, as a run-time error: a RuntimeError is that itself, a lack of memory and a text or list
// longer than any can be are OutOfMemory, everything else is Unexpected and says in its detail what it says itself.
RuntimeError AsRuntimeError(const std::exception& error);

}  // namespace tarvik
