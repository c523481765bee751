#pragma once

#include <array>
#include <cstdint>
#include <random>

#include "damaged_files/IntactFile.h"

namespace tarvik::support {

// Random numbers that are the same with every compiler.
class Chance {
 public:
  explicit Chance(std::uint32_t seed) : engine_(seed) {}
  // A number from 0 up to `end` - 1; `end` is not 0.
  std::size_t Below(std::size_t end) { return engine_() % end; }
  std::uint32_t Any() { return engine_(); }

 private:
  std::mt19937 engine_;
};

enum class Damage {
  FlippedBits,    // one to eight, anywhere
  FlippedHeader,  // one to four in the first 128 bytes
  Truncated,      // cut off anywhere
  Noise,          // a run of up to 64 random bytes
  Lies,           // one to three fields with a false value
  Loops,          // a resource tree with a cycle
};
struct DamageName {
  Damage damage;
  const char* name;
};
inline constexpr std::array damageNames{DamageName{Damage::FlippedBits, "flipped bits"},
                                        DamageName{Damage::FlippedHeader, "flipped header"},
                                        DamageName{Damage::Truncated, "truncated"},
                                        DamageName{Damage::Noise, "noise"},
                                        DamageName{Damage::Lies, "lies"},
                                        DamageName{Damage::Loops, "loops"}};

// Whether a file can be damaged that way: only a resource tree can get a cycle.
bool CanHave(const IntactFile& file, Damage damage);

// The bytes of the file, damaged that way.
Bytes ApplyDamage(const IntactFile& file, Damage damage, Chance& chance);

}  // namespace tarvik::support
