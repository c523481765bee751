#pragma once

#include <string>

#include "startup/Language.h"

namespace tarvik {

// The language as the installer or the user put it into the registry, for the whole machine. Only read.
class RegistryLanguageStore final : public LanguageStore {
 public:
  // The key under HKEY_LOCAL_MACHINE.
  static constexpr const char* key = R"(Software\Vornhold\Brindle Tarvik\RegInfo)";

  std::string ReadBuffer(const std::string& name) override;
};

}  // namespace tarvik
