#pragma once

#include <optional>
#include <string>

#include "base/FileSink.h"
#include "base/PixelView.h"
#include "encoders/ImageDialogs.h"
#include "encoders/JpegEncoder.h"

namespace tarvik {

// The state and the logic of the JPEG options dialog, without its window: the picture to write, the target path, and
// the encoder with the options.
class JpegExport {
 public:
  // The sink outlives the export.
  explicit JpegExport(FileSink& sink) : sink_(sink) {}

  void InitJpegExport(const PixelView& picture, const std::string& target, DialogMode mode);
  void SetMode(DialogMode mode) { mode_ = mode; }
  DialogMode Mode() const { return mode_; }

  // The encoder, created on first use. It keeps its options for every file until FreeObj.
  JpegEncoder& Encoder();
  // Writes the picture to the path, replacing an existing file, also a read-only one. Returns false if there is no
  // picture or the file cannot be written; a partial file is then left.
  bool Save(const std::string& path);
  // The same, to the target.
  bool Save() { return Save(target_); }
  // Frees the encoder and the picture.
  void FreeObj();

 private:
  FileSink& sink_;
  std::optional<JpegEncoder> encoder_;
  const PixelView* picture_ = nullptr;
  std::string target_;
  DialogMode mode_ = DialogMode::Single;
};

}  // namespace tarvik
