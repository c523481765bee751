#pragma once

#include "forms/Form.h"

namespace tarvik {

// Resizes a loaded form, frame included, to a size in twips. Its position does not change.
void SizeInTwips(Form& form, int width, int height);

}  // namespace tarvik
