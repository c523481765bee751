#include "search/window/FrmFindIcon.h"

#include <windows.h>

#include <commctrl.h>
#include <windowsx.h>

#include <utility>

#include "base/FolderPath.h"
#include "platform/Text.h"
#include "resource.h"
#include "search/icons/FilePattern.h"
#include "search/window/FrmFindIconTexts.h"
#include "search/window/IconListRows.h"
#include "startup/FormPlacement.h"

namespace tarvik {
namespace {

constexpr int initialSize = 1;  // "32 x 32"
constexpr const char* initialPattern = "*.ico";
constexpr const char* initialStatus = "Click the Start button to start search";

// The section and keys of the settings file.
constexpr const char* settingsSection = "FindIcon";
constexpr const char* folderKey = "Folder";
constexpr const char* subDirKey = "Subdir";

// A step of an animation is tried out at (50, 50) of the window's own surface, at the grid's icon size.
constexpr int ownSurfaceSide = 50 + 64;

}  // namespace

FrmFindIcon::FrmFindIcon(Application& application, Dependencies dependencies)
    : Form(application, Dialog_FrmFindIcon),
      dependencies_(std::move(dependencies)),
      ownSurface_(ownSurfaceSide, ownSurfaceSide, white),
      driver_({*this, folders_, grid_, ownSurface_, dependencies_.icons, list_, state_,
               dependencies_.state.CurrentLanguage}),
      selection_(*this, grid_, list_, state_, dependencies_.state.CurrentLanguage),
      captured_(dependencies_.icons, list_, state_, dependencies_.state),
      commands_(*this, dependencies_.saving, list_, state_, dependencies_.state),
      progress_(dependencies_.taskBar, dependencies_.shownAfter),
      caption_([this](const std::string& text) { Form::SetCaption(text); }),
      status_([this](const std::string& text) {
        SendMessageW(Item(FrmFindIcon_sbMain), SB_SETTEXTW, 0, reinterpret_cast<LPARAM>(ToWide(text).c_str()));
      }) {}

void FrmFindIcon::Form_Load() {
  SetTexts(*this, findIconTexts, dependencies_.state.CurrentLanguage);
  AttachControls();
  AcceptDrops();
  progress_.Attach(Window());
  layout_.Begin(*this, grid_);
  basInitEntry::ApplySkinToForm(*this);
  basInitEntry::CenterForm(*this);

  EnableItem(FrmFindIcon_CmdOk, false);
  const HWND sizes = Item(FrmFindIcon_CboIconSize);
  for (const GridGeometry& geometry : gridGeometries) ComboBox_AddString(sizes, ToWide(geometry.Caption).c_str());
  ComboBox_SetCurSel(sizes, initialSize);
  CboIconSize_Click();
  SetChecked(searchedTypes.front().checkBox, true);
  folders_.SetPattern(initialPattern);
  SetStatusText(initialStatus);
  OptView_Click(0);
  LoadSettings();
  UpdateSaveMenus();
}

void FrmFindIcon::AttachControls() {
  folders_.Attach(Item(FrmFindIcon_Drive1), Item(FrmFindIcon_Dir1), Item(FrmFindIcon_File1),
                  Item(FrmFindIcon_chkSubDir));
  udMain_.Attach(Item(FrmFindIcon_udMain));
  grid_.Attach(Item(FrmFindIcon_PicFrame), Item(FrmFindIcon_Vsb), FrmFindIcon_PicIcons);
  gridContent_ = {[this] { return ItemText(FrmFindIcon_PicFrame); }, [this] { return CurrentItem(); }};
  grid_.Describe(&gridContent_);
  gridTip_.Attach(GetDlgItem(Item(FrmFindIcon_PicFrame), FrmFindIcon_PicIcons));
  lv_.Attach(Item(FrmFindIcon_Lv));
  lv_.cellText = [this](int row, int column) {
    return list_.Has(row + 1) ? IconListCell(list_, row + 1, static_cast<std::size_t>(column)) : std::string();
  };
  lv_.lookOf = [this](int row) {
    const RowMarking marking = list_.Has(row + 1) ? MarkingOf(list_.Item(row + 1)) : RowMarking();
    return ReportList::Look{marking.bold, marking.color};
  };
  lv_.choose = [this](const ReportList::Choice& choice) { Lv_Choose(choice); };
}

void FrmFindIcon::Form_Resize() {
  layout_.Arrange(IsChecked(FrmFindIcon_OptView1));
  lv_.SetExtraWidth(layout_.ExtraListWidth());
}

bool FrmFindIcon::Form_QueryUnload() {
  return !state_.IsSearching && !isSaving_;
}

// Files are written only while a save command runs and no dialog or message of its own is open over the window. A
// search writes nothing.
bool FrmFindIcon::Form_QueryEndSession() {
  return !isSaving_ || IsWindowEnabled(Window()) == FALSE;
}

void FrmFindIcon::Form_Unload() {
  CloseEnhancedView();
  SaveSettings();
  commands_.CleanUp();
}

void FrmFindIcon::LoadSettings() {
  Settings& settings = dependencies_.settings;
  const std::string& ownFolder = dependencies_.programFolder;
  const std::string folder =
      AbsoluteFolderPath(settings.ReadIniSetting(settingsSection, folderKey, ownFolder), ownFolder);
  const std::string tidyOwnFolder = TidyFolderPath(ownFolder);
  // The setting may have been written by another user of this computer, and reading from another computer means logging
  // on there.
  if (IsOnOtherComputer(folder) && folder != tidyOwnFolder) {
    folders_.ShowUnread(folder);
  } else {
    folders_.Show(dependencies_.isReadableFolder(folder) ? folder : tidyOwnFolder);
  }
  const std::string subDir = settings.ReadIniSetting(settingsSection, subDirKey, TruthText(false));
  SetChecked(FrmFindIcon_chkSubDir, IsTruth(subDir));
}

void FrmFindIcon::SaveSettings() {
  // If the end of the session stops a walk, Dir1 is not where the user left it.
  const std::string folder = state_.SavedDirPath.empty() ? Dir1Path() : state_.SavedDirPath;
  dependencies_.settings.WriteIniSetting(settingsSection, folderKey, folder);
  dependencies_.settings.WriteIniSetting(settingsSection, subDirKey, TruthText(folders_.chkSubDir()));
}

bool FrmFindIcon::OnCommand(int id, int code) {
  static constexpr Event<FrmFindIcon> events[] = {
      {FrmFindIcon_Drive1, FrmFindIcon_Drive1, CBN_SELCHANGE, Call<&FrmFindIcon::Drive1_Change>},
      {FrmFindIcon_Drive1, FrmFindIcon_Drive1, CBN_DROPDOWN,
       CallOn<&FrmFindIcon::folders_, &ShownFolders::RefreshDrives>},
      {FrmFindIcon_Dir1, FrmFindIcon_Dir1, LBN_DBLCLK, Call<&FrmFindIcon::Dir1_DblClick>},
      {minTypeBox, maxTypeBox, BN_CLICKED, Call<&FrmFindIcon::ChkFileType_Click>},
      {FrmFindIcon_CboIconSize, FrmFindIcon_CboIconSize, CBN_SELCHANGE, Call<&FrmFindIcon::CboIconSize_Click>},
      {FrmFindIcon_txtMax, FrmFindIcon_txtMax, EN_CHANGE, Call<&FrmFindIcon::txtMax_Change>},
      {FrmFindIcon_CmdFind, FrmFindIcon_CmdFind, BN_CLICKED, Call<&FrmFindIcon::CmdFind_Click>},
      {FrmFindIcon_CmdOk, FrmFindIcon_CmdOk, BN_CLICKED, Call<&FrmFindIcon::CmdOk_Click>},
      {FrmFindIcon_CmdClose, FrmFindIcon_CmdClose, BN_CLICKED, Call<&FrmFindIcon::CmdClose_Click>},
      {FrmFindIcon_OptView0, FrmFindIcon_OptView1, BN_CLICKED, Call<&FrmFindIcon::OptView_Click>},
      {FrmFindIcon_mnuStart, FrmFindIcon_mnuStart, 0, Call<&FrmFindIcon::CmdFind_Click>},
      {FrmFindIcon_mnuExit, FrmFindIcon_mnuExit, 0, Call<&FrmFindIcon::CmdClose_Click>},
      {FrmFindIcon_mnuSaveAs, FrmFindIcon_mnuSaveAs, 0,
       CallOn<&FrmFindIcon::commands_, &SaveCommands::mnuSaveAs_Click>},
      {FrmFindIcon_MnuSaveAsBitmap, FrmFindIcon_MnuSaveAsBitmap, 0,
       CallOn<&FrmFindIcon::commands_, &SaveCommands::MnuSaveAsBitmap_Click>},
      {FrmFindIcon_MnuSaveAsCursor, FrmFindIcon_MnuSaveAsCursor, 0,
       CallOn<&FrmFindIcon::commands_, &SaveCommands::MnuSaveAsCursor_Click>},
      {FrmFindIcon_mnuSaveSel, FrmFindIcon_mnuSaveSel, 0,
       CallOn<&FrmFindIcon::commands_, &SaveCommands::mnuSaveSel_Click>},
      {FrmFindIcon_mnuSaveAll, FrmFindIcon_mnuSaveAll, 0,
       CallOn<&FrmFindIcon::commands_, &SaveCommands::mnuSaveAll_Click>},
      {FrmFindIcon_mnuSaveSel2, FrmFindIcon_mnuSaveSel2, 0,
       CallOn<&FrmFindIcon::commands_, &SaveCommands::mnuSaveSel2_Click>},
      {FrmFindIcon_mnuSaveAll2, FrmFindIcon_mnuSaveAll2, 0,
       CallOn<&FrmFindIcon::commands_, &SaveCommands::mnuSaveAll2_Click>},
      {FrmFindIcon_mnuSaveSel3, FrmFindIcon_mnuSaveSel3, 0,
       CallOn<&FrmFindIcon::commands_, &SaveCommands::mnuSaveSel3_Click>},
      {FrmFindIcon_mnuSaveAll3, FrmFindIcon_mnuSaveAll3, 0,
       CallOn<&FrmFindIcon::commands_, &SaveCommands::mnuSaveAll3_Click>},
      {FrmFindIcon_mnuCopy, FrmFindIcon_mnuCopy, 0, CallOn<&FrmFindIcon::commands_, &SaveCommands::mnuCopy_Click>},
      {FrmFindIcon_mnuRem, FrmFindIcon_mnuRem, 0, CallOn<&FrmFindIcon::selection_, &Selection::mnuRem_Click>},
      {FrmFindIcon_mnuShowLabel, FrmFindIcon_mnuShowLabel, 0, Call<&FrmFindIcon::mnuShowLabel_Click>},
      {FrmFindIcon_mnuIL1, FrmFindIcon_mnuIL2, 0, Call<&FrmFindIcon::mnuIL_Click>},
      {FrmFindIcon_mnuViewopt0, FrmFindIcon_mnuViewopt1, 0, Call<&FrmFindIcon::OptView_Click>},
      {FrmFindIcon_MnuContent, FrmFindIcon_MnuContent, 0, Call<&FrmFindIcon::MnuContent_Click>},
      {FrmFindIcon_MnuAbout, FrmFindIcon_MnuAbout, 0, Call<&FrmFindIcon::MnuAbout_Click>},
      {FrmFindIcon_keyRefresh, FrmFindIcon_keyRefresh, 0, Call<&FrmFindIcon::Reread>},
      {FrmFindIcon_keySelectAll, FrmFindIcon_keySelectAll, 0, Call<&FrmFindIcon::SelectAll>},
  };
  return !isSaving_ && Dispatch<FrmFindIcon>(*this, events, id, code);
}

void FrmFindIcon::OnScroll(HWND scrollBar, int request) {
  if (scrollBar == udMain_.Window() && request != SB_ENDSCROLL) {
    udMain_.Scroll(request);
    udMain_Change();  // also if the value does not change: the box may show a limit beyond it
  }
  grid_.OnScroll(scrollBar, request);
  gridTip_.Say({});  // another icon is under the pointer now
}

LRESULT FrmFindIcon::OnNotify(NMHDR& header) {
  if (header.hwndFrom != lv_.Window()) return 0;
  const LRESULT answer = lv_.Notify(header);
  if (header.code == static_cast<UINT>(NM_DBLCLK)) PicIcons_DblClick();
  if (header.code == static_cast<UINT>(NM_RETURN)) OpenFocusedRow();
  return answer;
}

void FrmFindIcon::OnMessage(UINT message) {
  if (message == ReportList::choiceMessage) lv_.TellChoice();
}

void FrmFindIcon::OnDrawItem(const DRAWITEMSTRUCT& item) {
  if (item.CtlID == FrmFindIcon_Dir1) folders_.DrawRow(item);
}

}  // namespace tarvik
