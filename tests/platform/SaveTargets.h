#pragma once

#include <functional>
#include <string>
#include <vector>

#include "base/FileSink.h"
#include "base/NonCopyable.h"
#include "platform/Handles.h"

namespace tarvik::support {

// One of each thing that can be at the path of a file to be saved, and what has to become of it. Files that are to
// stay hold the text "kept".
class SaveTargets : NonCopyable {
 public:
  // Makes the targets in a folder that is empty; `nameOf` gives the name of each, counted from 1. Links lead to a
  // second, empty folder.
  SaveTargets(std::string folder, std::string elsewhere, const std::function<std::string(int number)>& nameOf);
  // Empties both folders: what removes a link together with a folder may remove what the link leads to.
  ~SaveTargets();

  // How many there are in every SaveTargets.
  static int Count();
  std::string Path(int number) const;
  // What it is, for messages: "a link to a read-only file".
  static std::string What(int number);
  // Whether a file can be saved there.
  static bool TakesAFile(int number, ReadOnlyFile readOnly);

  // Lets go of the files that are held open. Then expects a file that starts with `start` at every target that takes
  // one, everything else as it was made, and nothing else in the folder.
  void ExpectSaved(const std::string& start, ReadOnlyFile readOnly);

 private:
  void Make(int number);
  std::string Kept(int number) const;

  std::string folder_;
  std::string elsewhere_;
  std::vector<std::string> names_;
  std::vector<FileHandle> holders_;
};

}  // namespace tarvik::support
