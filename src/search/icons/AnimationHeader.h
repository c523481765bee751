#pragma once

#include <cstdint>
#include <string>
#include <unordered_map>

#include "base/ByteSource.h"

namespace tarvik {

// What a file named as an animated cursor declares about itself, found without the platform. An animation is a RIFF
// file of type ACON: a header chunk "anih", an optional order of pictures "seq ", and the pictures as "icon" chunks of
// the list "fram".
struct AnimationFacts {
  // The most steps that it can have; 0 if it is no animation. The header's count is trusted only as far as the file
  // confirms it: by the entries of its order, or by its pictures if it has none.
  int maxSteps = 0;
  // True for an animation with exactly one header, at least as many pictures and steps as the header declares, and an
  // order that names no picture beyond them. The platform allocates memory by those counts before it looks at the
  // pictures, and wrong counts make it write out of bounds. So a file that holds less than it declares is damaged and
  // must not be passed to the platform.
  bool holdsWhatItSays = false;
  // True for a still cursor under an animation's name.
  bool isStillCursor = false;
};

// The most chunks examined in one file. A search lists 4,000 icons at most, so no animation that it could list needs
// more, however far apart its pictures are.
inline constexpr int maxAnimationChunks = 65'536;
inline constexpr int maxSequenceEntries = 65'536;
inline constexpr std::uint64_t maxAnimationBytes = std::uint64_t{16} * 1024 * 1024;

// Reads the file once, within those bounds, whatever sizes are written in it. An animation that goes on beyond the
// bounds does not count as holding what it declares; one that goes on beyond the size that it declares for itself may.
AnimationFacts InspectAnimation(ByteSource& source);

// Remembers the facts of files, so that each file is examined once as long as it does not change.
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
