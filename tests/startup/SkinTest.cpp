#include "startup/Skin.h"

#include <windows.h>

#include <gtest/gtest.h>

#include <string>

#include "base/FolderPath.h"
#include "forms/Application.h"
#include "platform/AutomationObject.h"
#include "platform/Paths.h"
#include "platform/TemporaryFolder.h"
#include "platform/Text.h"
#include "resource.h"
#include "startup/SkinComponent.h"
#include "startup/SkinRegistration.h"

namespace tarvik {
namespace {

using support::TemporaryFolder;

// The registration of the test's component.
class Registration : public support::SkinRegistration {
 public:
  explicit Registration(const std::wstring& server = ToWide(JoinPath(ProgramFolder(), "skin_component.dll")))
      : SkinRegistration(server) {}
};

class SkinTest : public ::testing::Test {
 protected:
  SkinTest() {
    SetEnvironmentVariableW(support::skinBehaviour, nullptr);
    SetEnvironmentVariableW(support::skinDiary, ToWide(folder.In("diary")).c_str());
    form.Load();
  }

  void MakeSkinFile() const {
    (void)folder.MakeFolder("Skins");
    (void)folder.MakeFile("Skins\\Galaxy.skn");
  }
  static void Have(const wchar_t* behaviour) { SetEnvironmentVariableW(support::skinBehaviour, behaviour); }
  std::string Diary() const { return support::ReadAll(folder.In("diary")); }
  std::string LogOfLoading() const { return "made|LoadSkin " + folder.In("Skins\\Galaxy.skn") + "|"; }
  std::string LogOfApplying() const {
    return LogOfLoading() + "ApplySkin " + std::to_string(reinterpret_cast<LONG_PTR>(form.Window())) + "|";
  }

  TemporaryFolder folder;
  Application application{GetModuleHandleW(nullptr)};
  Form form{application, Dialog_FrmSpash};
};

TEST_F(SkinTest, LoadsTheSkinFileAndAppliesItToTheWindow) {
  const Registration registration;
  MakeSkinFile();
  EXPECT_TRUE(Skin(folder.Path()).Apply(form));
  EXPECT_EQ(Diary(), LogOfApplying());
}

TEST_F(SkinTest, KeepsTheComponentForAsLongAsTheFormIsLoaded) {
  const Registration registration;
  MakeSkinFile();
  Skin(folder.Path()).Apply(form);
  const std::string applied = LogOfApplying();
  EXPECT_EQ(Diary(), applied);
  form.Unload();
  EXPECT_EQ(Diary(), applied + "gone|");
}

TEST_F(SkinTest, IsFalseWithoutTheSkinFileAndAsksForNoComponent) {
  const Registration registration;
  EXPECT_FALSE(Skin(folder.Path()).Apply(form));
  EXPECT_EQ(Diary(), "");
}

TEST_F(SkinTest, IsFalseWhereAFolderHasTheSkinFilesName) {
  const Registration registration;
  (void)folder.MakeFolder("Skins");
  (void)folder.MakeFolder("Skins\\Galaxy.skn");
  EXPECT_FALSE(Skin(folder.Path()).Apply(form));
}

TEST_F(SkinTest, IsFalseWithoutTheClass) {
  MakeSkinFile();
  EXPECT_FALSE(Skin(folder.Path()).Apply(form));
  EXPECT_EQ(form.Skn, nullptr);
}

TEST_F(SkinTest, AsksForAMissingClassOnce) {
  MakeSkinFile();
  Skin skin(folder.Path());
  EXPECT_FALSE(skin.Apply(form));
  const Registration registration;
  EXPECT_FALSE(skin.Apply(form));
  EXPECT_TRUE(Skin(folder.Path()).Apply(form));
}

TEST_F(SkinTest, IsFalseWhereTheClassHasNoComponent) {
  const Registration registration(ToWide(folder.In("missing.dll")));
  MakeSkinFile();
  EXPECT_FALSE(Skin(folder.Path()).Apply(form));
  EXPECT_EQ(form.Skn, nullptr);
}

TEST_F(SkinTest, IsFalseWhereTheSkinFileDoesNotLoad) {
  const Registration registration;
  MakeSkinFile();
  Have(support::failsInLoadSkin);
  EXPECT_FALSE(Skin(folder.Path()).Apply(form));
  EXPECT_EQ(Diary(), LogOfLoading() + "gone|");
  EXPECT_EQ(form.Skn, nullptr);
}

TEST_F(SkinTest, IsFalseWhereTheSkinDoesNotApply) {
  const Registration registration;
  MakeSkinFile();
  Have(support::failsInApplySkin);
  EXPECT_FALSE(Skin(folder.Path()).Apply(form));
  EXPECT_EQ(Diary(), LogOfApplying() + "gone|");
}

TEST_F(SkinTest, IsFalseWhereTheComponentLacksAMethod) {
  const Registration registration;
  MakeSkinFile();
  Have(support::lacksApplySkin);
  EXPECT_FALSE(Skin(folder.Path()).Apply(form));
  EXPECT_EQ(Diary(), LogOfLoading() + "gone|");
}

TEST_F(SkinTest, GivesEachFormAComponentOfItsOwn) {
  const Registration registration;
  MakeSkinFile();
  Form other(application, Dialog_FrmSpash);
  other.Load();
  Skin skin(folder.Path());
  EXPECT_TRUE(skin.Apply(form));
  EXPECT_TRUE(skin.Apply(other));
  EXPECT_NE(form.Skn, other.Skn);
}

}  // namespace
}  // namespace tarvik
