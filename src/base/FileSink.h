#pragma once

#include <cstddef>
#include <span>
#include <string>

namespace tarvik {

// What happens to a read-only file at the path of a file to be written.
// Only JPEG and GIF files replace a read-only one (deliberate: oddities 38).
enum class ReadOnlyFile { Refused, Replaced };

// A file being written. Each step returns whether it worked; a writer stops at the first that did not. The file is
// then closed with what it holds when the sink ends or opens another.
class FileSink {
 public:
  virtual ~FileSink() = default;

  // Puts a new, empty file at the path (UTF-8), in place of an existing one. Only this path is touched.
  virtual bool Open(const std::string& path, ReadOnlyFile readOnly) = 0;
  // Appends all of the bytes, or returns false.
  virtual bool Write(std::span<const std::byte> bytes) = 0;
  // True if everything written is in the file.
  virtual bool Close() = 0;
};

}  // namespace tarvik
