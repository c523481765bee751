#pragma once

#include <map>
#include <string>

#include "base/NonCopyable.h"
#include "startup/Settings.h"

namespace tarvik::support {

// A settings file in memory; keys are "Section/Key".
class MemoryIni final : public IniStore, NonCopyable {
 public:
  MemoryIni() : values(own_) {}
  // Uses values that outlive this object.
  explicit MemoryIni(std::map<std::string, std::string>& shared) : values(shared) {}

  std::string Read(const std::string& section, const std::string& key, const std::string& defaultValue,
                   int /*capacity*/, const std::string& /*file*/) override {
    const auto found = values.find(section + "/" + key);
    return found == values.end() ? defaultValue : found->second;
  }
  int Write(const std::string& section, const std::string& key, const std::string& value,
            const std::string& /*file*/) override {
    values[section + "/" + key] = value;
    return 1;
  }
  int DeleteKey(const std::string& section, const std::string& key, const std::string& /*file*/) override {
    return static_cast<int>(values.erase(section + "/" + key));
  }
  int DeleteSection(const std::string& /*section*/, const std::string& /*file*/) override { return 0; }

 private:
  std::map<std::string, std::string> own_;

 public:
  std::map<std::string, std::string>& values;
};

}  // namespace tarvik::support
