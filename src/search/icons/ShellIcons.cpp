#include "search/icons/ShellIcons.h"

#include <windows.h>

#include <algorithm>
#include <array>
#include <climits>
#include <cstdint>
#include <span>
#include <string_view>
#include <utility>

#include "base/AsciiCase.h"
#include "base/RuntimeError.h"
#include "platform/CodePage.h"
#include "platform/Handles.h"
#include "platform/Paths.h"
#include "platform/Surface.h"
#include "search/icons/AnimationHeader.h"
#include "search/icons/FaultGuard.h"
#include "search/icons/FileBytes.h"
#include "search/icons/IconList.h"

namespace tarvik {
namespace {

constexpr UINT countIndex = UINT_MAX;  // -1: returns the number of icons
constexpr UINT noFile = UINT_MAX;      // returned by the shell for a file that it cannot read

// Numbers of calls to remember, apart from those that extract the icon of an index.
constexpr int countCall = -1;
constexpr int cursorCall = -2;
constexpr int groupCall = -3;      // from any index
constexpr int firstMakeCall = -4;  // that makes icon 0 of a picture; the next icons use the numbers below

// Counts up to this are taken from the shell unchecked (every size's default limit allows as many). Higher claims are
// verified, because one lying file would get the whole search refused.
constexpr int believedCount = 100;

// Throws OutOfMemoryError if the process can create hardly any more GDI objects. Called after a failure only. The
// margin leaves enough for the message that reports it.
void RequireGdiObjects() {
  constexpr int reserve = 100;
  std::array<BitmapHandle, reserve> probes;
  for (BitmapHandle& probe : probes) {
    probe.reset(CreateBitmap(1, 1, 1, 1, nullptr));
    if (!probe) throw OutOfMemoryError();
  }
}

class PlatformIcon final : public ExtractedIcon {
 public:
  PlatformIcon(IconHandle icon, int stepBound) : icon_(std::move(icon)), stepBound_(stepBound) {}

  bool Draw(DrawSurface& surface, Point corner, int size, int step, DrawPart part) override {
    if (step < 0 || step >= stepBound_) return false;
    // Every surface that icons are drawn on has a device context.
    const HDC dc = static_cast<Surface&>(surface).Dc();
    // The system blends an image that has an alpha channel over the background. Black is the one colour that a
    // transparent pixel of an icon file may have: any other changes what is below the icon.
    if (part == DrawPart::Image) PatBlt(dc, corner.x, corner.y, size, size, BLACKNESS);
    const bool drawn = DrawIconEx(dc, corner.x, corner.y, icon_.get(), size, size, static_cast<UINT>(step), nullptr,
                                  static_cast<UINT>(part)) != 0;
    if (!drawn) RequireGdiObjects();
    return drawn;
  }

  int StepBound() const override { return stepBound_; }

