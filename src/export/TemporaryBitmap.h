#pragma once

#include <optional>
#include <string>

#include "export/SaveWindow.h"
#include "platform/Handles.h"
#include "platform/Surface.h"

namespace tarvik {

// The bitmap file through which pictures are passed to the JPEG encoder: "C:\tmp.bmp" if no such file exists and one
// can be created, otherwise a new file in the user's folder for temporary files. It never replaces an existing file: it
// is always a new one, and the system deletes it when its handle is closed, however the program ends.
class TemporaryBitmap final : public TemporaryPicture {
 public:
  // Where the file can be: the path tried first, and the folder (with a trailing backslash) tried next.
  struct Paths {
    std::string path;
    std::string folder;
  };

  explicit TemporaryBitmap(Paths paths);

  const PixelView* PassThrough(const PixelView& picture) override;
  void Delete() override;

  // The file's path; empty if there is none.
  const std::string& Path() const { return path_; }

 private:
  bool Make();
  bool MakeNew(const std::string& path);
  bool Write(const PixelView& picture);
  bool ReadBack();

  Paths paths_;
  std::string path_;
  FileHandle file_;
  std::optional<Surface> picture_;
};

// The paths that the program uses.
TemporaryBitmap::Paths TemporaryBitmapPaths();

}  // namespace tarvik
