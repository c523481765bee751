// The cost of saving many icons, compared with the bare platform calls that are needed in any case: extracting each
// icon from its file, drawing its three pictures, and writing as many bytes to as many files.

#include <windows.h>

#include <array>
#include <cstdio>
#include <functional>
#include <string>
#include <vector>

#include "BareIcon.h"
#include "BenchData.h"
#include "Measure.h"
#include "OutputFolder.h"
#include "base/FolderPath.h"
#include "export/IconSurfaces.h"
#include "export/ModMicroArt.h"
#include "export/ModMicroArtFileIO.h"
#include "platform/DiskFile.h"
#include "platform/Handles.h"
#include "search/icons/ShellIcons.h"

namespace tarvik::bench {
namespace {

using ModMicroArt::BlackAndWhite;
using ModMicroArt::Classify;

constexpr int icons = 4000;
constexpr int libraryIcons = 500;  // used repeatedly: in a larger library the platform takes longer to find one
constexpr int iconSize = 32;
constexpr int rounds = 7;

// One of the three formats: classifies the surfaces and writes them.
using WriteFunction = bool (*)(const IconSurfaces& surfaces, const std::string& path, FileSink& file);

bool WriteIcon(const IconSurfaces& surfaces, const std::string& path, FileSink& file) {
  const auto colors = Classify(surfaces.Image(), BlackAndWhite::InFixedSlots);
  return ModMicroArtFileIO::WriteIcon(surfaces.Mask(), surfaces.Image(), colors, path, file);
}

bool WriteCursor(const IconSurfaces& surfaces, const std::string& path, FileSink& file) {
  const auto colors = Classify(surfaces.Image(), BlackAndWhite::InFixedSlots);
  return ModMicroArtFileIO::WriteCursor(surfaces.Mask(), surfaces.Image(), colors, {3, 5}, path, file);
}

bool WriteBitmap(const IconSurfaces& surfaces, const std::string& path, FileSink& file) {
  const auto colors = Classify(surfaces.Composed(), BlackAndWhite::InOrder);
  return ModMicroArtFileIO::WriteBitmap(surfaces.Composed(), colors, path, file);
}

// Counts the bytes and discards them.
class LengthSink final : public FileSink {
 public:
  bool Open(const std::string&, ReadOnlyFile) override { return true; }
  bool Write(std::span<const std::byte> bytes) override {
    length += bytes.size();
    return true;
  }
  bool Close() override { return true; }

  std::size_t length = 0;
};

class Saving {
 public:
  Saving(std::string library, WriteFunction write) : library_(std::move(library)), write_(write) {}

  void Run(const OutputFolder& output) {
    for (int number = 0; number < icons; ++number) {
      DiskFile file;
      if (!Save(number, output.File(number), file)) std::printf("icon %d is not saved\n", number);
    }
  }

  // The length of each file.
  std::vector<std::size_t> Lengths() {
    std::vector<std::size_t> lengths;
    for (int number = 0; number < icons; ++number) {
      LengthSink sink;
      Save(number, {}, sink);
      lengths.push_back(sink.length);
    }
    return lengths;
  }

 private:
  bool Save(int number, const std::string& path, FileSink& file) {
    return ModMicroArt::CaptureEntry(source_, {.path = library_, .index = number % libraryIcons}, iconSize,
                                     surfaces_.Clear()) &&
           write_(surfaces_, path, file);
  }

  std::string library_;
  WriteFunction write_;
  ShellIcons source_;
  IconSurfaces surfaces_{iconSize};
};

class BareCalls {
 public:
  BareCalls(std::string library, std::vector<std::size_t> lengths)
      : library_(std::move(library)), lengths_(std::move(lengths)), bytes_(65536) {}

  void Run(const OutputFolder& output) {
    for (int number = 0; number < icons; ++number) {
      DrawBareIcon(library_, number % libraryIcons, iconSize, surfaces_);
      OutputFolder::Write(output.File(number), std::span(bytes_).first(lengths_[static_cast<std::size_t>(number)]));
    }
  }

 private:
  std::string library_;
  std::vector<std::size_t> lengths_;
  std::vector<std::byte> bytes_;
  IconSurfaces surfaces_{iconSize};
};

void CompareFormat(const support::TemporaryFolder& folder, const std::string& library, const std::string& format,
                   WriteFunction write) {
  Saving saving(library, write);
  BareCalls bare(library, saving.Lengths());
  const OutputFolder bareOutput(folder, "bare " + format);
  const OutputFolder output(folder, "saved " + format);
  Compare(
      "4,000 icons saved as " + format,
      {{.name = "bare calls", .run = [&] { bare.Run(bareOutput); }, .prepare = [&] { bareOutput.Empty(); }},
       {.name = "capture, classify, write", .run = [&] { saving.Run(output); }, .prepare = [&] { output.Empty(); }}},
      rounds);
}

}  // namespace
}  // namespace tarvik::bench

int main() {
  using namespace tarvik;
  using namespace tarvik::bench;
  const support::TemporaryFolder folder;
  const std::string library = JoinPath(MakeIconLibrary(folder, libraryIcons, 1), "icons.dll");
  CompareFormat(folder, library, "icon", WriteIcon);
  CompareFormat(folder, library, "cursor", WriteCursor);
  CompareFormat(folder, library, "bitmap", WriteBitmap);
  return 0;
}