 private:
  IconHandle icon_;
  int stepBound_;
};

// Takes ownership of what a call for several icons left in `handles`: it may have returned fewer than requested, or
// been aborted half-way.
std::vector<IconHandle> TakeOwnership(const std::vector<HICON>& handles, bool finished, UINT extracted) {
  std::vector<IconHandle> icons;
  std::size_t given = extracted == noFile ? 0 : extracted;
  if (!finished) given = handles.size();
  for (const HICON handle : std::span(handles).first(std::min(given, handles.size()))) {
    // Before Wine creates an icon, it keeps the number of its picture in the handle's place.
    constexpr std::uintptr_t maxNumber = 0xFFFF;
    if (reinterpret_cast<std::uintptr_t>(handle) > maxNumber) icons.emplace_back(handle);
  }
  return icons;
}

// The size and colour depth that the shell requests for an icon.
IconWish WishForLargeIcon() {
  const WindowDc screen(nullptr);
  return {.width = GetSystemMetrics(SM_CXICON),
          .height = GetSystemMetrics(SM_CYICON),
          .bits = GetDeviceCaps(screen.get(), BITSPIXEL) * GetDeviceCaps(screen.get(), PLANES)};
}

bool AreAlike(std::string_view one, std::string_view other) {
  return std::ranges::equal(one, other, {}, LowerAscii, LowerAscii);
}

// A 64-bit system folder holds thousands of libraries without icons and no 16-bit module of its own; opening each of
// them would make a first search of it a quarter longer. An .icl file in it was put there by a user, so it is opened.
bool IsOfTheSystem(std::string_view path) {
  static const std::string folder = SystemFolder() + '\\';
  return path.size() > folder.size() && AreAlike(path.substr(0, folder.size()), folder) &&
         !AreAlike(path.substr(path.size() - std::string_view(".icl").size()), ".icl");
}

// Null if there is no icon; throws if the cause is a lack of GDI objects.
std::unique_ptr<ExtractedIcon> MakeDrawable(IconHandle icon, int stepBound) {
  if (!icon) {
    RequireGdiObjects();
    return nullptr;
  }
  return std::make_unique<PlatformIcon>(std::move(icon), stepBound);
}

}  // namespace

ShellIcons::ShellIcons()
    : ShellIcons([](const std::string& path) { return std::make_unique<FileBytes>(path); }, SystemShell) {}

ShellIcons::ShellIcons(OpenBytes open, ShellFunctions (*shell)()) : open_(std::move(open)), shell_(shell) {}

template <typename Call>
bool ShellIcons::Survives(const std::string& path, int call, Call&& make) {
  if (cutOff_.Has(path, call)) return false;
  if (SurvivesFault(make)) return true;
  // Without GDI objects the system may fault on any file, so the fault says nothing about this one.
  RequireGdiObjects();
  cutOff_.Remember(path, call);
  return false;
}

bool ShellIcons::Takes(const std::string& path) const {
  return ToCodePage(path).has_value();
}

// The system's large size, which larger cells stretch (deliberate: oddities 30).
IconHandle ShellIcons::ExtractByShell(const std::string& path, int index) {
  const std::optional<std::string> name = ToCodePage(path);
  if (!name) return {};
  HICON large = nullptr;
  UINT extracted = 0;
  const auto extract = shell_().extractIconEx;  // the guarded call must not load anything
  // The small icon is not requested: it is never drawn, and its handle would have to be destroyed too.
  const bool finished = Survives(path, index, [&] { extracted = extract(name->c_str(), index, &large, nullptr, 1); });
  // The handle is valid only after a success: on a failure Wine leaves other values in it.
  return finished && extracted != 0 && extracted != noFile ? IconHandle(large) : IconHandle();
}

IconHandle ShellIcons::ExtractLarge(const std::string& path, int index) {
  if (IconHandle icon = ExtractByShell(path, index)) return icon;
  auto icons = ExtractGroupFromModule(path, index, 1);
  return icons.empty() ? IconHandle() : std::move(icons.front());
}

IconHandle ShellIcons::LoadCursorFile(const std::string& path) {
  const std::optional<std::string> name = ToCodePage(path);
  if (!name) return {};
  HANDLE cursor = nullptr;
  const bool finished = Survives(path, cursorCall, [&] {
    cursor = LoadImageA(nullptr, name->c_str(), IMAGE_CURSOR, GetSystemMetrics(SM_CXICON), GetSystemMetrics(SM_CYICON),
                        LR_LOADFROMFILE);
  });
  return finished ? IconHandle(static_cast<HICON>(cursor)) : IconHandle();
}

// A picture of a file named ".ani": an animated cursor or, misnamed, a still picture.
std::unique_ptr<ExtractedIcon> ShellIcons::ExtractSteps(const std::string& path, int index) {
  const AnimationFacts facts = looks_.Of(path, *open_(path));
  IconHandle icon = ExtractLarge(path, index);
  if (!icon && (facts.holdsWhatItSays || facts.isStillCursor)) icon = LoadCursorFile(path);
  return MakeDrawable(std::move(icon), std::max(facts.maxSteps, 1));
}

// How many icons the file has according to the shell; some systems return the number as written in the file. Nothing if
// the system faults on the file, or its path cannot be passed to the system.
std::optional<int> ShellIcons::CountByShell(const std::string& path) {
  const std::optional<std::string> name = ToCodePage(path);
  if (!name) return std::nullopt;
  UINT count = 0;
  const auto extract = shell_().extractIconEx;  // as above
  if (!Survives(path, countCall,
                [&] { count = extract(name->c_str(), static_cast<int>(countIndex), nullptr, nullptr, 0); })) {
    return std::nullopt;
  }
  return count <= INT_MAX ? static_cast<int>(count) : 0;
}

int ShellIcons::CountClaimedIcons(const std::string& path) {
  const std::optional<int> claimed = CountByShell(path);
  if (claimed != 0) return claimed.value_or(0);
  return FindModule(path).IconCount();
}

// Counts the icons that can really be extracted. Probes backwards from the claimed end in doubling steps until one
// extracts, then scans upwards for the last; 100 failures in a row end the scan.
int ShellIcons::CountExtractableIcons(const std::string& path, int claimed) {
  int had = 0;
  for (int step = 1, index = claimed - 1; index > 0 && had == 0; step *= 2) {
    index = std::max(index - step, 0);
    if (ExtractLarge(path, index)) had = index + 1;
  }
  for (int index = had; index < claimed && index < had + believedCount; ++index) {
    if (ExtractLarge(path, index)) had = index + 1;
  }
  return had;
}

int ShellIcons::CountIcons(const std::string& path) {
  const int claimed = CountClaimedIcons(path);
  if (claimed <= believedCount || ExtractLarge(path, claimed - 1)) return claimed;
  return CountExtractableIcons(path, claimed);
}

std::unique_ptr<ExtractedIcon> ShellIcons::Extract(const std::string& path, int index) {
  if (IsAnimatedCursorName(path)) return ExtractSteps(path, index);
  return MakeDrawable(ExtractLarge(path, index), 1);
}

std::vector<IconHandle> ShellIcons::ExtractGroupByShell(const std::string& path, int first, int count) {
  const std::optional<std::string> name = ToCodePage(path);
  if (!name) return {};
  std::vector<HICON> handles(static_cast<std::size_t>(count));
  UINT extracted = 0;
  std::vector<UINT> numbers(handles.size());  // of the pictures; filled by the call and not needed
  // ExtractIconExA extracts its large icons the same way, with that size; but of several, Wine's returns only the
  // first.
  const auto extract = shell_().privateExtractIcons;
  const bool finished = Survives(path, groupCall, [&] {
    extracted = extract(name->c_str(), first, GetSystemMetrics(SM_CXICON), GetSystemMetrics(SM_CYICON), handles.data(),
                        numbers.data(), static_cast<UINT>(handles.size()), LR_DEFAULTCOLOR);
  });
  std::vector<IconHandle> icons = TakeOwnership(handles, finished, extracted);
  if (!finished || icons.size() != handles.size()) icons.clear();
  return icons;
}

// The 16-bit module at a path; one without icons if there is none.
const NewExecutable& ShellIcons::FindModule(const std::string& path) {
  static const NewExecutable none;
  if (!IsModuleName(path) || IsOfTheSystem(path)) return none;
  const std::optional<FileStamp> stamp = StampOf(path);
  return stamp ? modules_.Of(path, *stamp, open_) : none;
}

std::vector<IconHandle> ShellIcons::ExtractGroupFromModule(const std::string& path, int first, int count) {
  std::vector<IconHandle> icons;
  const NewExecutable& module = FindModule(path);
  if (module.IconCount() == 0 || CountByShell(path) != 0) return icons;
  const std::unique_ptr<ByteSource> file = open_(path);
  const IconWish wish = WishForLargeIcon();
  for (int index = first; index < first + count; ++index) {
    IconHandle icon = MakeIcon(path, index, module.Picture(*file, index, wish));
    if (!icon) return {};
    icons.push_back(std::move(icon));
  }
  return icons;
}

IconHandle ShellIcons::MakeIcon(const std::string& path, int index, std::vector<std::byte> picture) {
  if (picture.empty()) return {};
  constexpr DWORD iconVersion = 0x00030000;
  HICON icon = nullptr;
  const bool finished = Survives(path, firstMakeCall - index, [&] {
    icon = CreateIconFromResourceEx(reinterpret_cast<PBYTE>(picture.data()), static_cast<DWORD>(picture.size()), TRUE,
                                    iconVersion, GetSystemMetrics(SM_CXICON), GetSystemMetrics(SM_CYICON),
                                    LR_DEFAULTCOLOR);
  });
  return finished ? IconHandle(icon) : IconHandle();
}

std::vector<std::unique_ptr<ExtractedIcon>> ShellIcons::ExtractGroup(const std::string& path, int first, int count) {
  std::vector<IconHandle> icons = ExtractGroupByShell(path, first, count);
  if (icons.empty()) icons = ExtractGroupFromModule(path, first, count);
  std::vector<std::unique_ptr<ExtractedIcon>> group;
  group.reserve(icons.size());
  for (IconHandle& icon : icons) group.push_back(MakeDrawable(std::move(icon), 1));
  return group;
}

std::optional<FileStamp> ShellIcons::StampOf(const std::string& path) {
  return tarvik::StampOf(path);
}

}  // namespace tarvik
