#pragma once

#include <windows.h>

#include <optional>
#include <string>

#include "forms/Form.h"

namespace tarvik {

// The window skin: a file beside the program, and a component of the system that paints windows with it. The component
// is asked for by its class name and called by the names of its methods, so that the program runs without it.
class Skin {
 public:
  // The component's class, as the registry knows it.
  static constexpr const wchar_t* className = L"ACTIVESKINLibCtl.Skin";

  // `folder` holds the folder "Skins" with the skin file; UTF-8.
  explicit Skin(const std::string& folder);

  // Gives the form a component of its own and paints the form with it: LoadSkin with the file's path, ApplySkin with
  // the window's handle. False where anything of that fails; the form then has no component. Costs next to nothing
  // where there is no skin file, or where the class was missing once.
  bool Apply(Form& form);

 private:
  // Apply, once it is known that there is a skin file.
  bool Paint(Form& form);
  // The component's class; none where the system does not know it. Asked once.
  const std::optional<CLSID>& Class();

  std::wstring path_;
  bool asked_ = false;
  std::optional<CLSID> class_;
};

}  // namespace tarvik
