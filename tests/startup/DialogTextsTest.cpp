// The texts of every dialog, as a user sees them: no two controls share an access key, no text is cut off, and an
// unknown language leaves the design texts.

#include <windows.h>

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "forms/Controls.h"
#include "resource.h"
#include "startup/Dialogs.h"
#include "startup/TextChecks.h"

namespace tarvik {
namespace {

using Texts = std::vector<std::string>;

class DialogTextsTest : public support::Dialogs, public ::testing::TestWithParam<const char*> {
 protected:
  DialogTextsTest() : Dialogs(GetParam()) {}

  static void Check(const std::unique_ptr<Form>& form) {
    form->Load();
    ASSERT_TRUE(form->IsLoaded());
    EXPECT_EQ(support::TextsWithTakenKeys(form->Window()), Texts{});
    EXPECT_EQ(support::CutOffTexts(form->Window()), Texts{});
  }
};

TEST_P(DialogTextsTest, FolderChooser) {
  Check(Dialogs::FolderChooser());
}

TEST_P(DialogTextsTest, NewFolder) {
  Check(Dialogs::NewFolder());
}

TEST_P(DialogTextsTest, HotSpotPicker) {
  Check(Dialogs::HotSpotPicker());
}

TEST_P(DialogTextsTest, JpegOptions) {
  Check(Dialogs::JpegOptions());
}

TEST_P(DialogTextsTest, JpegComment) {
  Check(Dialogs::JpegComment());
}

TEST_P(DialogTextsTest, GifOptions) {
  Check(Dialogs::GifOptions());
}

INSTANTIATE_TEST_SUITE_P(Languages, DialogTextsTest, ::testing::Values("ENG", "CHS", "CHT", "Chinese"),
                         [](const auto& row) { return std::string(row.param); });

class UnknownLanguageTest : public support::Dialogs, public ::testing::Test {
 protected:
  UnknownLanguageTest() : Dialogs("Chinese") {}

  // Compares with the template itself: the window's caption, and each text in it.
  void Check(const std::unique_ptr<Form>& form, int dialogId) {
    form->Load();
    Form design(application, dialogId);
    design.Load();
    EXPECT_EQ(support::TextOf(form->Window()), support::TextOf(design.Window()));
    int texts = 0;
    for (HWND item = GetWindow(design.Window(), GW_CHILD); item != nullptr; item = GetWindow(item, GW_HWNDNEXT)) {
      const std::string text = support::TextOf(item);
      if (text.empty()) continue;
      ++texts;
      EXPECT_EQ(form->ItemText(GetDlgCtrlID(item)), text) << dialogId;
    }
    EXPECT_GT(texts, 0);
  }
};

TEST_F(UnknownLanguageTest, LeavesEveryDialogAsDesigned) {
  Check(FolderChooser(), Dialog_frmDir);
  Check(NewFolder(), Dialog_frmDirCreate);
  Check(HotSpotPicker(), Dialog_FrmHotSpot);
  Check(JpegOptions(), Dialog_fSaveJPG);
  Check(JpegComment(), Dialog_fComment);
  Check(GifOptions(), Dialog_FrmConvertGIF);
}

}  // namespace
}  // namespace tarvik
