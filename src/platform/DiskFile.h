#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "export/FileSink.h"
#include "platform/Handles.h"

namespace tarvik {

// A file on disk being written. A file that stands at its path is replaced as a whole: nothing of it remains, and of a
// link the link itself is replaced, not what it stands for. A file that cannot be replaced but can be written, because
// another program holds it open or the folder takes no new file, is written anew where it stands. A folder, a read-only
// file and a device are refused. Bytes are gathered and written in large blocks, so a full disk may show only when the
// file is closed.
class DiskFile final : public FileSink {
 public:
  bool Open(const std::string& path) override;
  bool Write(std::span<const std::byte> bytes) override;
  bool Close() override;

 private:
  bool WriteThrough(std::span<const std::byte> bytes);
  bool Flush();

  FileHandle file_;
  std::vector<std::byte> gathered_;
  bool complete_ = false;  // nothing that was to be written is missing
};

}  // namespace tarvik
