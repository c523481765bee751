#pragma once

#include "forms/Form.h"

// What every window asks for when it loads, after its texts are set.
namespace tarvik::basInitEntry {

// Moves the form to its position on the main screen: centred from left to right, a third of the spare height above it.
// Its size is unchanged.
void CenterForm(Form& form);

// Has the skin component paint the form with the skin file "Skins\Galaxy.skn" beside the program. False, and the form
// in its plain look, where the file or the component is missing or refuses. The form's Skn holds the component while
// the form is loaded.
bool ApplySkinToForm(Form& form);

}  // namespace tarvik::basInitEntry
