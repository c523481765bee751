#pragma once

#include <cstddef>
#include <span>
#include <string>

namespace tarvik {

// A file being written. Each step says whether it worked; a writer stops at the first that did not, and the file is
// then let go, as it stands, when the sink ends or opens another.
class FileSink {
 public:
  virtual ~FileSink() = default;

  // Replaces what stands at the path (UTF-8) with a new, empty file. Nothing but that one path is touched.
  virtual bool Open(const std::string& path) = 0;
  // Appends all of the bytes or says no.
  virtual bool Write(std::span<const std::byte> bytes) = 0;
  // True when everything written is in the file.
  virtual bool Close() = 0;
};

}  // namespace tarvik
