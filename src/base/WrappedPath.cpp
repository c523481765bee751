#include "base/WrappedPath.h"

#include "base/Characters.h"

namespace tarvik {
namespace {

// How many bytes of the path fit into its first line.
std::size_t FirstLineLength(std::string_view path, int columns) {
  std::size_t afterName = 0;
  int column = 0;
  for (std::size_t end = 0; end < path.size();) {
    const std::size_t length = FirstCharacterLength(path.substr(end));
    column += length > 2 ? 2 : 1;
    if (column > columns) return afterName != 0 ? afterName : end;
    end += length;
    if (path[end - 1] == '\\') afterName = end;
  }
  return path.size();
}

}  // namespace

std::string WrapPath(std::string_view path, int columns) {
  std::string wrapped;
  while (!path.empty()) {
    const std::size_t length = FirstLineLength(path, columns);
    if (!wrapped.empty()) wrapped += "\r\n";
    wrapped += path.substr(0, length);
    path.remove_prefix(length);
  }
  return wrapped;
}

}  // namespace tarvik
