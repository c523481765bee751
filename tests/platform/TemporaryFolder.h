#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "base/NonCopyable.h"

namespace tarvik::support {

// A folder of this test's own, deleted with its content when the test ends. Paths are UTF-8 and may be of any length.
// If something cannot be made, the test fails.
class TemporaryFolder : NonCopyable {
 public:
  TemporaryFolder();
  ~TemporaryFolder();

  const std::string& Path() const { return path_; }
  // The path of something in it, whether or not it exists.
  std::string In(std::string_view name) const;

  // Each makes something in the folder and returns its path. Names may have several parts ("a\b"); the folders on the
  // way must exist.
  std::string MakeFolder(std::string_view name) const;
  std::string MakeFile(std::string_view name, std::span<const std::byte> bytes) const;
  std::string MakeFile(std::string_view name, std::string_view text = "x") const;
  // A file of `size` bytes that needs hardly any disk space: zeros after its given start.
  std::string MakeSparseFile(std::string_view name, std::span<const std::byte> start, std::uint64_t size) const;
  // A symbolic link to a folder or to a file.
  std::string MakeLink(std::string_view name, const std::string& target);

 private:
  std::string path_;
  std::vector<std::wstring> links_;
};

// Adds attributes (FILE_ATTRIBUTE_...) to a file or folder.
void AddAttributes(const std::string& path, unsigned long attributes);

// All bytes of a file; empty if it cannot be read.
std::string ReadAll(const std::string& path);

}  // namespace tarvik::support
