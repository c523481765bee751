#include "RunAgain.h"

#include <windows.h>

#include <process.h>

#include <array>
#include <stdexcept>

#include "platform/Text.h"

namespace tarvik::bench {

void RunAgain(const std::string& argument) {
  std::array<wchar_t, MAX_PATH> own{};
  GetModuleFileNameW(nullptr, own.data(), MAX_PATH);
  // The system joins the arguments to one command line and leaves the quotes to the caller.
  const std::wstring quoted = L'"' + ToWide(argument) + L'"';
  if (_wspawnl(_P_WAIT, own.data(), L"bench", quoted.c_str(), nullptr) != 0) {
    throw std::runtime_error(argument + ": the program started again failed");
  }
}

}  // namespace tarvik::bench
