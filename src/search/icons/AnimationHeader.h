#pragma once

#include "base/ByteSource.h"

namespace tarvik {

// The most steps that the animation in a file can have, told without the platform; 0 for a file that is no
// animation (RIFF of type ACON: a header chunk "anih", an optional order of pictures "seq ", and the pictures
// as "icon" chunks of the list "fram"). The header's count of steps is believed only as far as the file bears
// it out: by the entries of its order, or by its pictures where it has none. No size written in the file is
// trusted, and the work is bounded by the size of the file.
int MostAnimationSteps(ByteSource& file);

// True for an animation with one header and at least as many pictures and steps as that says, whose order names no
// picture beyond them. The platform takes memory by those counts before it looks at the pictures, and wrong ones have
// it write where it must not: a file that holds less than it says is damaged and must not be handed to it.
bool HoldsWhatItSays(ByteSource& file);

}  // namespace tarvik
