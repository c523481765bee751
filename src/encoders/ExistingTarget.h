#pragma once

#include <string>

namespace tarvik {

// Making room for a file that an encoder writes.
class ExistingTarget {
 public:
  virtual ~ExistingTarget() = default;

  // Deletes the file at the path (UTF-8), a read-only one too. True where no file stands there afterwards; a file that
  // cannot be deleted keeps its attributes.
  virtual bool DeleteExistingTarget(const std::string& path) = 0;
};

// Has `write` write the file at the path, after the one that stands there is deleted. False where that one stays or
// `write` fails; in the second case nothing of the new file is left either.
template <typename Write>
bool ReplaceTarget(ExistingTarget& target, const std::string& path, const Write& write) {
  if (!target.DeleteExistingTarget(path)) return false;
  if (write()) return true;
  target.DeleteExistingTarget(path);
  return false;
}

}  // namespace tarvik
