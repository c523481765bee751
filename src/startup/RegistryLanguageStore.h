#pragma once

#include <string>

namespace tarvik {

// The key under HKEY_LOCAL_MACHINE that holds the language for the whole machine; the installer or the user sets it.
inline constexpr const char* registryLanguageKey = R"(Software\Vornhold\Brindle Tarvik\RegInfo)";

// Reads a value of that key; see ReadLanguageBuffer (startup/Language.h). Nothing is ever written.
std::string ReadRegistryLanguage(const std::string& name);

}  // namespace tarvik
