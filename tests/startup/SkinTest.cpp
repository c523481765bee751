#include "startup/Skin.h"

#include <windows.h>

#include <gtest/gtest.h>

#include <array>
#include <string>

#include "forms/Application.h"
#include "platform/FolderPath.h"
#include "platform/Paths.h"
#include "platform/TemporaryFolder.h"
#include "platform/Text.h"
#include "resource.h"
#include "startup/SkinComponent.h"

namespace tarvik {
namespace {

using testing::TemporaryFolder;

const std::wstring classKey = std::wstring(L"Software\\Classes\\") + Skin::className;
const std::wstring serverKey = std::wstring(L"Software\\Classes\\CLSID\\") + testing::skinClassId;

void SetValue(const std::wstring& key, const wchar_t* name, const std::wstring& text) {
  const auto size = static_cast<DWORD>((text.size() + 1) * sizeof(wchar_t));
  EXPECT_EQ(RegSetKeyValueW(HKEY_LOCAL_MACHINE, key.c_str(), name, REG_SZ, text.c_str(), size), ERROR_SUCCESS);
}

// The test's component, known to the system for as long as the object lives.
class Registration {
 public:
  explicit Registration(const std::wstring& server = ToWide(JoinPath(ProgramFolder(), "skin_component.dll"))) {
    SetValue(classKey + L"\\CLSID", nullptr, testing::skinClassId);
    SetValue(serverKey + L"\\InprocServer32", nullptr, server);
    SetValue(serverKey + L"\\InprocServer32", L"ThreadingModel", L"Apartment");
  }
  ~Registration() {
    RegDeleteTreeW(HKEY_LOCAL_MACHINE, classKey.c_str());
    RegDeleteTreeW(HKEY_LOCAL_MACHINE, serverKey.c_str());
  }
  Registration(const Registration&) = delete;
  Registration& operator=(const Registration&) = delete;
};

class SkinTest : public ::testing::Test {
 protected:
  SkinTest() {
    SetEnvironmentVariableW(testing::skinBehaviour, nullptr);
    SetEnvironmentVariableW(testing::skinDiary, L"");
    form.Load();
  }

  void MakeSkinFile() const {
    (void)folder.MakeFolder("Skins");
    (void)folder.MakeFile("Skins\\Galaxy.skn");
  }
  static void Have(const wchar_t* behaviour) { SetEnvironmentVariableW(testing::skinBehaviour, behaviour); }
  static std::string Diary() {
    std::array<wchar_t, 4096> text{};
    const DWORD length = GetEnvironmentVariableW(testing::skinDiary, text.data(), static_cast<DWORD>(text.size()));
    return ToUtf8({text.data(), length});
  }
  std::string Loaded() const { return "made|LoadSkin " + folder.In("Skins\\Galaxy.skn") + "|"; }
  std::string Applied() const {
    return Loaded() + "ApplySkin " + std::to_string(reinterpret_cast<LONG_PTR>(form.Window())) + "|";
  }

  TemporaryFolder folder;
  Application application{GetModuleHandleW(nullptr)};
  Form form{application, Dialog_FrmSpash};
};

TEST_F(SkinTest, LoadsTheSkinFileAndAppliesItToTheWindow) {
  const Registration registration;
  MakeSkinFile();
  EXPECT_TRUE(Skin(folder.Path()).Apply(form));
  EXPECT_EQ(Diary(), Applied());
}

TEST_F(SkinTest, KeepsTheComponentForAsLongAsTheFormIsLoaded) {
  const Registration registration;
  MakeSkinFile();
  Skin(folder.Path()).Apply(form);
  const std::string applied = Applied();
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
  Have(testing::failsInLoadSkin);
  EXPECT_FALSE(Skin(folder.Path()).Apply(form));
  EXPECT_EQ(Diary(), Loaded() + "gone|");
  EXPECT_EQ(form.Skn, nullptr);
}

TEST_F(SkinTest, IsFalseWhereTheSkinDoesNotApply) {
  const Registration registration;
  MakeSkinFile();
  Have(testing::failsInApplySkin);
  EXPECT_FALSE(Skin(folder.Path()).Apply(form));
  EXPECT_EQ(Diary(), Applied() + "gone|");
}

TEST_F(SkinTest, IsFalseWhereTheComponentLacksAMethod) {
  const Registration registration;
  MakeSkinFile();
  Have(testing::lacksApplySkin);
  EXPECT_FALSE(Skin(folder.Path()).Apply(form));
  EXPECT_EQ(Diary(), Loaded() + "gone|");
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
