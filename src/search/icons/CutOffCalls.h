#pragma once

#include <cstdint>
#include <map>
#include <set>
#include <string>

namespace tarvik {

// Remembers which system calls on which files had to be cut off (see FaultGuard), so that none is made again: each one
// leaks what it held, several GDI objects for an icon. A file that was changed since, by its size or the time it was
// last written, counts as another one.
class CutOffCalls {
 public:
  // `path` is UTF-8; `call` is any number that stands for the call and its arguments.
  void Remember(const std::string& path, int call);
  bool Has(const std::string& path, int call) const;

 private:
  struct FileState {
    std::uint64_t size = 0;
    std::uint64_t written = 0;  // in the system's unit
    friend bool operator==(const FileState&, const FileState&) = default;
  };
  struct Calls {
    FileState state;
    std::set<int> calls;
  };
  static FileState StateOf(const std::string& path);

  std::map<std::string, Calls> files_;
};

}  // namespace tarvik
