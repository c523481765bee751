// The position of every dialog once it is loaded.

#include <gtest/gtest.h>

#include <memory>

#include "startup/Centering.h"
#include "startup/Dialogs.h"

namespace tarvik {
namespace {

class DialogPlacementTest : public support::Dialogs, public ::testing::Test {
 protected:
  DialogPlacementTest() : Dialogs("ENG") {}

  static void Check(const std::unique_ptr<Form>& form, const char* name) {
    const ::testing::ScopedTrace trace(__FILE__, __LINE__, name);
    form->Load();
    support::ExpectCentered(form->Window());
  }
};

TEST_F(DialogPlacementTest, AreInTheMiddleAThirdOfTheSpareHeightDown) {
  Check(FolderChooser(), "frmDir");
  Check(NewFolder(), "frmDirCreate");
  Check(HotSpotPicker(), "FrmHotSpot");
  Check(JpegOptions(), "fSaveJPG");
  Check(JpegComment(), "fComment");
  Check(GifOptions(), "FrmConvertGIF");
}

}  // namespace
}  // namespace tarvik
