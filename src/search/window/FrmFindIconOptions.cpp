// The main window's search options and buttons.

#include <windows.h>

#include <windowsx.h>

#include <algorithm>
#include <string>

#include "base/Conversion.h"
#include "forms/MessageBox.h"
#include "forms/OptionButtons.h"
#include "resource.h"
#include "search/icons/FilePattern.h"
#include "search/window/FrmFindIcon.h"
#include "search/window/FrmFindIconTexts.h"
#include "startup/MessageTexts.h"

namespace tarvik {
namespace {

// The limit's spinner: from 1 up to the highest limit of the chosen size.
constexpr int minLimit = 1;
constexpr int limitStep = 10;
constexpr int limitPage = 100;

}  // namespace

void FrmFindIcon::Drive1_Change() {
  if (state_.IsSearching) return folders_.ChooseShownDrive();  // the walk owns the folder lists
  ShowItem(FrmFindIcon_Dir1, true);
  ShowItem(FrmFindIcon_File1, true);
  const std::string root = folders_.ChosenDrive();
  if (!dependencies_.isReadableFolder(root)) {
    const std::string& language = dependencies_.state.CurrentLanguage;
    const auto text = Pick(driveNotReady, language);
    if (text) tarvik::ShowMessage(Window(), *text, FailureTitle(language), MessageSign::Information);
    return;
  }
  folders_.SetDir1Path(root);
  folders_.SetFile1Path(folders_.Dir1Path());
}

void FrmFindIcon::Dir1_DblClick() {
  if (!state_.IsSearching) folders_.OpenChosen();
}

void FrmFindIcon::ChkFileType_Click() {
  FileTypeChecks checks{};
  for (std::size_t box = 0; box < checks.size(); ++box) checks.at(box) = IsChecked(searchedTypes.at(box).checkBox);
  checks = WithAllFilesRule(checks);
  for (std::size_t box = 0; box < checks.size(); ++box) SetChecked(searchedTypes.at(box).checkBox, checks.at(box));
  folders_.SetPattern(BuildPattern(checks));
}

// The grid is not redrawn, although clicks already follow the new size (deliberate: oddities 13).
void FrmFindIcon::CboIconSize_Click() {
  const int chosen = ComboBox_GetCurSel(Item(FrmFindIcon_CboIconSize));
  if (chosen < 0) return;
  state_.Geometry = gridGeometries.at(static_cast<std::size_t>(chosen));
  dependencies_.state.Magnification = (dependencies_.state.MagnifiedSide - 1) / state_.Geometry.IconSize;
  captured_.Resize();
  udMain_.SetRange({0, state_.Geometry.MaxLimit - minLimit, limitStep, limitPage});
  // The upper end is the bar's upper end, so that the up arrow raises the limit.
  udMain_.SetValue(state_.Geometry.MaxLimit - state_.Geometry.DefaultLimit);
  SetItemText(FrmFindIcon_txtMax, std::to_string(state_.Geometry.DefaultLimit));
}

// The bar's values are upside down (deliberate: oddities 12).
void FrmFindIcon::udMain_Change() {
  SetItemText(FrmFindIcon_txtMax, std::to_string(state_.Geometry.MaxLimit - udMain_.Value()));
}

// The spinner continues from a typed limit, or from the end nearest to it; a text that is no number leaves it
// unchanged.
void FrmFindIcon::txtMax_Change() {
  const int max = state_.Geometry.MaxLimit;
  try {
    const double limit = std::clamp<double>(RoundToEven(ToNumber(txtMax())), minLimit, max);
    udMain_.SetValue(max - static_cast<int>(limit));
  } catch (const RuntimeError&) {
    return;
  }
}

// Stores the entry for a caller that does not exist, and closes the program (deliberate: oddities 14).
void FrmFindIcon::CmdOk_Click() {
  // A disabled button sends nothing, but its command can come from elsewhere.
  if (state_.IsSearching || !list_.Has(state_.CurrentIndex + 1)) return;
  const IconListEntry& entry = list_.Item(state_.CurrentIndex + 1);
  dependencies_.state.ChosenIconPath = entry.path;
  dependencies_.state.ChosenIconIndex = entry.index;
  dependencies_.state.ChoiceCancelled = false;
  Unload();
}

void FrmFindIcon::CmdClose_Click() {
  if (Form_QueryUnload()) Unload();
}

// The list opens at the current icon, which may have been chosen in the grid: Enter and the menu key act on the row
// with the focus.
void FrmFindIcon::OptView_Click(int index) {
  const bool list = index == 1;
  const bool opensList = list && IsWindowVisible(lv_.Window()) == FALSE;
  SetChecked(FrmFindIcon_OptView0, !list);
  SetChecked(FrmFindIcon_OptView1, list);
  SetChecked(FrmFindIcon_mnuViewopt0, !list);
  SetChecked(FrmFindIcon_mnuViewopt1, list);
  layout_.Arrange(list);
  grid_.Show(!list);
  gridTip_.Say({});
  ShowItem(FrmFindIcon_Lv, list);
  if (opensList && !state_.IsSearching && list_.Has(state_.CurrentIndex + 1)) lv_.SetFocusedRow(state_.CurrentIndex);
  FocusChosenOption(Window());
}

// A handler like the others, whatever it leaves alone. NOLINTNEXTLINE(readability-make-member-function-const)
void FrmFindIcon::MnuContent_Click() {
  dependencies_.openGuide();
}

void FrmFindIcon::MnuAbout_Click() {
  dependencies_.state.ShowAsAbout = true;
  dependencies_.showAbout();
}

}  // namespace tarvik
