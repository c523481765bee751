#pragma once

#include <string>

#include "platform/Handles.h"

namespace tarvik {

// A new, empty file in the folder of another one, created to be moved into that one's place. Until it is moved it is
// marked for deletion: it disappears with this object, and with the process, however the process ends. Only if the
// process is killed between the two system calls that create and mark the file is it left, empty.
class SiblingFile {
 public:
  // `path` is the file to be replaced, as a system call takes it.
  explicit SiblingFile(const std::wstring& path);

  // False if no file could be created in the folder.
  explicit operator bool() const { return static_cast<bool>(file_); }

  // Moves the file to the path, over a file there: a link is replaced itself, not its target, and the other names of a
  // file with several names keep it. Returns the file, open for this process alone and to be written from its start;
  // empty if it could not be moved (a folder, a read-only file or a pipe is there, or a file that is open elsewhere).
  FileHandle MoveTo(const std::wstring& path);

 private:
  FileHandle file_;
};

}  // namespace tarvik
