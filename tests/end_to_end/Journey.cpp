#include "end_to_end/Journey.h"

#include <gmock/gmock.h>
#include <windows.h>

#include <shellapi.h>

#include <algorithm>
#include <array>
#include <vector>

#include "driver/Dialogs.h"
#include "driver/SeenFiles.h"
#include "platform/Display.h"
#include "platform/Text.h"

namespace tarvik::end_to_end {

namespace fs = std::filesystem;
using ::testing::ElementsAre;
using ::testing::EndsWith;
using ::testing::SizeIs;
namespace {

constexpr const char* root = "R:\\";

}  // namespace

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
  SavePicture(program_.Extent(), Pictures() / (number + "-" + name + ".png"));
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
    Click(MiddleOf(box.Place()));
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
    DoubleClick(MiddleOf(box.Place()));  // selects its text
    TypeText(limit);
    return Eventually([&] { return box.Text() == limit; }, lostAfter);
  })) << box.Text();
}

void Journey::Search() {
  TypeLimit("100");
  PressKey(VK_RETURN);
  const Box refusal = program_.WaitForBox();
  EXPECT_EQ(refusal.Text(),
            tongue_.refused + std::to_string(count_) + tongue_.refusedBetween + "100" + tongue_.refusedEnd);
  Picture("refused");
  refusal.Press(IDOK);
  ASSERT_TRUE(Eventually([&] { return IsEnabled(FrmFindIcon_CmdFind); }));
  TypeLimit("200");
  Click(MiddleOf(program_.Item(FrmFindIcon_CmdFind).Place()));
  ASSERT_TRUE(Eventually([&] { return List().RowCount() == count_ && IsEnabled(FrmFindIcon_CmdFind); }));
  EXPECT_EQ(Caption(), "Brindle Tarvik - " + std::string(root) + tongue_.folder + " - " + std::to_string(count_) +
                           tongue_.foundEnd);
  EXPECT_EQ(List().RowCount(), count_);
  Picture("grid");
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
  SetWindowPos(view.Window().Window(), nullptr, 0, 0, 600, 500, SWP_NOMOVE | SWP_NOZORDER);
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
  Picture("list");
  program_.Command(FrmFindIcon_mnuRem);
  ExpectRows({3, 6});
  program_.Item(FrmFindIcon_OptView0).Press();
  EXPECT_TRUE(Eventually([&] { return program_.Item(FrmFindIcon_PicFrame).IsVisible(); }));
}

void Journey::ChooseInFileMenu(int command) const {
  // Places are counted from 0, without the lines between the items.
  struct Item {
    int command;
    int place;
    int placeInSubMenu;  // -1 if there is none
  };
  constexpr std::array items{
      Item{FrmFindIcon_mnuSaveAs, 1, -1},       Item{FrmFindIcon_MnuSaveAsBitmap, 2, -1},
      Item{FrmFindIcon_MnuSaveAsCursor, 3, -1}, Item{FrmFindIcon_mnuSaveAll, 4, 1},
      Item{FrmFindIcon_mnuSaveSel2, 5, 0},      Item{FrmFindIcon_mnuSaveSel3, 6, 0},
  };
  const auto item = std::ranges::find(items, command, &Item::command);
  ASSERT_NE(item, items.end()) << command;
  OpenMenuByKeys(0);
  PressKey(VK_DOWN, {}, item->place);
  if (item->placeInSubMenu >= 0) {
    PressKey(VK_RIGHT);
    PressKey(VK_DOWN, {}, item->placeInSubMenu);
  }
  PressKey(VK_RETURN);
}

SaveDialog Journey::AskForName(int command) const {
  ChooseInFileMenu(command);
  return SaveDialog(program_);
}

void Journey::WaitForSave(const std::string& status) const {
  EXPECT_TRUE(Eventually([&] { return program_.Window().IsEnabled() && Status() == status; })) << Status();
}

void Journey::SaveAsJpeg(const std::string& name) {
  AskForName(FrmFindIcon_MnuSaveAsBitmap).SaveAs(name);
  const Dialog jpeg(program_, fSaveJPG_CboSize);
  jpeg.Press(fSaveJPG_cmdComment);
  const Dialog comment(program_, fComment_txtComment);
  comment.Item(fComment_txtComment).SetText(tongue_.file);
  Picture("jpeg-comment");
  comment.End(fComment_cmdFinish);
  Picture("jpeg");
  jpeg.End(fSaveJPG_cmdFinish1);
}

