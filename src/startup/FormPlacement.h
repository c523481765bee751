#pragma once

#include "forms/Form.h"

// Called by every window when it loads, after its texts are set.
namespace tarvik::basInitEntry {

// Moves the form to its position on the main screen: centred horizontally, a third of the spare height above it. Its
// size is unchanged.
void CenterForm(Form& form);

// Lets the skin component paint the form with the skin file "Skins\Galaxy.skn" in the program's folder. Returns false
// and leaves the form unskinned if the file or the component is missing or fails. The form's Skn keeps the component
// while the form is loaded.
bool ApplySkinToForm(Form& form);

}  // namespace tarvik::basInitEntry
