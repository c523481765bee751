#pragma once

#include <cstddef>
#include <span>
#include <string>

namespace tarvik {

// How a read-only file at the path of a file to be written is treated. Only JPEG and GIF files replace a read-only one
// (deliberate: oddities 38).
enum class ReadOnlyFile { Refused, Replaced };

// A file being written. Each step returns whether it succeeded; a writer stops at the first failure. The file is then
// closed with its current content when the sink is destroyed or opens another.
class FileSink {
 public:
  virtual ~FileSink() = default;

  // Creates a new, empty file at the path (UTF-8), replacing an existing one. Only this path is touched.
  virtual bool Open(const std::string& path, ReadOnlyFile readOnly) = 0;
  // Appends all of the bytes, or returns false.
  virtual bool Write(std::span<const std::byte> bytes) = 0;
  // Returns true if everything written is in the file.
  virtual bool Close() = 0;
};

}  // namespace tarvik
