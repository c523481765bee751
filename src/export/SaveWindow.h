#pragma once

#include <string>

#include "base/Finally.h"
#include "base/PixelView.h"
#include "base/Progress.h"
#include "encoders/ImageDialogs.h"
#include "export/FileDialogModes.h"

namespace tarvik {

// What a message of the commands is: a failure, or a hint.
enum class MessageKind { Failure, Hint };

// The main window as the save and copy commands see it. Texts are UTF-8.
class SaveWindow {
 public:
  virtual ~SaveWindow() = default;

  // Takes the icon of entry `number` into the three surfaces; blank where its file yields none any more, and saved as
  // they are. False, and the surfaces as they were, where the list holds no entry of that number.
  virtual bool RenderEntry(int number) = 0;
  virtual const PixelView& PicMask() const = 0;
  virtual const PixelView& PicImage() const = 0;
  virtual const PixelView& PicIcon() const = 0;
  // The picture of PicIcon magnified, at the top-left corner of a square of MagnifiedSide.
  virtual const PixelView& PicMain() = 0;

  virtual std::string StatusText() const = 0;  // panel 1 of sbMain
  virtual void SetStatusText(const std::string& text) = 0;
  virtual Finally ShowHourglass() = 0;  // puts the former pointer back at its end
  virtual void ShowMessage(const std::string& text, MessageKind kind) = 0;

  virtual void SetProgress(const Progress& progress) = 0;  // how far a batch is

  // Until the end of what this returns the window takes no command. It paints itself whenever ServePainting is called.
  virtual Finally HoldCommands() = 0;
  virtual void ServePainting() = 0;

  // Composes the icon of PicMask and PicImage in PicClip and puts that on the clipboard; false where it cannot be had.
  virtual bool CopyPicClip() = 0;
};

// The dialogs that the commands open, each modal over the main window.
class SaveDialogs {
 public:
  virtual ~SaveDialogs() = default;

  // The path chosen in the platform's Save dialog, or an empty text where it was cancelled.
  virtual std::string AskForPath(const FileDialogMode& mode) = 0;
  // The folder chosen in the folder chooser, or an empty text where it was cancelled.
  virtual std::string ShowDir() = 0;
  // The hot-spot picker over `picMain`, the magnified icon; it leaves its answer in the program's state.
  virtual void ShowFrmHotSpot(const PixelView& picMain) = 0;
  // The dialogs of the two formats that have options, each with a fresh encoder. They last until the next call.
  virtual JpegDialog& NewSaveJPG() = 0;
  virtual GifDialog& NewConvertGIF() = 0;
  // Lets every encoder go.
  virtual void FreeEncoders() = 0;
};

// A bitmap file for the time of a save: the picture goes to the JPEG encoder by way of it.
class TemporaryPicture {
 public:
  virtual ~TemporaryPicture() = default;

  // Writes the picture to the file, which is made where there is none yet, and reads it back. Null where that fails.
  // What it gives lasts until the next call.
  virtual const PixelView* PassThrough(const PixelView& picture) = 0;
  // Deletes the file, if there is one.
  virtual void Delete() = 0;
};

}  // namespace tarvik
