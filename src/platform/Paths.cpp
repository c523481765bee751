#include "platform/Paths.h"

#include <windows.h>

#include <algorithm>

#include "base/FolderPath.h"
#include "platform/CodePage.h"
#include "platform/Text.h"

namespace tarvik {
namespace {

constexpr DWORD pathBufferSize = 260;
constexpr DWORD maxWidePath = 32768;  // the length limit of any path

bool StartsAtDriveRoot(std::string_view path) {
  return path.size() >= 3 && path[1] == ':' && path[2] == '\\';
}

bool StartsAtShare(std::string_view path) {
  return path.starts_with(R"(\\)") && !path.starts_with(R"(\\?\)") && !path.starts_with(R"(\\.\)");
}

// Replaces each run of backslashes by one.
std::wstring WithSingleBackslashes(std::wstring path) {
  const auto isRepeated = [](wchar_t previous, wchar_t letter) { return previous == L'\\' && letter == L'\\'; };
  path.erase(std::unique(path.begin(), path.end(), isRepeated), path.end());
  return path;
}

// The text that a call wrote into a buffer: as many characters as it reported, at most the size of the buffer.
std::string TakeWritten(const std::string& buffer, UINT count) {
  return buffer.substr(0, std::min<std::size_t>(count, buffer.size()));
}

}  // namespace

std::string ProgramPath() {
  std::wstring path(maxWidePath, L'\0');
  path.resize(GetModuleFileNameW(nullptr, path.data(), maxWidePath));
  return ToUtf8(path);
}

std::string ProgramFolder() {
  return ParentFolder(ProgramPath());
}

std::string SystemFolder() {
  std::string buffer(pathBufferSize, ' ');
  const UINT count = GetSystemDirectoryA(buffer.data(), pathBufferSize);
  return FromCodePage(TakeWritten(buffer, count));
}

std::string TempFolder() {
  std::string buffer(pathBufferSize, ' ');
  const DWORD count = GetTempPathA(pathBufferSize, buffer.data());
  return FromCodePage(TakeWritten(buffer, count));
}

std::wstring LiteralPath(std::string_view path) {
  if (path.find('/') != std::string_view::npos) return ToWide(path);
  if (StartsAtDriveRoot(path)) return LR"(\\?\)" + WithSingleBackslashes(ToWide(path));
  if (StartsAtShare(path)) return LR"(\\?\UNC\)" + WithSingleBackslashes(ToWide(path.substr(2)));
  return ToWide(path);
}

std::wstring SystemPath(const std::string& path) {
  return path.size() < MAX_PATH ? ToWide(path) : LiteralPath(path);
}

}  // namespace tarvik
