#pragma once

#include <string>
#include <string_view>

namespace tarvik {

// Settings files in INI form, read and written as the platform does. All texts are UTF-8.
class IniStore {
 public:
  virtual ~IniStore() = default;

  // The key's value, truncated to a buffer of `capacity` bytes including the terminating zero; `defaultValue` if the
  // key is absent.
  virtual std::string Read(const std::string& section, const std::string& key, const std::string& defaultValue,
                           int capacity, const std::string& file) = 0;
  // Both return the platform's own result, non-zero on success.
  virtual int Write(const std::string& section, const std::string& key, const std::string& value,
                    const std::string& file) = 0;
  virtual int DeleteKey(const std::string& section, const std::string& key, const std::string& file) = 0;
  virtual int DeleteSection(const std::string& section, const std::string& file) = 0;
};

// The settings file next to a program: its path with the extension ".dat" in place of its own. ("C:\Tools\tarvik.exe"
// gives "C:\Tools\tarvik.dat").
std::string SettingsPath(const std::string& programPath);

// The text of a Boolean in a settings file: "True" or "False". When read, only "true" is true, in any case.
std::string TruthText(bool truth);
bool IsTruth(std::string_view text);

// The program's settings. The path of its own file is determined when the first setting is read or written, and then
// kept.
class Settings {
 public:
  // `programPath` is the full path of the executable.
  Settings(IniStore& store, std::string programPath);

  // One setting, or `defaultValue` if the key is absent. An empty file name means the program's own file.
  std::string ReadIniSetting(const std::string& section, const std::string& key, const std::string& defaultValue,
                             const std::string& file = {});

  // Writes a setting; with an empty value deletes the key (deliberate: oddities 10), with an empty key the whole
  // section. An empty file name means the program's own file. Returns non-zero on success.
  int WriteIniSetting(const std::string& section, const std::string& key, const std::string& value,
                      const std::string& file = {});

 private:
  std::string Resolve(const std::string& file);

  IniStore& store_;
  std::string programPath_;
  std::string path_;
};

}  // namespace tarvik
