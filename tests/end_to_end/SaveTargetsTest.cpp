// Saving over everything that can exist at a file's name, in each of the five formats: many icons into a folder, and
// one by its name.

#include <gmock/gmock.h>

#include <array>
#include <string>

#include "end_to_end/SavingTest.h"
#include "platform/SaveTargets.h"

namespace tarvik::end_to_end {
namespace {

using support::SaveTargets;

struct Format {
  std::string name;
  int batchCommand;
  int command;  // that saves one icon
  ImageType type;
  std::string prefix;
  std::string extension;
  std::string start;  // of each file
  ReadOnlyFile readOnly;
  friend void PrintTo(const Format& format, std::ostream* out) { *out << format.name; }
};

class SaveOver : public Saving, public ::testing::WithParamInterface<Format> {
 protected:
  void SetUp() override {
    const std::array icon{support::BitmapPicture(32, 4, 0x0000FF, 0xFF0000)};
    for (int number = 1; number <= SaveTargets::Count(); ++number)
      tree_.MakeFile(std::to_string(number) + ".ico", support::IconFile(icon));
    Start();
    Find();
    ASSERT_EQ(List().RowCount(), SaveTargets::Count());
    KeepAsFound();
  }

  // As many targets as there are icons.
  SaveTargets MakeTargets() const {
    return {tree_.MakeFolder(outName), tree_.MakeFolder("elsewhere"),
            [](int number) { return GetParam().prefix + std::to_string(number) + GetParam().extension; }};
  }
};

TEST_P(SaveOver, ABatchReplacesTheTargetItselfOrLeavesItAsItIs) {
  SaveTargets targets = MakeTargets();
  ChooseOut(GetParam().batchCommand, GetParam().type);
  if (GetParam().type == Jpg) AcceptJpegOptions();
  if (GetParam().type == Gif) AcceptGifOptions();
  Names expected;
  for (int number = 1; number <= SaveTargets::Count(); ++number) {
    if (!SaveTargets::TakesAFile(number, GetParam().readOnly))
      expected.push_back(FailureOf(GetParam().command, targets.Path(number)));
  }
  EXPECT_EQ(ReadMessages(static_cast<int>(expected.size())), expected);
  ExpectAsFound();
  targets.ExpectSaved(GetParam().start, GetParam().readOnly);
}

// The file dialog opens a folder instead of returning its name.
TEST_P(SaveOver, OneIconReplacesTheTargetItselfOrLeavesItAsItIs) {
  SaveTargets targets = MakeTargets();
  for (int number = 1; number <= SaveTargets::Count() && !HasFailure(); ++number) {
    if (SaveTargets::IsFolder(number)) continue;
    SCOPED_TRACE(SaveTargets::What(number));
    SaveOneOver(GetParam().command, targets.Path(number));
    if (!SaveTargets::TakesAFile(number, GetParam().readOnly)) {
      EXPECT_EQ(ReadMessages(1), Names{FailureOf(GetParam().command, targets.Path(number))});
    }
    ExpectAsFound();
  }
  targets.ExpectSaved(GetParam().start, GetParam().readOnly);
}

INSTANTIATE_TEST_SUITE_P(EachFormat, SaveOver,
                         ::testing::Values(Format{"Icons", FrmFindIcon_mnuSaveAll, FrmFindIcon_mnuSaveAs, Bmp, "Icon ",
                                                  ".ico", std::string("\0\0\1\0", 4), ReadOnlyFile::Refused},
                                           Format{"Cursors", FrmFindIcon_mnuSaveAll3, FrmFindIcon_MnuSaveAsCursor, Bmp,
                                                  "Curor ", ".cur", std::string("\0\0\2\0", 4), ReadOnlyFile::Refused},
                                           Format{"Bitmaps", FrmFindIcon_mnuSaveAll2, FrmFindIcon_MnuSaveAsBitmap, Bmp,
                                                  "Images ", ".bmp", "BM", ReadOnlyFile::Refused},
                                           Format{"Jpegs", FrmFindIcon_mnuSaveAll2, FrmFindIcon_MnuSaveAsBitmap, Jpg,
                                                  "Images ", ".jpg", "\xFF\xD8", ReadOnlyFile::Replaced},
                                           Format{"Gifs", FrmFindIcon_mnuSaveAll2, FrmFindIcon_MnuSaveAsBitmap, Gif,
                                                  "Images ", ".gif", "GIF8", ReadOnlyFile::Replaced}),
                         [](const auto& row) { return row.param.name; });

}  // namespace
}  // namespace tarvik::end_to_end
