#include "encoders/JpegExport.h"

namespace tarvik {

void JpegExport::InitJpegExport(const PixelView& picture, const std::string& target, DialogMode mode) {
  picture_ = &picture;
  target_ = target;
  mode_ = mode;
}

JpegEncoder& JpegExport::Encoder() {
  if (!encoder_) encoder_.emplace(sink_);
  return *encoder_;
}

bool JpegExport::Save(const std::string& path) {
  if (picture_ == nullptr) return false;
  Encoder().TakePicture(*picture_);
  return Encoder().WriteFile(path);
}

void JpegExport::FreeObj() {
  encoder_.reset();
  picture_ = nullptr;
}

}  // namespace tarvik
