#include "platform/DiskFile.h"

#include <windows.h>

#include <algorithm>
#include <span>

#include "platform/Paths.h"
#include "platform/SiblingFile.h"

namespace tarvik {
namespace {

constexpr std::size_t blockSize = std::size_t{64} * 1024;

constexpr DWORD shareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

bool IsDiskFile(const FileHandle& file) {
  return file && GetFileType(file.get()) == FILE_TYPE_DISK;
}

FileHandle OpenForAttributes(const std::wstring& path) {
  constexpr DWORD foldersAndLinksToo = FILE_FLAG_BACKUP_SEMANTICS | FILE_FLAG_OPEN_REPARSE_POINT;
  return FileHandle(
      CreateFileW(path.c_str(), FILE_READ_ATTRIBUTES, shareAll, nullptr, OPEN_EXISTING, foldersAndLinksToo, nullptr));
}

// The path with links, 8.3 names and mounted folders resolved; empty if the system does not know it.
std::wstring FinalPath(const FileHandle& file) {
  const DWORD size = file ? GetFinalPathNameByHandleW(file.get(), nullptr, 0, 0) : 0;
  std::wstring path(size, L'\0');
  const DWORD length = size == 0 ? 0 : GetFinalPathNameByHandleW(file.get(), path.data(), size, 0);
  path.resize(length < size ? length : 0);
  return path;
}

std::wstring FolderOf(const std::wstring& path) {
  const std::size_t end = path.find_last_of(L"\\/:");
  return end == std::wstring::npos ? L"." : path.substr(0, end + 1);
}

// The path of the directory entry of this name: what FinalPath returns for it if it is not a link.
std::wstring PathOfEntry(const std::wstring& path) {
  WIN32_FIND_DATAW entry{};
  const FindHandle found(FindFirstFileW(path.c_str(), &entry));
  std::wstring folder = FinalPath(OpenForAttributes(FolderOf(path)));
  if (!found || folder.empty()) return {};
  if (!folder.ends_with(L'\\')) folder += L'\\';
  return folder + static_cast<const wchar_t*>(entry.cFileName);
}

// What exists at the path of a file to be written.
struct Existing {
  bool replaceable = false;
  bool isLink = false;
  DWORD attributes = INVALID_FILE_ATTRIBUTES;
  std::wstring attributesOf;  // the path that they belong to: under Wine that of a link's target
};

Existing LookAt(const std::wstring& path) {
  Existing existing;
  existing.attributes = GetFileAttributesW(path.c_str());
  existing.attributesOf = path;
  if (existing.attributes == INVALID_FILE_ATTRIBUTES) {
    // Under Wine this is a dangling link. A pipe has no attributes there either, but no file can be moved over it.
    existing.replaceable = true;
    existing.isLink = true;
    return existing;
  }
  const FileHandle file = OpenForAttributes(path);
  existing.replaceable = (existing.attributes & FILE_ATTRIBUTE_DIRECTORY) == 0 && IsDiskFile(file);
  existing.isLink = (existing.attributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0;
  if (existing.isLink || !existing.replaceable) return existing;
  // Wine does not report that a file is a link, but opens its target.
  const std::wstring finalPath = FinalPath(file);
  const std::wstring own = PathOfEntry(path);
  if (finalPath.empty() || own.empty() ||
      CompareStringOrdinal(finalPath.c_str(), -1, own.c_str(), -1, TRUE) == CSTR_EQUAL)
    return existing;
  existing.isLink = true;
  existing.attributesOf = finalPath;
  return existing;
}

// It must share the file with a program that writes it, so with another copy of this one, too: the lock keeps that
// away.
FileHandle OpenInPlace(const std::wstring& path) {
  constexpr DWORD withOthers = FILE_SHARE_READ | FILE_SHARE_WRITE;
  FileHandle file(CreateFileW(path.c_str(), GENERIC_WRITE, withOthers, nullptr, OPEN_EXISTING, 0, nullptr));
  if (file && (LockFile(file.get(), 0, 0, MAXDWORD, MAXDWORD) == 0 || SetEndOfFile(file.get()) == 0)) file.reset();
  return file;
}

// Removes the existing file from its name and opens an empty one there: steps 2 to 5 (see DiskFile).
FileHandle DeleteExistingTarget(const std::wstring& path, ReadOnlyFile readOnly) {
  const Existing existing = LookAt(path);
  if (!existing.replaceable) return {};
  const bool isReadOnly =
      existing.attributes != INVALID_FILE_ATTRIBUTES && (existing.attributes & FILE_ATTRIBUTE_READONLY) != 0;
  if (isReadOnly && (readOnly == ReadOnlyFile::Refused ||
                     SetFileAttributesW(existing.attributesOf.c_str(), FILE_ATTRIBUTE_NORMAL) == 0))
    return {};
  FileHandle file = SiblingFile(path).MoveTo(path);
  if (!file && !existing.isLink) file = OpenInPlace(path);
  // A file that was not replaced gets its attributes back, be it the file itself or the target of a replaced link.
  if (isReadOnly && (!file || existing.attributesOf != path))
    SetFileAttributesW(existing.attributesOf.c_str(), existing.attributes);
  return file;
}

}  // namespace

bool DiskFile::Open(const std::string& path, ReadOnlyFile readOnly) {
  const std::wstring systemPath = SystemPath(path);
  gathered_.clear();
  file_.reset();
  file_.reset(CreateFileW(systemPath.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW, FILE_ATTRIBUTE_NORMAL, nullptr));
  if (!file_ && GetLastError() == ERROR_FILE_EXISTS) file_ = DeleteExistingTarget(systemPath, readOnly);
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
  constexpr std::size_t maxAtOnce = std::size_t{1} << 30U;  // the call's byte count has 32 bits
  while (!bytes.empty()) {
    const auto part = bytes.first(std::min(bytes.size(), maxAtOnce));
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

std::uint64_t FileLength(const std::string& path) {
  WIN32_FILE_ATTRIBUTE_DATA data{};
  if (GetFileAttributesExW(SystemPath(path).c_str(), GetFileExInfoStandard, &data) == 0) return 0;
  ULARGE_INTEGER length;
  length.LowPart = data.nFileSizeLow;
  length.HighPart = data.nFileSizeHigh;
  return length.QuadPart;
}

}  // namespace tarvik
