#include "startup/IniFile.h"

#include <windows.h>

#include <optional>

#include "platform/CodePage.h"

namespace tarvik {
namespace {

// `text` is already in the code page. Null for no key or text.
int WriteProfile(const std::string& section, const std::string* key, const std::string* text, const std::string& file) {
  const std::optional<std::string> path = ToCodePage(file);
  if (!path) return 0;
  const std::string name = key != nullptr ? ToReadableCodePage(*key) : std::string();
  return WritePrivateProfileStringA(ToReadableCodePage(section).c_str(), key != nullptr ? name.c_str() : nullptr,
                                    text != nullptr ? text->c_str() : nullptr, path->c_str());
}

}  // namespace

std::string IniFile::Read(const std::string& section, const std::string& key, const std::string& defaultValue,
                          int capacity, const std::string& file) {
  const std::optional<std::string> path = ToCodePage(file);
  if (!path) return defaultValue;
  std::string buffer(static_cast<std::size_t>(capacity), ' ');
  const DWORD count = GetPrivateProfileStringA(ToReadableCodePage(section).c_str(), ToReadableCodePage(key).c_str(),
                                               ToReadableCodePage(defaultValue).c_str(), buffer.data(),
                                               static_cast<DWORD>(capacity), path->c_str());
  buffer.resize(count);
  return FromCodePage(buffer);
}

int IniFile::Write(const std::string& section, const std::string& key, const std::string& value,
                   const std::string& file) {
  const std::optional<std::string> text = ToCodePage(value);
  return text ? WriteProfile(section, &key, &*text, file) : 0;
}

int IniFile::DeleteKey(const std::string& section, const std::string& key, const std::string& file) {
  return WriteProfile(section, &key, nullptr, file);
}

int IniFile::DeleteSection(const std::string& section, const std::string& file) {
  return WriteProfile(section, nullptr, nullptr, file);
}

}  // namespace tarvik
