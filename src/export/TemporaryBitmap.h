#pragma once

#include <optional>
#include <string>

#include "export/SaveWindow.h"
#include "platform/Handles.h"
#include "platform/Surface.h"

namespace tarvik {

// The bitmap file that pictures go through on their way to the JPEG encoder: "C:\tmp.bmp" where there is no such file
// and one can be made, otherwise a new file in the user's folder for temporary files. It is never anybody's own file:
// it is made new, and the system deletes it when the program lets it go, in whatever way the program ends.
class TemporaryBitmap final : public TemporaryPicture {
 public:
  // Where the file is made: the path tried first, and the folder (with a backslash at its end) tried next.
  struct Paths {
    std::string path;
    std::string folder;
  };

  explicit TemporaryBitmap(Paths paths);

  const PixelView* PassThrough(const PixelView& picture) override;
  void Delete() override;

  // Where the file is; empty while there is none.
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
