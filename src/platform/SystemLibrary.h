#pragma once

#include <windows.h>

#include <atomic>

#include "base/RuntimeError.h"

namespace tarvik {

// Loads a DLL from the system's folder, and its dependencies from there too; a file of the same name anywhere else is
// never loaded. `name` is the file name with its extension. Null if there is no such DLL. It stays loaded for the rest
// of the run.
HMODULE LoadSystemLibrary(const char* name);

// Fallback of LoadSystemLibrary for a Windows 7 without update KB2533623, whose loader cannot be restricted to the
// system's folder: loads by the full path.
HMODULE LoadSystemLibraryByPath(const char* name);

// The untyped form of LateFunction::Find.
FARPROC FindSystemFunction(const char* library, const char* name);

template <typename Function>
class LateFunction;

// A function of a system DLL, called like the function itself. The DLL is loaded by the first call and not when the
// program starts, so the start does not wait for functions that the first window does not need. Names are literals.
template <typename Result, typename... Arguments>
class LateFunction<Result(WINAPI*)(Arguments...)> {
 public:
  using Function = Result(WINAPI*)(Arguments...);

  constexpr LateFunction(const char* library, const char* name) : library_(library), name_(name) {}

  // Throws MissingFunctionError if this system lacks the function.
  Result operator()(Arguments... arguments) const { return Get()(arguments...); }

  // The address, for calls that must not throw or load anything. Throws MissingFunctionError if this system lacks the
  // function.
  Function Get() const {
    if (const Function function = Find()) return function;
    throw MissingFunctionError(name_, library_);
  }

  // Like Get, but null if this system lacks the function.
  Function Find() const {
    if (found_ == nullptr) {
      found_ = reinterpret_cast<Function>(reinterpret_cast<void*>(FindSystemFunction(library_, name_)));
    }
    return found_;
  }

 private:
  const char* library_;
  const char* name_;
  mutable std::atomic<Function> found_ = nullptr;
};

}  // namespace tarvik
