#include "startup/OpenGuide.h"

#include <windows.h>

#include <shellapi.h>

#include <cstdint>

#include "forms/MessageBox.h"
#include "platform/ComUse.h"
#include "platform/SystemFunctions.h"
#include "platform/Text.h"
#include "startup/Guide.h"
#include "startup/MessageTexts.h"

namespace tarvik {
namespace {

// ShellExecute returns a number above this one on success.
constexpr std::intptr_t lastShellError = 32;

bool IsThere(const std::wstring& path) {
  return GetFileAttributesW(path.c_str()) != INVALID_FILE_ATTRIBUTES;
}

bool Open(HWND owner, const std::wstring& path) {
  const ComUse use;  // the handler of the page may be a COM object
  const HINSTANCE result = late::ShellExecuteW(owner, L"open", path.c_str(), nullptr, nullptr, SW_SHOWNORMAL);
  return reinterpret_cast<std::intptr_t>(result) > lastShellError;
}

}  // namespace

void OpenGuide(HWND owner, const std::string& programFolder, std::string_view code) {
  const std::string path = GuidePath(programFolder, code);
  const std::wstring systemPath = ToWide(path);
  const bool isThere = IsThere(systemPath);
  if (isThere && Open(owner, systemPath)) return;
  const auto text = Pick(isThere ? guideNotOpened : guideMissing, code);
  if (!text) return;
  ShowMessage(owner, std::string(*text).append("\r\n\r\n").append(path), FailureTitle(code), MessageSign::Exclamation);
}

}  // namespace tarvik
