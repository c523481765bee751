#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "search/icons/FolderReader.h"

namespace tarvik {

// An entry of a folder as the system returns it.
struct FolderEntry {
  std::wstring_view name;
  unsigned long attributes = 0;  // FILE_ATTRIBUTE_...
  unsigned long reparseTag = 0;  // of a reparse point: IO_REPARSE_TAG_...; 0 if the system gives none
};

// The folders of this machine. Paths may be of any length; each call reads its folder once.
class Folders final : public FolderReader {
 public:
  // Functions that read folders.
  struct Dependencies {
    using Visit = std::function<void(const FolderEntry& entry)>;
    // Calls `visit` for each entry of the folder, in any order.
    std::function<void(const std::string& folder, const Visit& visit)> forEachEntry;
    // The data of a reparse point; empty if there is none or it cannot be read.
    std::function<std::vector<std::byte>(const std::string& path)> reparseData;
  };

  Folders();
  explicit Folders(Dependencies dependencies);

  std::vector<std::string> Files(const std::string& folder, const std::string& pattern) override;
  std::vector<std::string> SubFolders(const std::string& folder) override;
  std::vector<WalkedFolder> WalkedFolders(const std::string& folder) override;
  std::string Identity(const std::string& folder) override;

 private:
  Dependencies dependencies_;
};

// Returns true if the folder exists and this user may list it. The path may have any form that Windows accepts.
bool IsReadableFolder(const std::string& path);

// Returns true if the folder exists, whether or not it may be listed, and for every root. The path is absolute.
bool IsFolder(const std::string& path);

// A drive of this machine.
struct Drive {
  char letter = 'c';  // lower case
  std::string label;  // of the volume; of a network drive, the share it is connected to; empty if there is none

  // As a drive box shows it: "c: [LABEL]", or "c:" without a label.
  std::string Display() const;
  // The path of its root: "C:\".
  std::string Root() const;
};

// All drives by letter. Queries no drive that may be slow to answer: network drives and floppy drives are not accessed,
// and a drive without a medium has no label.
std::vector<Drive> Drives();

}  // namespace tarvik
