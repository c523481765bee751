#include "damaged_files/Damage.h"

#include <algorithm>

namespace tarvik::support {
namespace {

constexpr std::size_t headerSize = 128;

void FlipBits(Bytes& bytes, std::size_t end, std::size_t most, Chance& chance) {
  const std::size_t flips = 1 + chance.Below(most);
  for (std::size_t i = 0; i < flips; ++i)
    bytes[chance.Below(std::min(end, bytes.size()))] ^= std::byte{1} << chance.Below(8);
}

void MakeNoise(Bytes& bytes, Chance& chance) {
  const std::size_t start = chance.Below(bytes.size());
  const std::size_t end = std::min(bytes.size(), start + 1 + chance.Below(64));
  for (std::size_t offset = start; offset < end; ++offset) bytes[offset] = static_cast<std::byte>(chance.Any());
}

std::uint32_t Read(const Bytes& bytes, const Field& field) {
  std::uint32_t value = 0;
  for (std::size_t i = 0; i < field.width; ++i)
    value |= std::to_integer<std::uint32_t>(bytes[field.offset + i]) << (8 * i);
  return value;
}

void Write(Bytes& bytes, const Field& field, std::uint32_t value) {
  for (std::size_t i = 0; i < field.width; ++i) bytes[field.offset + i] = static_cast<std::byte>(value >> (8 * i));
}

// A false value that a reader may trust too much: zero, one too low or too high, double, the size of the file or a
// value near it, the maximum of each integer type, or a random value.
std::uint32_t Lie(std::uint32_t truth, std::size_t fileSize, Chance& chance) {
  const auto size = static_cast<std::uint32_t>(fileSize);
  const std::array lies{0U,          1U,          truth - 1, truth + 1, truth * 2,   size - 1,    size,
                        size + 1,    size - 16,   0xFFU,     0x7FFFU,   0xFFFFU,     0x7FFFFFFFU, 0x80000000U,
                        0xFFFFFFF0U, 0xFFFFFFFFU, 0x10000U,  0x64U,     0x00FFFFFFU, chance.Any()};
  return lies[chance.Below(lies.size())];
}

void TellLies(Bytes& bytes, const std::vector<Field>& fields, Chance& chance) {
  const std::size_t lies = 1 + chance.Below(3);
  for (std::size_t i = 0; i < lies; ++i) {
    const Field& field = fields[chance.Below(fields.size())];
    Write(bytes, field, Lie(Read(bytes, field), bytes.size(), chance));
  }
}

void MakeLoops(Bytes& bytes, const IntactFile& file, Chance& chance) {
  const std::size_t loops = 1 + chance.Below(2);
  for (std::size_t i = 0; i < loops; ++i)
    Write(bytes, file.branches[chance.Below(file.branches.size())],
          file.directories[chance.Below(file.directories.size())]);
}

}  // namespace

bool CanHave(const IntactFile& file, Damage damage) {
  return damage != Damage::Loops || !file.branches.empty();
}

Bytes ApplyDamage(const IntactFile& file, Damage damage, Chance& chance) {
  Bytes bytes = file.bytes;
  switch (damage) {
    case Damage::FlippedBits:
      FlipBits(bytes, bytes.size(), 8, chance);
      break;
    case Damage::FlippedHeader:
      FlipBits(bytes, headerSize, 4, chance);
      break;
    case Damage::Truncated:
      bytes.resize(chance.Below(bytes.size()));
      break;
    case Damage::Noise:
      MakeNoise(bytes, chance);
      break;
    case Damage::Lies:
      TellLies(bytes, file.fields, chance);
      break;
    case Damage::Loops:
      MakeLoops(bytes, file, chance);
      break;
  }
  return bytes;
}

}  // namespace tarvik::support
