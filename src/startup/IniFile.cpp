#include "startup/IniFile.h"

#include <windows.h>

#include <cstdint>
#include <optional>

#include "platform/CodePage.h"
#include "platform/DiskFile.h"

namespace tarvik {
namespace {

// For each value the system reads the whole file into memory, and Wine's functions fault if there is not enough.
constexpr std::uint64_t maxFileBytes = std::uint64_t{1} << 20U;

// The path for the system's functions; none if they must not be called.
std::optional<std::string> UsablePath(const std::string& file) {
  if (FileLength(file) > maxFileBytes) return std::nullopt;
  return ToCodePage(file);
}

// `text` is already in the code page. Null for no key or text.
int WriteProfile(const std::string& section, const std::string* key, const std::string* text, const std::string& file) {
  const std::optional<std::string> path = UsablePath(file);
  if (!path) return 0;
  const std::string name = key != nullptr ? ToReadableCodePage(*key) : std::string();
  return WritePrivateProfileStringA(ToReadableCodePage(section).c_str(), key != nullptr ? name.c_str() : nullptr,
                                    text != nullptr ? text->c_str() : nullptr, path->c_str());
}

}  // namespace

std::string IniFile::Read(const std::string& section, const std::string& key, const std::string& defaultValue,
                          int capacity, const std::string& file) {
  const std::optional<std::string> path = UsablePath(file);
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
