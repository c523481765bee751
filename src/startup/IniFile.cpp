#include "startup/IniFile.h"

#include <windows.h>

namespace tarvik {

std::string IniFile::Read(const std::string& section, const std::string& key, const std::string& defaultValue,
                          int capacity, const std::string& file) {
  std::string buffer(static_cast<std::size_t>(capacity), ' ');
  const DWORD count = GetPrivateProfileStringA(section.c_str(), key.c_str(), defaultValue.c_str(), buffer.data(),
                                               static_cast<DWORD>(capacity), file.c_str());
  buffer.resize(count);
  return buffer;
}

int IniFile::Write(const std::string& section, const std::string& key, const std::string& value,
                   const std::string& file) {
  return WritePrivateProfileStringA(section.c_str(), key.c_str(), value.c_str(), file.c_str());
}

int IniFile::DeleteKey(const std::string& section, const std::string& key, const std::string& file) {
  return WritePrivateProfileStringA(section.c_str(), key.c_str(), nullptr, file.c_str());
}

int IniFile::DeleteSection(const std::string& section, const std::string& file) {
  return WritePrivateProfileStringA(section.c_str(), nullptr, nullptr, file.c_str());
}

}  // namespace tarvik
