#pragma once

#include <optional>
#include <string>

#include "base/Finally.h"
#include "export/SaveCommands.h"
#include "forms/Form.h"
#include "forms/LiveText.h"
#include "forms/PictureTip.h"
#include "forms/ReportList.h"
#include "forms/ScrollBar.h"
#include "forms/ShownProgress.h"
#include "forms/Throttle.h"
#include "grid/IconGrid.h"
#include "grid/Selection.h"
#include "platform/Surface.h"
#include "search/SearchDriver.h"
#include "search/icons/IconList.h"
#include "search/window/CapturedEntries.h"
#include "search/window/FindIconDependencies.h"
#include "search/window/FindIconLayout.h"
#include "search/window/ShownFolders.h"
#include "view/frmBit.h"

namespace tarvik {

// The main window: search options, the icon grid or the icon list, and the menus from which everything else is reached.
class FrmFindIcon final : public Form, private SearchWindow, private SelectionView, private SaveWindow {
 public:
  using Dependencies = FindIconDependencies;

  FrmFindIcon(Application& application, Dependencies dependencies);

  // The entries of the list as pictures.
  CapturedEntries& Captured() { return captured_; }
  // The folder shown in Dir1.
  std::string Dir1Path() const { return folders_.Dir1Path(); }

 private:
  // Form
  void Form_Load() override;
  bool Form_QueryUnload() override;
  bool Form_QueryEndSession() override;
  void Form_Unload() override;
  void Form_Resize() override;
  SIZE SmallestSize() const override { return layout_.SmallestSize(); }
  bool PreviewMessage(const MSG& message) override;
  bool OnCommand(int id, int code) override;
  void OnScroll(HWND scrollBar, int request) override;
  LRESULT OnNotify(NMHDR& header) override;
  void OnMessage(UINT message) override;
  void OnPicture(const PictureEvent& event) override;
  void OnDrawItem(const DRAWITEMSTRUCT& item) override;
  void OnHelp() override;
  bool OnContextMenu(HWND control, std::optional<POINT> point) override;
  void OnDrop(const std::string& path) override;
  void OnRuntimeError(const RuntimeError& error) override;

  // Handlers
  void Drive1_Change();
  void Dir1_DblClick();
  void ChkFileType_Click();
  void CboIconSize_Click();
  void udMain_Change();
  void txtMax_Change();
  void CmdFind_Click();
  void CmdOk_Click();
  void CmdClose_Click();
  void OptView_Click(int index);
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

  // SearchWindow and SelectionView
  void CloseEnhancedView() override;
  void Enable(SearchControl control, bool enabled) override;
  std::string txtMax() const override;
  void SetCaption(const std::string& text) override;
  void SetStatusText(const std::string& text) override;
  void SetInfoText(const std::string& text) override;
  void ShowInformation(const std::string& text) override;
  void SetProgress(const Progress& progress) override { progress_.Set(progress); }
  void ClearListView() override;
  void ListChanged() override;
  bool NumbersByFile() const override;
  void DoEvents() override;
  Finally ShowHourglass() override;

  // SaveWindow, as far as it is not part of SearchWindow
  bool RenderEntry(int number) override { return captured_.RenderEntry(number); }
  const PixelView& PicMask() const override { return captured_.Surfaces().Mask(); }
  const PixelView& PicImage() const override { return captured_.Surfaces().Image(); }
  const PixelView& PicIcon() const override { return captured_.PicIcon(); }
  const PixelView& PicMain() override { return captured_.PicMain(); }
  bool CopyPicClip() override { return captured_.CopyPicClip(Window()); }
  Finally ShowStatus(const std::string& text) override;
  void ShowMessage(const std::string& text, MessageKind kind) override;
  Finally HoldCommands() override;
  void ServePainting() override;

  void AttachControls();
  void ShowTipAt(double x, double y);
  void LoadSettings();
  void SaveSettings();
  void UpdateSaveMenus();
  std::optional<PictureContent::CurrentPart> CurrentItem() const;
  void ShowSelectionInList();
  void ChooseIfNotCurrent(int row);  // counted from 0
  void ShowLastTexts();              // of the caption and the status bar, if they are not shown yet

  Dependencies dependencies_;
  SearchState state_;
  IconList list_;
  ShownFolders folders_{dependencies_};
  IconGrid grid_;
  PictureContent gridContent_;  // the grid for screen readers
  PictureTip gridTip_;
  FindIconLayout layout_;
  Surface ownSurface_;
  SearchDriver driver_;
  Selection selection_;
  CapturedEntries captured_;
  std::optional<frmBit> view_;  // created when it first opens
  SaveCommands commands_;
  bool isSaving_ = false;   // true while a save or copy command runs; the window then accepts no other command
  Finally savesInTurn_;     // while such a command runs, icons are requested in turn
  Throttle looks_{40};      // how often such a command checks for messages, in milliseconds
  Throttle serves_{1'000};  // how often it serves them even if none is found

  ShownProgress progress_;
  LiveText caption_;
  LiveText status_;                        // panel 1 of sbMain
  bool releaseBelongsToDblClick_ = false;  // the next button release on the grid ends a double click

  ScrollBar udMain_;
  ReportList lv_;
};

}  // namespace tarvik
