#pragma once

#include <span>
#include <string_view>

#include "encoders/DialogText.h"
#include "forms/Form.h"
#include "startup/Language.h"

namespace tarvik {

// Sets caption and texts of a loaded dialog in the language of `code`; with a code that is none of the three, all stay
// as designed.
inline void SetDialogTexts(Form& form, const Text& caption, std::span<const DialogText> texts, std::string_view code) {
  if (const auto text = Pick(caption, code)) form.SetCaption(*text);
  for (const DialogText& row : texts)
    if (const auto text = Pick(row.text, code)) form.SetItemText(row.control, *text);
}

}  // namespace tarvik
