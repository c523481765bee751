#pragma once

#include <cstdint>

#include "search/icons/Modules.h"

namespace tarvik::support {

struct RandomModule {
  ModuleBytes bytes;
  int icons = 0;
};

// A random module; the number is the seed, so one number always gives the same module. It has one to five icons, with a
// number or a name, of one to five pictures each, of 16 to 64 pixels and 1, 4, 8, 24 or 32 bits, all pixels random, in
// every layout that ModuleLayout has, with shifts from 0 to 9.
RandomModule MakeRandomModule(std::uint32_t number);

// One random picture.
ModuleBytes RandomBitmap(int width, int height, int bits, std::uint32_t seed);

}  // namespace tarvik::support
