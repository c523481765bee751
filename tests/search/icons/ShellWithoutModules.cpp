#include "search/icons/ShellWithoutModules.h"

#include <array>
#include <cstring>

#include "platform/SystemFunctions.h"
#include "search/icons/FileBytes.h"

namespace tarvik::support {
namespace {

bool IsModule(const char* path) {
  FileBytes file(path);
  std::array<char, 2> signature{};
  std::uint32_t offset = 0;
  const auto has = [&](std::uint64_t where, const char* expected) {
    return file.Read(where, std::as_writable_bytes(std::span(signature))) &&
           std::memcmp(signature.data(), expected, signature.size()) == 0;
  };
  return has(0, "MZ") && file.Read(0x3C, std::as_writable_bytes(std::span(&offset, 1))) && has(offset, "NE");
}

UINT WINAPI Extract(LPCSTR path, int index, HICON* large, HICON* small, UINT count) {
  return IsModule(path) ? 0 : late::ExtractIconExA.Get()(path, index, large, small, count);
}

UINT WINAPI ExtractSeveral(LPCSTR path, int first, int width, int height, HICON* icons, UINT* numbers, UINT count,
                           UINT flags) {
  return IsModule(path) ? 0 : PrivateExtractIconsA(path, first, width, height, icons, numbers, count, flags);
}

}  // namespace

ShellFunctions ShellWithoutModules() {
  late::ExtractIconExA.Get();  // loads the shell here and not during an extraction
  return {.extractIconEx = Extract, .privateExtractIcons = ExtractSeveral};
}

}  // namespace tarvik::support
