#pragma once

#include <optional>
#include <string>

#include "base/Finally.h"
#include "export/IconSurfaces.h"
#include "export/SaveCommands.h"
#include "forms/Form.h"
#include "forms/LiveText.h"
#include "forms/ReportList.h"
#include "forms/ScrollBar.h"
#include "forms/Throttle.h"
#include "grid/IconGrid.h"
#include "grid/Selection.h"
#include "platform/Surface.h"
#include "search/SearchDriver.h"
#include "search/icons/IconList.h"
#include "search/window/FindIconDependencies.h"
#include "search/window/ShownFolders.h"
#include "view/frmBit.h"

namespace tarvik {

// The main window: search options, the icon grid or the icon list, and the menus from which everything else is reached.
class FrmFindIcon final : public Form,
                          private SearchWindow,
                          private SelectionView,
                          private SaveWindow,
                          private EnhancedViewHost {
 public:
  using Dependencies = FindIconDependencies;

  FrmFindIcon(Application& application, Dependencies dependencies);

  // Takes the icon of entry `number`, counted from 1, into the three surfaces, at the grid's icon size. False for a
  // number outside the list, which leaves the surfaces alone, and for a file that yields no icon any more, which leaves
  // them cleared.
  bool RenderEntry(int number) override;
  const IconSurfaces& Surfaces() const { return surfaces_; }
  // The icon in PicIcon magnified by the program's Magnification, at the top-left corner of a square of MagnifiedSide.
  const Surface& PicMain() override;
  // The folder shown in Dir1.
  const std::string& Dir1Path() const { return dir1_.Path(); }

 private:
  // Form
  void Form_Load() override;
  bool Form_QueryUnload() override;
  bool Form_QueryEndSession() override;
  void Form_Unload() override;
  bool PreviewMessage(const MSG& message) override;
  bool OnCommand(int id, int code) override;
  void OnScroll(HWND scrollBar, int request) override;
  LRESULT OnNotify(NMHDR& header) override;
  void OnMessage(UINT message) override;
  void OnPicture(const PictureEvent& event) override;
  void OnDrawItem(const DRAWITEMSTRUCT& item) override;
  void OnHelp() override;
  bool OnContextMenu(HWND control, std::optional<POINT> point) override;

  // Handlers
  void Drive1_Change();
  void Drive1_DropDown();
  void Dir1_Change();
  void Dir1_DblClick();
  void ChkFileType_Click();
  void CboIconSize_Click();
  void udMain_Change();
  void txtMax_Change();
  void CmdFind_Click();
  void mnuStart_Click();
  void CmdOk_Click();
  void CmdClose_Click();
  void mnuExit_Click();
  void OptView_Click(int index);
  void mnuViewopt_Click(int index);
  void MnuContent_Click();
  void MnuAbout_Click();
  void PicIcons_DblClick();
  void Lv_Choose(const ReportList::Choice& choice);
  void OpenFocusedRow();
  void Reread();
  void SelectAll();
  bool Form_KeyDown(const MSG& message);  // true for one of the window's own keys
  void mnuShowLabel_Click();
  void mnuIL_Click(int index);

  // SearchWindow
  void CloseEnhancedView() override;
  void Enable(SearchControl control, bool enabled) override;
  bool chkSubDir() const override;
  std::string txtMax() const override;
  void SetCaption(const std::string& text) override;
  void SetStatusText(const std::string& text) override;
  void SetInfoText(const std::string& text) override;
  void ShowInformation(const std::string& text) override;
  void ClearListView() override;
  void ListChanged() override;
  void DoEvents() override;
  Finally ShowHourglass() override;

  // EnhancedViewHost, beside RenderEntry
  int EntryCount() const override;
  const IconListEntry* Entry(int number) const override;
  Integer16 CurrentIndex() const override;
  bool ViewOpen() const override;
  void SetViewOpen(bool open) override;
  const Surface& PicIcon() const override;

  // SelectionView, where it asks for more than a search does
  bool NumbersByFile() const override;

  // SaveWindow, where it asks for more than a search does
  const PixelView& PicMask() const override { return surfaces_.Mask(); }
  const PixelView& PicImage() const override { return surfaces_.Image(); }
  std::string StatusText() const override;
  void ShowMessage(const std::string& text, MessageKind kind) override;
  Finally HoldCommands() override;
  void ServePainting() override;
  bool CopyPicClip() override;

  void AttachControls();
  void LayOutLimit();
  void LoadSettings();
  void SaveSettings();
  void UpdateSaveMenus();
  std::optional<PictureContent::ChosenPart> ChosenItem() const;
  void ShowSelectionInList();
  void ChooseIfNotCurrent(int row);  // counted from 0
  void ShowProgress();

  Dependencies dependencies_;
  SearchState state_;
  IconList list_;
  HWND chkSubDir_ = nullptr;
  DirListBox dir1_;
  FileListBox file1_;
  ShownFolders folders_{dir1_, file1_, dependencies_.folders};
  IconGrid grid_;
  PictureContent gridContent_;  // the grid read aloud
  Surface ownSurface_;
  SearchDriver driver_;
  Selection selection_;
  std::optional<frmBit> view_;  // from the first time it opens
  bool viewOpen_ = false;
  IconSurfaces surfaces_;  // PicIcon, PicMask and PicImage
  SaveCommands commands_;
  bool isSaving_ = false;  // a save or copy command runs, and the window takes no other
  Finally savesInTurn_;    // while it runs, icons are asked for in turn
  // In milliseconds: how often such a command looks for messages, and how often it serves them even if none is seen.
  Throttle looks_{40};
  Throttle serves_{1'000};
  std::optional<Surface> picMain_;

  LiveText caption_;
  LiveText status_;                        // panel 1 of sbMain
  bool releaseBelongsToDblClick_ = false;  // the next release on the grid ends a double click

  DriveListBox drive1_;
  ScrollBar udMain_;
  ReportList lv_;
};

}  // namespace tarvik
