#pragma once

#include <string>

namespace tarvik {

// The key under HKEY_LOCAL_MACHINE where the installer or the user put the language, for the whole machine.
inline constexpr const char* registryLanguageKey = R"(Software\Vornhold\Brindle Tarvik\RegInfo)";

// Reads a value of that key as ReadLanguageBuffer says (startup/Language.h). Nothing is ever written.
std::string ReadRegistryLanguage(const std::string& name);

}  // namespace tarvik
