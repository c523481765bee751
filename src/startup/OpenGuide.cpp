#include "startup/OpenGuide.h"

#include <windows.h>

#include <shellapi.h>

#include <cstdint>

#include "forms/MessageBox.h"
#include "platform/ComUse.h"
#include "platform/Text.h"
#include "startup/Guide.h"
#include "startup/MessageTexts.h"

namespace tarvik {
namespace {

// ShellExecute gives a number above this one where it could open what it was asked to.
constexpr std::intptr_t lastShellError = 32;

bool Open(HWND owner, const std::string& path) {
  const ComUse use;  // what opens the page may be a COM object
  const HINSTANCE result = ShellExecuteW(owner, L"open", ToWide(path).c_str(), nullptr, nullptr, SW_SHOWNORMAL);
  return reinterpret_cast<std::intptr_t>(result) > lastShellError;
}

}  // namespace

void OpenGuide(HWND owner, const std::string& programFolder, std::string_view code) {
  const std::string path = GuidePath(programFolder, code);
  if (Open(owner, path)) return;
  const auto text = Pick(guideFailure, code);
  if (!text) return;
  ShowMessage(owner, std::string(*text).append("\r\n\r\n").append(path), FailureTitle(code), MessageSign::Exclamation);
}

}  // namespace tarvik
