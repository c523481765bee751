#include "platform/TemporaryFolder.h"

#include <gtest/gtest.h>
#include <windows.h>
#include <winioctl.h>

#include <array>

#include "base/FolderPath.h"
#include "platform/Handles.h"
#include "platform/Paths.h"
#include "platform/Text.h"

namespace tarvik::support {
namespace {

std::wstring UniqueName() {
  static int made = 0;
  return L"tarvik-" + std::to_wstring(GetTickCount64()) + L"-" + std::to_wstring(GetCurrentProcessId()) + L"-" +
         std::to_wstring(++made);
}

void RemoveTree(const std::wstring& path) {
  WIN32_FIND_DATAW entry;
  {
    const FindHandle find(FindFirstFileW((path + L"\\*").c_str(), &entry));
    if (!find) return;
    do {
      const std::wstring_view name = entry.cFileName;
      if (name == L"." || name == L"..") continue;
      const std::wstring inside = path + L"\\" + entry.cFileName;
      SetFileAttributesW(inside.c_str(), FILE_ATTRIBUTE_NORMAL);
      const bool link = (entry.dwFileAttributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0;
      if ((entry.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) == 0) {
        DeleteFileW(inside.c_str());
      } else if (link) {
        RemoveDirectoryW(inside.c_str());
      } else {
        RemoveTree(inside);
      }
    } while (FindNextFileW(find.get(), &entry) != 0);
  }
  RemoveDirectoryW(path.c_str());
}

// Wine cannot make symbolic links itself, but it can run the host system's program for that.
using UnixName = char*(CDECL*)(const wchar_t* path);

UnixName UnixNameFunction() {
  const FARPROC address = GetProcAddress(GetModuleHandleW(L"kernel32.dll"), "wine_get_unix_file_name");
  return reinterpret_cast<UnixName>(reinterpret_cast<void*>(address));
}

// Runs a program of the host system below Wine and waits until the path exists, or no longer exists. (Wine cannot wait
// for such a process.)
void RunBelowWine(const wchar_t* program, std::wstring command, const std::wstring& path, bool thereAfterwards) {
  STARTUPINFOW startup{};
  startup.cb = sizeof startup;
  PROCESS_INFORMATION process{};
  ASSERT_NE(CreateProcessW(program, command.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &startup, &process),
            0);
  const KernelHandle processOwner(process.hProcess);
  const KernelHandle threadOwner(process.hThread);
  const ULONGLONG deadline = GetTickCount64() + 30000;
  while ((GetFileAttributesW(path.c_str()) != INVALID_FILE_ATTRIBUTES) != thereAfterwards &&
         GetTickCount64() < deadline)
    Sleep(1);
}

std::wstring Quote(const char* text) {
  return L" \"" + ToWide(text) + L"\"";
}

void MakeSystemLink(const std::wstring& link, const std::wstring& target) {
  if (const UnixName unixName = UnixNameFunction()) {
    RunBelowWine(L"Z:\\bin\\ln", L"ln -s" + Quote(unixName(target.c_str())) + Quote(unixName(link.c_str())), link,
                 true);
    return;
  }
  constexpr DWORD withoutRights = 2;
  const bool folder = (GetFileAttributesW(target.c_str()) & FILE_ATTRIBUTE_DIRECTORY) != 0;
  CreateSymbolicLinkW(link.c_str(), target.c_str(), withoutRights | (folder ? SYMBOLIC_LINK_FLAG_DIRECTORY : 0));
}

// Wine would delete the link's target.
void RemoveLink(const std::wstring& link) {
  if (const UnixName unixName = UnixNameFunction())
    RunBelowWine(L"Z:\\bin\\rm", L"rm -f" + Quote(unixName(link.c_str())), link, false);
}

}  // namespace

TemporaryFolder::TemporaryFolder() : path_(TempFolder() + ToUtf8(UniqueName())) {
  EXPECT_NE(CreateDirectoryW(LiteralPath(path_).c_str(), nullptr), 0) << path_;
}

TemporaryFolder::~TemporaryFolder() {
  for (const std::wstring& link : links_) RemoveLink(link);
  RemoveTree(LiteralPath(path_));
}

std::string TemporaryFolder::In(std::string_view name) const {
  return JoinPath(path_, name);
}

std::string TemporaryFolder::MakeFolder(std::string_view name) const {
  EXPECT_NE(CreateDirectoryW(LiteralPath(In(name)).c_str(), nullptr), 0) << name;
  return In(name);
}

std::string TemporaryFolder::MakeFile(std::string_view name, std::span<const std::byte> bytes) const {
  const FileHandle file(CreateFileW(LiteralPath(In(name)).c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW, 0, nullptr));
  DWORD written = 0;
  WriteFile(file.get(), bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr);
  EXPECT_TRUE(file && written == bytes.size()) << name;
  return In(name);
}

std::string TemporaryFolder::MakeFile(std::string_view name, std::string_view text) const {
  return MakeFile(name, std::as_bytes(std::span(text)));
}

std::string TemporaryFolder::MakeSparseFile(std::string_view name, std::span<const std::byte> start,
                                            std::uint64_t size) const {
  const std::string path = MakeFile(name, start);
  const FileHandle file(CreateFileW(LiteralPath(path).c_str(), GENERIC_WRITE, 0, nullptr, OPEN_EXISTING, 0, nullptr));
  DWORD written = 0;
  // Wine's files are always sparse, and it does not support the request.
  DeviceIoControl(file.get(), FSCTL_SET_SPARSE, nullptr, 0, nullptr, 0, &written, nullptr);
  LARGE_INTEGER end;
  end.QuadPart = static_cast<LONGLONG>(size);
  EXPECT_TRUE(SetFilePointerEx(file.get(), end, nullptr, FILE_BEGIN) != 0 && SetEndOfFile(file.get()) != 0) << name;
  return path;
}

std::string TemporaryFolder::MakeLink(std::string_view name, const std::string& target) {
  const std::wstring link = ToWide(In(name));
  MakeSystemLink(link, ToWide(target));
  links_.push_back(link);
  EXPECT_NE(GetFileAttributesW(link.c_str()), INVALID_FILE_ATTRIBUTES) << name;
  return In(name);
}

void AddAttributes(const std::string& path, unsigned long attributes) {
  const std::wstring wide = LiteralPath(path);
  EXPECT_NE(SetFileAttributesW(wide.c_str(), GetFileAttributesW(wide.c_str()) | attributes), 0) << path;
}

std::string ReadAll(const std::string& path) {
  const FileHandle file(CreateFileW(LiteralPath(path).c_str(), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE,
                                    nullptr, OPEN_EXISTING, 0, nullptr));
  std::string content;
  std::array<char, 4096> block;
  DWORD count = 0;
  while (file && ReadFile(file.get(), block.data(), block.size(), &count, nullptr) != 0 && count != 0)
    content.append(block.data(), count);
  return content;
}

}  // namespace tarvik::support
