#pragma once

#include <map>
#include <optional>
#include <set>
#include <string>

#include "base/ByteSource.h"

namespace tarvik {

// What the file at the path (UTF-8) is known by; nothing if there is none.
std::optional<FileStamp> StampOf(const std::string& path);

// Remembers which system calls on which files had to be cut off (see FaultGuard), so that none is made again: each one
// leaks what it held, several GDI objects for an icon. A file that was changed since, by its size or the time it was
// last written, counts as another one.
class CutOffCalls {
 public:
  // `path` is UTF-8; `call` is any number that stands for the call and its arguments.
  void Remember(const std::string& path, int call);
  bool Has(const std::string& path, int call) const;

 private:
  struct Calls {
    std::optional<FileStamp> stamp;
    std::set<int> calls;
  };
  std::map<std::string, Calls> files_;
};

}  // namespace tarvik
