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

// What of an icon is drawn.
enum class DrawPart { Mask = 1, Image = 2, Normal = 3 };

// One icon taken out of a file; released with this object.
class ExtractedIcon {
 public:
  virtual ~ExtractedIcon() = default;

  // Draws the icon scaled to `size` by `size` pixels with its corner at `corner`. `step` chooses the picture
  // of an animated cursor, zero-based, and is 0 for any other icon. False when there is no such step.
  virtual bool Draw(DrawSurface& surface, Point corner, int size, int step, DrawPart part) = 0;

  // The most steps the picture can have: 1 unless its file is an animation. The platform draws any step asked
  // for of a still picture, so whoever counts steps by drawing them needs this bound.
  virtual int StepBound() const = 0;
};

// Where icons come from: the files of the machine, through the shell. Paths are UTF-8.
class IconSource {
 public:
  virtual ~IconSource() = default;

  // Whether the calls that take icons out of files can be given that path. A file whose path they cannot be given
  // counts as one without icons.
  virtual bool Takes(const std::string& /*path*/) const { return true; }

  // How many icons the file holds; 0 for one that holds none or cannot be read.
  virtual int CountIcons(const std::string& path) = 0;

  // The large icon with that zero-based index, or null where the file yields none.
  virtual std::unique_ptr<ExtractedIcon> Extract(const std::string& path, int index) = 0;

  // Takes the large icons from `first` on, zero-based, with one call: `count` of them, or none if fewer came out or the
  // source takes icons one by one only.
  virtual std::vector<std::unique_ptr<ExtractedIcon>> ExtractGroup(const std::string& /*path*/, int /*first*/,
                                                                   int /*count*/) {
    return {};
  }
  // What the file is known by; nothing if there is no such file, or the source does not say.
  virtual std::optional<FileStamp> StampOf(const std::string& /*path*/) { return std::nullopt; }

  // Until the end of what this returns, the icons of a file are mostly asked for one after the other: a search, a
  // batch. A source may then take more of them than are asked for yet.
  virtual Finally InTurn() { return {}; }
  // Files can change from here on, because messages are served or a box is shown: what was taken but not yet asked for
  // is dropped.
  virtual void LetGo() {}
  // Drops it only if the file has changed since it was taken. For a moment at which nothing of this program could have
  // changed a file, but others could.
  virtual void LetGoIfChanged() {}
};

}  // namespace tarvik
