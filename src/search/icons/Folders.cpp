#include "search/icons/Folders.h"

#include <windows.h>
#include <winnetwk.h>

#include <algorithm>
#include <array>
#include <utility>

#include "base/FolderPath.h"
#include "platform/Handles.h"
#include "platform/Paths.h"
#include "platform/SystemFunctions.h"
#include "platform/Text.h"
#include "search/icons/FilePattern.h"

namespace tarvik {
namespace {

// The older headers of some compilers do not know these.
constexpr DWORD attributeRecallOnOpen = 0x00040000;
constexpr DWORD attributeRecallOnDataAccess = 0x00400000;

constexpr DWORD unlistedFiles = FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM | FILE_ATTRIBUTE_OFFLINE |
                                attributeRecallOnOpen | attributeRecallOnDataAccess;

// A reparse point whose tag has this bit stands for something elsewhere: a symbolic link, a junction.
constexpr DWORD nameSurrogateBit = 0x20000000;

// While it lives, a drive that is not ready is an error to the caller, not a system message box.
class NoDriveMessages {
 public:
  NoDriveMessages() { SetThreadErrorMode(SEM_FAILCRITICALERRORS | SEM_NOOPENFILEERRORBOX, &former_); }
  ~NoDriveMessages() { SetThreadErrorMode(former_, nullptr); }
  NoDriveMessages(const NoDriveMessages&) = delete;
  NoDriveMessages& operator=(const NoDriveMessages&) = delete;

 private:
  DWORD former_ = 0;
};

// Starts listing what is in the folder; the first entry is then in `entry`.
FindHandle FirstEntry(std::wstring folder, WIN32_FIND_DATAW& entry) {
  if (!folder.ends_with(L'\\')) folder += L'\\';
  // Without short names, which nobody here wants and NTFS needs time for, and in large portions.
  return FindHandle(FindFirstFileExW((folder + L'*').c_str(), FindExInfoBasic, &entry, FindExSearchNameMatch, nullptr,
                                     FIND_FIRST_EX_LARGE_FETCH));
}

// Calls visit(entry) for each entry of the folder.
template <typename Visit>
void ForEachEntry(const std::string& folder, Visit visit) {
  if (folder.empty()) return;
  const NoDriveMessages quiet;
  WIN32_FIND_DATAW entry;
  const FindHandle find = FirstEntry(LiteralPath(folder), entry);
  if (!find) return;
  do visit(entry);
  while (FindNextFileW(find.get(), &entry) != 0);
}

// A link could lead back to a folder above. Wine gives no tag for its links; a real reparse point always has one.
bool IsLink(const WIN32_FIND_DATAW& entry) {
  if ((entry.dwFileAttributes & FILE_ATTRIBUTE_REPARSE_POINT) == 0) return false;
  return entry.dwReserved0 == 0 || (entry.dwReserved0 & nameSurrogateBit) != 0;
}

bool IsSubFolder(const WIN32_FIND_DATAW& entry) {
  const std::wstring_view name = entry.cFileName;
  return (entry.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0 && name != L"." && name != L".." && !IsLink(entry);
}

bool IsListedFile(const WIN32_FIND_DATAW& entry) {
  return (entry.dwFileAttributes & (FILE_ATTRIBUTE_DIRECTORY | unlistedFiles)) == 0;
}

int CompareNames(const std::wstring& a, const std::wstring& b, bool ignoreCase) {
  return CompareStringOrdinal(a.c_str(), static_cast<int>(a.size()), b.c_str(), static_cast<int>(b.size()),
                              static_cast<BOOL>(ignoreCase));
}

// Ordinal, case ignored; names that differ in case alone, which some file systems hold, stand by their codes.
bool StandsBefore(const std::wstring& a, const std::wstring& b) {
  const int order = CompareNames(a, b, true);
  return order != CSTR_EQUAL ? order == CSTR_LESS_THAN : CompareNames(a, b, false) == CSTR_LESS_THAN;
}

std::string ShareOf(char letter) {
  // Without the network's functions a drive is still listed, by its letter alone.
  const auto connection = late::WNetGetConnectionW.Find();
  if (connection == nullptr) return {};
  const std::wstring device = {static_cast<wchar_t>(letter), L':'};
  std::array<wchar_t, 1024> share{};
  DWORD length = share.size();
  return connection(device.c_str(), share.data(), &length) == NO_ERROR ? ToUtf8(share.data()) : std::string();
}

std::string LabelOf(const Drive& drive) {
  const std::wstring root = ToWide(drive.Root());
  const UINT type = GetDriveTypeW(root.c_str());
  if (type == DRIVE_REMOTE) return ShareOf(drive.letter);
  const bool floppy = type == DRIVE_REMOVABLE && drive.letter <= 'b';
  if (floppy) return {};
  std::array<wchar_t, MAX_PATH + 1> label{};
  const DWORD size = label.size();
  if (GetVolumeInformationW(root.c_str(), label.data(), size, nullptr, nullptr, nullptr, nullptr, 0) == 0) return {};
  return ToUtf8(label.data());
}

}  // namespace

std::vector<std::string> Folders::Files(const std::string& folder, const std::string& pattern) {
  std::vector<std::pair<std::wstring, std::string>> names;
  ForEachEntry(folder, [&](const WIN32_FIND_DATAW& entry) {
    if (!IsListedFile(entry)) return;
    std::string name = ToUtf8(entry.cFileName);
    // The pattern is judged here and not by the system, which would also look at short names.
    if (MatchesPattern(name, pattern)) names.emplace_back(entry.cFileName, std::move(name));
  });
  std::sort(names.begin(), names.end(), [](const auto& a, const auto& b) { return StandsBefore(a.first, b.first); });

  std::vector<std::string> files;
  files.reserve(names.size());
  for (auto& name : names) files.push_back(std::move(name.second));
  return files;
}

std::vector<std::string> Folders::SubFolders(const std::string& folder) {
  std::vector<std::wstring> names;
  ForEachEntry(folder, [&](const WIN32_FIND_DATAW& entry) {
    if (IsSubFolder(entry)) names.emplace_back(entry.cFileName);
  });
  std::sort(names.begin(), names.end(), StandsBefore);

  std::vector<std::string> paths;
  paths.reserve(names.size());
  for (const std::wstring& name : names) paths.push_back(JoinPath(folder, ToUtf8(name)));
  return paths;
}

bool IsReadableFolder(const std::string& path) {
  if (path.empty()) return false;
  const NoDriveMessages quiet;
  WIN32_FIND_DATAW entry;
  if (FirstEntry(LiteralPath(path), entry)) return true;
  // The root of an empty drive has not even the entries "." and "..".
  return GetLastError() == ERROR_FILE_NOT_FOUND;
}

std::string Drive::Display() const {
  const std::string name = {letter, ':'};
  return label.empty() ? name : name + " [" + label + "]";
}

std::string Drive::Root() const {
  return {static_cast<char>(letter - 'a' + 'A'), ':', '\\'};
}

std::vector<Drive> Drives() {
  const NoDriveMessages quiet;
  std::vector<Drive> drives;
  const DWORD present = GetLogicalDrives();
  for (unsigned number = 0; number < 26; ++number) {
    if ((present >> number & 1U) == 0) continue;
    Drive drive{static_cast<char>('a' + number), {}};
    drive.label = LabelOf(drive);
    drives.push_back(std::move(drive));
  }
  return drives;
}

}  // namespace tarvik
