#pragma once

#include "startup/Language.h"

namespace tarvik {

// The text of one control (an id of resource.h) in the three languages.
struct DialogText {
  int control;
  Text text;
};

}  // namespace tarvik
