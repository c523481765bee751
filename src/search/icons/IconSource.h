#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "base/ByteSource.h"
#include "base/DrawSurface.h"
#include "base/Finally.h"
#include "base/Point.h"

namespace tarvik {

// Which part of an icon is drawn.
enum class DrawPart { Mask = 1, Image = 2, Normal = 3 };

// One icon extracted from a file; released with this object.
class ExtractedIcon {
 public:
  virtual ~ExtractedIcon() = default;

  // Draws the icon scaled to `size` by `size` pixels with its corner at `corner`. `step` chooses the picture of an
  // animated cursor, zero-based, and is 0 for any other icon. Returns false if there is no such step.
  virtual bool Draw(DrawSurface& surface, Point corner, int size, int step, DrawPart part) = 0;

  // The most steps the picture can have: 1 unless its file is an animation. The platform draws any requested step of a
  // still picture, so a caller that counts steps by drawing them needs this bound.
  virtual int StepBound() const = 0;
};

// The source of icons: the files of the machine, read through the shell. Paths are UTF-8.
class IconSource {
 public:
  virtual ~IconSource() = default;

  // Whether the extraction calls accept that path. A file whose path they do not accept counts as a file without icons.
  virtual bool Takes(const std::string& /*path*/) const { return true; }

  // How many icons the file holds; 0 if it holds none or cannot be read.
  virtual int CountIcons(const std::string& path) = 0;

  // The large icon with that zero-based index, or null if the file yields none.
  virtual std::unique_ptr<ExtractedIcon> Extract(const std::string& path, int index) = 0;

  // Extracts the large icons from `first` on, zero-based, with one call: `count` of them, or none if fewer came out or
  // the source extracts icons only one by one.
  virtual std::vector<std::unique_ptr<ExtractedIcon>> ExtractGroup(const std::string& /*path*/, int /*first*/,
                                                                   int /*count*/) {
    return {};
  }
  // The stamp of the file; nothing if there is no such file, or the source does not provide one.
  virtual std::optional<FileStamp> StampOf(const std::string& /*path*/) { return std::nullopt; }

  // While the returned object exists, the icons of a file are mostly requested one after the other, as in a search or a
  // batch. The source may then extract more of them in advance.
  virtual Finally InTurn() { return {}; }
  // Files can change from here on, because messages are served or a box is shown: icons extracted in advance but not
  // yet requested are dropped.
  virtual void LetGo() {}
  // Drops them only if the file has changed since. For moments at which this program could not have changed a file, but
  // other programs could.
  virtual void LetGoIfChanged() {}
};

}  // namespace tarvik
