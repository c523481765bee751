#include "export/SaveCommands.h"

#include <algorithm>
#include <string_view>

#include "base/AsciiCase.h"
#include "base/Finally.h"
#include "base/NonCopyable.h"
#include "export/ModMicroArt.h"
#include "export/ModMicroArtFileIO.h"
#include "export/SaveTexts.h"

namespace tarvik {
namespace {

using ModMicroArt::BlackAndWhite;
using ModMicroArt::Classify;

// The three prefixes of batch names. The spelling of the last is deliberate: oddities 39.
constexpr std::string_view iconPrefix = "Icon ";
constexpr std::string_view imagePrefix = "Images ";
constexpr std::string_view cursorPrefix = "Curor ";

// The kinds of files that the folder chooser is opened for.
constexpr std::string_view iconSaveExtension = ".ICO";
constexpr std::string_view cursorSaveExtension = ".CUR";

// The text after the last dot of the path's last name, in upper case; empty if that name has no dot.
std::string UpperExtension(std::string_view path) {
  const std::string_view name = path.substr(path.find_last_of("\\/:") + 1);
  const std::size_t dot = name.rfind('.');
  if (dot == std::string_view::npos) return {};
  std::string extension(name.substr(dot + 1));
  std::ranges::transform(extension, extension.begin(), UpperAscii);
  return extension;
}

}  // namespace

// Shows the hourglass and the progress text during its lifetime; then restores the former status text.
class SaveCommands::Saving : NonCopyable {
 public:
  explicit Saving(SaveCommands& commands) : hourglass_(commands.window_.ShowHourglass()) {
    if (const auto text = Pick(saveTexts::progress, commands.state_.CurrentLanguage))
      status_ = commands.window_.ShowStatus(std::string(*text));
  }

