#include "driver/Program.h"

#include <psapi.h>
#include <windows.h>

#include <commctrl.h>
#include <winternl.h>

#include <algorithm>
#include <span>
#include <stdexcept>
#include <utility>

#include "driver/UnixProgram.h"
#include "driver/Waiting.h"
#include "platform/Text.h"
#include "resource.h"

namespace tarvik::end_to_end {
namespace {

namespace fs = std::filesystem;

constexpr int boxTextId = 0xFFFF;

std::vector<Control> ChildrenOf(HWND window) {
  std::vector<Control> children;
  EnumChildWindows(
      window,
      [](HWND child, LPARAM list) {
        reinterpret_cast<std::vector<Control>*>(list)->emplace_back(child);
        return TRUE;
      },
      reinterpret_cast<LPARAM>(&children));
  return children;
}

std::wstring ClassOf(HWND window) {
  wchar_t name[64] = {};
  GetClassNameW(window, name, static_cast<int>(std::size(name)));
  return name;
}

// Common to all message boxes of the system: the class, and a text with an id of its own.
bool IsBox(Control window) {
  return ClassOf(window.Window()) == L"#32770" && window.FindChild(boxTextId);
}

}  // namespace

std::filesystem::path BuiltFile(const char* relativePath) {
  std::wstring path(32768, L'\0');
  path.resize(GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size())));
  return (fs::path(path).parent_path() / ToWide(relativePath)).lexically_normal();
}

std::string Box::Text() const {
  return window_.Child(boxTextId).Text();
}

std::vector<int> Box::Buttons() const {
  std::vector<int> ids;
  for (const Control child : ChildrenOf(window_.Window())) {
    if (ClassOf(child.Window()) == L"Button") ids.push_back(GetDlgCtrlID(child.Window()));
  }
  return ids;
}

Control Box::Sign() const {
  for (const Control child : ChildrenOf(window_.Window())) {
    const LONG_PTR style = GetWindowLongPtrW(child.Window(), GWL_STYLE);
    if (ClassOf(child.Window()) == L"Static" && (style & SS_TYPEMASK) == SS_ICON) return child;
  }
  return {};
}

void Box::Press(int button) const {
  window_.Post(WM_COMMAND, static_cast<WPARAM>(button));
  if (!Eventually([&] { return IsWindow(window_.Window()) == 0; })) throw std::runtime_error("the box stays");
}

Program::Program(const std::string& folder, const std::string& name)
    : Program(fs::path(ToWide(folder)) / ToWide(name)) {
  fs::copy_file(BuiltFile(TARVIK_PROGRAM), path_);
}

Program::Program(fs::path copy) : path_(std::move(copy)), job_(CreateJobObjectW(nullptr, nullptr)) {
  JOBOBJECT_EXTENDED_LIMIT_INFORMATION limits{};
  limits.BasicLimitInformation.LimitFlags = JOB_OBJECT_LIMIT_KILL_ON_JOB_CLOSE;
  SetInformationJobObject(job_.get(), JobObjectExtendedLimitInformation, &limits, sizeof limits);
}

Program::~Program() {
  if (!IsRunning()) return;
  TerminateProcess(process_.get(), 1);
  WaitForSingleObject(process_.get(), INFINITE);
}

fs::path Program::SettingsFile() const {
  return fs::path(path_).replace_extension(L".dat");
}

void Program::Launch() {
  STARTUPINFOW startup{};
  startup.cb = sizeof startup;
  PROCESS_INFORMATION process{};
  if (CreateProcessW(path_.c_str(), nullptr, nullptr, nullptr, FALSE, CREATE_SUSPENDED, nullptr,
                     path_.parent_path().c_str(), &startup, &process) == 0) {
    throw std::runtime_error("the program cannot be started");
  }
  process_.reset(process.hProcess);
  const KernelHandle thread(process.hThread);
  processId_ = process.dwProcessId;
  threadId_ = process.dwThreadId;
  AssignProcessToJobObject(job_.get(), process_.get());
  ResumeThread(thread.get());
  window_ = Control();
}

Control Program::WaitForStartUpWindow() const {
  return WaitForWindowWith(FrmSpash_lblDescription);
}

void Program::WaitForMainWindow() {
  window_ = WaitForWindowWith(FrmFindIcon_CmdFind);
  BringToFront();
}

void Program::Start() {
  Launch();
  PassStartUpWindow();
}

void Program::PassStartUpWindow() {
  WaitForStartUpWindow().Post(WM_TIMER, FrmSpash_Timer1);
  WaitForMainWindow();
}

void Program::StartWithFilesUpTo(int bytes) {
  constexpr int unit = 512;  // of the shell's limit
  // Exceeding the limit raises a signal that would end the process; with the signal ignored, the write fails instead.
  RunUnix("trap '' XFSZ\nulimit -f " + std::to_string(bytes / unit) + "\nwine " + QuoteForUnix(path_) +
          " >/dev/null 2>&1 &");
  if (!Eventually([this] { return Adopt(); })) throw std::runtime_error("the program does not start");
  PassStartUpWindow();
}

bool Program::Adopt() {
  DWORD ids[1024] = {};
  DWORD size = 0;
  EnumProcesses(ids, sizeof ids, &size);
  for (const DWORD id : std::span(ids).first(size / sizeof *ids)) {
    KernelHandle process(OpenProcess(PROCESS_ALL_ACCESS, FALSE, id));
    wchar_t image[MAX_PATH] = {};
    DWORD length = MAX_PATH;
    if (!process || QueryFullProcessImageNameW(process.get(), 0, image, &length) == 0 || image != path_) continue;
    AssignProcessToJobObject(job_.get(), process.get());
    process_ = std::move(process);
    processId_ = id;
    threadId_ = GetWindowThreadProcessId(WaitForStartUpWindow().Window(), nullptr);
    return true;
  }
  return false;
}

