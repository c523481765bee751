#include "search/SearchDriver.h"

#include <algorithm>
#include <array>
#include <utility>

#include "base/Characters.h"
#include "base/Conversion.h"
#include "search/SearchTexts.h"

namespace tarvik {
namespace {

constexpr int pathCharactersInBox = 20;  // of the folder, in the no-icons message (deliberate: oddities 18)
constexpr Point trialCorner{50, 50};     // where animation steps are tried out

constexpr std::array<SearchControl, 5> searchControls{SearchControl::CmdFind, SearchControl::CmdOk,
                                                      SearchControl::CmdClose, SearchControl::mnuFile,
                                                      SearchControl::mnuEdit};

// The root of a drive keeps its trailing backslash and gets another one (deliberate: oddities 19).
std::string PathOf(const std::string& folder, const std::string& name) {
  return folder + "\\" + name;
}

// Runs a step for one file. An overflow in it is reported with the file at which it happened.
template <typename Step>
void AtFile(const std::string& path, Step step) {
  try {
    step(path);
  } catch (OverflowError& error) {
    error.SetFile(path);
    throw;
  }
}

}  // namespace

SearchDriver::SearchDriver(const Dependencies& dependencies)
    : window_(dependencies.window),
      folders_(dependencies.folders),
      grid_(dependencies.grid),
      ownSurface_(dependencies.ownSurface),
      icons_(dependencies.icons),
      list_(dependencies.list),
      state_(dependencies.state),
      language_(dependencies.language) {}

void SearchDriver::CmdFind_Click() {
  if (state_.IsSearching) return;
  window_.CloseEnhancedView();
  state_.IsSearching = true;
  const Finally endsProgress([this] { window_.SetProgress({}); });
  window_.SetProgress({Progress::Kind::Unknown});
  for (const SearchControl control : searchControls) window_.Enable(control, false);
  try {
    Search();
  } catch (...) {
    // Runs even if clearing fails: a window left in the searching state could not be closed.
    const Finally exits([this] { FailureExit(); });
    list_.Clear();
    window_.ClearListView();
    throw;
  }
  TellLeftOut();
}

void SearchDriver::Search() {
  leftOut_ = 0;
  CountIcons();
  list_.Clear();
  window_.ClearListView();
  if (IsRefused()) {
    FailureExit();
  } else {
    ListIcons();
    ShowList();
  }
}

// Shows a box that says why there is nothing to list. From the highest limit on, the advice is to choose fewer folders,
// even if raising the limit would be enough (deliberate: oddities 17).
bool SearchDriver::IsRefused() {
  const int count = state_.IconCount;
  if (count == 0) {
    ShowBox(searchTexts::noIcons, {FirstCharacters(folders_.File1Path(), pathCharactersInBox)});
    return true;
  }
  const int limit = ToInteger16(window_.txtMax());
  if (count <= limit) return false;
  const int maxLimit = state_.Geometry.MaxLimit;
  if (count < maxLimit) {
    ShowBox(searchTexts::raiseLimit, {std::to_string(count), std::to_string(limit)});
  } else {
    ShowBox(searchTexts::narrowFolders, {std::to_string(count), std::to_string(maxLimit)});
  }
  return true;
}

void SearchDriver::FailureExit() {
  window_.Enable(SearchControl::CmdFind, true);
  window_.Enable(SearchControl::CmdClose, true);
  window_.Enable(SearchControl::CmdOk, false);
  window_.Enable(SearchControl::mnuFile, false);
  window_.Enable(SearchControl::mnuEdit, false);
  state_.IsSearching = false;
  grid_.Clear();
}

// With sub-folders a pass starts at Dir1's folder.
FolderWalk SearchDriver::WalkOverScope() {
  return {folders_, folders_.chkSubDir() ? folders_.Dir1Path() : folders_.File1Path()};
}

// With sub-folders a pass moves Dir1; it is restored when the returned object is destroyed.
Finally SearchDriver::KeepDir1() {
  if (!folders_.chkSubDir()) return {};
  state_.SavedDirPath = folders_.Dir1Path();
  return Finally([this] { folders_.SetDir1Path(std::exchange(state_.SavedDirPath, {})); });
}

void SearchDriver::CountIcons() {
  state_.IconCount = 0;
  // Shown for the whole pass, so that a long count also shows that the program is working. The pointer is restored
  // before a box is shown.
  const Finally hourglass = window_.ShowHourglass();
  const Finally putsBack = KeepDir1();
  for (FolderWalk walk = WalkOverScope(); walk.Next();)
    if (walk.HasEntered()) CountFilesOf(walk.Folder());
}

void SearchDriver::CountFilesOf(const std::string& folder) {
  if (folders_.chkSubDir()) folders_.SetFile1Path(folder);
  const std::string shown = folders_.File1Path();
  for (const std::string& name : folders_.File1Names()) {
    AtFile(PathOf(shown, name), [this](const std::string& path) { CountIconsOfFile(path); });
    UpdateTitle();
    window_.SetProgress({Progress::Kind::Unknown});
  }
}

void SearchDriver::CountIconsOfFile(const std::string& path) {
  if (!icons_.Takes(path) && leftOut_++ == 0) firstLeftOut_ = path;
  state_.IsAnimatedFile = IsAnimatedCursorName(path);
  state_.IconCount += state_.IsAnimatedFile ? CountAnimationFrames(path) : icons_.CountIcons(path);
}

int SearchDriver::CountAnimationFrames(const std::string& path) {
  const auto icon = icons_.Extract(path, 0);
  if (!icon) return 0;
  const int bound = icon->StepBound();
  int step = 0;
  while (step < bound && icon->Draw(ownSurface_, trialCorner, state_.Geometry.IconSize, step, DrawPart::Normal)) {
    ++step;
  }
  return step;
}

void SearchDriver::ListIcons() {
  state_.NextIconNumber = 1;
  state_.CellY = gridMargin;
  state_.CellX = gridMargin;
  grid_.Clear();
  const Finally hourglass = window_.ShowHourglass();
  const Finally putsBack = KeepDir1();
  for (FolderWalk walk = WalkOverScope(); walk.Next();) {
    if (walk.HasEntered()) {
      ListFilesOf(walk.Folder());
    } else {
      SetStatus(searchTexts::added, {std::to_string(list_.Count())});
    }
  }
}

void SearchDriver::ShowList() {
  UpdateTitle();
  if (const auto text = Pick(searchTexts::firstSelected, language_)) window_.SetInfoText(std::string(*text));
  grid_.Keep();
  state_.FrameX = frameMargin;
  state_.FrameY = frameMargin;
  const int farCorner = state_.Geometry.FirstFrameExtent;
  grid_.DrawFrame({frameMargin, frameMargin}, {farCorner, farCorner}, true);
  state_.CurrentIndex = 0;
  for (const SearchControl control : searchControls) window_.Enable(control, true);
  state_.IsSearching = false;
  // The files that were counted can be deleted before they are listed.
  if (list_.Has(1)) list_.Select(1);
  window_.ListChanged();
}

void SearchDriver::ListFilesOf(const std::string& folder) {
  if (folders_.chkSubDir()) folders_.SetFile1Path(folder);
  grid_.Size(state_.Geometry, state_.IconCount);
  window_.DoEvents();
  const int limit = ToInteger16(window_.txtMax());
  SetStatus(searchTexts::searching, {folders_.Dir1Path()});
  const std::string shown = folders_.File1Path();
  for (const std::string& name : folders_.File1Names()) {
    // Checked before each file, never inside one: all icons of a file are listed together (deliberate: oddities 20).
    if (state_.NextIconNumber > limit) break;
    SetStatus(searchTexts::adding, {std::to_string(state_.NextIconNumber)});
    AtFile(PathOf(shown, name), [this](const std::string& path) { ListIconsOfFile(path); });
  }
}

void SearchDriver::ListIconsOfFile(const std::string& path) {
  state_.IsAnimatedFile = IsAnimatedCursorName(path);
  if (state_.IsAnimatedFile) {
    ListAnimation(path);
    return;
  }
  const int count = icons_.CountIcons(path);
  for (int index = 0; index < count; ++index) {
    list_.Add(path, index);
    DrawInNextCell(icons_.Extract(path, index).get(), 0);
  }
}

void SearchDriver::ListAnimation(const std::string& path) {
  const int count = CountAnimationFrames(path);
  if (count < 1) return;
  const auto icon = icons_.Extract(path, 0);
  for (int step = 0; step < count; ++step) {
    list_.Add(path, step);
    DrawInNextCell(icon.get(), step);
  }
}

// If the file yields no icon, the cell stays empty, but the entry stays in the list.
void SearchDriver::DrawInNextCell(ExtractedIcon* icon, int step) {
  const GridGeometry& geometry = state_.Geometry;
  if (icon != nullptr) {
    icon->Draw(grid_.Picture(), {state_.CellX, state_.CellY}, geometry.IconSize, step, DrawPart::Normal);
  }
  state_.CellX += geometry.CellPitch;
  if (state_.NextIconNumber % geometry.Columns == 0) {
    state_.CellX = gridMargin;
    state_.CellY += geometry.CellPitch;
  }
  window_.SetProgress(
      {Progress::Kind::Share, std::min<int>(state_.NextIconNumber, state_.IconCount), state_.IconCount});
  state_.NextIconNumber += 1;
}

void SearchDriver::TellLeftOut() {
  if (leftOut_ != 0) ShowBox(searchTexts::leftOut, {std::to_string(leftOut_), firstLeftOut_});
}

void SearchDriver::UpdateTitle() {
  const auto text = Compose(searchTexts::title, language_, {folders_.Dir1Path(), std::to_string(state_.IconCount)});
  if (text) window_.SetCaption(*text);
}

void SearchDriver::SetStatus(const Text& text, std::initializer_list<std::string_view> values) {
  if (const auto composed = Compose(text, language_, values)) window_.SetStatusText(*composed);
}

void SearchDriver::ShowBox(const Text& text, std::initializer_list<std::string_view> values) {
  window_.SetProgress({});  // nothing is going on while a box waits
  if (const auto composed = Compose(text, language_, values)) window_.ShowInformation(*composed);
}

}  // namespace tarvik
