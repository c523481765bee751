// The start-up window and About box in three languages and in one that the program does not support, and with a
// language value that may not be read.

#include <windows.h>

#include <aclapi.h>
#include <sddl.h>

#include "base/NonCopyable.h"
#include "driver/Screen.h"
#include "end_to_end/EndToEndTest.h"
#include "platform/Text.h"

namespace tarvik::end_to_end {
namespace {

struct SpashRow {
  std::optional<std::string> value;  // as stored in the registry
  const char* name;                  // of the pictures
  const char* caption;
  const char* notice;
  const char* contact;
  const char* ok;
};

void PrintTo(const SpashRow& row, std::ostream* out) {
  *out << row.name;
}

// A picture of a window, for people to look at: start-up-ENG.png and so on in the build's folder "run".
void SaveWindowPicture(const Control& window, const std::string& name) {
  SavePicture(window.Bounds(), BuiltFile("../../../run") / ToWide(name + ".png"));
}

class StartUpTexts : public EndToEnd, public ::testing::WithParamInterface<SpashRow> {
 protected:
  static void ExpectTexts(const Control& window) {
    EXPECT_EQ(window.Text(), GetParam().caption);
    EXPECT_EQ(Control(GetDlgItem(window.Window(), FrmSpash_lblDescription)).Text(), GetParam().notice);
    EXPECT_EQ(Control(GetDlgItem(window.Window(), FrmSpash_LblEmail)).Text(), GetParam().contact);
    EXPECT_EQ(Control(GetDlgItem(window.Window(), FrmSpash_CmdOk)).Text(), GetParam().ok);
  }
};

TEST_P(StartUpTexts, AreThoseOfTheLanguageAtStartUpAndInTheAboutBox) {
  const LanguageValue language(GetParam().value);
  program_.Launch();
  const Control startUp = program_.WaitForStartUpWindow();
  ExpectTexts(startUp);
  SaveWindowPicture(startUp, std::string("start-up-") + GetParam().name);
  program_.WaitForMainWindow();
  program_.Command(FrmFindIcon_MnuAbout);
  const Control about = program_.WaitForStartUpWindow();
  ExpectTexts(about);
  SaveWindowPicture(about, std::string("about-") + GetParam().name);
  Control(GetDlgItem(about.Window(), FrmSpash_CmdOk)).Press();
  EXPECT_TRUE(Eventually([&] { return IsWindow(about.Window()) == 0; }));
}

INSTANTIATE_TEST_SUITE_P(Languages, StartUpTexts,
                         ::testing::Values(SpashRow{std::nullopt, "ENG", "Brindle Tarvik",
                                                    "Finds the icons stored in your files and saves them.",
                                                    "Questions? Ask on the project's page.", "&OK"},
                                           SpashRow{"CHS", "CHS", "布林德图标搜索", "查找并保存文件中的图标。",
                                                    "如有疑问，请到项目主页提问。", "确定(&O)"},
                                           SpashRow{"CHT", "CHT", "布林德圖示搜尋", "尋找並儲存檔案中的圖示。",
                                                    "如有疑問，請到專案首頁提問。", "確定(&O)"},
                                           SpashRow{"Chinese", "unknown", "Brindle Tarvik",
                                                    "Finds icons and saves them.",
                                                    "Questions? Ask on the project's page.", "&OK"}));

class StartUpRights : public EndToEnd {};

// Leaves every user, the owner too, only the right to read the language's key.
class ReadOnlyLanguage : NonCopyable {
 public:
  ReadOnlyLanguage() { SetRights(L"D:P(A;;KR;;;WD)"); }
  ~ReadOnlyLanguage() { SetRights(L"D:P(A;;KA;;;WD)"); }

 private:
  static void SetRights(const wchar_t* rights) {
    PSECURITY_DESCRIPTOR descriptor = nullptr;
    ASSERT_NE(ConvertStringSecurityDescriptorToSecurityDescriptorW(rights, SDDL_REVISION_1, &descriptor, nullptr),
              FALSE);
    ACL* list = nullptr;
    BOOL present = FALSE;
    BOOL defaulted = FALSE;
    GetSecurityDescriptorDacl(descriptor, &present, &list, &defaulted);
    wchar_t name[] = L"MACHINE\\Software\\Vornhold\\Brindle Tarvik\\RegInfo";
    EXPECT_EQ(SetNamedSecurityInfoW(name, SE_REGISTRY_KEY, DACL_SECURITY_INFORMATION, nullptr, nullptr, list, nullptr),
              static_cast<DWORD>(ERROR_SUCCESS));
    LocalFree(descriptor);
  }
};

TEST_F(StartUpRights, ALanguageThatMayOnlyBeReadLeavesTheProgramInEnglish) {
  const LanguageValue language("CHS");
  const ReadOnlyLanguage readOnly;
  Start();
  EXPECT_EQ(Caption(), "Brindle Tarvik");
}

}  // namespace
}  // namespace tarvik::end_to_end
