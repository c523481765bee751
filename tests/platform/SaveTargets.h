#pragma once

#include <functional>
#include <string>
#include <vector>

#include "base/FileSink.h"
#include "base/NonCopyable.h"
#include "platform/Handles.h"

namespace tarvik::support {

// One of each thing that can be at the path of a file to be saved, and the expected result. Files that must not change
// end with the text "kept".
class SaveTargets : NonCopyable {
 public:
  // Makes the targets in an empty folder; `nameOf` gives the name of each, counted from 1. Links lead to a second,
  // empty folder.
  SaveTargets(std::string folder, std::string elsewhere, const std::function<std::string(int number)>& nameOf);
  // Empties both folders. Deleting a folder together with a link in it may delete what the link leads to.
  ~SaveTargets();

  // How many there are in every SaveTargets.
  static int Count();
  std::string Path(int number) const;
  std::string Name(int number) const;
  // A description for messages: "a link to a read-only file".
  static std::string What(int number);
  // Whether it is a folder or a link to one.
  static bool IsFolder(int number);
  // Whether a file can be saved there.
  static bool TakesAFile(int number, ReadOnlyFile readOnly);

  // Closes the files that are held open. Then expects a file that starts with `start` at every target that can be
  // replaced, everything else unchanged, and no other file in the folder.
  void ExpectSaved(const std::string& start, ReadOnlyFile readOnly);

 private:
  void Make(int number);
  std::string KeptPath(int number) const;
  std::string KeptFile(int number) const;
  std::string UnixTarget(int number) const;
  std::string UnixKeptPath(int number) const;

  std::string folder_;
  std::string elsewhere_;
  std::vector<std::string> names_;
  std::vector<FileHandle> holders_;
};

}  // namespace tarvik::support
