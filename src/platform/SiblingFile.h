#pragma once

#include <string>

#include "platform/Handles.h"

namespace tarvik {

// A new, empty file in the folder of another one, made to be moved into that one's place. Until it is moved it is
// marked for deletion: it goes away with this object, and with the process, however the process ends.
class SiblingFile {
 public:
  // `path` is the file whose place it is for, as a system call takes it.
  explicit SiblingFile(const std::wstring& path);

  // False if the folder takes no new file.
  explicit operator bool() const { return static_cast<bool>(file_); }

  // Moves the file to the path, over a file there: of a link the link itself is replaced, and the other names of a
  // file with several names keep it. Returns the file, open for this process alone and to be written from its start;
  // empty if it could not be moved (a folder, a read-only file or a pipe is there, or a file that is open elsewhere).
  FileHandle MoveTo(const std::wstring& path);

 private:
  FileHandle file_;
};

}  // namespace tarvik
