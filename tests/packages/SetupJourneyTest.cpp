// The steps of a user with an older version: through the installer of this one, to the program, and through the
// uninstaller. check-installation has installed the older one, and checks files and registry afterwards.

#include <gtest/gtest.h>

#include <cstdlib>
#include <vector>

#include "driver/Screen.h"
#include "driver/Waiting.h"
#include "packages/Installation.h"
#include "platform/Text.h"
#include "resource.h"

namespace tarvik::end_to_end {
namespace {

namespace fs = std::filesystem;

// Controls of the installer's windows, with the ids of NSIS.
constexpr int nextButton = IDOK;
constexpr int backButton = 3;
constexpr int languageList = 1002;
constexpr int welcomeText = 1202;
constexpr int licenceText = 1000;
constexpr int folderBox = 1019;
constexpr int runBox = 1203;
constexpr int uninstalledFolder = 1000;
constexpr int progressBar = 1004;

struct Tongue {
  const char* code;
  const char* name;        // in the installer's list
  const char* caption;     // of the program
  const char* closeFirst;  // the installer's and uninstaller's text while the program runs
  friend void PrintTo(const Tongue& tongue, std::ostream* out) { *out << tongue.code; }
};

constexpr Tongue tongues[] = {
    {"ENG", "English", "Brindle Tarvik", "Close Brindle Tarvik first, then try again."},
    {"CHS", "中文(简体)", "布林德图标搜索", "请先关闭 Brindle Tarvik，然后重试。"},
    {"CHT", "中文(繁體)", "布林德圖示搜尋", "請先關閉 Brindle Tarvik，然後重試。"},
};

// The visible window owned by that one.
HWND BoxOver(Control owner) {
  struct Search {
    HWND owner;
    HWND found;
  } search{owner.Window(), nullptr};
  EnumWindows(
      [](HWND window, LPARAM data) {
        auto& wanted = *reinterpret_cast<Search*>(data);
        if (IsWindowVisible(window) == FALSE || GetWindow(window, GW_OWNER) != wanted.owner) return TRUE;
        wanted.found = window;
        return FALSE;
      },
      reinterpret_cast<LPARAM>(&search));
  return search.found;
}

class SetupJourney : public ::testing::TestWithParam<Tongue> {
 protected:
  const Tongue& tongue_ = GetParam();

  // Starts the older program, which then blocks the installer.
  void OpenProgram() {
    program_ = StartAsOrdinaryUser(home / L"tarvik.exe");
    window_ = WaitForWindowWith(FrmFindIcon_CmdFind);
    ASSERT_TRUE(window_);
    EXPECT_FALSE(IsOfAdministrator(program_.get()));
    EXPECT_EQ(window_.Text(), tongue_.caption);
  }

  void CloseProgram() {
    const KernelHandle process = ProcessOf(window_);
    window_.Post(WM_CLOSE);
    EXPECT_EQ(WaitForSingleObject(process.get(), 60000), WAIT_OBJECT_0);
  }

  // Waits until the wizard shows the page with that control.
  Control TurnTo(int control, const char* name) {
    if (!Eventually([&] { return wizard_.FindChild(control).has_value(); })) {
      ADD_FAILURE() << "no page " << name;
      return {};
    }
    Picture(wizard_, name);
    return wizard_.Child(control);
  }

  void PressNext() const { wizard_.Post(WM_COMMAND, nextButton); }

  // Reads the message that the program is running, closes the program and tries again.
  void CloseAsAsked(const char* name) {
    HWND box = nullptr;
    ASSERT_TRUE(Eventually([&] { return (box = BoxOver(wizard_)) != nullptr; }));
    EXPECT_EQ(Box(Control(box)).Text(), tongue_.closeFirst);
    EXPECT_EQ(Box(Control(box)).Buttons(), (std::vector<int>{IDRETRY, IDCANCEL}));
    Picture(Control(box), name);
    CloseProgram();
    Box(Control(box)).Press(IDRETRY);
  }

  // A page is painted some time after it is shown, so it is painted here.
  void Picture(Control window, const std::string& name) {
    RedrawWindow(window.Window(), nullptr, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN | RDW_UPDATENOW);
    ++pictures_;
    const std::string number = (pictures_ < 10 ? "0" : "") + std::to_string(pictures_);
    SavePicture(window.Bounds(), BuiltFile("../../../journeys") / ("setup-" + std::string(tongue_.code)) /
                                     (number + "-" + name + ".png"));
  }

  Control wizard_;
  Control window_;  // the program's
  KernelHandle program_;

 private:
  int pictures_ = 0;
};

TEST_P(SetupJourney, UpgradesTheOlderVersionStartsTheProgramAndRemovesIt) {
  ASSERT_NO_FATAL_FAILURE(OpenProgram());

  const KernelHandle setup = Start(std::getenv("TARVIK_TEST_SETUP"));
  const Control languages = WaitForWindowWith(languageList, setup.get());
  ASSERT_TRUE(languages);
  const Control list = languages.Child(languageList);
  EXPECT_EQ(list.ComboItems().at(static_cast<std::size_t>(list.ComboChoice())), tongue_.name);
  Picture(languages, "language");
  languages.Post(WM_COMMAND, IDOK);

  wizard_ = WaitForWindowWith(backButton);
  ASSERT_TRUE(wizard_);
  TurnTo(welcomeText, "welcome");
  PressNext();
  TurnTo(licenceText, "licence");
  PressNext();
  const Control folder = TurnTo(folderBox, "folder");
  ASSERT_TRUE(folder);
  EXPECT_EQ((fs::path(ToWide(folder.Text())) / L"").parent_path(), home);
  PressNext();
  ASSERT_NO_FATAL_FAILURE(CloseAsAsked("close-first"));
  const Control run = TurnTo(runBox, "finish");
  ASSERT_TRUE(run);
  EXPECT_TRUE(run.IsChecked());
  PressNext();
  EXPECT_EQ(WaitForSingleObject(setup.get(), 60000), WAIT_OBJECT_0);

  // Started by the user's desktop and not by the installer, which has more rights than the user.
  window_ = WaitForWindowWith(FrmFindIcon_CmdFind);
  ASSERT_TRUE(window_);
  EXPECT_EQ(window_.Text(), tongue_.caption);
  EXPECT_NE(ParentOf(ProcessOf(window_).get()), GetProcessId(setup.get()));
  Picture(window_, "program");

  Start(home / L"uninstall.exe");
  wizard_ = WaitForWindowWith(backButton);
  ASSERT_TRUE(wizard_);
  TurnTo(uninstalledFolder, "uninstall");
  PressNext();
  ASSERT_NO_FATAL_FAILURE(CloseAsAsked("close-before-uninstall"));
  EXPECT_TRUE(Eventually([&] { return !fs::exists(home); }));
  TurnTo(progressBar, "uninstalled");
  PressNext();
  EXPECT_TRUE(Eventually([&] { return IsWindow(wizard_.Window()) == FALSE; }));
}

INSTANTIATE_TEST_SUITE_P(Languages, SetupJourney, ::testing::ValuesIn(tongues),
                         [](const auto& row) { return std::string(row.param.code); });

}  // namespace
}  // namespace tarvik::end_to_end
