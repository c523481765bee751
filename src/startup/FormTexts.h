#pragma once

#include <span>
#include <string_view>

#include "startup/Language.h"

namespace tarvik {

class Form;

// One row of a window's texts: a control or menu item by its id, or the window itself by formCaption.
struct FormText {
  int id;
  Text text;
};

inline constexpr int formCaption = 0;

// Sets the texts of a loaded form in the language of `code`; for any other code, all keep their design texts.
void SetTexts(Form& form, std::span<const FormText> texts, std::string_view code);

}  // namespace tarvik
