#pragma once

#include <string>

#include "base/PixelView.h"

namespace tarvik {

// What a dialog of image options is shown for: one file, which OK writes, or a batch, for which OK keeps the options.
enum class DialogMode { Single, NoSingle };

// The result of such a dialog.
enum class DialogAnswer {
  Cancelled,
  Ok,
  Failed,  // OK was chosen, and the file could not be written completely
};

// The interface of the JPEG options dialog that the save commands use.
class JpegDialog {
 public:
  virtual ~JpegDialog() = default;

  // Sets the input of the next call. The picture outlives that call.
  virtual void InitJpegExport(const PixelView& picture, const std::string& target, DialogMode mode) = 0;
  // Shows the dialog modally. In mode NoSingle it may be shown before any InitJpegExport.
  virtual DialogAnswer ShowFor(DialogMode mode) = 0;
  // Writes the picture with the chosen options and shows nothing. Returns false if it could not be written.
  virtual bool SaveToJPGForNoSingle(const std::string& target) = 0;
  // Frees the encoder and the dialog.
  virtual void FreeObj() = 0;
};

// The interface of the GIF options dialog that the save commands use.
class GifDialog {
 public:
  virtual ~GifDialog() = default;

  // Sets the input of the next call. The picture outlives that call.
  virtual void InitGifExport(const PixelView& picture, const std::string& target) = 0;
  // Shows the dialog modally. In mode NoSingle it may be shown before any InitGifExport.
  virtual DialogAnswer ShowFor(DialogMode mode) = 0;
  // Writes the picture with the chosen options and shows nothing. Returns false if it could not be written.
  virtual bool SaveToGIFNoSingle(const std::string& target) = 0;
  // Frees the encoder.
  virtual void FreeGifObj() = 0;
};

}  // namespace tarvik
