#include "end_to_end/SavingTest.h"

#include <algorithm>
#include <optional>

#include "platform/Handles.h"
#include "platform/Text.h"

namespace tarvik::end_to_end {
namespace {

constexpr int side = 32;
constexpr int pixelCount = side * side;

}  // namespace

void Saving::MakePictures() {
  for (int entry = 0; entry < static_cast<int>(pictures.size()); ++entry) {
    const Picture& picture = pictures.at(static_cast<std::size_t>(entry));
    const std::array icon{support::BitmapPicture(side, picture.bits, picture.left, picture.right)};
    tree_.MakeFile(std::to_string(entry) + ".ico", support::IconFile(icon));
  }
  tree_.MakeFolder(outName);
}

void Saving::FindPictures() {
  MakePictures();
  Start();
  FindAll();
}

void Saving::FindAll() {
  Find();
  ASSERT_EQ(List().RowCount(), static_cast<int>(pictures.size()));
  KeepAsFound();
}

void Saving::FindMany() {
  CopyTwoThousandIcons(In("many.dll"));
  tree_.MakeFolder(outName);
  Start();
  Tick({Dll});
  SetLimit(std::to_string(many));
  Find();
  ASSERT_EQ(List().RowCount(), many);
  KeepAsFound();
}

void Saving::KeepAsFound() {
  const RECT window = program_.Window().Bounds();
  const POINT point{window.left + GetSystemMetrics(SM_CXFRAME) + 2, window.bottom - GetSystemMetrics(SM_CYFRAME) - 2};
  // A program shows its pointer once the mouse moves over it. On a desktop without a mouse movement so far there is no
  // pointer.
  ASSERT_TRUE(Eventually([&] {
    MovePointer({point.x + 8, point.y - 8});
    MovePointer(point);
    return ShownPointer() != nullptr;
  }));
  found_ = Now();
}

Pixels Saving::PixelsOf(int entry, std::uint32_t transparent) {
  constexpr std::uint32_t opaque = 0xFF000000;
  const Picture& picture = pictures.at(static_cast<std::size_t>(entry));
  Pixels pixels(pixelCount, transparent);
  for (std::size_t i = 0; i < pixelCount / 2; ++i)
    pixels[i] = opaque | (i % side < side / 2 ? picture.left : picture.right);
  return pixels;
}

// A bitmap of 256 colours shows white by its last palette entry. Few pictures fill that entry, so white becomes black
// here. The first entry, the colour of the left half, is used by no pixel: such pixels repeat the index written before,
// from the bottom row up.
Pixels Saving::BitmapPixels(int entry) {
  Pixels pixels = ComposedPixels(entry);
  if (entry != withPalette) return pixels;
  std::ranges::replace(pixels, 0xFFFFFFFFU, 0xFF000000U);
  constexpr std::size_t lastRow = side / 2 - 1;
  for (std::size_t i = 0; i < pixelCount / 2; ++i) {
    if (i % side < side / 2) pixels[i] = i / side == lastRow ? pixels.back() : pixels[side - 1];
  }
  return pixels;
}

Names Saving::NamesIn(const std::string& folder) {
  Names names;
  WIN32_FIND_DATAW data;
  const FindHandle find(FindFirstFileW(ToWide(folder + "\\*").c_str(), &data));
  do {
    const std::string name = ToUtf8(data.cFileName);
    if (name != "." && name != "..") names.push_back(name);
  } while (FindNextFileW(find.get(), &data) != 0);
  std::ranges::sort(names);
  return names;
}

SaveDialog Saving::AskForName(int command) const {
  program_.Command(command);
  if (command == FrmFindIcon_MnuSaveAsCursor) Dialog(program_, FrmHotSpot_PicCursor).End(FrmHotSpot_CmdOk);
  return SaveDialog(program_);
}

void Saving::SaveOneOver(int command, const std::string& path) const {
  const SaveDialog dialog = AskForName(command);
  dialog.Save(path);
  std::optional<Box> question;
  ASSERT_TRUE(Eventually([&] { return !dialog.IsOpen() || (question = program_.FindBox()).has_value(); })) << path;
  if (question && dialog.IsOpen()) question->Press(IDYES);
  dialog.WaitForEnd();
  if (path.ends_with(".jpg")) AcceptJpegOptions();
  if (path.ends_with(".gif")) AcceptGifOptions();
}

std::string Saving::FailureOf(int command, const std::string& path) {
  if (command == FrmFindIcon_mnuSaveAs) return "Unable to save the file " + path;
  return command == FrmFindIcon_MnuSaveAsCursor ? cursorFailed : imageFailed;
}

FolderChooser Saving::AskForFolder(int command) const {
  program_.Command(command);
  return FolderChooser(program_);
}

void Saving::ChooseOut(int command, ImageType type) const {
  const FolderChooser chooser = AskForFolder(command);
  chooser.Open(outName);
  if (type != Bmp) chooser.ChooseType(type);
  chooser.Ok();
}

void Saving::SaveBatch(int command, ImageType type) const {
  ChooseOut(command, type);
  ExpectAsFound();
}

void Saving::ChooseDriveR(int command, ImageType type) const {
  const FolderChooser chooser = AskForFolder(command);
  chooser.ChooseDrive('r');
  if (type != Bmp) chooser.ChooseType(type);
  chooser.Ok();
}

void Saving::ExpectEachFileReportedOnDriveR() const {
  const Names all{"Unable to save the file R:\\Icon 1.ico", "Unable to save the file R:\\Icon 2.ico",
                  "Unable to save the file R:\\Icon 3.ico", "Unable to save the file R:\\Icon 4.ico",
                  "Unable to save the file R:\\Icon 5.ico"};
  ChooseDriveR(FrmFindIcon_mnuSaveAll);
  EXPECT_TRUE(ShowsSign(program_.WaitForBox(), IDI_EXCLAMATION));
  EXPECT_EQ(ReadMessages(5), all);
  ExpectAsFound();
  ChooseDriveR(FrmFindIcon_mnuSaveAll3);
  EXPECT_EQ(ReadMessages(5), Names(5, cursorFailed));
  ExpectAsFound();
  ChooseDriveR(FrmFindIcon_mnuSaveAll2);
  EXPECT_EQ(ReadMessages(5), Names(5, imageFailed));
  ExpectAsFound();
  ChooseDriveR(FrmFindIcon_mnuSaveAll2, Jpg);
  AcceptJpegOptions();
  EXPECT_EQ(ReadMessages(5), Names(5, imageFailed));
  ExpectAsFound();
  ChooseDriveR(FrmFindIcon_mnuSaveAll2, Gif);
  AcceptGifOptions();
  EXPECT_EQ(ReadMessages(5), Names(5, imageFailed));
  ExpectAsFound();
}

void Saving::SelectByMouse(std::initializer_list<int> entries) const {
  Indexes wanted(entries);
  for (int entry = 0; entry < List().RowCount(); ++entry) {
    const bool select = wanted.contains(entry);
    // A click that got lost is repeated.
    for (int i = 0; i < 3 && List().IsSelected(entry) != select; ++i) {
      ClickCell(entry, {VK_CONTROL});
      Eventually([&] { return List().IsSelected(entry) == select; }, lostAfter);
    }
  }
  ExpectRows(wanted);
}

Names Saving::ReadMessages(int count) const {
  Names messages;
  for (int i = 0; i < count; ++i) {
    const Box box = program_.WaitForBox();
    EXPECT_EQ(box.Title(), "Brindle Tarvik - Error");
    messages.push_back(box.Text());
    box.Press(IDOK);
  }
  return messages;
}

Saving::Standing Saving::Now() const {
  return {.pointer = ShownPointer(),
          .caption = Caption(),
          .status = Status(),
          .windows = program_.CountWindows(),
          .enabled = program_.Window().IsEnabled(),
          .folder = program_.CurrentFolder()};
}

void Saving::ExpectAsFound() const {
  EXPECT_TRUE(Eventually([&] { return Now() == found_; }, shortly))
      << ::testing::PrintToString(Now()) << "\nand before " << ::testing::PrintToString(found_);
}

HCURSOR Saving::ShownPointer() {
  CURSORINFO info{};
  info.cbSize = sizeof info;
  GetCursorInfo(&info);
  return info.hCursor;
}

}  // namespace tarvik::end_to_end