void Journey::SaveAsGif(const std::string& name) {
  AskForName(FrmFindIcon_MnuSaveAsBitmap).SaveAs(name);
  const Dialog gif(program_, FrmConvertGIF_Option1);
  Picture("gif");
  gif.End(FrmConvertGIF_CmdOk);
}

void Journey::SaveAsCursor(const std::string& name) {
  ChooseInFileMenu(FrmFindIcon_MnuSaveAsCursor);
  const Dialog hotSpot(program_, FrmHotSpot_PicCursor);
  Picture("hot-spot");
  hotSpot.End(FrmHotSpot_CmdOk);
  SaveDialog(program_).SaveAs(name);
}

void Journey::SaveOneIcon() {
  const std::string folder = home_.MakeFolder("out");
  const std::string name = folder + "\\" + tongue_.file;
  const std::string status = Status();
  const SaveDialog icon = AskForName(FrmFindIcon_mnuSaveAs);
  icon.Window().Send(WM_NULL);  // it takes a while to show its folder
  Picture("save-as");
  icon.SaveAs(name);
  WaitForSave(status);
  AskForName(FrmFindIcon_MnuSaveAsBitmap).SaveAs(name + ".bmp");
  WaitForSave(status);
  SaveAsJpeg(name + ".jpg");
  WaitForSave(status);
  SaveAsGif(name + ".gif");
  WaitForSave(status);
  SaveAsCursor(name);
  WaitForSave(status);

  const auto files = SeeFiles(folder);
  EXPECT_THAT(files, SizeIs(5));
  for (const char* extension : {".bmp", ".cur", ".gif", ".ico", ".jpg"})
    EXPECT_THAT(files.at(tongue_.file + std::string(extension)).pixels, SizeIs(32 * 32)) << extension;
}

std::string Journey::BatchFolder() const {
  return std::string(root) + tongue_.folder + "\\" + tongue_.newFolder;
}

int Journey::CountSaved(const std::wstring& start) const {
  const fs::directory_iterator files(ToWide(BatchFolder()));
  return static_cast<int>(std::count_if(begin(files), end(files), [&](const fs::directory_entry& file) {
    return file.path().filename().wstring().starts_with(start) && file.file_size() > 0;
  }));
}

void Journey::SaveAllIcons() {
  const std::string status = Status();
  ChooseInFileMenu(FrmFindIcon_mnuSaveAll);
  const FolderChooser chooser(program_);
  const NewFolderDialog newFolder(program_, chooser);
  Picture("new-folder");
  newFolder.Create(tongue_.newFolder);
  newFolder.WaitForEnd();
  EXPECT_EQ(chooser.Path(), BatchFolder());
  Picture("folder");
  chooser.Ok();
  WaitForSave(status);
}

void Journey::SaveSelected(const Batch& batch) {
  const std::string status = Status();
  ChooseInFileMenu(batch.command);
  const FolderChooser chooser(program_);
  chooser.Open(tongue_.newFolder);
  if (batch.type != 0) chooser.ChooseType(batch.type);
  Picture(batch.picture);
  chooser.Ok();
  if (batch.options != 0) Dialog(program_, batch.options).End(batch.finish);
  WaitForSave(status);
}

void Journey::SaveMany() {
  SaveAllIcons();
  EXPECT_EQ(CountSaved(L"Icon "), count_);
  int images = 0;
  for (const Batch& batch : {
           Batch{FrmFindIcon_mnuSaveSel2, 0, 0, 0, "bitmap-folder"},
           Batch{FrmFindIcon_mnuSaveSel2, 1, FrmConvertGIF_Option1, FrmConvertGIF_CmdOk, "gif-folder"},
           Batch{FrmFindIcon_mnuSaveSel2, 2, fSaveJPG_CboSize, fSaveJPG_cmdFinish1, "jpeg-folder"},
       }) {
    SaveSelected(batch);
    images += 2;
    EXPECT_EQ(CountSaved(L"Images "), images) << batch.picture;
  }
  SaveSelected({FrmFindIcon_mnuSaveSel3, 0, 0, 0, "cursor-folder"});
  EXPECT_EQ(CountSaved(L"Curor "), 2);
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
  const RECT place = view.Window().Place();
  EXPECT_EQ(place.right - place.left, 600);
  EXPECT_EQ(place.bottom - place.top, 500);
  Picture("next-day");
  view.Exit();
}

}  // namespace tarvik::end_to_end
