#pragma once

#include <string>

#include "base/PixelView.h"

namespace tarvik {

// What a dialog of image options is shown for: one file, which OK writes, or a batch, for which OK keeps the options.
enum class DialogMode { Single, NoSingle };

// How such a dialog ended.
enum class DialogAnswer {
  Cancelled,
  Ok,
  Failed,  // OK was chosen, and the file could not be written as a whole
};

// The JPEG options dialog as the save commands see it.
class JpegDialog {
 public:
  virtual ~JpegDialog() = default;

  // Sets what the next call writes. The picture outlives that call.
  virtual void InitJpegExport(const PixelView& picture, const std::string& target, DialogMode mode) = 0;
  // Shows the dialog modally. In mode NoSingle it may be shown before any InitJpegExport.
  virtual DialogAnswer ShowFor(DialogMode mode) = 0;
  // Writes the picture with the chosen options and shows nothing. False where it could not be written.
  virtual bool SaveToJPGForNoSingle(const std::string& target) = 0;
  // Lets the encoder go, and the dialog with it.
  virtual void FreeObj() = 0;
};

// The GIF options dialog as the save commands see it.
class GifDialog {
 public:
  virtual ~GifDialog() = default;

  // Sets what the next call writes. The picture outlives that call.
  virtual void InitGifExport(const PixelView& picture, const std::string& target) = 0;
  // Shows the dialog modally. In mode NoSingle it may be shown before any InitGifExport.
  virtual DialogAnswer ShowFor(DialogMode mode) = 0;
  // Writes the picture with the chosen options and shows nothing. False where it could not be written.
  virtual bool SaveToGIFNoSingle(const std::string& target) = 0;
  // Lets the encoder go.
  virtual void FreeGifObj() = 0;
};

}  // namespace tarvik
