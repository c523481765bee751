// Checks the result of an installation: the program, its language, the rights of ordinary users, and the uninstaller.

#include <windows.h>

#include <aclapi.h>
#include <gtest/gtest.h>
#include <sddl.h>

#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <optional>
#include <thread>

#include "driver/Controls.h"
#include "driver/Waiting.h"
#include "packages/Installation.h"
#include "platform/Handles.h"
#include "platform/IconFiles.h"
#include "platform/TemporaryFolder.h"
#include "platform/Text.h"
#include "resource.h"

namespace tarvik::end_to_end {
namespace {

namespace fs = std::filesystem;

constexpr const wchar_t* languageKey = L"MACHINE\\Software\\Vornhold\\Brindle Tarvik\\RegInfo";
constexpr const wchar_t* keyAbove = L"MACHINE\\Software\\Vornhold\\Brindle Tarvik";

// An entry for ordinary users in an object's own access control list.
struct OwnRights {
  DWORD mask;
  int flags;  // how far it is inherited
};

// The last such entry, not counting inherited ones. Nothing if there is none.
std::optional<OwnRights> OwnRightsOfUsers(const wchar_t* name, SE_OBJECT_TYPE kind) {
  ACL* list = nullptr;
  PSECURITY_DESCRIPTOR descriptor = nullptr;
  EXPECT_EQ(GetNamedSecurityInfoW(name, kind, DACL_SECURITY_INFORMATION, nullptr, nullptr, &list, nullptr, &descriptor),
            static_cast<DWORD>(ERROR_SUCCESS));
  PSID users = nullptr;
  ConvertStringSidToSidW(L"S-1-5-32-545", &users);
  std::optional<OwnRights> rights;
  for (DWORD index = 0; list != nullptr && index < list->AceCount; ++index) {
    void* entry = nullptr;
    GetAce(list, index, &entry);
    auto* allowed = static_cast<ACCESS_ALLOWED_ACE*>(entry);
    const bool own = (allowed->Header.AceFlags & INHERITED_ACE) == 0;
    if (allowed->Header.AceType == ACCESS_ALLOWED_ACE_TYPE && own && EqualSid(&allowed->SidStart, users) != FALSE)
      rights = OwnRights{allowed->Mask, allowed->Header.AceFlags};
  }
  LocalFree(users);
  LocalFree(descriptor);
  return rights;
}

TEST(InstalledRights, LetUsersOpenTheLanguageKeyAsTheProgramDoes) {
  const auto rights = OwnRightsOfUsers(languageKey, SE_REGISTRY_KEY);
  ASSERT_TRUE(rights);
  EXPECT_EQ(rights->mask, 0x2003FU);
  EXPECT_EQ(rights->flags, 0) << "the rights reach further than this one key";
}

TEST(InstalledRights, GiveUsersNothingToChangeInTheKeyAbove) {
  const auto rights = OwnRightsOfUsers(keyAbove, SE_REGISTRY_KEY);
  EXPECT_EQ(rights.value_or(OwnRights{}).mask & (KEY_SET_VALUE | KEY_CREATE_SUB_KEY | KEY_CREATE_LINK), 0U);
}

TEST(InstalledProgram, FindsIconsInTheLanguageOfTheInstallation) {
  const support::TemporaryFolder folder;
  folder.MakeFile("some.ico", support::IconFileOf(0xFF));
  const std::string settings = ToUtf8((home / L"tarvik.dat").wstring());
  ASSERT_NE(WritePrivateProfileStringA("FindIcon", "Folder", folder.Path().c_str(), settings.c_str()), FALSE);

  const KernelHandle process = StartAsOrdinaryUser(home / L"tarvik.exe");
  EXPECT_FALSE(IsOfAdministrator(process.get()));

  const Control window = WaitForWindowWith(FrmFindIcon_CmdFind);
  ASSERT_TRUE(window);
  EXPECT_EQ(window.Text(), "布林德图标搜索");
  Control(GetDlgItem(window.Window(), FrmFindIcon_CmdFind)).Send(BM_CLICK);
  EXPECT_EQ(ReportView(Control(GetDlgItem(window.Window(), FrmFindIcon_Lv))).RowCount(), 1);
  window.Post(WM_CLOSE);
  EXPECT_EQ(WaitForSingleObject(process.get(), 60000), WAIT_OBJECT_0);

  char subDir[16] = {};
  GetPrivateProfileStringA("FindIcon", "Subdir", "", subDir, sizeof subDir, settings.c_str());
  EXPECT_STREQ(subDir, "False");
}

DWORD ExitCodeOf(const KernelHandle& process) {
  DWORD code = STILL_ACTIVE;
  EXPECT_EQ(WaitForSingleObject(process.get(), 60000), WAIT_OBJECT_0);
  EXPECT_NE(GetExitCodeProcess(process.get(), &code), FALSE);
  return code;
}

TEST(OpenProgram, KeepsTheInstallerAndTheUninstallerAway) {
  const KernelHandle process = StartAsOrdinaryUser(home / L"tarvik.exe");
  const Control window = WaitForWindowWith(FrmFindIcon_CmdFind);
  ASSERT_TRUE(window);

  EXPECT_EQ(ExitCodeOf(Start(ToWide(std::getenv("TARVIK_TEST_SETUP")), L"/S")), 2U);
  // If the folder is passed to it, the uninstaller stays one process, whose exit code is available.
  EXPECT_EQ(ExitCodeOf(Start(home / L"uninstall.exe", L"/S _?=" + home.wstring())), 2U);
  EXPECT_TRUE(fs::exists(home / L"tarvik.exe"));
  EXPECT_TRUE(fs::exists(home / L"guide" / L"guide-eng.html"));

  window.Post(WM_CLOSE);
  EXPECT_EQ(WaitForSingleObject(process.get(), 60000), WAIT_OBJECT_0);
}

// As if the program that the user started held the file: it goes on in a copy, and may end only after the copy reaches
// the file.
TEST(Uninstaller, RemovesItsOwnFileOnceNobodyHoldsItOpen) {
  const fs::path file = home / L"uninstall.exe";
  KernelHandle holder(CreateFileW(file.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr));
  ASSERT_TRUE(holder);
  Start(file, L"/S");
  EXPECT_TRUE(Eventually([] { return !fs::exists(home / L"guide"); }));  // deleted right before the file
  std::this_thread::sleep_for(std::chrono::seconds(1));
  EXPECT_TRUE(fs::exists(file));
  holder.reset();
  EXPECT_TRUE(Eventually([&] { return !fs::exists(file); }));
}

}  // namespace
}  // namespace tarvik::end_to_end
