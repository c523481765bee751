#include "search/icons/ModuleLooks.h"

#include <algorithm>
#include <array>

#include "base/AsciiCase.h"

namespace tarvik {
namespace {

constexpr std::size_t maxRemembered = 100'000;  // files without icons

}  // namespace

bool IsModuleName(std::string_view path) {
  constexpr std::array<std::string_view, 4> endings{".icl", ".exe", ".dll", ".ocx"};
  return std::ranges::any_of(endings, [path](std::string_view ending) {
    return path.size() >= ending.size() &&
           std::ranges::equal(path.substr(path.size() - ending.size()), ending, {}, LowerAscii);
  });
}

const NewExecutable& ModuleLooks::Of(const std::string& path, const FileStamp& stamp, const Open& open) {
  static const NewExecutable none;
  if (path == path_ && stamp == stamp_) return module_;
  const auto known = without_.find(path);
  if (known != without_.end() && known->second == stamp) return none;
  const std::unique_ptr<ByteSource> file = open(path);
  const FileStamp opened = file->Stamp();
  module_ = NewExecutable(*file, opened.size);
  path_ = path;
  stamp_ = stamp;
  // The stamp of a link does not change with its target.
  if (module_.IconCount() == 0 && opened == stamp) {
    if (without_.size() >= maxRemembered) without_.clear();
    without_.insert_or_assign(path, stamp);
  }
  return module_;
}

}  // namespace tarvik
