#pragma once

#include <windows.h>

#include <shellapi.h>

namespace tarvik {

// The functions of the system that extract icons from files.
struct ShellFunctions {
  decltype(&::ExtractIconExA) extractIconEx;
  decltype(&::PrivateExtractIconsA) privateExtractIcons;
};

// Those of this machine. The first call loads the shell; throws MissingFunctionError if it has no such function.
ShellFunctions SystemShell();

}  // namespace tarvik
