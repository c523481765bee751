// Saving, with the files that it writes.
#include "model/FinishedProgram.h"

#include <windows.h>

#include <shellapi.h>

#include <algorithm>
#include <cstdint>
#include <string>
#include <vector>

#include "driver/Dialogs.h"
#include "driver/SaveDialog.h"
#include "driver/Waiting.h"
#include "model/Compared.h"
#include "model/ExpectedFiles.h"
#include "platform/IconFiles.h"
#include "platform/Surface.h"
#include "platform/Text.h"

namespace tarvik::end_to_end {

using model::Front;
using model::Kind;
using model::Scope;

namespace {

constexpr int mostSaved = 5;

std::string NameOf(const std::string& path) {
  return path.substr(path.rfind('\\') + 1);
}

// A file in the root of a drive is listed with a doubled backslash.
std::string WithSingleBackslash(std::string path) {
  const auto doubled = path.find("\\\\");
  if (doubled != std::string::npos) path.erase(doubled, 1);
  return path;
}

// The same content for the icon of a real file, whose pixels the model does not know.
model::Bytes Expected(const std::string& path, const model::Written& file, const model::Capture& icon) {
  if (file.isBeginning) return file.bytes;
  if (path.ends_with(".ico")) return model::IconFile(icon);
  return path.ends_with(".cur") ? model::CursorFile(icon, {}) : model::BitmapFile(icon);
}

bool Matches(const std::string& path, const model::Bytes& expected, bool isBeginning) {
  const auto content = support::ReadAll(path);
  if (content.size() < expected.size() || (!isBeginning && content.size() != expected.size())) return false;
  return std::equal(expected.begin(), expected.end(), content.begin(),
                    [](std::uint8_t one, auto other) { return one == static_cast<std::uint8_t>(other); });
}

}  // namespace

// As the system draws it, over white and over black; a blank one if its file is gone.
model::Capture FinishedProgram::Captured(int row) const {
  const model::Entry& entry = model_.entries.at(static_cast<std::size_t>(row));
  const int size = model_.Size().size;
  model::Capture capture = model::CaptureOf(nullptr, size);
  const auto file = disk_.Find(entry.path);
  if (!file || entry.index >= file->icons) return capture;
  const Surface overWhite(size, size, model::whitePixel);
  const Surface overBlack(size, size, model::blackPixel);
  DrawEntry(overWhite, {entry.path, entry.index}, {0, 0}, size);
  DrawEntry(overBlack, {entry.path, entry.index}, {0, 0}, size);
  GdiFlush();
  for (int y = 0; y < size; ++y) {
    for (int x = 0; x < size; ++x) {
      const model::Pixel pixel = overWhite.Pixel(x, y);
      capture.composed.Set(x, y, pixel);
      if (pixel != overBlack.Pixel(x, y)) continue;
      capture.image.Set(x, y, pixel);
      capture.mask.Set(x, y, model::blackPixel);
    }
  }
  return capture;
}

// Files and status can look like this before the first file is written, too. But until the last one is written, the
// program refuses the end of the session.
void FinishedProgram::WaitForWritten() const {
  Eventually([this] {
    return program_.Window().IsEnabled() && program_.Window().Send(WM_QUERYENDSESSION) != FALSE &&
           Status() == model_.status;
  });
}

void FinishedProgram::CompareWritten(const std::vector<int>& rows) {
  WaitForWritten();
  // A file may be written over one whose icon is saved after it. Such a file may be incomplete when it is read here.
  const bool overlaps = std::ranges::any_of(rows, [&](int row) {
    const model::Entry& entry = model_.entries.at(static_cast<std::size_t>(row));
    return model_.written.contains(WithSingleBackslash(entry.path));
  });
  std::size_t next = 0;
  for (const auto& [path, file] : model_.written) {
    const int row = rows.at(next++);
    const model::Capture icon = overlaps ? model::CaptureOf(nullptr, model_.Size().size) : Captured(row);
    model::Bytes expected = Expected(path, file, icon);
    constexpr std::size_t startOfAny = 8;
    if (overlaps) expected.resize(std::min(expected.size(), startOfAny));
    const bool isBeginning = overlaps || file.isBeginning;
    if (!Eventually([&] { return Matches(path, expected, isBeginning); }, std::chrono::seconds(20)))
      Tell("not as expected: " + path + ", " + std::to_string(support::ReadAll(path).size()) + " bytes\n");
    // The next search finds as many icons in it as the shell does: in some saved files none.
    const UINT icons = ExtractIconExA(path.c_str(), -1, nullptr, nullptr, 0);
    disk_.Put(model::Above(path), NameOf(path), static_cast<int>(icons));
  }
  if (!model_.written.empty()) model_.listsAreStale = true;
  model_.written.clear();
}

// Every click is limited to the first pixel.
void FinishedProgram::PickHotSpot(const Dialog& dialog, const Action& action) {
  const LPARAM point = MAKELPARAM(action.b % 385, action.c % 385);
  const Control picture = dialog.Item(FrmHotSpot_PicCursor);
  picture.Send(WM_MOUSEMOVE, 0, point);
  picture.Send(WM_LBUTTONDOWN, MK_LBUTTON, point);
  picture.Send(WM_LBUTTONUP, 0, point);
  Tell(model::Compared("hot x", "00", dialog.Item(FrmHotSpot_LblHotX).Text()));
  Tell(model::Compared("hot y", "00", dialog.Item(FrmHotSpot_LblHotY).Text()));
}

void FinishedProgram::EndOptions(bool jpeg, bool ok) {
  const Dialog options(program_, jpeg ? fSaveJPG_CboSize : FrmConvertGIF_Option1);
  model_.EndEncoderOptions(ok);
  if (jpeg) {
    options.End(ok ? fSaveJPG_cmdFinish1 : fSaveJPG_cmdFinish0);
  } else {
    options.End(ok ? FrmConvertGIF_CmdOk : FrmConvertGIF_CmdCancel);
  }
}

// One of five types, with Cancel in one of its dialogs or in none.
void FinishedProgram::SaveOne(const Action& action) {
  if (model_.entries.empty()) return Skip();
  struct Type {
    Kind kind;
    int command;
    const char* name;
  };
  static constexpr Type types[] = {{Kind::Icon, FrmFindIcon_mnuSaveAs, "one.ico"},
                                   {Kind::Cursor, FrmFindIcon_MnuSaveAsCursor, "one.cur"},
                                   {Kind::Image, FrmFindIcon_MnuSaveAsBitmap, "one.bmp"},
                                   {Kind::Image, FrmFindIcon_MnuSaveAsBitmap, "one.jpg"},
                                   {Kind::Image, FrmFindIcon_MnuSaveAsBitmap, "one.gif"}};
  const Type& type = types[action.a % 5];
  const std::string path = model::Joined(tree_.In("out"), type.name);
  const bool cancelsFirst = action.b % 6 == 1;
  const bool cancelsName = action.b % 6 == 2;
  const bool cancelsOptions = action.b % 6 == 3;
  Note(std::string(type.name) + (cancelsFirst     ? ", Cancel at the hot spot"
                                 : cancelsName    ? ", Cancel at the name"
                                 : cancelsOptions ? ", Cancel at the options"
                                                  : ""));
  // So that the system's dialog does not ask whether to replace it.
  if (disk_.Find(path)) disk_.Remove(model::Above(path), type.name);
  DeleteFileW(ToWide(path).c_str());
  model_.SaveOne(type.kind, cancelsName ? "" : path);
  program_.Command(type.command);
  const bool isCursor = type.kind == Kind::Cursor;
  if (isCursor) {
    const Dialog hotSpot(program_, FrmHotSpot_PicCursor);
    PickHotSpot(hotSpot, action);
    model_.EndHotSpot(!cancelsFirst);
    hotSpot.End(cancelsFirst ? FrmHotSpot_CmdCancel : FrmHotSpot_CmdOk);
  }
  if (!isCursor || !cancelsFirst) {
    const SaveDialog dialog(program_);
    if (cancelsName) {
      dialog.Cancel();
    } else {
      dialog.SaveAs(path);
    }
  }
  if (model_.Foremost() == Front::JpegOptions || model_.Foremost() == Front::GifOptions)
    EndOptions(model_.Foremost() == Front::JpegOptions, !cancelsOptions);
  const bool isWritten = !model_.written.empty();
  CompareWritten({model_.current});
  if (!isWritten && GetFileAttributesW(ToWide(path).c_str()) != INVALID_FILE_ATTRIBUTES)
    Tell("written in spite of Cancel: " + path + "\n");
}

void FinishedProgram::SaveMany(const Action& action) {
  static constexpr int items[2][3] = {{FrmFindIcon_mnuSaveAll, FrmFindIcon_mnuSaveAll2, FrmFindIcon_mnuSaveAll3},
                                      {FrmFindIcon_mnuSaveSel, FrmFindIcon_mnuSaveSel2, FrmFindIcon_mnuSaveSel3}};
  const int kind = action.a % 3;
  const int type = action.c % 3;  // of images
  const auto scope = static_cast<Scope>(action.c / 3 % 2);
  std::vector<int> rows;
  for (int row = 0; row < static_cast<int>(model_.entries.size()); ++row) {
    if (scope == Scope::All || model_.entries.at(static_cast<std::size_t>(row)).selected) rows.push_back(row);
  }
  if (model_.entries.empty() || rows.size() > mostSaved) return Skip();
  Note(std::to_string(kind) + " of type " + std::to_string(type) + (scope == Scope::All ? ", all" : ", selected"));
  model_.SaveMany(static_cast<Kind>(kind), scope);
  program_.Command(items[static_cast<int>(scope)][kind]);
  if (model_.Foremost() == Front::Box) return PassBox();
  const FolderChooser chooser(program_);
  Tell(model::Compared("chooser's folder", model_.folder, chooser.Path()));
  Tell(model::Compared("types offered", model_.chooser.offersTypes ? 1 : 0, chooser.OffersTypes() ? 1 : 0));
  if (model_.chooser.offersTypes && type != 0) {
    model_.ChooseChooserType(type);
    chooser.ChooseType(type);
  }
  const bool ok = action.b % 4 != 0;
  const bool optionsOk = action.b % 4 != 1;
  Note(!ok ? "Cancel" : optionsOk ? "OK" : "OK, Cancel at the options");
  model_.EndChooser(ok);
  if (ok) {
    chooser.Ok();
  } else {
    chooser.Cancel();
  }
  if (model_.Foremost() == Front::JpegOptions || model_.Foremost() == Front::GifOptions)
    EndOptions(model_.Foremost() == Front::JpegOptions, optionsOk);
  CompareWritten(rows);
}

}  // namespace tarvik::end_to_end
