#include "platform/DiskFile.h"

#include <windows.h>

#include <algorithm>
#include <span>

#include "platform/Paths.h"
#include "platform/Text.h"

namespace tarvik {
namespace {

constexpr std::size_t blockSize = std::size_t{64} * 1024;

FileHandle OpenForWriting(const std::wstring& path, DWORD disposition) {
  return FileHandle(CreateFileW(path.c_str(), GENERIC_WRITE, 0, nullptr, disposition, FILE_ATTRIBUTE_NORMAL, nullptr));
}

bool IsDiskFile(const FileHandle& file) {
  return file && GetFileType(file.get()) == FILE_TYPE_DISK;
}

// True for what may be replaced: a file that is not read-only, and a link that leads nowhere.
bool IsReplaceable(const std::wstring& path) {
  const DWORD attributes = GetFileAttributesW(path.c_str());
  if (attributes == INVALID_FILE_ATTRIBUTES) return true;
  if ((attributes & (FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_READONLY)) != 0) return false;
  constexpr DWORD shareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
  return IsDiskFile(
      FileHandle(CreateFileW(path.c_str(), FILE_READ_ATTRIBUTES, shareAll, nullptr, OPEN_EXISTING, 0, nullptr)));
}

// A new, empty file in the same folder; empty where there can be none.
std::wstring MakeSibling(const std::wstring& path) {
  constexpr int attempts = 100;
  const std::wstring stem = path.substr(0, path.rfind(L'\\') + 1) + L"tarvik" + std::to_wstring(GetCurrentProcessId());
  for (int attempt = 0; attempt < attempts; ++attempt) {
    std::wstring sibling = stem + L'-' + std::to_wstring(attempt) + L".tmp";
    if (OpenForWriting(sibling, CREATE_NEW)) return sibling;
    if (GetLastError() != ERROR_FILE_EXISTS) break;
  }
  return {};
}

bool IsLink(const std::wstring& path) {
  return (GetFileAttributesW(path.c_str()) & FILE_ATTRIBUTE_REPARSE_POINT) != 0;
}

// Puts an empty file in the place of the one at the path. It is moved there and the former one not deleted, because a
// move never follows a link.
bool Replace(const std::wstring& path) {
  const std::wstring sibling = MakeSibling(path);
  if (sibling.empty()) return false;
  if (MoveFileExW(sibling.c_str(), path.c_str(), MOVEFILE_REPLACE_EXISTING) != 0) return true;
  DeleteFileW(sibling.c_str());
  return false;
}

// Opens the file at the path without what was in it.
FileHandle OpenAnew(const std::wstring& path) {
  if (!IsReplaceable(path)) return {};
  if (Replace(path)) return OpenForWriting(path, TRUNCATE_EXISTING);
  // There are files that may be written and yet not moved or deleted: one that another program has open, or in a folder
  // that takes no new file.
  if (IsLink(path)) return {};
  constexpr DWORD withOthers = FILE_SHARE_READ | FILE_SHARE_WRITE;
  return FileHandle(CreateFileW(path.c_str(), GENERIC_WRITE, withOthers, nullptr, TRUNCATE_EXISTING, 0, nullptr));
}

}  // namespace

bool DiskFile::Open(const std::string& path) {
  const std::wstring systemPath = SystemPath(path);
  gathered_.clear();
  file_ = OpenForWriting(systemPath, CREATE_NEW);
  if (!file_ && GetLastError() == ERROR_FILE_EXISTS) file_ = OpenAnew(systemPath);
  if (!IsDiskFile(file_)) file_.reset();
  complete_ = static_cast<bool>(file_);
  return complete_;
}

bool DiskFile::Write(std::span<const std::byte> bytes) {
  if (!complete_) return false;
  if (gathered_.size() + bytes.size() > blockSize && !Flush()) return false;
  if (bytes.size() >= blockSize) return WriteThrough(bytes);
  gathered_.insert(gathered_.end(), bytes.begin(), bytes.end());
  return true;
}

bool DiskFile::Close() {
  const bool complete = complete_ && Flush();
  complete_ = false;
  file_.reset();
  return complete;
}

bool DiskFile::WriteThrough(std::span<const std::byte> bytes) {
  constexpr std::size_t mostAtOnce = std::size_t{1} << 30U;  // the call counts in 32 bits
  while (!bytes.empty()) {
    const auto part = bytes.first(std::min(bytes.size(), mostAtOnce));
    DWORD written = 0;
    if (WriteFile(file_.get(), part.data(), static_cast<DWORD>(part.size()), &written, nullptr) == 0 || written == 0) {
      complete_ = false;
      return false;
    }
    bytes = bytes.subspan(written);
  }
  return true;
}

bool DiskFile::Flush() {
  const bool written = WriteThrough(gathered_);
  gathered_.clear();
  return written;
}

}  // namespace tarvik
