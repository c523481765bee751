#include "end_to_end/Journey.h"

#include <gmock/gmock.h>
#include <windows.h>

#include <shellapi.h>

#include <algorithm>
#include <array>
#include <vector>

#include "platform/Display.h"
#include "platform/Text.h"

namespace tarvik::end_to_end {

namespace fs = std::filesystem;
using ::testing::ElementsAre;
using ::testing::EndsWith;
using ::testing::SizeIs;

void Journey::SetUp() {
  fs::remove_all(Pictures());
  MakeIcons();
  fs::copy(BuiltFile(TARVIK_GUIDE), fs::path(ToWide(home_.In("guide"))), fs::copy_options::recursive);
}

void Journey::MakeIcons() {
  const std::string folder = tongue_.folder;
  const std::string below = folder + "\\2";
  const std::string program = In(below + "\\program.exe");
  tree_.MakeFolder(folder);
  tree_.MakeFolder(below);
  constexpr auto colors = std::to_array<Color>({0x2040C0, 0x30B010, 0xC06020, 0x20C0E0});
  for (std::size_t i = 0; i < colors.size(); ++i) {
    const std::array icon{support::BitmapPicture(32, 32, colors[i], colors[(i + 1) % colors.size()])};
    tree_.MakeFile(folder + "\\" + std::to_string(i) + ".ico", support::IconFile(icon));
  }
  tree_.MakeFile(folder + "\\spin.ani", support::AnimationFile(colors));
  CopyHundredIcons(In(below + "\\hundred.dll"));
  fs::copy_file(program_.Path(), ToWide(program));
  const auto inProgram = static_cast<int>(ExtractIconExA(program.c_str(), -1, nullptr, nullptr, 0));
  count_ = 2 * static_cast<int>(colors.size()) + 100 + inProgram;
}

fs::path Journey::Pictures() const {
  const int dots = DotsOfDisplay();
  const std::string display = dots == 96 ? "" : "-" + std::to_string(dots);
  return BuiltFile("../../../journeys") / ToWide(tongue_.code + display);
}

void Journey::Picture(const std::string& name) {
  ++pictures_;
  const std::string number = (pictures_ < 10 ? "0" : "") + std::to_string(pictures_);
  // A maximised window extends beyond the screen by its frame.
  const RECT screen{0, 0, GetSystemMetrics(SM_CXSCREEN), GetSystemMetrics(SM_CYSCREEN)};
  const RECT extent = program_.Extent();
  RECT seen{};
  IntersectRect(&seen, &extent, &screen);
  SavePicture(seen, Pictures() / (number + "-" + name + ".png"));
}

void Journey::PassBox(const std::string& name) {
  const Box box = program_.WaitForBox();
  Picture(name);
  box.Press(IDOK);
}

void Journey::StartUp() {
  program_.Launch();
  const Control startUp = program_.WaitForStartUpWindow();
  EXPECT_EQ(startUp.Child(FrmSpash_lblDescription).Text(), tongue_.notice);
  Picture("start-up");
  program_.WaitForMainWindow();  // which opens by itself
  EXPECT_EQ(Caption(), tongue_.caption);
  Picture("main-window");
}

void Journey::ChooseFolder() {
  const Control drives = program_.Item(FrmFindIcon_Drive1);
  const auto names = drives.ComboItems();
  const auto drive = std::ranges::find(names, "r: [icons]");
  ASSERT_NE(drive, names.end());
  drives.PostComboChoice(static_cast<int>(drive - names.begin()));
  ASSERT_TRUE(Eventually([&] { return FolderNames() == std::vector<std::string>{root, tongue_.folder}; }));
  ASSERT_TRUE(Eventually([&] {
    DoubleClick(program_.Item(FrmFindIcon_Dir1).ListRowMiddle(1));
    return Eventually([&] { return FileNames().size() == 4; }, lostAfter);
  }));
  EXPECT_THAT(FolderNames(), ElementsAre(root, tongue_.folder, "2"));
}

void Journey::TickByMouse(int id) const {
  const Control box = program_.Item(id);
  EXPECT_FALSE(box.IsChecked()) << id;
  EXPECT_TRUE(Eventually([&] {
    Click(MiddleOf(box.Bounds()));
    return Eventually([&] { return box.IsChecked(); }, lostAfter);
  })) << id;
}

void Journey::ChooseTypes() {
  for (const int id :
       {FrmFindIcon_ChkFileType1, FrmFindIcon_ChkFileType4, FrmFindIcon_ChkFileType5, FrmFindIcon_chkSubDir})
    TickByMouse(id);
  EXPECT_THAT(FileNames(), SizeIs(5));
  Picture("chosen");
}

void Journey::TypeLimit(const std::string& limit) const {
  const Control box = program_.Item(FrmFindIcon_txtMax);
  EXPECT_TRUE(Eventually([&] {
    DoubleClick(MiddleOf(box.Bounds()));  // selects its text
    TypeText(limit);
    return Eventually([&] { return box.Text() == limit; }, lostAfter);
  })) << box.Text();
}

void Journey::Search() {
  TypeLimit("many");
  PressKey(VK_RETURN);
  PassBox("no-number");
  ASSERT_TRUE(Eventually([&] { return IsEnabled(FrmFindIcon_CmdFind); }));
  TypeLimit("100");
  PressKey(VK_RETURN);
  const Box refusal = program_.WaitForBox();
  EXPECT_EQ(refusal.Text(),
            tongue_.refused + std::to_string(count_) + tongue_.refusedBetween + "100" + tongue_.refusedEnd);
  Picture("refused");
  refusal.Press(IDOK);
  ASSERT_TRUE(Eventually([&] { return IsEnabled(FrmFindIcon_CmdFind); }));
  TypeLimit("200");
  Click(MiddleOf(program_.Item(FrmFindIcon_CmdFind).Bounds()));
  ASSERT_TRUE(Eventually([&] { return List().RowCount() == count_ && IsEnabled(FrmFindIcon_CmdFind); }));
  EXPECT_EQ(Caption(), "Brindle Tarvik - " + std::string(root) + tongue_.folder + " - " + std::to_string(count_) +
                           tongue_.foundEnd);
  EXPECT_EQ(List().RowCount(), count_);
  Picture("grid");
  MovePointer(CellMiddle(1));
  EXPECT_TRUE(Eventually([&] { return program_.ShownTip().has_value(); }));
  Picture("grid-tip");
  MovePointer({0, 0});
}

void Journey::OpenMenuByKeys(int menu) const {
  PressKey(VK_F10);
  PressKey(VK_RIGHT, {}, menu);
  PressKey(VK_DOWN);
  EXPECT_TRUE(Eventually([&] { return program_.OpenMenu().has_value(); }, shortly)) << menu;
}

void Journey::CloseMenu() const {
  PressKey(VK_ESCAPE, {}, 2);
  EXPECT_TRUE(Eventually([&] { return !program_.OpenMenu(); }));
}

void Journey::LookAtMenus() {
  int menu = 0;
  for (const char* name : {"file", "edit", "options", "view", "help"}) {
    OpenMenuByKeys(menu++);
    Picture(std::string("menu-") + name);
    CloseMenu();
  }
}

SIZE Journey::LargerView() {
  const int dots = DotsOfDisplay();
  return {600 * dots / 96, 500 * dots / 96};
}

void Journey::LookAtOneIcon() {
  const EnhancedView view = OpenOn(10);
  EXPECT_THAT(view.Status(), EndsWith(" - 1"));
  Picture("enhanced-view");
  view.ChooseFactor(3);
  EXPECT_EQ(view.Caption(), tongue_.view);
  PressKey(VK_SPACE, {}, 3);
  EXPECT_TRUE(Eventually([&] { return view.Status().ends_with(" - 3"); })) << view.Status();
  PressKey(VK_OEM_PLUS, {}, 4);
  view.Click(frmBit_tlb_control_Start);
  EXPECT_TRUE(Eventually([&] { return !view.Status().ends_with(" - 3"); })) << view.Status();
  EXPECT_TRUE(view.ShowIsOn());
  Picture("slide-show");
  const SIZE larger = LargerView();
  SetWindowPos(view.Window().Window(), nullptr, 0, 0, larger.cx, larger.cy, SWP_NOMOVE | SWP_NOZORDER);
  Picture("larger-view");
  ClickUntil(view, frmBit_tlb_control_Exit, [&] { return !view.IsOpen(); });
}

void Journey::Select() {
  ASSERT_TRUE(Eventually([&] { return program_.Window().IsEnabled(); }));
  ClickCell(3);
  ClickCell(6, {VK_CONTROL});
  ExpectRows({3, 6});
  Picture("selected");
  OpenMenuByKeys(1);
  PressKey('I');
  EXPECT_TRUE(Eventually([&] { return static_cast<int>(SelectedRows().size()) == count_ - 2; }, shortly));
  Picture("inverted");
  program_.Item(FrmFindIcon_OptView1).Press();
  EXPECT_TRUE(Eventually([&] { return program_.Item(FrmFindIcon_Lv).IsVisible(); }));
  LookAtTheList();
  program_.Item(FrmFindIcon_OptView0).Press();
  EXPECT_TRUE(Eventually([&] { return program_.Item(FrmFindIcon_PicFrame).IsVisible(); }));
}

void Journey::LookAtTheList() {
  Picture("list");
  program_.Command(FrmFindIcon_mnuRem);
  ExpectRows({3, 6});
  RightClick(MiddleOf(List().RowBounds(6)));
  EXPECT_TRUE(Eventually([&] { return program_.OpenMenu().has_value(); }));
  Picture("menu-of-a-row");
  PressKey(VK_ESCAPE);
  EXPECT_TRUE(Eventually([&] { return !program_.OpenMenu(); }));
  ExpectRows({3, 6});
  program_.Window().Send(WM_SYSCOMMAND, SC_MAXIMIZE);
  Picture("maximised-list");
  program_.Window().Send(WM_SYSCOMMAND, SC_RESTORE);
}

void Journey::CopyIcon() const {
  EmptyTheClipboard();
  OpenMenuByKeys(1);
  PressKey('C');
  EXPECT_TRUE(Eventually([] { return IsClipboardFormatAvailable(CF_BITMAP) != FALSE; }));
}

void Journey::ReadTheGuide() const {
  const std::string page = home_.In("page.txt");
  const WebPageReader reader(page);
  OpenMenuByKeys(4);
  PressKey(VK_RETURN);
  std::string code = tongue_.code;
  std::ranges::transform(code, code.begin(), [](char letter) { return static_cast<char>(letter - 'A' + 'a'); });
  const std::string guide = home_.In("guide\\guide-" + code + ".html");
  EXPECT_TRUE(fs::exists(ToWide(guide)));
  EXPECT_TRUE(Eventually([&] { return support::ReadAll(page).find(guide) != std::string::npos; }, shortly))
      << support::ReadAll(page);
  EXPECT_FALSE(program_.FindBox());
  program_.BringToFront();
}

void Journey::AskForAMissingGuide() {
  const fs::path guide = ToWide(home_.In("guide"));
  const fs::path away = ToWide(home_.In("guide-away"));
  fs::rename(guide, away);
  PressKey(VK_F1);
  PassBox("no-guide");
  fs::rename(away, guide);
  ASSERT_TRUE(Eventually([&] { return program_.Window().IsEnabled(); }));
}

void Journey::LookAtTheAboutBox() {
  OpenMenuByKeys(4);
  PressKey(VK_DOWN);
  PressKey(VK_RETURN);
  const Control about = program_.WaitForStartUpWindow();
  Picture("about");
  about.Child(FrmSpash_CmdOk).Press();
  EXPECT_TRUE(Eventually([&] { return program_.CountWindowsWith(FrmSpash_lblDescription) == 0; }));
}

void Journey::Leave() const {
  ASSERT_TRUE(Eventually([&] { return program_.Window().IsEnabled(); }));
  OpenMenuByKeys(0);
  PressKey('X');
}

void Journey::ComeBack() {
  program_.Start();
  EXPECT_EQ(FolderNames(), (std::vector<std::string>{root, tongue_.folder, "2", tongue_.newFolder}));
  EXPECT_TRUE(program_.Item(FrmFindIcon_chkSubDir).IsChecked());
  Find();
  const EnhancedView view = OpenOn(2);
  const RECT bounds = view.Window().Bounds();
  EXPECT_EQ(bounds.right - bounds.left, LargerView().cx);
  EXPECT_EQ(bounds.bottom - bounds.top, LargerView().cy);
  Picture("next-day");
  view.Exit();
}

}  // namespace tarvik::end_to_end
