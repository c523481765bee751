// Saving over everything that can exist at a file's name, in each of the five formats.

#include <gmock/gmock.h>

#include <array>
#include <string>

#include "end_to_end/SavingTest.h"
#include "platform/SaveTargets.h"

namespace tarvik::end_to_end {
namespace {

using support::SaveTargets;

class SaveOver : public Saving {
 protected:
  // As many icons as there are targets.
  void SetUp() override {
    const std::array icon{support::BitmapPicture(32, 4, 0x0000FF, 0xFF0000)};
    for (int number = 1; number <= SaveTargets::Count(); ++number)
      tree_.MakeFile(std::to_string(number) + ".ico", support::IconFile(icon));
    Start();
    Find();
    ASSERT_EQ(List().RowCount(), SaveTargets::Count());
    KeepAsFound();
  }

  struct Format {
    int command;
    ImageType type;
    std::string prefix;
    std::string extension;
    std::string start;  // of each file
    ReadOnlyFile readOnly;
  };

  // Saves all icons over the targets and expects a message for each target that cannot be replaced or written.
  void SaveOverTargets(const Format& format) {
    SCOPED_TRACE(format.extension);
    const auto nameOf = [&](int number) { return format.prefix + std::to_string(number) + format.extension; };
    SaveTargets targets(tree_.MakeFolder(outName + format.extension), tree_.MakeFolder("elsewhere" + format.extension),
                        nameOf);
    const FolderChooser chooser = AskForFolder(format.command);
    chooser.Open(outName + format.extension);
    if (format.type != Bmp) chooser.ChooseType(format.type);
    chooser.Ok();
    if (format.type == Jpg) AcceptJpegOptions();
    if (format.type == Gif) AcceptGifOptions();
    Names expected;
    for (int number = 1; number <= SaveTargets::Count(); ++number) {
      if (SaveTargets::TakesAFile(number, format.readOnly)) continue;
      expected.push_back(format.command == FrmFindIcon_mnuSaveAll    ? "Unable to save the file " + targets.Path(number)
                         : format.command == FrmFindIcon_mnuSaveAll3 ? cursorFailed
                                                                     : imageFailed);
    }
    EXPECT_EQ(ReadMessages(static_cast<int>(expected.size())), expected);
    ExpectAsFound();
    targets.ExpectSaved(format.start, format.readOnly);
  }
};

TEST_F(SaveOver, IconsReplaceTheTargetItselfOrLeaveItAsItIs) {
  SaveOverTargets({FrmFindIcon_mnuSaveAll, Bmp, "Icon ", ".ico", std::string("\0\0\1\0", 4), ReadOnlyFile::Refused});
}

TEST_F(SaveOver, CursorsReplaceTheTargetItselfOrLeaveItAsItIs) {
  SaveOverTargets({FrmFindIcon_mnuSaveAll3, Bmp, "Curor ", ".cur", std::string("\0\0\2\0", 4), ReadOnlyFile::Refused});
}

TEST_F(SaveOver, BitmapsReplaceTheTargetItselfOrLeaveItAsItIs) {
  SaveOverTargets({FrmFindIcon_mnuSaveAll2, Bmp, "Images ", ".bmp", "BM", ReadOnlyFile::Refused});
}

TEST_F(SaveOver, JpegsReplaceTheTargetItselfOrLeaveItAsItIs) {
  SaveOverTargets({FrmFindIcon_mnuSaveAll2, Jpg, "Images ", ".jpg", "\xFF\xD8", ReadOnlyFile::Replaced});
}

TEST_F(SaveOver, GifsReplaceTheTargetItselfOrLeaveItAsItIs) {
  SaveOverTargets({FrmFindIcon_mnuSaveAll2, Gif, "Images ", ".gif", "GIF8", ReadOnlyFile::Replaced});
}

}  // namespace
}  // namespace tarvik::end_to_end
