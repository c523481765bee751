#pragma once

#include <string>

#include "startup/Settings.h"

namespace tarvik {

// INI files through the system's own calls for them. A file name should be a full path: the system looks for a bare
// name in the Windows folder. Reading never fails (a file that is not there gives the default); writing creates the
// file. A file whose path the code page in force cannot hold is neither read nor written, and no value is written that
// it cannot hold.
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
