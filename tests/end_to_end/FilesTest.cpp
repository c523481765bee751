// Files and names of every kind, good and bad.

#include <gmock/gmock.h>

#include <random>

#include "end_to_end/EndToEndTest.h"
#include "platform/Handles.h"
#include "platform/IconFiles.h"
#include "platform/Text.h"

namespace tarvik::end_to_end {
namespace {

using support::AddAttributes;
using support::AnimationFile;
using support::BitmapPicture;
using support::Bytes;
using support::IconFile;
using support::IconFileOf;
using support::PngPicture;
using ::testing::ElementsAre;
using ::testing::Field;

class Files : public EndToEnd {
 protected:
  // Searches the folder for every type, sub-folders too.
  std::vector<Entry> FindAll() {
    Start({}, true);
    Tick({Ico, Ani, Icl, Ocx, Dll, Exe});
    Find();
    return Entries();
  }
};

constexpr const char* extensions[] = {".ico", ".ani", ".icl", ".ocx", ".dll", ".exe"};

TEST_F(Files, AnIconFileIsOneIconHoweverManyPicturesItHolds) {
  const support::IconPicture pictures[] = {BitmapPicture(16, 1, black, white),  BitmapPicture(16, 4, 0xFF, 0xFF00),
                                           BitmapPicture(32, 8, 0xFF, 0xFF00),  BitmapPicture(32, 24, 0xFF, 0xFF00),
                                           BitmapPicture(48, 32, 0xFF, 0xFF00), PngPicture(64, 0xFF, 0xFF00)};
  const std::string path = tree_.MakeFile("many.ico", IconFile(pictures));
  EXPECT_THAT(FindAll(), ElementsAre(Entry{path, 0}));
}

TEST_F(Files, EveryDepthIsFound) {
  std::vector<Entry> expected;
  for (const int bits : {1, 4, 8, 24, 32}) {
    const support::IconPicture pictures[] = {BitmapPicture(32, bits, 0x0000FF, 0x00FF00)};
    expected.push_back({tree_.MakeFile("bits " + std::to_string(100 + bits) + ".ico", IconFile(pictures)), 0});
  }
  const support::IconPicture png[] = {PngPicture(32, 0x0000FF, 0x00FF00)};
  expected.push_back({tree_.MakeFile("picture.ico", IconFile(png)), 0});
  EXPECT_EQ(FindAll(), expected);
}

TEST_F(Files, AStillPictureNamedAsAnAnimationIsOneStep) {
  const std::string path = tree_.MakeFile("still.ani", IconFileOf(0xFF));
  EXPECT_THAT(FindAll(), ElementsAre(Entry{path, 0}));
}

TEST_F(Files, BadFilesAreSkippedAndTheGoodOnesBetweenThemFound) {
  std::mt19937 random(20240229);
  std::vector<Entry> good;
  for (const char* extension : extensions) {
    const std::string end = extension;
    Bytes noise(4096);
    for (std::byte& byte : noise) byte = static_cast<std::byte>(random());
    tree_.MakeFile("empty" + end, "");
    tree_.MakeFile("noise" + end, noise);
    tree_.MakeFile("short text" + end, "MZ");
  }
  good.push_back({tree_.MakeFile("a.ico", IconFileOf(0xFF)), 0});
  good.push_back({tree_.MakeFile("z.ico", IconFileOf(0xFF00)), 0});
  EXPECT_EQ(FindAll(), good);
}

TEST_F(Files, FilesCutOffAnywhereDoNotStopASearch) {
  const Color colors[] = {0xFF, 0xFF00, 0xFF0000};
  const Bytes icon = IconFileOf(0xFF);
  const Bytes animation = AnimationFile(colors);
  CopyThreeIcons(In("whole.dll"));
  const std::string library = support::ReadAll(In("whole.dll"));
  for (int part = 1; part < 8; ++part) {
    const std::string end = std::to_string(part);
    const auto cut = [part](std::size_t size) { return size * static_cast<std::size_t>(part) / 8; };
    tree_.MakeFile("cut" + end + ".ico", std::span(icon).first(cut(icon.size())));
    tree_.MakeFile("cut" + end + ".ani", std::span(animation).first(cut(animation.size())));
    tree_.MakeFile("cut" + end + ".dll", std::string_view(library).substr(0, cut(library.size())));
  }
  const std::string last = tree_.MakeFile("zzz.ico", IconFileOf(0xFF));
  const auto entries = FindAll();
  EXPECT_THAT(entries, ::testing::IsSupersetOf({Entry{In("whole.dll"), 0}, Entry{In("whole.dll"), 1},
                                                Entry{In("whole.dll"), 2}, Entry{last, 0}}));
  EXPECT_EQ(entries.back(), (Entry{last, 0}));
}

TEST_F(Files, FilesThatAnotherProgramHoldsOpenHaveNoIcons) {
  const std::string held = tree_.MakeFile("held.ico", IconFileOf(0xFF));
  const std::string free = tree_.MakeFile("free.ico", IconFileOf(0xFF));
  const FileHandle file(
      CreateFileW(ToWide(held).c_str(), GENERIC_READ | GENERIC_WRITE, 0, nullptr, OPEN_EXISTING, 0, nullptr));
  ASSERT_TRUE(file);
  EXPECT_THAT(FindAll(), ElementsAre(Entry{free, 0}));
}

// A search of such files once took minutes, or never ended.
TEST_F(Files, AnimationsOfHundredsOfMegabytesDoNotHoldASearchUp) {
  constexpr std::uint64_t megabyte = std::uint64_t{1} << 20U;
  const Color colors[] = {0xFF, 0xFF00, 0xFF0000};
  std::vector<Entry> expected;
  for (const std::uint64_t size : {512 * megabyte, 5 * 1024 * megabyte}) {
    const std::string path = tree_.MakeSparseFile(std::to_string(size) + ".ani", AnimationFile(colors), size);
    Bytes endless = AnimationFile(colors);
    std::fill_n(endless.begin() + 4, 4, std::byte{0xFF});  // the size in its header
    tree_.MakeSparseFile("endless " + std::to_string(size) + ".ani", endless, size);
    for (int step = 0; step < 3; ++step) expected.push_back({path, step});
  }
  EXPECT_THAT(FindAll(), ::testing::UnorderedElementsAreArray(expected));
}

TEST_F(Files, NamesInEveryScriptAreListedAsTheyAre) {
  std::vector<Entry> expected;
  // Sorted in the order of the search: by character code.
  for (const char* name : {"Ünïcödé.ico", "Ελληνικά.ico", "图标 文件.ico", "圖示.ico", "😀 smile.ico"})
    expected.push_back({tree_.MakeFile(name, IconFileOf(0xFF)), 0});
  EXPECT_EQ(FindAll(), expected);
  EXPECT_THAT(FileNames(), ::testing::Contains("😀 smile.ico"));
}

TEST_F(Files, FoldersInEveryScriptAreWalked) {
  tree_.MakeFolder("目录 📁");
  tree_.MakeFolder("目录 📁\\内");
  const std::string path = tree_.MakeFile("目录 📁\\内\\图.ico", IconFileOf(0xFF));
  EXPECT_THAT(FindAll(), ElementsAre(Entry{path, 0}));
}

TEST_F(Files, PathsOfMoreThan200CharactersAreFound) {
  std::string folder;
  while (In(folder).size() < 200) {
    folder += (folder.empty() ? "" : "\\") + std::string(30, 'x');
    tree_.MakeFolder(folder);
  }
  const std::string path = tree_.MakeFile(folder + "\\far away.ico", IconFileOf(0xFF));
  ASSERT_GT(path.size(), 200U);
  ASSERT_LT(path.size(), 260U);
  EXPECT_THAT(FindAll(), ElementsAre(Entry{path, 0}));
}

TEST_F(Files, AReadOnlyFileIsFoundAndStaysReadOnly) {
  const std::string path = tree_.MakeFile("fixed.ico", IconFileOf(0xFF));
  AddAttributes(path, FILE_ATTRIBUTE_READONLY);
  EXPECT_THAT(FindAll(), ElementsAre(Entry{path, 0}));
  EXPECT_NE(GetFileAttributesW(ToWide(path).c_str()) & FILE_ATTRIBUTE_READONLY, 0U);
}

TEST_F(Files, HiddenFilesAreNotSearchedButHiddenFoldersAre) {
  AddAttributes(tree_.MakeFile("hidden.ico", IconFileOf(0xFF)), FILE_ATTRIBUTE_HIDDEN);
  AddAttributes(tree_.MakeFolder("cellar"), FILE_ATTRIBUTE_HIDDEN);
  const std::string path = tree_.MakeFile("cellar\\in.ico", IconFileOf(0xFF));
  EXPECT_THAT(FindAll(), ElementsAre(Entry{path, 0}));
}

TEST_F(Files, ALinkBackToTheParentIsNotFollowed) {
  const std::string path = tree_.MakeFile("only once.ico", IconFileOf(0xFF));
  tree_.MakeFolder("inner");
  tree_.MakeLink("inner\\up", tree_.Path());
  EXPECT_THAT(FindAll(), ElementsAre(Entry{path, 0}));
}

TEST_F(Files, AFolderNamedAsAFileIsNoFile) {
  tree_.MakeFolder("folder.ico");
  const std::string path = tree_.MakeFile("folder.ico\\in.ico", IconFileOf(0xFF));
  EXPECT_THAT(FindAll(), ElementsAre(Entry{path, 0}));
}

}  // namespace
}  // namespace tarvik::end_to_end
