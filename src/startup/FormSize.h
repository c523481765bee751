#pragma once

#include "forms/Form.h"

namespace tarvik {

// Gives a loaded form that size on the screen, its frame included, in twips. It stays where it is.
void SizeInTwips(Form& form, int width, int height);

}  // namespace tarvik
