#pragma once

#include <windows.h>

#include <cstddef>
#include <span>
#include <string>

#include "base/FolderPath.h"
#include "platform/Handles.h"
#include "platform/TemporaryFolder.h"
#include "platform/Text.h"

namespace tarvik::bench {

// A folder for the files of one way of a comparison. It is emptied before each run, so that every file is newly
// created.
class OutputFolder {
 public:
  OutputFolder(const support::TemporaryFolder& folder, const std::string& name) : path_(folder.MakeFolder(name)) {}

  const std::string& Path() const { return path_; }
  std::string File(int number) const { return JoinPath(path_, std::to_string(number)); }

  void Empty() const {
    WIN32_FIND_DATAW data;
    const FindHandle find(FindFirstFileW(ToWide(JoinPath(path_, "*")).c_str(), &data));
    if (!find) return;
    do DeleteFileW((ToWide(path_) + L"\\" + data.cFileName).c_str());
    while (FindNextFileW(find.get(), &data) != FALSE);
  }

  // Writes a new file by the bare calls.
  static void Write(const std::string& path, std::span<const std::byte> bytes) {
    const FileHandle file(
        CreateFileW(ToWide(path).c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW, FILE_ATTRIBUTE_NORMAL, nullptr));
    DWORD written = 0;
    WriteFile(file.get(), bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr);
  }

 private:
  std::string path_;
};

}  // namespace tarvik::bench
