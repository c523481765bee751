#pragma once

#include <string>

#include "base/Finally.h"
#include "base/PixelView.h"
#include "base/Progress.h"
#include "encoders/ImageDialogs.h"
#include "export/FileDialogModes.h"

namespace tarvik {

// The kind of a message: a failure, or a hint.
enum class MessageKind { Failure, Hint };

// The interface of the main window that the save and copy commands use. Texts are UTF-8.
class SaveWindow {
 public:
  virtual ~SaveWindow() = default;

  // Renders the icon of entry `number` into the three surfaces; they are blank if its file no longer yields the icon,
  // and are saved like that. Returns false and leaves the surfaces unchanged if the list holds no entry of that number.
  virtual bool RenderEntry(int number) = 0;
  virtual const PixelView& PicMask() const = 0;
  virtual const PixelView& PicImage() const = 0;
  virtual const PixelView& PicIcon() const = 0;
  // The picture of PicIcon magnified, at the top-left corner of a square of MagnifiedSide.
  virtual const PixelView& PicMain() = 0;

  // Show the text in panel 1 of sbMain, and the hourglass; what was there before is restored when the returned object
  // is destroyed.
  virtual Finally ShowStatus(const std::string& text) = 0;
  virtual Finally ShowHourglass() = 0;
  virtual void ShowMessage(const std::string& text, MessageKind kind) = 0;

  virtual void SetProgress(const Progress& progress) = 0;  // progress of a batch

  // While the returned object exists, the window accepts no command. It repaints whenever ServePainting is called.
  virtual Finally HoldCommands() = 0;
  virtual void ServePainting() = 0;

  // Composes the icon of PicMask and PicImage in PicClip and copies that to the clipboard; returns false if the
  // clipboard could not be opened.
  virtual bool CopyPicClip() = 0;
};

// The dialogs that the commands open, each modal to the main window.
class SaveDialogs {
 public:
  virtual ~SaveDialogs() = default;

  // The path chosen in the platform's Save dialog, or an empty text if it was cancelled.
  virtual std::string AskForPath(const FileDialogMode& mode) = 0;
  // The folder chosen in the folder chooser, or an empty text if it was cancelled.
  virtual std::string ShowDir() = 0;
  // Shows the hot-spot picker with `picMain`, the magnified icon; its answer is stored in the program's state.
  virtual void ShowFrmHotSpot(const PixelView& picMain) = 0;
  // The dialogs of the two formats that have options, each with a new encoder. Valid until the next call.
  virtual JpegDialog& NewSaveJPG() = 0;
  virtual GifDialog& NewConvertGIF() = 0;
  // Frees every encoder.
  virtual void FreeEncoders() = 0;
};

// A temporary bitmap file during a save: the picture is passed to the JPEG encoder through it.
class TemporaryPicture {
 public:
  virtual ~TemporaryPicture() = default;

  // Writes the picture to the file, which is created if necessary, and reads it back. Returns null if that fails. The
  // result is valid until the next call.
  virtual const PixelView* PassThrough(const PixelView& picture) = 0;
  // Deletes the file, if there is one.
  virtual void Delete() = 0;
};

}  // namespace tarvik
