// The program with a skin in its folder, painted by a component of the tests' own that logs each request.

#include <windows.h>

#include "driver/Dialogs.h"
#include "driver/SaveDialog.h"
#include "end_to_end/ViewByHand.h"
#include "startup/SkinComponent.h"
#include "startup/SkinRegistration.h"

namespace tarvik::end_to_end {
namespace {

// The program inherits the name of the log from the environment.
class Skinned : public ViewByHand {
 protected:
  Skinned() {
    SetEnvironmentVariableW(support::skinBehaviour, nullptr);
    SetEnvironmentVariableW(support::skinDiary, ToWide(diary_).c_str());
  }
  ~Skinned() override {
    SetEnvironmentVariableW(support::skinBehaviour, nullptr);
    SetEnvironmentVariableW(support::skinDiary, nullptr);
  }

  void MakeSkinFile() const {
    (void)home_.MakeFolder("Skins");
    (void)home_.MakeFile("Skins\\Galaxy.skn");
  }
  // The lines of the log since the last call.
  std::string News() const { return support::ReadAll(diary_).substr(known_); }
  void ExpectNews(const std::string& entries) {
    EXPECT_TRUE(Eventually([&] { return News() == entries; }, shortly)) << News() << "\ninstead of " << entries;
    known_ += News().size();
  }
  std::string LogOfApplying(const Control& window) const {
    return "made|LoadSkin " + home_.In("Skins\\Galaxy.skn") + "|ApplySkin " +
           std::to_string(reinterpret_cast<LONG_PTR>(window.Window())) + "|";
  }
  // Checks that a newly opened window has got its skin, and no other window has.
  void ExpectSkinOf(const Control& window) { ExpectNews(LogOfApplying(window)); }
  // Checks that a closed window released its component.
  void ExpectEnd() { ExpectNews("gone|"); }
  // For the windows that a command opens.
  void ExpectSkinWhileOpen(const Dialog& dialog, int ending) {
    ExpectSkinOf(dialog.Window());
    dialog.End(ending);
    ExpectEnd();
  }

 private:
  const std::string diary_ = home_.In("diary");
  std::size_t known_ = 0;
  const support::SkinRegistration registration_{BuiltFile(TARVIK_SKIN_COMPONENT).wstring()};
};

TEST_F(Skinned, TheStartUpWindowAndTheAboutBoxArePlain) {
  MakeSkinFile();
  program_.Launch();
  program_.WaitForStartUpWindow();
  EXPECT_EQ(News(), "");
  program_.WaitForMainWindow();
  ExpectSkinOf(program_.Window());
  program_.Command(FrmFindIcon_MnuAbout);
  const Dialog about(program_, FrmSpash_CmdOk);
  about.End(FrmSpash_CmdOk);
  ExpectNews("");
}

TEST_F(Skinned, EveryOtherWindowHasItsSkinWhileItIsOpen) {
  MakeSkinFile();
  FindPictures();
  ExpectSkinOf(program_.Window());

  const EnhancedView view = OpenOn(1);
  ExpectSkinOf(view.Window());
  view.Close();
  ExpectEnd();

  program_.Command(FrmFindIcon_mnuSaveAll);
  const FolderChooser chooser(program_);
  ExpectSkinOf(chooser.Window());
  ExpectSkinWhileOpen(NewFolderDialog(program_, chooser), frmDirCreate_CmdCancel);
  chooser.Cancel();
  ExpectEnd();

  program_.Command(FrmFindIcon_MnuSaveAsCursor);
  ExpectSkinWhileOpen(Dialog(program_, FrmHotSpot_PicCursor), FrmHotSpot_CmdCancel);

  program_.Command(FrmFindIcon_MnuSaveAsBitmap);
  SaveDialog(program_).SaveAs(home_.In("picture.gif"));
  ExpectSkinWhileOpen(Dialog(program_, FrmConvertGIF_Option1), FrmConvertGIF_CmdCancel);

  program_.Command(FrmFindIcon_MnuSaveAsBitmap);
  SaveDialog(program_).SaveAs(home_.In("picture.jpg"));
  const Dialog jpeg(program_, fSaveJPG_CboSize);
  ExpectSkinOf(jpeg.Window());
  jpeg.Press(fSaveJPG_cmdComment);
  ExpectSkinWhileOpen(Dialog(program_, fComment_txtComment), fComment_cmdFinish);
  jpeg.End(fSaveJPG_cmdFinish0);
  ExpectEnd();

  EXPECT_EQ(program_.Close(), 0U);
  ExpectEnd();
}

TEST_F(Skinned, WithoutTheFileNoComponentIsAskedFor) {
  Start();
  EXPECT_EQ(program_.Close(), 0U);
  EXPECT_EQ(News(), "");
}

TEST_F(Skinned, AComponentThatFailsLeavesTheProgramAsItIs) {
  MakeSkinFile();
  SetEnvironmentVariableW(support::skinBehaviour, support::failsInApplySkin);
  FindPictures();
  ExpectNews(LogOfApplying(program_.Window()) + "gone|");
  EXPECT_FALSE(program_.FindBox());
}

}  // namespace
}  // namespace tarvik::end_to_end
