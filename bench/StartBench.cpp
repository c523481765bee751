// The time from the start of the program's process to its first window on the screen, compared with a program of one
// empty window and with one that only shows the dialog of the same window; and the program's size.

#include <windows.h>

#include <cstdio>
#include <filesystem>
#include <stdexcept>

#include "Measure.h"
#include "platform/Handles.h"

namespace tarvik::bench {
namespace {

namespace fs = std::filesystem;

constexpr int rounds = 41;

fs::path PathInBuild(const wchar_t* relativePath) {
  wchar_t own[MAX_PATH] = {};
  GetModuleFileNameW(nullptr, own, MAX_PATH);
  return (fs::path(own).parent_path() / relativePath).lexically_normal();
}

bool ShowsWindow(DWORD process) {
  struct Search {
    DWORD process;
    bool found;
  } search{process, false};
  EnumWindows(
      [](HWND window, LPARAM data) -> BOOL {
        auto& wanted = *reinterpret_cast<Search*>(data);
        DWORD owner = 0;
        GetWindowThreadProcessId(window, &owner);
        wanted.found = owner == wanted.process && IsWindowVisible(window) != FALSE;
        return wanted.found ? FALSE : TRUE;
      },
      reinterpret_cast<LPARAM>(&search));
  return search.found;
}

// A started program; it is ended before the next one starts.
class Started {
 public:
  void Start(const fs::path& program) {
    STARTUPINFOW startup{};
    startup.cb = sizeof startup;
    PROCESS_INFORMATION information{};
    if (CreateProcessW(program.c_str(), nullptr, nullptr, nullptr, FALSE, 0, nullptr, nullptr, &startup,
                       &information) == FALSE)
      throw std::runtime_error("the program cannot be started: " + program.string());
    process_.reset(information.hProcess);
    const KernelHandle thread(information.hThread);
    while (!ShowsWindow(information.dwProcessId)) Sleep(1);
  }
  void End() {
    if (!process_) return;
    TerminateProcess(process_.get(), 0);
    WaitForSingleObject(process_.get(), INFINITE);
    process_.reset();
  }

 private:
  KernelHandle process_;
};

}  // namespace
}  // namespace tarvik::bench

int main() {
  using namespace tarvik::bench;
  const fs::path program = PathInBuild(TARVIK_PROGRAM);
  const fs::path emptyWindow = PathInBuild(L"empty_window.exe");
  const fs::path dialogWindow = PathInBuild(L"dialog_window.exe");
  Started started;
  const auto way = [&](const char* name, const fs::path& file) {
    return Way{.name = name, .run = [&] { started.Start(file); }, .prepare = [&] { started.End(); }};
  };
  Compare("from the start to the first window",
          {way("one empty window", emptyWindow), way("the dialog alone", dialogWindow), way("Tarvik", program)}, rounds,
          Times::Clock);
  started.End();
  std::printf("tarvik.exe: %.2f MB\n", static_cast<double>(fs::file_size(program)) / (1024.0 * 1024.0));
  return 0;
}
