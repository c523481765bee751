#include "end_to_end/Machine.h"

#include <windows.h>

#include <stdexcept>

#include "platform/Handles.h"
#include "platform/Text.h"

namespace tarvik::end_to_end {
namespace {

constexpr wchar_t makerKey[] = L"Software\\Vornhold";
constexpr wchar_t languageKey[] = L"Software\\Vornhold\\Brindle Tarvik\\RegInfo";
constexpr wchar_t languageName[] = L"Language";
constexpr wchar_t emptyDrive[] = L"Q:";
constexpr wchar_t labelFile[] = L"C:\\.windows-label";  // where Wine keeps the name of a volume without a device

std::optional<std::string> ReadLanguage() {
  wchar_t text[256] = {};
  DWORD size = sizeof text;
  if (RegGetValueW(HKEY_LOCAL_MACHINE, languageKey, languageName, RRF_RT_REG_SZ, nullptr, text, &size) != ERROR_SUCCESS)
    return std::nullopt;
  return ToUtf8(text);
}

bool WriteLanguage(const std::optional<std::string>& value) {
  if (!value) {
    const LSTATUS status = RegDeleteTreeW(HKEY_LOCAL_MACHINE, makerKey);
    return status == ERROR_SUCCESS || status == ERROR_FILE_NOT_FOUND;
  }
  const std::wstring text = ToWide(*value);
  const auto size = static_cast<DWORD>((text.size() + 1) * sizeof(wchar_t));
  return RegSetKeyValueW(HKEY_LOCAL_MACHINE, languageKey, languageName, REG_SZ, text.c_str(), size) == ERROR_SUCCESS;
}

}  // namespace

LanguageValue::LanguageValue(const std::optional<std::string>& value) : former_(ReadLanguage()) {
  if (!WriteLanguage(value)) throw std::runtime_error("the language cannot be set");
}

LanguageValue::~LanguageValue() {
  WriteLanguage(former_);
}

EmptyDrive::EmptyDrive() {
  if (DefineDosDeviceW(DDD_RAW_TARGET_PATH, emptyDrive, L"\\??\\C:\\no such folder") == 0)
    throw std::runtime_error("the drive cannot be made");
}

EmptyDrive::~EmptyDrive() {
  DefineDosDeviceW(DDD_REMOVE_DEFINITION, emptyDrive, nullptr);
}

VolumeLabel::VolumeLabel(const std::string& label) {
  if (SetVolumeLabelW(L"C:\\", ToWide(label).c_str()) == 0) throw std::runtime_error("the volume cannot be named");
}

VolumeLabel::~VolumeLabel() {
  DeleteFileW(labelFile);
}

}  // namespace tarvik::end_to_end
