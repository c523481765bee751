#include "search/icons/Folders.h"

#include <windows.h>
#include <winioctl.h>
#include <winnetwk.h>

#include <algorithm>
#include <array>
#include <utility>

#include "base/Finally.h"
#include "base/FolderPath.h"
#include "platform/Handles.h"
#include "platform/Paths.h"
#include "platform/SystemFunctions.h"
#include "platform/Text.h"
#include "search/icons/FilePattern.h"
#include "search/icons/MountPoint.h"

namespace tarvik {
namespace {

// Older headers of some compilers lack these.
constexpr DWORD attributeRecallOnOpen = 0x00040000;
constexpr DWORD attributeRecallOnDataAccess = 0x00400000;

constexpr DWORD unlistedFiles = FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM | FILE_ATTRIBUTE_OFFLINE |
                                attributeRecallOnOpen | attributeRecallOnDataAccess;

// A reparse point whose tag has this bit refers to something elsewhere: a symbolic link, a junction.
constexpr DWORD nameSurrogateBit = 0x20000000;

// While the returned object exists, a drive that is not ready is an error to the caller, not a system message box.
Finally StopDriveMessages() {
  DWORD former = 0;
  SetThreadErrorMode(SEM_FAILCRITICALERRORS | SEM_NOOPENFILEERRORBOX, &former);
  return Finally([former] { SetThreadErrorMode(former, nullptr); });
}

// Starts listing the folder; the first entry is then in `entry`.
FindHandle FirstEntry(std::wstring folder, WIN32_FIND_DATAW& entry) {
  if (!folder.ends_with(L'\\')) folder += L'\\';
  // Without short names, which are not needed and cost NTFS time, and in large portions.
  return FindHandle(FindFirstFileExW((folder + L'*').c_str(), FindExInfoBasic, &entry, FindExSearchNameMatch, nullptr,
                                     FIND_FIRST_EX_LARGE_FETCH));
}

void ForEachEntry(const std::string& folder, const Folders::Dependencies::Visit& visit) {
  if (folder.empty()) return;
  const Finally quiet = StopDriveMessages();
  WIN32_FIND_DATAW entry;
  const FindHandle find = FirstEntry(LiteralPath(folder), entry);
  if (!find) return;
  do visit({entry.cFileName, entry.dwFileAttributes, entry.dwReserved0});
  while (FindNextFileW(find.get(), &entry) != 0);
}

// Opens a folder, or the reparse point in its place, to query information about it alone.
FileHandle OpenForQuestions(const std::string& path, DWORD flags) {
  const Finally quiet = StopDriveMessages();
  return FileHandle(CreateFileW(LiteralPath(path).c_str(), 0, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                                nullptr, OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS | flags, nullptr));
}

std::vector<std::byte> ReparseData(const std::string& path) {
  const FileHandle point = OpenForQuestions(path, FILE_FLAG_OPEN_REPARSE_POINT);
  std::vector<std::byte> data(MAXIMUM_REPARSE_DATA_BUFFER_SIZE);
  DWORD size = 0;
  const bool read = point && DeviceIoControl(point.get(), FSCTL_GET_REPARSE_POINT, nullptr, 0, data.data(),
                                             static_cast<DWORD>(data.size()), &size, nullptr) != 0;
  data.resize(read ? size : 0);
  return data;
}

// A link leads elsewhere, perhaps back to a parent folder; a mounted volume looks like one until its data is read. Wine
// gives no tag for its links and for mounted disks; a real reparse point always has one.
bool IsLinkOrMount(const FolderEntry& entry) {
  if ((entry.attributes & FILE_ATTRIBUTE_REPARSE_POINT) == 0) return false;
  return entry.reparseTag == 0 || (entry.reparseTag & nameSurrogateBit) != 0;
}

bool IsSubFolder(const FolderEntry& entry) {
  return (entry.attributes & FILE_ATTRIBUTE_DIRECTORY) != 0 && entry.name != L"." && entry.name != L"..";
}

bool IsListedFile(const FolderEntry& entry) {
  return (entry.attributes & (FILE_ATTRIBUTE_DIRECTORY | unlistedFiles)) == 0;
}

int CompareNames(const std::wstring& a, const std::wstring& b, bool ignoreCase) {
  return CompareStringOrdinal(a.c_str(), static_cast<int>(a.size()), b.c_str(), static_cast<int>(b.size()),
                              static_cast<BOOL>(ignoreCase));
}

// Ordinal, ignoring case; names that differ in case alone, which some file systems allow, are ordered by their codes.
bool ComesBefore(const std::wstring& a, const std::wstring& b) {
  const int order = CompareNames(a, b, true);
  return order != CSTR_EQUAL ? order == CSTR_LESS_THAN : CompareNames(a, b, false) == CSTR_LESS_THAN;
}

std::string ShareOf(char letter) {
  // Without the network functions a drive is still listed, by its letter alone.
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

// A sub-folder before it is added to a list.
struct FoundFolder {
  std::wstring name;
  bool isLinkOrMount = false;
  bool isMountPoint = false;  // by its tag, which junctions have too
};

std::vector<FoundFolder> FoundFolders(const Folders::Dependencies& dependencies, const std::string& folder) {
  std::vector<FoundFolder> found;
  dependencies.forEachEntry(folder, [&](const FolderEntry& entry) {
    if (!IsSubFolder(entry)) return;
    found.push_back({std::wstring(entry.name), IsLinkOrMount(entry), entry.reparseTag == IO_REPARSE_TAG_MOUNT_POINT});
  });
  std::ranges::sort(found, ComesBefore, &FoundFolder::name);
  return found;
}

}  // namespace

Folders::Folders() : Folders({ForEachEntry, ReparseData}) {}

Folders::Folders(Dependencies dependencies) : dependencies_(std::move(dependencies)) {}

std::vector<std::string> Folders::Files(const std::string& folder, const std::string& pattern) {
  std::vector<std::pair<std::wstring, std::string>> names;
  dependencies_.forEachEntry(folder, [&](const FolderEntry& entry) {
    if (!IsListedFile(entry)) return;
    std::string name = ToUtf8(entry.name);
    // The pattern is matched here and not by the system, which would also match short names.
    if (MatchesPattern(name, pattern)) names.emplace_back(entry.name, std::move(name));
  });
  std::ranges::sort(names, [](const auto& a, const auto& b) { return ComesBefore(a.first, b.first); });

  std::vector<std::string> files;
  files.reserve(names.size());
  for (auto& name : names) files.push_back(std::move(name.second));
  return files;
}

std::vector<std::string> Folders::SubFolders(const std::string& folder) {
  std::vector<std::string> paths;
  for (const FoundFolder& found : FoundFolders(dependencies_, folder))
    paths.push_back(JoinPath(folder, ToUtf8(found.name)));
  return paths;
}

std::vector<WalkedFolder> Folders::WalkedFolders(const std::string& folder) {
  std::vector<WalkedFolder> walked;
  for (const FoundFolder& found : FoundFolders(dependencies_, folder)) {
    std::string path = JoinPath(folder, ToUtf8(found.name));
    const bool isMounted = found.isLinkOrMount && found.isMountPoint && IsVolumeMount(dependencies_.reparseData(path));
    if (!found.isLinkOrMount || isMounted) walked.push_back({std::move(path), isMounted});
  }
  return walked;
}

std::string Folders::Identity(const std::string& folder) {
  const FileHandle handle = OpenForQuestions(folder, 0);
  BY_HANDLE_FILE_INFORMATION information;
  if (!handle || GetFileInformationByHandle(handle.get(), &information) == 0) return {};
  return std::to_string(information.dwVolumeSerialNumber) + ' ' + std::to_string(information.nFileIndexHigh) + ' ' +
         std::to_string(information.nFileIndexLow);
}

bool IsReadableFolder(const std::string& path) {
  if (path.empty()) return false;
  const Finally quiet = StopDriveMessages();
  WIN32_FIND_DATAW entry;
  if (FirstEntry(LiteralPath(path), entry)) return true;
  // The root of an empty drive does not even have the entries "." and "..".
  return GetLastError() == ERROR_FILE_NOT_FOUND;
}

bool IsFolder(const std::string& path) {
  if (FolderChain(path).size() < 2) return true;
  const Finally quiet = StopDriveMessages();
  const DWORD attributes = GetFileAttributesW(LiteralPath(path).c_str());
  return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

std::string Drive::Display() const {
  const std::string name = {letter, ':'};
  return label.empty() ? name : name + " [" + label + "]";
}

std::string Drive::Root() const {
  return {static_cast<char>(letter - 'a' + 'A'), ':', '\\'};
}

std::vector<Drive> Drives() {
  const Finally quiet = StopDriveMessages();
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
