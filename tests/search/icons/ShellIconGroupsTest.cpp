// Extracting several icons of a file with one call, and reading ahead with the real shell.

#include <windows.h>

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "base/FolderPath.h"
#include "base/PixelCopy.h"
#include "damaged_files/Libraries.h"
#include "platform/GdiObjects.h"
#include "platform/Handles.h"
#include "platform/IconFiles.h"
#include "platform/Paths.h"
#include "platform/Surface.h"
#include "platform/TemporaryFolder.h"
#include "platform/Text.h"
#include "search/icons/IconsAhead.h"
#include "search/icons/ShellIcons.h"

namespace tarvik {
namespace {

using support::BitmapPicture;
using support::IconPicture;
using support::TemporaryFolder;
using Pixels = std::vector<Color>;

constexpr Color red = 0x0000FF;
constexpr Color background = 0x808080;

Pixels PixelsOf(ExtractedIcon* icon) {
  Surface surface(32, 32, background);
  if (icon == nullptr) return {};
  EXPECT_TRUE(icon->Draw(surface, {0, 0}, 32, 0, DrawPart::Normal));
  const PixelCopy copy(surface);
  return {copy.Pixels().begin(), copy.Pixels().end()};
}

// A library of that many icons, each in its own colour; those in `broken` have no picture.
std::string MakeLibrary(const TemporaryFolder& folder, int count, const std::vector<std::size_t>& broken = {}) {
  std::vector<IconPicture> pictures;
  for (int i = 0; i < count; ++i) pictures.push_back(BitmapPicture(32, 24, 0x010101U * static_cast<Color>(i + 1), red));
  for (const std::size_t index : broken) pictures[index].data.clear();
  return folder.MakeFile("icons.dll", support::Library(support::Bitness::Bits64, pictures).bytes);
}

TEST(ShellIconGroups, AreTheIconsOneByOne) {
  const TemporaryFolder folder;
  const std::string path = MakeLibrary(folder, 70);
  ShellIcons icons;
  const auto group = icons.ExtractGroup(path, 3, 64);
  ASSERT_EQ(group.size(), 64U);
  for (int i = 0; i < 64; ++i) {
    const Pixels expected = PixelsOf(icons.Extract(path, i + 3).get());
    ASSERT_FALSE(expected.empty());
    EXPECT_EQ(PixelsOf(group[static_cast<std::size_t>(i)].get()), expected) << i;
  }
}

TEST(ShellIconGroups, AreWholeOrNone) {
  const TemporaryFolder folder;
  ShellIcons icons;
  const std::string path = MakeLibrary(folder, 10);
  EXPECT_EQ(icons.ExtractGroup(path, 0, 10).size(), 10U);
  EXPECT_TRUE(icons.ExtractGroup(path, 0, 11).empty());
  EXPECT_TRUE(icons.ExtractGroup(path, 9, 2).empty());
  EXPECT_TRUE(icons.ExtractGroup(path, 10, 2).empty());
  EXPECT_TRUE(icons.ExtractGroup(folder.In("none.dll"), 0, 2).empty());
  EXPECT_TRUE(icons.ExtractGroup(folder.MakeFile("text.dll", "no library"), 0, 2).empty());
}

TEST(ShellIconGroups, AreNoneWhereAnIconIsBroken) {
  for (const std::size_t broken : {0U, 4U, 9U}) {
    const TemporaryFolder folder;
    ShellIcons icons;
    const std::string path = MakeLibrary(folder, 10, {broken});
    EXPECT_TRUE(icons.ExtractGroup(path, 0, 10).empty()) << broken;
    EXPECT_NE(icons.Extract(path, broken == 0 ? 1 : 0), nullptr);
  }
}

TEST(ShellIconGroups, KeepNoHandles) {
  const TemporaryFolder folder;
  ShellIcons icons;
  const std::string path = MakeLibrary(folder, 10, {7});
  const auto round = [&] {
    icons.ExtractGroup(path, 0, 10);  // broken
    icons.ExtractGroup(path, 8, 10);  // past the end
    icons.ExtractGroup(path, 0, 7);
  };
  round();
  const int before = support::CountGdiObjects();
  for (int i = 0; i < 100; ++i) round();
  EXPECT_EQ(support::CountGdiObjects(), before);
}

TEST(ShellIconGroups, AreOfAFileThatIsKnownByItsSizeAndTime) {
  const TemporaryFolder folder;
  ShellIcons icons;
  const std::string path = folder.MakeFile("a.dll", "0123456789");
  const auto stamp = icons.StampOf(path);
  ASSERT_TRUE(stamp);
  EXPECT_EQ(stamp->size, 10U);
  EXPECT_EQ(icons.StampOf(path), stamp);
  const FileHandle file(
      CreateFileW(ToWide(path).c_str(), FILE_WRITE_ATTRIBUTES, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr));
  const FILETIME time{0, 0x01D00000};
  ASSERT_NE(SetFileTime(file.get(), nullptr, nullptr, &time), 0);
  EXPECT_NE(icons.StampOf(path), stamp);
  EXPECT_FALSE(icons.StampOf(folder.In("none.dll")));
}

// The real shell with its calls counted.
class CountedShell final : public IconSource {
 public:
  int CountIcons(const std::string& path) override { return shell_.CountIcons(path); }
  std::unique_ptr<ExtractedIcon> Extract(const std::string& path, int index) override {
    ++calls;
    return shell_.Extract(path, index);
  }
  std::vector<std::unique_ptr<ExtractedIcon>> ExtractGroup(const std::string& path, int first, int count) override {
    ++calls;
    return shell_.ExtractGroup(path, first, count);
  }
  std::optional<FileStamp> StampOf(const std::string& path) override { return shell_.StampOf(path); }

  int calls = 0;

 private:
  ShellIcons shell_;
};

// The same icons, bit for bit, whatever library they come from.
TEST(ShellIconGroups, ReadAheadAreTheIconsOneByOne) {
  const TemporaryFolder folder;
  const std::pair<std::string, bool> rows[] = {{JoinPath(SystemFolder(), "shell32.dll"), true},
                                               {MakeLibrary(folder, 200, {70, 71, 150}), false}};
  for (const auto& [path, isIntact] : rows) {
    ShellIcons oneByOne;
    CountedShell shell;
    IconsAhead ahead(shell);
    const auto search = ahead.InTurn();
    const int count = ahead.CountIcons(path);
    ASSERT_EQ(count, oneByOne.CountIcons(path));
    ASSERT_GT(count, 64);
    for (int index = 0; index < count; ++index) {
      ASSERT_EQ(PixelsOf(ahead.Extract(path, index).get()), PixelsOf(oneByOne.Extract(path, index).get()))
          << path << index;
    }
    EXPECT_EQ(shell.calls, isIntact ? (count + 63) / 64 : 1 + 1 + (count - 64)) << path << ": a group is 64 icons";
  }
}

}  // namespace
}  // namespace tarvik
