#include "startup/Settings.h"

#include <algorithm>
#include <utility>

#include "base/AsciiCase.h"

namespace tarvik {
namespace {

constexpr int bufferCapacity = 2048;  // bytes, terminating zero included

}  // namespace

std::string SettingsPath(const std::string& programPath) {
  const auto separator = programPath.find_last_of('\\');
  const auto nameStart = separator == std::string::npos ? 0 : separator + 1;
  const auto dot = programPath.find_last_of('.');
  const bool hasExtension = dot != std::string::npos && dot >= nameStart;
  return (hasExtension ? programPath.substr(0, dot) : programPath) + ".dat";
}

std::string TruthText(bool truth) {
  return truth ? "True" : "False";
}

bool IsTruth(std::string_view text) {
  return std::ranges::equal(text, std::string_view("true"), {}, LowerAscii);
}

Settings::Settings(IniStore& store, std::string programPath) : store_(store), programPath_(std::move(programPath)) {}

std::string Settings::ReadIniSetting(const std::string& section, const std::string& key,
                                     const std::string& defaultValue, const std::string& file) {
  return store_.Read(section, key, defaultValue, bufferCapacity, Resolve(file));
}

int Settings::WriteIniSetting(const std::string& section, const std::string& key, const std::string& value,
                              const std::string& file) {
  const std::string target = Resolve(file);
  if (key.empty()) return store_.DeleteSection(section, target);
  if (value.empty()) return store_.DeleteKey(section, key, target);
  return store_.Write(section, key, value, target);
}

std::string Settings::Resolve(const std::string& file) {
  if (!file.empty()) return file;
  if (path_.empty()) path_ = SettingsPath(programPath_);
  return path_;
}

}  // namespace tarvik
