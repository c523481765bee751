#include "startup/Skin.h"

#include <windows.h>

#include <memory>
#include <utility>

#include "platform/AutomationObject.h"
#include "platform/ComUse.h"
#include "platform/SystemFunctions.h"
#include "platform/Text.h"

namespace tarvik {
namespace {

constexpr const char* skinFile = "\\Skins\\Galaxy.skn";

bool IsFile(const std::wstring& path) {
  const DWORD attributes = GetFileAttributesW(path.c_str());
  return attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_DIRECTORY) == 0;
}

}  // namespace

Skin::Skin(const std::string& folder) : path_(ToWide(folder + skinFile)) {}

const std::optional<CLSID>& Skin::Class() {
  if (!asked_) {
    CLSID found;
    if (SUCCEEDED(late::CLSIDFromProgID(className, &found))) class_ = found;
    asked_ = true;
  }
  return class_;
}

bool Skin::Apply(Form& form) {
  if (!IsFile(path_)) return false;
  try {
    return Paint(form);
  } catch (const MissingFunctionError&) {
    return false;  // without COM there is no component either
  }
}

bool Skin::Paint(Form& form) {
  const ComUse use;
  const std::optional<CLSID>& id = Class();
  if (!id) return false;
  auto component = std::make_unique<AutomationObject>(*id);
  if (!component->Call(L"LoadSkin", AutomationArgument(path_)) ||
      !component->Call(L"ApplySkin", AutomationArgument(form.Window()))) {
    return false;
  }
  form.Skn = std::move(component);
  return true;
}

}  // namespace tarvik
