#pragma once

#include <map>
#include <optional>
#include <set>
#include <string>

#include "base/ByteSource.h"

namespace tarvik {

// The stamp of the file at the path (UTF-8); nothing if there is no file.
std::optional<FileStamp> StampOf(const std::string& path);

// Remembers which system calls on which files had to be aborted (see FaultGuard), so that none is repeated: each one
// leaks what it had allocated, several GDI objects for an icon. A file whose size or last write time has changed since
// counts as a different file.
class CutOffCalls {
 public:
  // `path` is UTF-8; `call` is any number that identifies the call and its arguments.
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
