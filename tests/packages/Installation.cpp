#include "packages/Installation.h"

#include <gtest/gtest.h>
#include <tlhelp32.h>

#include <array>

#include "driver/Waiting.h"

namespace tarvik::end_to_end {

namespace fs = std::filesystem;
namespace {

std::array<BYTE, SECURITY_MAX_SID_SIZE> Administrators() {
  std::array<BYTE, SECURITY_MAX_SID_SIZE> sid{};
  DWORD size = sid.size();
  EXPECT_NE(CreateWellKnownSid(WinBuiltinAdministratorsSid, nullptr, sid.data(), &size), FALSE);
  return sid;
}

KernelHandle OwnToken(DWORD rights) {
  HANDLE token = nullptr;
  EXPECT_NE(OpenProcessToken(GetCurrentProcess(), rights, &token), FALSE);
  return KernelHandle(token);
}

// Starts a process with that token, or with this process's if there is none.
KernelHandle StartWith(HANDLE token, const fs::path& program, const std::wstring& arguments) {
  std::wstring command = L"\"" + program.wstring() + L"\" " + arguments;
  STARTUPINFOW startup{};
  startup.cb = sizeof startup;
  PROCESS_INFORMATION information{};
  EXPECT_NE(CreateProcessAsUserW(token, program.c_str(), command.data(), nullptr, nullptr, FALSE, 0, nullptr,
                                 program.parent_path().c_str(), &startup, &information),
            FALSE)
      << GetLastError();
  const KernelHandle thread(information.hThread);
  return KernelHandle(information.hProcess);
}

}  // namespace

KernelHandle Start(const fs::path& program, const std::wstring& arguments) {
  return StartWith(nullptr, program, arguments);
}

KernelHandle StartAsOrdinaryUser(const fs::path& program) {
  auto administrators = Administrators();
  SID_AND_ATTRIBUTES denied{administrators.data(), 0};
  HANDLE token = nullptr;
  EXPECT_NE(CreateRestrictedToken(OwnToken(TOKEN_DUPLICATE | TOKEN_ASSIGN_PRIMARY | TOKEN_QUERY).get(),
                                  DISABLE_MAX_PRIVILEGE, 1, &denied, 0, nullptr, 0, nullptr, &token),
            FALSE)
      << GetLastError();
  const KernelHandle ordinary(token);
  return StartWith(ordinary.get(), program, {});
}

bool IsOfAdministrator(HANDLE process) {
  HANDLE token = nullptr;
  EXPECT_NE(OpenProcessToken(process, TOKEN_DUPLICATE | TOKEN_QUERY, &token), FALSE);
  const KernelHandle primary(token);
  EXPECT_NE(DuplicateToken(primary.get(), SecurityIdentification, &token), FALSE);
  const KernelHandle asked(token);
  auto administrators = Administrators();
  BOOL member = FALSE;
  EXPECT_NE(CheckTokenMembership(asked.get(), administrators.data(), &member), FALSE);
  return member != FALSE;
}

Control WaitForWindowWith(int id, HANDLE process) {
  struct Search {
    int id;
    DWORD process;
    HWND found;
  } search{id, process == nullptr ? 0 : GetProcessId(process), nullptr};
  Eventually([&search] {
    EnumWindows(
        [](HWND window, LPARAM data) {
          auto& wanted = *reinterpret_cast<Search*>(data);
          DWORD owner = 0;
          GetWindowThreadProcessId(window, &owner);
          if (wanted.process != 0 && owner != wanted.process) return TRUE;
          if (IsWindowVisible(window) == FALSE || GetDlgItem(window, wanted.id) == nullptr) return TRUE;
          wanted.found = window;
          return FALSE;
        },
        reinterpret_cast<LPARAM>(&search));
    return search.found != nullptr;
  });
  return Control(search.found);
}

KernelHandle ProcessOf(Control window) {
  DWORD id = 0;
  GetWindowThreadProcessId(window.Window(), &id);
  return KernelHandle(OpenProcess(PROCESS_QUERY_INFORMATION | SYNCHRONIZE, FALSE, id));
}

DWORD ParentOf(HANDLE process) {
  const KernelHandle list(CreateToolhelp32Snapshot(TH32CS_SNAPPROCESS, 0));
  PROCESSENTRY32W entry{};
  entry.dwSize = sizeof entry;
  for (BOOL more = Process32FirstW(list.get(), &entry); more != FALSE; more = Process32NextW(list.get(), &entry)) {
    if (entry.th32ProcessID == GetProcessId(process)) return entry.th32ParentProcessID;
  }
  return 0;
}

}  // namespace tarvik::end_to_end
