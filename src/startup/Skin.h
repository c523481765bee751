#pragma once

#include <windows.h>

#include <optional>
#include <string>

#include "forms/Form.h"

namespace tarvik {

// The window skin: a file in the program's folder, and a system component that paints windows with it. The component is
// created by its class name and its methods are called by name (late binding), so the program runs without it.
class Skin {
 public:
  // The component's ProgID.
  static constexpr const wchar_t* className = L"ACTIVESKINLibCtl.Skin";

  // `folder` contains the folder "Skins" with the skin file; UTF-8.
  explicit Skin(const std::string& folder);

  // Gives the form a component of its own and paints the form with it: LoadSkin with the file's path, ApplySkin with
  // the window's handle. Returns false if any step fails; the form then has no component. Cheap if there is no skin
  // file, or if the class was found missing before.
  bool Apply(Form& form);

 private:
  // Apply, after the skin file was found.
  bool Paint(Form& form);
  // The component's class; none if it is not registered. Looked up once.
  const std::optional<CLSID>& Class();

  std::wstring path_;
  bool asked_ = false;
  std::optional<CLSID> class_;
};

}  // namespace tarvik
