#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "base/ByteSource.h"
#include "platform/Handles.h"
#include "search/icons/AnimationHeader.h"
#include "search/icons/CutOffCalls.h"
#include "search/icons/IconSource.h"
#include "search/icons/ModuleLooks.h"
#include "search/icons/NewExecutable.h"
#include "search/icons/ShellFunctions.h"

namespace tarvik {

// The icons in the files of this machine, extracted by the shell; animated cursors, which the shell does not extract,
// are loaded as cursors by the system. A damaged file has no icons, whatever the system makes of it; an icon on which
// the system faults is requested once in a run. Icons draw on a Surface.
//
// In a library, program or control of 16-bit Windows, in which the shell finds no icon, this program finds the icons
// itself (NewExecutable); in the system's own folder, only in .icl files. Icons that the shell finds are left to the
// shell.
//
// Extract and the icons' Draw throw OutOfMemoryError if they fail because there are no GDI objects left, so that no
// blank picture is mistaken for an icon.
class ShellIcons final : public IconSource {
 public:
  // Opens the bytes of a file for inspection.
  using OpenBytes = std::function<std::unique_ptr<ByteSource>(const std::string& path)>;

  ShellIcons();
  // `shell` is called before each use and returns the functions to call.
  explicit ShellIcons(OpenBytes open, ShellFunctions (*shell)() = SystemShell);

  bool Takes(const std::string& path) const override;
  int CountIcons(const std::string& path) override;
  std::unique_ptr<ExtractedIcon> Extract(const std::string& path, int index) override;
  std::vector<std::unique_ptr<ExtractedIcon>> ExtractGroup(const std::string& path, int first, int count) override;
  std::optional<FileStamp> StampOf(const std::string& path) override;

 private:
  // Makes the call unless it had to be aborted before, and remembers if it has to be aborted now. `call` is its number
  // there.
  template <typename Call>
  bool Survives(const std::string& path, int call, Call&& make);

  IconHandle ExtractLarge(const std::string& path, int index);
  IconHandle ExtractByShell(const std::string& path, int index);
  std::vector<IconHandle> ExtractGroupByShell(const std::string& path, int first, int count);
  // Extracts icons of a 16-bit module in which the shell finds none: all the requested ones, or none at all.
  std::vector<IconHandle> ExtractGroupFromModule(const std::string& path, int first, int count);
  const NewExecutable& FindModule(const std::string& path);
  IconHandle MakeIcon(const std::string& path, int index, std::vector<std::byte> picture);
  IconHandle LoadCursorFile(const std::string& path);
  std::unique_ptr<ExtractedIcon> ExtractSteps(const std::string& path, int index);
  std::optional<int> CountByShell(const std::string& path);
  int CountClaimedIcons(const std::string& path);
  int CountExtractableIcons(const std::string& path, int claimed);

  OpenBytes open_;
  ShellFunctions (*shell_)();
  AnimationLooks looks_;
  ModuleLooks modules_;
  CutOffCalls cutOff_;
};

}  // namespace tarvik
