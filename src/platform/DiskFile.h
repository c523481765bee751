#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "base/FileSink.h"
#include "platform/Handles.h"

namespace tarvik {

// Writes a file on disk: the one way in which the program puts a file into the place of a name, in all formats.
//
// Open takes these steps, in this order:
//  1. A name that is free gets a new file. This comes first because no other step is then needed, and because the
//     system decides between two programs that want the same name: one makes the file, the other finds it.
//  2. A folder, a pipe or a device is refused before anything is changed, and a read-only file is refused or made
//     writable, as the caller wants.
//  3. A new, empty file is moved over the existing one. It is not deleted first: Wine deletes what a link leads to
//     instead of the link, and a file that another program has open keeps its name until that program closes it. A
//     move replaces the link itself, leaves a file its other names, and fails if the file is open elsewhere.
//  4. If the move fails, a file that may still be written is emptied and written in place: one that another program
//     holds open and shares for writing, or one in a folder that takes no new file. A link is not: the file that it
//     leads to was not asked for.
//  5. If that fails too, the file stays as it was, and gets its read-only attribute back.
//
// Nothing is ever deleted by name, so two copies of the program never remove each other's file. The open file is not
// shared. What is written when a later step fails is left. Bytes are gathered and written in large blocks, so a full
// disk may show only when the file is closed.
class DiskFile final : public FileSink {
 public:
  bool Open(const std::string& path, ReadOnlyFile readOnly) override;
  bool Write(std::span<const std::byte> bytes) override;
  bool Close() override;

 private:
  bool WriteThrough(std::span<const std::byte> bytes);
  bool Flush();

  FileHandle file_;
  std::vector<std::byte> gathered_;
  bool complete_ = false;  // nothing that was to be written is missing
};

// A file's length in bytes; 0 if there is none. `path` is UTF-8.
std::uint64_t FileLength(const std::string& path);

}  // namespace tarvik
