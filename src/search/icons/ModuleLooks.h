#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>

#include "base/ByteSource.h"
#include "search/icons/NewExecutable.h"

namespace tarvik {

// True for the names of files that may be such modules and hold icons: .icl, .exe, .dll and .ocx, in any case.
bool IsModuleName(std::string_view path);

// Reads such modules and remembers what it found, because opening a file costs a search much of the time that it needs
// for one without icons: the last module, so that its table is read once for all its icons; and for the whole run which
// files are none or have no icons. Both hold as long as a file stays as it is.
class ModuleLooks {
 public:
  // Opens the bytes of a file.
  using Open = std::function<std::unique_ptr<ByteSource>(const std::string& path)>;

  // The module at a path that is known by `stamp` now, as its folder has it. It stays until the next call.
  const NewExecutable& Of(const std::string& path, const FileStamp& stamp, const Open& open);

 private:
  std::string path_;  // of the last one
  FileStamp stamp_;
  NewExecutable module_;
  std::unordered_map<std::string, FileStamp> without_;  // files without icons, by path
};

}  // namespace tarvik
