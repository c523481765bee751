#include "platform/SiblingFile.h"

#include <windows.h>

#include <cstddef>
#include <cstring>
#include <utility>
#include <vector>

namespace tarvik {
namespace {

bool MarkForDeletion(const FileHandle& file, bool marked) {
  FILE_DISPOSITION_INFO info{};
  info.DeleteFile = marked ? TRUE : FALSE;
  return SetFileInformationByHandle(file.get(), FileDispositionInfo, &info, sizeof info) != 0;
}

bool Rename(const FileHandle& file, const std::wstring& path) {
  const std::size_t pathBytes = path.size() * sizeof(wchar_t);
  // Space for the structure followed by the path. operator new aligns it for any type.
  std::vector<std::byte> buffer(sizeof(FILE_RENAME_INFO) + pathBytes);
  auto& info = *reinterpret_cast<FILE_RENAME_INFO*>(buffer.data());
  info.ReplaceIfExists = TRUE;
  info.FileNameLength = static_cast<DWORD>(pathBytes);
  std::memcpy(info.FileName, path.data(), pathBytes);
  return SetFileInformationByHandle(file.get(), FileRenameInfo, &info, static_cast<DWORD>(buffer.size())) != 0;
}

FileHandle MakeNew(const std::wstring& path) {
  return FileHandle(
      CreateFileW(path.c_str(), GENERIC_WRITE | DELETE, 0, nullptr, CREATE_NEW, FILE_ATTRIBUTE_NORMAL, nullptr));
}

}  // namespace

SiblingFile::SiblingFile(const std::wstring& path) {
  constexpr int attempts = 100;
  const std::wstring stem =
      path.substr(0, path.find_last_of(L"\\/:") + 1) + L"tarvik" + std::to_wstring(GetCurrentProcessId());
  for (int attempt = 0; attempt < attempts && !file_; ++attempt) {
    file_ = MakeNew(stem + L'-' + std::to_wstring(attempt) + L".tmp");
    if (!file_ && GetLastError() != ERROR_FILE_EXISTS) return;
  }
  if (file_) MarkForDeletion(file_, true);
}

FileHandle SiblingFile::MoveTo(const std::wstring& path) {
  if (!file_) return {};
  // If the system allows it, the file is moved while still marked for deletion, so that a process killed at any moment
  // leaves no file of this name. Otherwise the mark is removed just before.
  if (!Rename(file_, path)) {
    MarkForDeletion(file_, false);
    if (!Rename(file_, path)) {
      MarkForDeletion(file_, true);
      return {};
    }
  }
  MarkForDeletion(file_, false);
  return std::move(file_);
}

}  // namespace tarvik
