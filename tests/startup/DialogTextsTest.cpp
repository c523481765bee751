// The texts of every dialog, as a user sees them: no two controls share an access key, and none is cut off.

#include <windows.h>

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

#include "dialogs/frmDir.h"
#include "dialogs/frmDirCreate.h"
#include "encoders/FrmConvertGIF.h"
#include "encoders/fComment.h"
#include "encoders/fSaveJPG.h"
#include "export/FrmHotSpot.h"
#include "forms/Application.h"
#include "platform/DiskFile.h"
#include "platform/DiskTarget.h"
#include "platform/Surface.h"
#include "startup/TextChecks.h"

namespace tarvik {
namespace {

using Texts = std::vector<std::string>;

class DialogTextsTest : public ::testing::TestWithParam<const char*> {
 protected:
  DialogTextsTest() {
    state.CurrentLanguage = GetParam();
    state.SaveExtension = ".BMP";
  }

  static void Check(Form& form) {
    form.Load();
    ASSERT_TRUE(form.IsLoaded());
    EXPECT_EQ(testing::TextsWithTakenKeys(form.Window()), Texts{});
    EXPECT_EQ(testing::CutOffTexts(form.Window()), Texts{});
  }

  Application application{GetModuleHandleW(nullptr)};
  ProgramState state;
  Surface picture{385, 385, white};
  DiskFile files;
  DiskTarget targets;
};

TEST_P(DialogTextsTest, FolderChooser) {
  frmDir form(application, state,
              {[] {
                 return std::vector<DriveListBox::Drive>{{"C:\\", "c:"}};
               },
               [](const std::string&) { return std::vector<std::string>(); },
               [](const std::string&) -> std::optional<std::string> { return std::nullopt; },
               [] { return std::string("C:\\"); }});
  Check(form);
}

TEST_P(DialogTextsTest, NewFolder) {
  frmDirCreate form(
      application, state, [](const std::string&) -> std::optional<std::string> { return std::nullopt; },
      [](const std::string&) {});
  Check(form);
}

TEST_P(DialogTextsTest, HotSpotPicker) {
  FrmHotSpot form(application, state, [this]() -> const Surface& { return picture; });
  Check(form);
}

TEST_P(DialogTextsTest, JpegOptions) {
  fSaveJPG form(application, state, nullptr, files, targets);
  Check(form);
}

TEST_P(DialogTextsTest, JpegComment) {
  fComment form(application, state);
  Check(form);
}

TEST_P(DialogTextsTest, GifOptions) {
  FrmConvertGIF form(application, state, nullptr,
                     {[this]() -> const Surface& { return picture; }, files, targets,
                      [](const std::string&) { return std::uint64_t{0}; }});
  Check(form);
}

INSTANTIATE_TEST_SUITE_P(Languages, DialogTextsTest, ::testing::Values("ENG", "CHS", "CHT", "Chinese"),
                         [](const auto& row) { return std::string(row.param); });

}  // namespace
}  // namespace tarvik
