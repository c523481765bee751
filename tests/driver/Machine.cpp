#include "driver/Machine.h"

#include <gtest/gtest.h>
#include <windows.h>

#include <winioctl.h>

#include <cstring>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <vector>

#include "driver/UnixProgram.h"
#include "driver/Waiting.h"
#include "platform/Handles.h"
#include "platform/Text.h"

namespace tarvik::end_to_end {
namespace {

constexpr wchar_t makerKey[] = L"Software\\Vornhold";
constexpr wchar_t languageKey[] = L"Software\\Vornhold\\Brindle Tarvik\\RegInfo";
constexpr wchar_t languageName[] = L"Language";
constexpr wchar_t pageKey[] = L"Software\\Classes\\.html";
constexpr wchar_t readerKey[] = L"Software\\Classes\\PageThatATestReads";
constexpr wchar_t readerOpenKey[] = L"Software\\Classes\\PageThatATestReads\\shell\\open\\command";
constexpr wchar_t emptyDrive[] = L"Q:";

// Text values of the machine's part of the registry; an empty name means a key's default value.
std::optional<std::string> ReadText(const wchar_t* key, const wchar_t* name) {
  wchar_t text[256] = {};
  DWORD size = sizeof text;
  if (RegGetValueW(HKEY_LOCAL_MACHINE, key, name, RRF_RT_REG_SZ, nullptr, text, &size) != ERROR_SUCCESS)
    return std::nullopt;
  return ToUtf8(text);
}

bool WriteText(const wchar_t* key, const wchar_t* name, const std::string& value) {
  const std::wstring text = ToWide(value);
  const auto size = static_cast<DWORD>((text.size() + 1) * sizeof(wchar_t));
  return RegSetKeyValueW(HKEY_LOCAL_MACHINE, key, name, REG_SZ, text.c_str(), size) == ERROR_SUCCESS;
}

bool WriteLanguage(const std::optional<std::string>& value) {
  if (!value) {
    const LSTATUS status = RegDeleteTreeW(HKEY_LOCAL_MACHINE, makerKey);
    return status == ERROR_SUCCESS || status == ERROR_FILE_NOT_FOUND;
  }
  return WriteText(languageKey, languageName, *value);
}

// The request to Wine's mount manager about a drive; the texts follow it, at offsets from its start.
struct UnixDrive {
  ULONG size;  // of the whole request, texts included
  ULONG type;
  ULONG fileSystemType;
  DWORD serial;
  ULONGLONG device;
  WCHAR letter;
  USHORT mountPointOffset;  // a path of the host system below Wine; 0 if there is none
  USHORT deviceOffset;
  USHORT labelOffset;
};

// Makes drive R: of that type and path, or removes it if the path is empty.
void DefineUnixDrive(ULONG type, const std::string& path) {
  constexpr DWORD defineUnixDrive = CTL_CODE('m', 32, METHOD_BUFFERED, FILE_READ_ACCESS | FILE_WRITE_ACCESS);
  UnixDrive drive{};
  drive.size = static_cast<ULONG>(sizeof drive + path.size() + 1);
  drive.type = type;
  drive.letter = L'r';
  drive.mountPointOffset = path.empty() ? 0 : sizeof drive;
  std::vector<std::byte> bytes(drive.size);
  std::memcpy(bytes.data(), &drive, sizeof drive);
  std::memcpy(bytes.data() + sizeof drive, path.c_str(), path.size() + 1);

  const FileHandle manager(CreateFileW(L"\\\\.\\MountPointManager", GENERIC_READ | GENERIC_WRITE,
                                       FILE_SHARE_READ | FILE_SHARE_WRITE, nullptr, OPEN_EXISTING, 0, nullptr));
  DWORD returned = 0;
  if (DeviceIoControl(manager.get(), defineUnixDrive, bytes.data(), drive.size, nullptr, 0, &returned, nullptr) == 0)
    throw std::runtime_error("drive R: cannot be changed");
}

}  // namespace

LanguageValue::LanguageValue(const std::optional<std::string>& value) : former_(ReadText(languageKey, languageName)) {
  if (!WriteLanguage(value)) throw std::runtime_error("the language cannot be set");
}

LanguageValue::~LanguageValue() {
  WriteLanguage(former_);
}

OpenedClipboard::OpenedClipboard(HWND owner) {
  if (!Eventually([owner] { return OpenClipboard(owner) != 0; }))
    throw std::runtime_error("the clipboard cannot be opened");
}

OpenedClipboard::~OpenedClipboard() {
  CloseClipboard();
}

void EmptyTheClipboard() {
  const OpenedClipboard clipboard;
  if (EmptyClipboard() == 0) throw std::runtime_error("the clipboard cannot be emptied");
}

WebPageReader::WebPageReader(const std::string& file) : former_(ReadText(pageKey, nullptr)) {
  if (!WriteText(readerOpenKey, nullptr, "cmd.exe /c echo %1>" + file) ||
      !WriteText(pageKey, nullptr, "PageThatATestReads")) {
    throw std::runtime_error("what opens web pages cannot be changed");
  }
}

WebPageReader::~WebPageReader() {
  RegDeleteTreeW(HKEY_LOCAL_MACHINE, readerKey);
  if (former_) {
    WriteText(pageKey, nullptr, *former_);
  } else {
    RegDeleteTreeW(HKEY_LOCAL_MACHINE, pageKey);
  }
}

EmptyDrive::EmptyDrive() {
  if (DefineDosDeviceW(DDD_RAW_TARGET_PATH, emptyDrive, L"\\??\\C:\\no such folder") == 0)
    throw std::runtime_error("the drive cannot be made");
}

EmptyDrive::~EmptyDrive() {
  DefineDosDeviceW(DDD_REMOVE_DEFINITION, emptyDrive, nullptr);
}

ExtraDrive::ExtraDrive(const std::string& folder, const std::string& label) {
  const std::filesystem::path file = std::filesystem::path(ToWide(folder)) / L".windows-label";
  std::ofstream(file, std::ios::binary) << label << '\n';
  // Wine 8 hides each file whose name begins with a dot. Wine 10 does not if a program made it. A disk that cannot be
  // written has no label, and so none to hide.
  SetFileAttributesW(file.c_str(), FILE_ATTRIBUTE_HIDDEN);
  DefineUnixDrive(DRIVE_FIXED, UnixPath(ToWide(folder)));
}

ExtraDrive::~ExtraDrive() {
  try {
    DefineUnixDrive(DRIVE_NO_ROOT_DIR, {});
  } catch (const std::runtime_error& error) {
    ADD_FAILURE() << error.what();
  }
}

}  // namespace tarvik::end_to_end
