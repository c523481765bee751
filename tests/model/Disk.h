#pragma once

#include <map>
#include <optional>
#include <string>
#include <vector>

#include "model/Picture.h"

namespace tarvik::model {

// A file of the made machine. Its id determines its content; its icons differ from those of every other file.
struct MadeFile {
  int id = 0;
  int icons = 0;  // of an .ani file: its frames
};

// One icon of a made file, of which every pixel is known.
struct IconLook {
  int id = 0;
  int index = 0;
};

// Whether the pixel of an icon drawn at that size is transparent: the top left sixteenth is.
bool IsTransparent(int size, int x, int y);
// The colour of a pixel that is not.
Pixel ColorAt(const IconLook& look, int size, int x, int y);

// The folders and files that the test makes. Paths are those of the system: "C:\", "C:\icons".
class Disk {
 public:
  // Has folders and files of many kinds.
  Disk();
  // Has only that folder, which is empty.
  explicit Disk(const std::string& folder) { folders_[folder]; }

  struct Drive {
    std::string root;
    std::string text;
    bool isReady = true;
  };
  static const std::vector<Drive>& Drives();

  bool IsReadable(const std::string& folder) const;
  // Sorted names of the files that have one of the pattern's extensions ("*.ico;*.dll;"), or all ("*.*").
  std::vector<std::string> Files(const std::string& folder, const std::string& pattern) const;
  // Full paths, sorted.
  std::vector<std::string> SubFolders(const std::string& folder) const;
  // Nothing if there is no such file. A doubled backslash counts as one.
  std::optional<MadeFile> Find(const std::string& path) const;
  int IconsOf(const std::string& path) const;

  void AddFolder(const std::string& path) { folders_[path]; }
  void Put(const std::string& folder, const std::string& name, int icons);
  void Remove(const std::string& folder, const std::string& name);
  bool CanMakeFolder(const std::string& path) const;
  bool MakeFolder(const std::string& path);
  // With all that it contains.
  void RemoveFolder(const std::string& path);

 private:
  // By name in any case, as the system lists and finds files.
  struct InAnyCase {
    bool operator()(const std::string& one, const std::string& other) const;
  };
  using Folder = std::map<std::string, MadeFile, InAnyCase>;

  std::map<std::string, Folder> folders_;
  int nextId_ = 1;
};

// "C:\icons" and "a.ico" make "C:\icons\a.ico"; a root keeps its backslash and gets no second one.
std::string Joined(const std::string& folder, const std::string& name);
// The folder above; a root has none and gives itself.
std::string Above(const std::string& folder);
// The folders from the root down to the folder itself.
std::vector<std::string> Chain(const std::string& folder);
std::string LastName(const std::string& folder);
bool IsAnimation(const std::string& path);

}  // namespace tarvik::model
