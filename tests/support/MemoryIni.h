#pragma once

#include <cstddef>
#include <map>
#include <string>
#include <vector>

#include "base/NonCopyable.h"
#include "startup/Settings.h"

namespace tarvik::support {

// A settings file in memory; keys are "Section/Key". The results tell the calls apart: a write returns 1, a deletion of
// a key 2, of a section 3.
class MemoryIni : public IniStore, NonCopyable {
 public:
  MemoryIni() : values(own_) {}
  // Uses values that outlive this object.
  explicit MemoryIni(std::map<std::string, std::string>& shared) : values(shared) {}

  std::string Read(const std::string& section, const std::string& key, const std::string& defaultValue, int capacity,
                   const std::string& file) override {
    files.push_back(file);
    const auto found = values.find(section + "/" + key);
    const std::string& value = found == values.end() ? defaultValue : found->second;
    return value.substr(0, static_cast<std::size_t>(capacity) - 1);
  }
  int Write(const std::string& section, const std::string& key, const std::string& value,
            const std::string& file) override {
    files.push_back(file);
    values[section + "/" + key] = value;
    return 1;
  }
  int DeleteKey(const std::string& section, const std::string& key, const std::string& file) override {
    files.push_back(file);
    values.erase(section + "/" + key);
    return 2;
  }
  int DeleteSection(const std::string& section, const std::string& file) override {
    files.push_back(file);
    std::erase_if(values, [&](const auto& entry) { return entry.first.starts_with(section + "/"); });
    return 3;
  }

 private:
  std::map<std::string, std::string> own_;

 public:
  std::map<std::string, std::string>& values;
  std::vector<std::string> files;  // the file of each call; all have the same content
};

}  // namespace tarvik::support
