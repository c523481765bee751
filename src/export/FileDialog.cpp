#include "export/FileDialog.h"

#include <windows.h>

#include <commdlg.h>

#include <array>
#include <cstddef>

#include "base/Finally.h"
#include "base/RuntimeError.h"
#include "forms/Application.h"
#include "platform/CodePage.h"
#include "platform/SystemFunctions.h"

namespace tarvik {
namespace {

// The buffer size for paths that the dialogs return, in characters, each of which may be three bytes of UTF-8. A path
// that does not fit is truncated, beginning with its extension.
constexpr std::size_t bytesPerCharacter = 3;
constexpr std::size_t fileBufferSize = 260 * bytesPerCharacter;
constexpr std::size_t titleBufferSize = 256 * bytesPerCharacter;
constexpr DWORD saveFlags = OFN_OVERWRITEPROMPT | OFN_HIDEREADONLY | OFN_PATHMUSTEXIST;
constexpr DWORD openFlags = OFN_HIDEREADONLY | OFN_FILEMUSTEXIST;
static_assert(saveFlags == 2054 && openFlags == 4100);

// The NT 4 size of OPENFILENAMEA, which every version of the dialogs accepts.
constexpr DWORD recordSize = offsetof(OPENFILENAMEA, lpTemplateName) + sizeof(OPENFILENAMEA::lpTemplateName);
static_assert(recordSize == (sizeof(void*) == 4 ? 76 : 136));

std::wstring CurrentFolder() {
  std::wstring folder(GetCurrentDirectoryW(0, nullptr), L'\0');
  folder.resize(GetCurrentDirectoryW(static_cast<DWORD>(folder.size()), folder.data()));
  return folder;
}

// A file name cannot contain "?", but the dialog substitutes it for characters missing from the code page.
std::string RequireAllCharacters(std::string path) {
  if (path.find('?') != std::string::npos) throw UnheldNameError(path);
  return path;
}

std::string Ask(BOOL(WINAPI* show)(OPENFILENAMEA*), DWORD flags, HWND owner, const FileDialogMode& mode,
                std::string_view code) {
  const std::string title = ToReadableCodePage(FileDialogTitle(mode, code));
  const std::string filters = FilterList(mode.filters);
  // The dialog puts the dot before an extension itself.
  const std::string extension(mode.defaultExtension.substr(1));
  std::array<char, fileBufferSize> file{};
  std::array<char, titleBufferSize> fileTitle{};
  OPENFILENAMEA record{};
  record.lStructSize = recordSize;
  record.hwndOwner = owner;
  record.lpstrFilter = filters.c_str();
  record.nFilterIndex = 1;
  record.lpstrFile = file.data();
  record.nMaxFile = static_cast<DWORD>(file.size());
  record.lpstrFileTitle = fileTitle.data();
  record.nMaxFileTitle = static_cast<DWORD>(fileTitle.size());
  record.lpstrTitle = title.c_str();
  record.Flags = flags;
  record.lpstrDefExt = extension.c_str();
  // The dialogs change the program's current folder to the chosen one.
  const std::wstring folder = CurrentFolder();
  const Finally movesBack([&folder] { SetCurrentDirectoryW(folder.c_str()); });
  const bool chosen = show(&record) != 0;
  if (owner != nullptr && IsWindow(owner) == FALSE) throw GivenUp();
  return chosen ? RequireAllCharacters(FromCodePage(file.data())) : std::string();
}

}  // namespace

std::string AskForFileToSave(HWND owner, const FileDialogMode& mode, std::string_view code) {
  return Ask(late::GetSaveFileNameA.Get(), saveFlags, owner, mode, code);
}

std::string AskForFileToOpen(HWND owner, const FileDialogMode& mode, std::string_view code) {
  return Ask(late::GetOpenFileNameA.Get(), openFlags, owner, mode, code);
}

}  // namespace tarvik
