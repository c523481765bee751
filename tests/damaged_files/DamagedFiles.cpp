#include "damaged_files/DamagedFiles.h"

#include <array>
#include <cstdio>

#include "damaged_files/Damage.h"
#include "damaged_files/Libraries.h"

namespace tarvik::support {
namespace {

constexpr std::uint32_t seed = 19680229;
constexpr int foldersBelow = 3;  // in each folder
constexpr int intactInEach = 3;

constexpr Color red = 0x0000FF;
constexpr Color blue = 0xFF0000;

// Files of one kind, each damaged that many times in each way.
struct Kind {
  const char* name;
  const char* extension;
  int copies;
  std::vector<IntactFile> files;
  // The content of the intact files among them: one icon, with that extension.
  Bytes intact = IconFileOf(red);
  const char* intactExtension = ".ico";
};

std::vector<IconPicture> EveryPicture() {
  std::vector<IconPicture> pictures;
  for (const int bits : {1, 4, 8, 24, 32}) pictures.push_back(BitmapPicture(bits == 8 ? 48 : 32, bits, red, blue));
  pictures.push_back(PngPicture(32, red, blue));
  return pictures;
}

std::vector<IntactFile> IconFiles(IconFileKind kind) {
  const std::vector<IconPicture> pictures = EveryPicture();
  std::vector<IntactFile> files;
  for (const IconPicture& picture : pictures) files.push_back(IntactIconFile(IconFile(std::span(&picture, 1), kind)));
  files.push_back(IntactIconFile(IconFile(std::array{pictures[1], pictures[4]}, kind)));
  files.push_back(IntactIconFile(IconFile(pictures, kind)));
  return files;
}

std::vector<IntactFile> Animations() {
  std::vector<IntactFile> files;
  files.push_back(IntactAnimation(AnimationFile(std::array{red})));
  files.push_back(IntactAnimation(AnimationFile(std::array{red, blue})));
  files.push_back(IntactAnimation(AnimationFile(std::array{red, blue}, {.sequence = {1, 0, 1}})));
  return files;
}

// Libraries of one, two and six icons.
template <typename Make>
std::vector<IntactFile> LibrariesBy(Make make) {
  const std::vector<IconPicture> pictures = EveryPicture();
  std::vector<IntactFile> files;
  for (const std::size_t count : {std::size_t{1}, std::size_t{2}, pictures.size()})
    files.push_back(make(std::span(pictures).first(count)));
  return files;
}

std::vector<Kind> Kinds() {
  const auto wide = [](std::span<const IconPicture> pictures) { return Library(Bitness::Bits64, pictures); };
  const auto narrow = [](std::span<const IconPicture> pictures) { return Library(Bitness::Bits32, pictures); };
  return {{"icon", ".ico", 360, IconFiles(IconFileKind::Icon)},
          {"cursor", ".cur", 240, IconFiles(IconFileKind::Cursor)},
          {"cursor as animation", ".ani", 180, IconFiles(IconFileKind::Cursor)},
          {"animation", ".ani", 360, Animations()},
          {"16-bit library", ".icl", 300, LibrariesBy(SixteenBitLibrary)},
          {"32-bit library", ".ocx", 270, LibrariesBy(narrow)},
          {"64-bit library", ".dll", 270, LibrariesBy(wide)}};
}

// 16-bit modules only, with intact ones among them.
std::vector<Kind> ModuleKinds() {
  const std::array one{BitmapPicture(32, 4, red, blue)};
  const Bytes intact = SixteenBitLibrary(one).bytes;
  const std::vector<IntactFile> files = LibrariesBy(SixteenBitLibrary);
  return {{"module, library", ".icl", 400, files, intact, ".icl"},
          {"module, program", ".exe", 300, files, intact, ".icl"},
          {"module, DLL", ".dll", 300, files, intact, ".icl"}};
}

std::string NumberedName(int number, const char* extension) {
  std::array<char, 16> text{};
  std::snprintf(text.data(), text.size(), "%04d", number);
  return text.data() + std::string(extension);
}

class FolderMaker {
 public:
  FolderMaker(const TemporaryFolder& folder, const Kind& kind, const DamageName& damage)
      : folder_(folder), kind_(kind), damage_(damage), name_(std::string(kind.name) + ", " + damage.name) {}

  DamagedFolder Make(Chance& chance) {
    DamagedFolder made{kind_.name, damage_.name, folder_.MakeFolder(name_), {}, {}};
    for (int below = 0; below < foldersBelow; ++below) folder_.MakeFolder(Below(below));
    for (int copy = 0; copy < kind_.copies; ++copy) {
      const IntactFile& file = kind_.files[static_cast<std::size_t>(copy) % kind_.files.size()];
      made.damaged.push_back(folder_.MakeFile(Below(copy % foldersBelow) + "\\" + NumberedName(copy, kind_.extension),
                                              ApplyDamage(file, damage_.damage, chance)));
    }
    for (int below = 0; below < foldersBelow; ++below) {
      // At the start, in the middle and at the end of what is listed.
      for (int i = 0; i < intactInEach; ++i) {
        const std::string name =
            NumberedName(i * (kind_.copies - 1) / (intactInEach - 1), " intact") + kind_.intactExtension;
        made.intact.push_back(folder_.MakeFile(Below(below) + "\\" + name, kind_.intact));
      }
    }
    return made;
  }

 private:
  std::string Below(int number) const { return name_ + "\\" + std::to_string(number); }

  const TemporaryFolder& folder_;
  const Kind& kind_;
  const DamageName& damage_;
  std::string name_;
};

std::vector<DamagedFolder> MakeFolders(const TemporaryFolder& folder, const std::vector<Kind>& kinds) {
  Chance chance(seed);
  std::vector<DamagedFolder> made;
  for (const Kind& kind : kinds) {
    for (const DamageName& damage : damageNames) {
      if (CanHave(kind.files.front(), damage.damage)) made.push_back(FolderMaker(folder, kind, damage).Make(chance));
    }
  }
  return made;
}

}  // namespace

std::vector<DamagedFolder> MakeDamagedFiles(const TemporaryFolder& folder) {
  return MakeFolders(folder, Kinds());
}

std::vector<DamagedFolder> MakeDamagedModules(const TemporaryFolder& folder) {
  return MakeFolders(folder, ModuleKinds());
}

}  // namespace tarvik::support
