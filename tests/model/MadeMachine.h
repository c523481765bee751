#pragma once

#include <memory>
#include <string>
#include <vector>

#include "base/FileSink.h"
#include "export/SaveWindow.h"
#include "model/Disk.h"
#include "model/ExpectedFiles.h"
#include "search/icons/FolderReader.h"
#include "search/icons/IconSource.h"

// The made machine as the program sees it.
namespace tarvik::model {

// Icons and folders of a made disk, which outlives it.
class MadeFolders final : public IconSource, public FolderReader {
 public:
  explicit MadeFolders(const Disk& disk) : disk_(disk) {}

  int CountIcons(const std::string& path) override { return disk_.IconsOf(path); }
  std::unique_ptr<ExtractedIcon> Extract(const std::string& path, int index) override;

  std::vector<std::string> Files(const std::string& folder, const std::string& pattern) override {
    return disk_.Files(folder, pattern);
  }
  std::vector<std::string> SubFolders(const std::string& folder) override { return disk_.SubFolders(folder); }
  std::vector<WalkedFolder> WalkedFolders(const std::string& folder) override;
  std::string Identity(const std::string& folder) override { return folder; }

 private:
  const Disk& disk_;
};

// Keeps written files until they are fetched; refuses the paths that the made machine refuses.
class MadeFiles final : public FileSink {
 public:
  bool Open(const std::string& path, ReadOnlyFile readOnly) override;
  bool Write(std::span<const std::byte> bytes) override;
  bool Close() override;

  std::map<std::string, Bytes> written;

 private:
  std::string path_;
};

// A temporary bitmap that is kept in memory only.
class MadeTemporaryPicture final : public TemporaryPicture {
 public:
  const PixelView* PassThrough(const PixelView& picture) override { return &picture; }
  void Delete() override {}
};

}  // namespace tarvik::model
