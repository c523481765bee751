#pragma once

#include <cstdint>
#include <string>
#include <unordered_map>

#include "base/ByteSource.h"

namespace tarvik {

// What a file named as an animated cursor says of itself, found without the platform. An animation is a RIFF file of
// type ACON: a header chunk "anih", an optional order of pictures "seq ", and the pictures as "icon" chunks of the
// list "fram".
struct AnimationFacts {
  // The most steps that it can have; 0 if it is no animation. The header's count is believed only as far as the file
  // bears it out: by the entries of its order, or by its pictures if it has none.
  int maxSteps = 0;
  // True for an animation with one header and at least as many pictures and steps as that says, whose order names no
  // picture beyond them. The platform takes memory by those counts before it looks at the pictures, and wrong ones have
  // it write where it must not: a file that holds less than it says is damaged and must not be handed to it.
  bool holdsWhatItSays = false;
  // True for a still cursor under an animation's name.
  bool isStillCursor = false;
};

// The most that is looked at in one file. A search lists 4,000 icons at most, so no animation that it could list needs
// more, however far apart its pictures are.
inline constexpr int maxAnimationChunks = 65'536;
inline constexpr int maxSequenceEntries = 65'536;
inline constexpr std::uint64_t maxAnimationBytes = std::uint64_t{16} * 1024 * 1024;

// Looks through the file once, within those bounds and whatever sizes are written in it. An animation that goes on
// beyond them does not hold what it says; what lies behind the size that it states for itself may.
AnimationFacts InspectAnimation(ByteSource& source);

// Remembers what files were found to be, so that each is looked through once as long as it stays as it is.
class AnimationLooks {
 public:
  // The facts of the file with that path, whose bytes are `file`.
  AnimationFacts Of(const std::string& path, ByteSource& file);
  void Forget() { looks_.clear(); }

 private:
  struct Look {
    FileStamp stamp;
    AnimationFacts facts;
  };
  std::unordered_map<std::string, Look> looks_;  // by path
};

}  // namespace tarvik
