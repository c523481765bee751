#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>

#include "base/ByteSource.h"
#include "search/icons/NewExecutable.h"

namespace tarvik {

// Returns true for the names of files that may be such modules and hold icons: .icl, .exe, .dll and .ocx, in any case.
bool IsModuleName(std::string_view path);

// Reads such modules and caches the result, because opening a file takes much of the time that a search needs for a
// file without icons. Cached are the last module, so that its table is read once for all its icons, and for the whole
// run the files that are no such modules or have no icons. An entry is valid until its file changes.
class ModuleLooks {
 public:
  // Opens the bytes of a file.
  using Open = std::function<std::unique_ptr<ByteSource>(const std::string& path)>;

  // The module at a path whose stamp is now `stamp`, as its folder lists it. Valid until the next call.
  const NewExecutable& Of(const std::string& path, const FileStamp& stamp, const Open& open);

 private:
  std::string path_;  // of the last module
  FileStamp stamp_;
  NewExecutable module_;
  std::unordered_map<std::string, FileStamp> without_;  // files without icons, by path
};

}  // namespace tarvik
