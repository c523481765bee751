#pragma once

#include <functional>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "export/SaveCommands.h"
#include "support/Script.h"
#include "support/TestRaster.h"

namespace tarvik::support {

// A main window without a screen. Entry n renders as a 2 x 2 picture of colours of its own.
class FakeSaveWindow final : public SaveWindow {
 public:
  explicit FakeSaveWindow(Script& script) : script_(script) {}

  // From now on every entry renders as these pictures.
  void RenderAs(const TestRaster& image, const TestRaster& icon) {
    rendersAsSet_ = true;
    mask_ = TestRaster(image.Width(), image.Height());
    image_ = image;
    icon_ = icon;
  }

  bool RenderEntry(int number) override {
    script_.push_back("render " + std::to_string(number));
    if (rendersAsSet_) return true;
    for (int index = 0; index < 4; ++index) {
      mask_.SetNumber(index, index == 0 ? white : black);
      image_.SetNumber(index, 0x010000U * static_cast<Color>(number));
      icon_.SetNumber(index, 0x000100U * static_cast<Color>(number));
    }
    return true;
  }
  const PixelView& PicMask() const override { return mask_; }
  const PixelView& PicImage() const override { return image_; }
  const PixelView& PicIcon() const override { return icon_; }
  const PixelView& PicMain() override { return magnified_; }
  Finally ShowStatus(const std::string& text) override {
    Finally restores([this, former = status] { SetStatus(former); });
    SetStatus(text);
    return restores;
  }
  Finally ShowHourglass() override {
    script_.emplace_back("hourglass");
    return Finally([this] { script_.emplace_back("pointer back"); });
  }
  void ShowMessage(const std::string& text, MessageKind kind) override {
    script_.push_back((kind == MessageKind::Failure ? "failure " : "hint ") + text);
  }
  void SetProgress(const Progress& shown) override {
    progress.push_back(
        shown.kind == Progress::Kind::None ? "none" : std::to_string(shown.done) + "/" + std::to_string(shown.total));
  }
  Finally HoldCommands() override {
    ++held;
    return Finally([this] { --held; });
  }
  void ServePainting() override {
    script_.emplace_back("paint");
    heldWhenServed.push_back(held);
  }
  bool CopyPicClip() override {
    script_.emplace_back("copy");
    return clipboardFree;
  }

  std::string status = "standing";
  Script progress;
  bool clipboardFree = true;
  int held = 0;
  std::vector<int> heldWhenServed;  // `held` at each ServePainting

 private:
  void SetStatus(const std::string& text) {
    script_.push_back("status " + text);
    status = text;
  }

  Script& script_;
  bool rendersAsSet_ = false;
  TestRaster mask_{2, 2};
  TestRaster image_{2, 2};
  TestRaster icon_{2, 2};
  TestRaster magnified_{4, 4};
};

// Files that are only logged: "file" and the path when one is closed, "refused" when one cannot be opened.
class NotedFiles final : public FileSink {
 public:
  explicit NotedFiles(Script& script) : script_(script) {}

  bool Open(const std::string& path, ReadOnlyFile /*readOnly*/) override {
    path_ = path;
    bytes[path].clear();
    if (refused.contains(path)) script_.push_back("refused " + path);
    return !refused.contains(path);
  }
  bool Write(std::span<const std::byte> added) override {
    bytes[path_].insert(bytes[path_].end(), added.begin(), added.end());
    return true;
  }
  bool Close() override {
    script_.push_back("file " + path_);
    return true;
  }

  std::set<std::string> refused;
  std::map<std::string, std::vector<std::byte>> bytes;

 private:
  Script& script_;
  std::string path_;
};

class FakeJpegDialog final : public JpegDialog {
 public:
  explicit FakeJpegDialog(Script& script) : script_(script) {}

  void InitJpegExport(const PixelView& picture, const std::string& target, DialogMode mode) override {
    script_.push_back("jpeg init " + target + (mode == DialogMode::Single ? " single" : " batch"));
    lastPixel = picture.Pixel(0, 0);
  }
  DialogAnswer ShowFor(DialogMode mode) override {
    script_.emplace_back(mode == DialogMode::Single ? "jpeg show single" : "jpeg show batch");
    if (onShow) onShow();
    return answer;
  }
  bool SaveToJPGForNoSingle(const std::string& target) override {
    script_.push_back("jpeg save " + target);
    return !refused.contains(target);
  }
  void FreeObj() override { script_.emplace_back("jpeg free"); }

  DialogAnswer answer = DialogAnswer::Ok;
  std::function<void()> onShow;
  std::set<std::string> refused;
  Color lastPixel = 0;

 private:
  Script& script_;
};

class FakeGifDialog final : public GifDialog {
 public:
  explicit FakeGifDialog(Script& script) : script_(script) {}

  void InitGifExport(const PixelView& picture, const std::string& target) override {
    script_.push_back("gif init " + target);
    lastPixel = picture.Pixel(0, 0);
  }
  DialogAnswer ShowFor(DialogMode mode) override {
    script_.emplace_back(mode == DialogMode::Single ? "gif show single" : "gif show batch");
    return answer;
  }
  bool SaveToGIFNoSingle(const std::string& target) override {
    script_.push_back("gif save " + target);
    return !refused.contains(target);
  }
  void FreeGifObj() override { script_.emplace_back("gif free"); }

  DialogAnswer answer = DialogAnswer::Ok;
  std::set<std::string> refused;
  Color lastPixel = 0;

 private:
  Script& script_;
};

class FakeSaveDialogs final : public SaveDialogs {
 public:
  FakeSaveDialogs(Script& script, ProgramState& state) : jpeg(script), gif(script), script_(script), state_(state) {}

  std::string AskForPath(const FileDialogMode& mode) override {
    script_.push_back("ask" + std::string(mode.titleSuffix.eng));
    return path;
  }
  std::string ShowDir() override {
    script_.push_back("folder for " + state_.SaveExtension);
    if (onShowDir) onShowDir();
    if (!chosenExtension.empty()) state_.SaveExtension = chosenExtension;
    return folder;
  }
  void ShowFrmHotSpot(const PixelView& picMain) override {
    script_.push_back("hot spot on " + std::to_string(picMain.Width()) + " pixels");
    state_.HotSpotCancelled = hotSpotCancelled;
  }
  JpegDialog& NewSaveJPG() override { return jpeg; }
  GifDialog& NewConvertGIF() override { return gif; }
  void FreeEncoders() override { script_.emplace_back("free encoders"); }

  std::string path;  // the answers
  std::string folder;
  std::string chosenExtension;  // in the folder chooser
  std::function<void()> onShowDir;
  bool hotSpotCancelled = false;
  FakeJpegDialog jpeg;
  FakeGifDialog gif;

 private:
  Script& script_;
  ProgramState& state_;
};

class FakeTemporaryPicture final : public TemporaryPicture {
 public:
  explicit FakeTemporaryPicture(Script& script) : script_(script) {}

  const PixelView* PassThrough(const PixelView& picture) override {
    script_.emplace_back("temporary");
    return works ? &picture : nullptr;
  }
  void Delete() override { script_.emplace_back("delete temporary"); }

  bool works = true;

 private:
  Script& script_;
};

}  // namespace tarvik::support
