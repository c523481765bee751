#pragma once

#include <exception>
#include <string>

namespace tarvik {

// A run-time error: it stops the handler that it happens in, unless a rule says what happens instead. The handler's
// boundary shows it to the user and leaves the window usable.
class RuntimeError : public std::exception {
 public:
  // The path of the file that it happened at, UTF-8; empty if it is about no file.
  const std::string& File() const { return file_; }
  void SetFile(const std::string& path) { file_ = path; }

 private:
  std::string file_;
};

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

// The system lacks a function that the program calls.
class MissingFunctionError : public RuntimeError {
 public:
  MissingFunctionError(const std::string& function, const std::string& library)
      : name_(function + " (" + library + ")"), what_("Missing function: " + name_) {}

  const char* what() const noexcept override { return what_.c_str(); }
  // The function and its library as a user is told them: "Function (library.dll)".
  const std::string& Name() const { return name_; }

 private:
  std::string name_;
  std::string what_;
};

}  // namespace tarvik
