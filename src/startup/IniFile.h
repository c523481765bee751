#pragma once

#include <string>

#include "startup/Settings.h"

namespace tarvik {

// INI files, accessed by the system's functions. A file name should be a full path: the system searches for a bare name
// in the Windows folder. Reading never fails (for a missing file it returns the default); writing creates the file. A
// file whose path cannot be expressed in the current code page, or that has more than 1 MB, is neither read nor
// written, and a value that the code page cannot express is not written.
class IniFile final : public IniStore {
 public:
  std::string Read(const std::string& section, const std::string& key, const std::string& defaultValue, int capacity,
                   const std::string& file) override;
  int Write(const std::string& section, const std::string& key, const std::string& value,
            const std::string& file) override;
  int DeleteKey(const std::string& section, const std::string& key, const std::string& file) override;
  int DeleteSection(const std::string& section, const std::string& file) override;
};

}  // namespace tarvik
