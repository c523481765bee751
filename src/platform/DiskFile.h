#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "base/FileSink.h"
#include "platform/Handles.h"

namespace tarvik {

// Writes a file on disk. All exported files, in every format, are created or replaced by this class.
//
// Open takes these steps, in this order:
//  1. If the name is free, a new file is created. This is first because no other step is then needed, and because the
//     system decides between two programs that want the same name: one creates the file, the other finds it.
//  2. A folder, a pipe or a device is refused before anything is changed, and a read-only file is refused or made
//     writable, as the caller wants.
//  3. A new, empty file is moved over the existing one. The existing one is not deleted first: Wine deletes a link's
//     target instead of the link, and a file that another program has open keeps its name until that program closes it.
//     A move replaces the link itself, preserves the other names of a file, and fails if the file is open elsewhere.
//  4. If the move fails, a file that can still be written is locked, truncated and written in place: one that another
//     program has open and shares for writing, or one in a folder where no file can be created. A link is not: its
//     target was not meant.
//  5. If that fails too, the file is unchanged, and gets its read-only attribute back.
//
// Nothing is ever deleted by name, so two copies of the program never remove each other's file. The open file is not
// shared. Data written before a later step fails is left in the file. Bytes are buffered and written in large blocks,
// so a full disk may be reported only when the file is closed.
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
  bool complete_ = false;  // the file is open and no write has failed
};

// A file's length in bytes; 0 if there is none. `path` is UTF-8.
std::uint64_t FileLength(const std::string& path);

}  // namespace tarvik
