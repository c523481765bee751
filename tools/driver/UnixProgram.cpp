#include "driver/UnixProgram.h"

#include <windows.h>

#include <atomic>
#include <fstream>
#include <iterator>
#include <stdexcept>

#include "driver/Waiting.h"
#include "platform/Text.h"

namespace tarvik::end_to_end {
namespace {

namespace fs = std::filesystem;

std::string ReadAll(const fs::path& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

std::string Quote(const std::string& text) {
  std::string quoted = "'";
  for (const char character : text) quoted += character == '\'' ? std::string("'\\''") : std::string(1, character);
  return quoted + "'";
}

void Start(std::wstring commandLine) {
  STARTUPINFOW startup{};
  startup.cb = sizeof startup;
  PROCESS_INFORMATION process{};
  if (CreateProcessW(nullptr, commandLine.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &startup, &process) ==
      0) {
    throw std::runtime_error("the shell cannot be started");
  }
  // The two handles are not closed. For a program of the host system Wine creates none and returns uninitialised stack
  // values, which can equal a handle that is in use here.
}

}  // namespace

std::string UnixPath(const fs::path& path) {
  using NameGetter = char*(CDECL*)(const wchar_t*);
  const auto getName = reinterpret_cast<NameGetter>(
      reinterpret_cast<void*>(GetProcAddress(GetModuleHandleW(L"kernel32.dll"), "wine_get_unix_file_name")));
  char* const name = getName != nullptr ? getName(path.c_str()) : nullptr;
  if (name == nullptr) throw std::runtime_error("no unix name for " + ToUtf8(path.wstring()));
  std::string result = name;
  HeapFree(GetProcessHeap(), 0, name);
  return result;
}

UnixAnswer RunUnix(const std::string& command) {
  static std::atomic<int> runs = 0;
  const std::wstring base = fs::temp_directory_path() /
                            (L"tarvik-unix-" + std::to_wstring(GetCurrentProcessId()) + L"-" + std::to_wstring(++runs));
  const fs::path script = base + L".sh";
  const fs::path output = base + L".out";
  const fs::path answer = base + L".end";
  const std::string unixAnswer = Quote(UnixPath(answer));
  // Wine provides no handle to wait for such a program, so its end is signalled by a file, which is moved into place
  // complete.
  std::ofstream(script, std::ios::binary)
      << "exec >" << Quote(UnixPath(output)) << " 2>&1 </dev/null\n(\n"
      << command << "\n)\necho $? >" << unixAnswer << ".part\nmv " << unixAnswer << ".part " << unixAnswer << "\n";
  Start(L"\"Z:\\bin\\sh\" \"" + ToWide(UnixPath(script)) + L"\"");
  if (!Eventually([&] { return fs::exists(answer); })) throw std::runtime_error("does not end: " + command);
  const UnixAnswer result{.exitCode = std::stoi(ReadAll(answer)), .output = ReadAll(output)};
  for (const fs::path& file : {script, output, answer}) fs::remove(file);
  return result;
}

std::string QuoteForUnix(const fs::path& path) {
  return Quote(UnixPath(path));
}

}  // namespace tarvik::end_to_end
