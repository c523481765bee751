#include "export/FileDialogModes.h"

#include "startup/ProgramState.h"

namespace tarvik {

std::string FileDialogTitle(const FileDialogMode& mode, std::string_view code) {
  return std::string(productTitle).append(Pick(mode.titleSuffix, code).value_or(""));
}

std::string FilterList(std::span<const FileType> filters) {
  std::string list;
  for (const FileType& type : filters)
    list.append(type.description).append(1, '\0').append(type.pattern).append(1, '\0');
  return list.append(1, '\0');
}

}  // namespace tarvik
