#include "search/icons/RandomModules.h"

#include <random>

namespace tarvik::support {
namespace {

constexpr std::size_t bitmapHeaderSize = 40;

}  // namespace

ModuleBytes RandomBitmap(int width, int height, int bits, std::uint32_t seed) {
  std::mt19937 chance(seed);
  ModuleBytes bitmap = PlainBitmap(width, height, bits);
  for (std::size_t offset = bitmapHeaderSize; offset < bitmap.size(); ++offset)
    bitmap[offset] = static_cast<std::byte>(chance());
  return bitmap;
}

RandomModule MakeRandomModule(std::uint32_t number) {
  std::mt19937 chance(number);
  const auto below = [&chance](unsigned end) { return static_cast<unsigned>(chance()) % end; };
  constexpr int sizes[] = {16, 24, 32, 32, 48, 64};
  constexpr int depths[] = {1, 4, 4, 8, 8, 24, 32};
  const ModuleLayout layout{.shift = number % 10,
                            .groupsFirst = below(2) == 0,
                            .otherResources = below(2) == 0,
                            .sharedData = below(3) == 0,
                            .overlappingData = below(4) == 0,
                            .residentName = std::string(below(40), 'R')};
  // Without a shift, offsets beyond 64 KB cannot be expressed.
  std::size_t room = std::size_t{50'000} << (layout.shift < 3 ? layout.shift : 3);
  std::vector<ModuleIcon> icons(1 + below(5));
  for (std::size_t i = 0; i < icons.size(); ++i) {
    if (below(3) == 0) icons[i].name = "ICON" + std::string(below(9), 'N') + std::to_string(i);
    const unsigned pictures = 1 + below(5);
    for (unsigned picture = 0; picture < pictures; ++picture) {
      const int size = sizes[below(std::size(sizes))];
      const int bits = depths[below(std::size(depths))];
      ModulePicture made{size, size, bits, RandomBitmap(size, size, bits, number * 64 + below(40))};
      if (made.data.size() > room) made = {16, 16, 1, RandomBitmap(16, 16, 1, number)};
      room -= made.data.size() < room ? made.data.size() : room;
      icons[i].pictures.push_back(std::move(made));
    }
  }
  return {MakeModule(icons, layout), static_cast<int>(icons.size())};
}

}  // namespace tarvik::support