bool Program::IsRunning() const {
  return process_ && WaitForSingleObject(process_.get(), 0) == WAIT_TIMEOUT;
}

DWORD Program::WaitForEnd() {
  const auto wait = static_cast<DWORD>(std::chrono::milliseconds(patience).count());
  if (WaitForSingleObject(process_.get(), wait) != WAIT_OBJECT_0) throw std::runtime_error("the program does not end");
  DWORD code = 0;
  GetExitCodeProcess(process_.get(), &code);
  return code;
}

DWORD Program::Close() {
  window_.Post(WM_CLOSE);
  return WaitForEnd();
}

void Program::Suspend() {
  const KernelHandle thread(OpenThread(THREAD_SUSPEND_RESUME, FALSE, threadId_));
  if (SuspendThread(thread.get()) == static_cast<DWORD>(-1)) throw std::runtime_error("the program cannot be stopped");
}

void Program::Resume() {
  const KernelHandle thread(OpenThread(THREAD_SUSPEND_RESUME, FALSE, threadId_));
  ResumeThread(thread.get());
}

std::string Program::CurrentFolder() const {
  // Offsets in a 64-bit process: of the parameters in the PEB, and of the current folder (a UNICODE_STRING) in the
  // parameters.
  constexpr std::size_t parametersOffset = 0x20;
  constexpr std::size_t currentFolderOffset = 0x38;
  PROCESS_BASIC_INFORMATION process{};
  NtQueryInformationProcess(process_.get(), ProcessBasicInformation, &process, sizeof process, nullptr);
  const auto read = [this](const std::byte* address, void* target, std::size_t size) {
    if (ReadProcessMemory(process_.get(), address, target, size, nullptr) == 0)
      throw std::runtime_error("the program's memory cannot be read");
  };
  const std::byte* parameters = nullptr;
  read(reinterpret_cast<const std::byte*>(process.PebBaseAddress) + parametersOffset, &parameters, sizeof parameters);
  UNICODE_STRING folder{};
  read(parameters + currentFolderOffset, &folder, sizeof folder);
  std::wstring text(folder.Length / sizeof(wchar_t), L'\0');
  read(reinterpret_cast<const std::byte*>(folder.Buffer), text.data(), folder.Length);
  return ToUtf8(text);
}

Control Program::Item(int id) const {
  return window_.Child(id);
}

void Program::BringToFront() const {
  // Another window that is just opening may take the foreground back.
  if (!Eventually([&] {
        if (GetForegroundWindow() == window_.Window()) return true;
        SetForegroundWindow(window_.Window());
        return false;
      }))
    throw std::runtime_error("the main window does not come to the front");
}

Control Program::Focus() const {
  GUITHREADINFO info{};
  info.cbSize = sizeof info;
  GetGUIThreadInfo(threadId_, &info);
  return Control(info.hwndFocus);
}

std::optional<Control> Program::OpenMenu() const {
  for (const Control window : TopWindows()) {
    if (ClassOf(window.Window()) == L"#32768") return window;
  }
  return std::nullopt;
}

std::optional<Control> Program::ShownTip() const {
  for (const Control window : TopWindows()) {
    if (ClassOf(window.Window()) == TOOLTIPS_CLASSW) return window;
  }
  return std::nullopt;
}

std::optional<Box> Program::FindBox() const {
  for (const Control window : TopWindows()) {
    if (IsBox(window)) return Box(window);
  }
  return std::nullopt;
}

Box Program::WaitForBox() const {
  std::optional<Box> box;
  if (!Eventually([&] { return (box = FindBox()).has_value(); })) throw std::runtime_error("no message box comes up");
  return *box;
}

int Program::CountWindows() const {
  // Not tool tips: one comes up by itself if the pointer rests.
  return static_cast<int>(
      std::ranges::count_if(TopWindows(), [](Control window) { return ClassOf(window.Window()) != TOOLTIPS_CLASSW; }));
}

RECT Program::Extent() const {
  RECT extent{};
  for (const Control window : TopWindows()) {
    const RECT bounds = window.Bounds();
    const RECT former = extent;
    UnionRect(&extent, &former, &bounds);
  }
  return extent;
}

int Program::CountWindowsWith(int id) const {
  return static_cast<int>(
      std::ranges::count_if(TopWindows(), [id](Control window) { return window.FindChild(id).has_value(); }));
}

Control Program::WaitForWindowWith(int id) const {
  Control found;
  const bool shown = Eventually([&] {
    if (!IsRunning()) throw std::runtime_error("the program ended before its window came up");
    for (const Control window : TopWindows()) {
      if (window.FindChild(id)) found = window;
    }
    return static_cast<bool>(found);
  });
  if (!shown) throw std::runtime_error("no window with control " + std::to_string(id) + " comes up");
  return found;
}

std::vector<Control> Program::TopWindows() const {
  struct Search {
    DWORD process;
    std::vector<Control> found;
  } search{.process = processId_, .found = {}};
  EnumWindows(
      [](HWND window, LPARAM data) {
        auto& all = *reinterpret_cast<Search*>(data);
        DWORD process = 0;
        GetWindowThreadProcessId(window, &process);
        if (process == all.process && IsWindowVisible(window) != 0) all.found.emplace_back(window);
        return TRUE;
      },
      reinterpret_cast<LPARAM>(&search));
  return search.found;
}

}  // namespace tarvik::end_to_end