 private:
  Finally hourglass_;
  Finally status_;
};

bool SaveCommands::RenderCurrent() {
  const int current = search_.CurrentIndex + 1;
  if (!list_.Has(current)) return false;
  window_.RenderEntry(current);
  return true;
}

bool SaveCommands::WriteIcon(const std::string& path) {
  const auto colors = Classify(window_.PicImage(), BlackAndWhite::InFixedSlots);
  return ModMicroArtFileIO::WriteIcon(window_.PicMask(), window_.PicImage(), colors, path, dependencies_.files);
}

bool SaveCommands::WriteCursor(const std::string& path) {
  const auto colors = Classify(window_.PicImage(), BlackAndWhite::InFixedSlots);
  const ModMicroArtFileIO::HotSpot hotSpot{state_.HotSpotX, state_.HotSpotY};
  return ModMicroArtFileIO::WriteCursor(window_.PicMask(), window_.PicImage(), colors, hotSpot, path,
                                        dependencies_.files);
}

bool SaveCommands::WriteBitmap(const std::string& path) {
  const auto colors = Classify(window_.PicIcon(), BlackAndWhite::InOrder);
  return ModMicroArtFileIO::WriteBitmap(window_.PicIcon(), colors, path, dependencies_.files);
}

void SaveCommands::mnuSaveAs_Click() {
  const auto held = window_.HoldCommands();
  if (!RenderCurrent()) return;
  std::string path;
  bool written = false;
  {
    const Saving saving(*this);
    path = dependencies_.dialogs.AskForPath(saveAsMode);
    if (path.empty()) return;
    written = WriteIcon(path);
  }
  if (!written) Tell(saveTexts::iconFailed, MessageKind::Failure, path);
}

void SaveCommands::MnuSaveAsBitmap_Click() {
  const auto held = window_.HoldCommands();
  if (!RenderCurrent()) return;
  const std::string path = dependencies_.dialogs.AskForPath(saveAsImageMode);
  if (path.empty()) return;
  const std::string extension = UpperExtension(path);
  if (extension == "JPG") return SaveBMPToJPG(path);
  if (extension == "GIF") return SaveBMPToGIF(path);
  SaveBitmapNamed(path);
}

void SaveCommands::SaveBitmapNamed(const std::string& path) {
  bool written = false;
  {
    const Saving saving(*this);
    written = WriteBitmap(path);
  }
  if (!written) Tell(saveTexts::imageFailed, MessageKind::Failure);
}

void SaveCommands::SaveBMPToJPG(const std::string& path) {
  DialogAnswer answer = DialogAnswer::Failed;
  {
    const Finally deletes([this] { dependencies_.temporaryPicture.Delete(); });
    // A picture that could not be written or read back is not passed to the dialog.
    if (const PixelView* picture = dependencies_.temporaryPicture.PassThrough(window_.PicIcon())) {
      JpegDialog& dialog = dependencies_.dialogs.NewSaveJPG();
      dialog.InitJpegExport(*picture, path, DialogMode::Single);
      answer = dialog.ShowFor(DialogMode::Single);
    }
  }
  if (answer == DialogAnswer::Failed) Tell(saveTexts::imageFailed, MessageKind::Failure);
}

void SaveCommands::SaveBMPToGIF(const std::string& path) {
  GifDialog& dialog = dependencies_.dialogs.NewConvertGIF();
  dialog.InitGifExport(window_.PicIcon(), path);
  const DialogAnswer answer = dialog.ShowFor(DialogMode::Single);
  if (answer == DialogAnswer::Failed) Tell(saveTexts::imageFailed, MessageKind::Failure);
}

void SaveCommands::MnuSaveAsCursor_Click() {
  const auto held = window_.HoldCommands();
  if (!RenderCurrent()) return;
  dependencies_.dialogs.ShowFrmHotSpot(window_.PicMain());
  if (state_.HotSpotCancelled) return;
  const std::string path = dependencies_.dialogs.AskForPath(saveAsCursorMode);
  if (path.empty()) return;
  bool written = false;
  {
    const Saving saving(*this);
    written = WriteCursor(path);
  }
  if (!written) Tell(saveTexts::cursorFailed, MessageKind::Failure);
}

void SaveCommands::mnuSaveAll_Click() {
  SaveIcons(Scope::All);
}

void SaveCommands::mnuSaveAll2_Click() {
  SaveImages(Scope::All);
}

void SaveCommands::mnuSaveAll3_Click() {
  SaveCursors(Scope::All);
}

void SaveCommands::mnuSaveSel_Click() {
  if (IsAnySelected()) SaveIcons(Scope::Selected);
}

void SaveCommands::mnuSaveSel2_Click() {
  if (IsAnySelected()) SaveImages(Scope::Selected);
}

void SaveCommands::mnuSaveSel3_Click() {
  if (IsAnySelected()) SaveCursors(Scope::Selected);
}

bool SaveCommands::IsAnySelected() {
  if (list_.AnySelected()) return true;
  Tell(saveTexts::noneSelected, MessageKind::Hint);
  return false;
}

std::string SaveCommands::AskForFolder(std::string_view saveExtension) {
  state_.SaveExtension = saveExtension;
  std::string folder = dependencies_.dialogs.ShowDir();
  if (!folder.empty() && !folder.ends_with('\\')) folder += '\\';
  return folder;
}

void SaveCommands::SaveIcons(Scope scope) {
  const auto held = window_.HoldCommands();
  const std::string folder = AskForFolder(iconSaveExtension);
  if (folder.empty()) return;
  SaveBatch(scope, folder, {iconPrefix, ".ico", saveTexts::iconFailed},
            [this](const std::string& path) { return WriteIcon(path); });
}

void SaveCommands::SaveCursors(Scope scope) {
  const auto held = window_.HoldCommands();
  const std::string folder = AskForFolder(cursorSaveExtension);
  if (folder.empty()) return;
  SaveBatch(scope, folder, {cursorPrefix, ".cur", saveTexts::cursorFailed},
            [this](const std::string& path) { return WriteCursor(path); });
}

void SaveCommands::SaveImages(Scope scope) {
  const auto held = window_.HoldCommands();
  const std::string folder = AskForFolder(ImageExtension(0).value_or(std::string_view()));
  if (folder.empty()) return;
  const BatchKind kind{imagePrefix, state_.SaveExtension, saveTexts::imageFailed};
  const std::string extension = UpperExtension(kind.extension);
  if (extension == "JPG") return SaveBMPToJPGForNoSingle(scope, folder, kind);
  if (extension == "GIF") return SaveBMPToGIFForNoSingle(scope, folder, kind);
  SaveBatch(scope, folder, kind, [this](const std::string& path) { return WriteBitmap(path); });
}

void SaveCommands::SaveBMPToJPGForNoSingle(Scope scope, const std::string& folder, const BatchKind& kind) {
  const Finally deletes([this] { dependencies_.temporaryPicture.Delete(); });
  JpegDialog& dialog = dependencies_.dialogs.NewSaveJPG();
  const Finally freed([&dialog] { dialog.FreeObj(); });
  if (dialog.ShowFor(DialogMode::NoSingle) != DialogAnswer::Ok) return;
  SaveBatch(scope, folder, kind, [&](const std::string& path) {
    const PixelView* picture = dependencies_.temporaryPicture.PassThrough(window_.PicIcon());
    if (picture == nullptr) return false;
    dialog.InitJpegExport(*picture, path, DialogMode::NoSingle);
    return dialog.SaveToJPGForNoSingle(path);
  });
}

void SaveCommands::SaveBMPToGIFForNoSingle(Scope scope, const std::string& folder, const BatchKind& kind) {
  GifDialog& dialog = dependencies_.dialogs.NewConvertGIF();
  const Finally freed([&dialog] { dialog.FreeGifObj(); });
  if (dialog.ShowFor(DialogMode::NoSingle) != DialogAnswer::Ok) return;
  SaveBatch(scope, folder, kind, [&](const std::string& path) {
    dialog.InitGifExport(window_.PicIcon(), path);
    return dialog.SaveToGIFNoSingle(path);
  });
}

void SaveCommands::SaveBatch(Scope scope, const std::string& folder, const BatchKind& kind, const Write& write) {
  const Saving saving(*this);
  const Finally endsProgress([this] { window_.SetProgress({}); });
  const int total = scope == Scope::All ? list_.Count() : list_.CountSelected();
  int saved = 0;
  for (int number = 1; number <= list_.Count(); ++number) {
    if (scope == Scope::Selected && !list_.Item(number).selected) continue;
    ++saved;
    window_.RenderEntry(number);
    const std::string path = folder + std::string(kind.prefix) + std::to_string(saved) + std::string(kind.extension);
    if (!write(path)) Tell(kind.failed, MessageKind::Failure, path);
    window_.SetProgress({Progress::Kind::Share, saved, total});
    window_.ServePainting();
  }
}

void SaveCommands::mnuCopy_Click() {
  const auto held = window_.HoldCommands();
  if (RenderCurrent() && !window_.CopyPicClip()) Tell(saveTexts::clipboardHeld, MessageKind::Failure);
}

void SaveCommands::CleanUp() {
  dependencies_.temporaryPicture.Delete();
  dependencies_.dialogs.FreeEncoders();
}

void SaveCommands::Tell(const Text& text, MessageKind kind, const std::string& path) {
  if (const auto message = Compose(text, state_.CurrentLanguage, {path})) window_.ShowMessage(*message, kind);
}

}  // namespace tarvik
