// The part of the journey that saves icons.

#include <gmock/gmock.h>
#include <windows.h>

#include <algorithm>
#include <array>

#include "driver/Dialogs.h"
#include "driver/SeenFiles.h"
#include "end_to_end/Journey.h"
#include "platform/Text.h"

namespace tarvik::end_to_end {

namespace fs = std::filesystem;
using ::testing::SizeIs;

void Journey::ChooseInFileMenu(int command) const {
  // Positions are counted from 0, without the lines between the items.
  struct Item {
    int command;
    int position;
    int positionInSubMenu;  // -1 if there is none
  };
  constexpr std::array items{
      Item{FrmFindIcon_mnuSaveAs, 1, -1},       Item{FrmFindIcon_MnuSaveAsBitmap, 2, -1},
      Item{FrmFindIcon_MnuSaveAsCursor, 3, -1}, Item{FrmFindIcon_mnuSaveAll, 4, 1},
      Item{FrmFindIcon_mnuSaveSel2, 5, 0},      Item{FrmFindIcon_mnuSaveSel3, 6, 0},
  };
  const auto item = std::ranges::find(items, command, &Item::command);
  ASSERT_NE(item, items.end()) << command;
  OpenMenuByKeys(0);
  PressKey(VK_DOWN, {}, item->position);
  if (item->positionInSubMenu >= 0) {
    PressKey(VK_RIGHT);
    PressKey(VK_DOWN, {}, item->positionInSubMenu);
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
  newFolder.Create(":");
  PassBox("no-new-folder");
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

}  // namespace tarvik::end_to_end
