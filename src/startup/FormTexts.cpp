#include "startup/FormTexts.h"

#include "forms/Form.h"

namespace tarvik {

void SetTexts(Form& form, std::span<const FormText> texts, std::string_view code) {
  for (const FormText& row : texts) {
    const auto text = Pick(row.text, code);
    if (!text) return;
    if (row.id == formCaption) {
      form.SetCaption(*text);
    } else {
      form.SetItemText(row.id, *text);
    }
  }
}

}  // namespace tarvik
