#pragma once

#include "search/IconSource.h"

namespace tarvik {

// The icons in the files of this machine, as the shell takes them out; animated cursors, where the shell will not,
// as the system loads cursors. A damaged file holds none, whatever the system makes of it. Icons draw on any
// DcSurface.
class ShellIcons final : public IconSource {
 public:
  int CountIcons(const std::string& path) override;
  std::unique_ptr<ExtractedIcon> Extract(const std::string& path, int index) override;
};

}  // namespace tarvik
