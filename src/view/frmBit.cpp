#include "view/frmBit.h"

#include <windows.h>

#include <commctrl.h>
#include <windowsx.h>

#include <algorithm>
#include <array>
#include <cstddef>

#include "base/Finally.h"
#include "forms/Bounds.h"
#include "platform/Display.h"
#include "platform/Text.h"
#include "resource.h"
#include "startup/FormPlacement.h"
#include "startup/Placement.h"
#include "view/ButtonPictures.h"
#include "view/ViewKeys.h"
#include "view/ViewSize.h"
#include "view/ViewTexts.h"
#include "view/Zoom.h"

namespace tarvik {
namespace {

// The buttons with their design texts, which are kept if the interface is in no language.
constexpr auto buttons = std::to_array<Toolbar::Button>({
    {frmBit_tlb_control_MoveFirst, "First"},
    {frmBit_tlb_control_MovePrev, "Back"},
    {frmBit_tlb_control_MoveNext, "Forward"},
    {frmBit_tlb_control_MoveLast, "Last"},
    {frmBit_tlb_control_Start, "Start", Icon_frmBit_StartDisabled, true},
    {frmBit_tlb_control_Stop, "Stop", Icon_frmBit_StopDisabled},
    {frmBit_tlb_control_Slower, "Slower", 0, true},
    {frmBit_tlb_control_Faster, "Faster"},
    {frmBit_tlb_control_Exit, "Exit", 0, true},
});

constexpr int zoomListGap = 3;  // pixels between toolbar and zoom list at 96 dpi

SIZE WindowSize(HWND window) {
  RECT bounds{};
  GetWindowRect(window, &bounds);
  return SizeOf(bounds);
}

// The part of the main screen that no taskbar covers.
RECT WorkArea() {
  RECT area{};
  SystemParametersInfoW(SPI_GETWORKAREA, 0, &area, 0);
  return area;
}

}  // namespace

frmBit::frmBit(Application& application, EnhancedViewHost& host, const ProgramState& state, Settings& settings)
    : Form(application, Dialog_frmBit),
      host_(host),
      state_(state),
      settings_(settings),
      stepping_(host, {[this] { ShowPicture(); }, [this](const std::string& text) { ShowStatusText(text); }}),
      picture_(1, 1, white),
      enlarged_(1, 1, white) {}

void frmBit::ShowSelectedEntry(HWND owner) {
  if (host_.EntryCount() < 1 || host_.ViewOpen()) return;
  const int number = host_.CurrentIndex() + 1;
  host_.RenderEntry(number);
  Load(owner);
  const Finally unloads([this] { Unload(); });  // a view without its picture would count as open but stay invisible
  ShowPicture();
  stepping_.UpdateStatus(number);
  UpdateCaption();  // with the position that the picture took while the view loaded
  ShowModal(owner);
}

void frmBit::Form_Load() {
  AttachControls();
  SetLanguageOfForm();
  basInitEntry::ApplySkinToForm(*this);
  LoadViewSize();
  Form_Resize();
  stepping_.Begin();
  show_ = SlideShow();
  StopSlideShow();
  for (int factor = minZoom; factor <= maxZoom; ++factor) {
    ComboBox_AddString(Item(frmBit_CboZoom), ToWide(ZoomText(factor)).c_str());
  }
  Zoom(openingZoom);
  host_.SetViewOpen(true);  // last: a view that cannot be loaded does not unload either
}

void frmBit::Form_Unload() {
  SaveViewSize();
  host_.SetViewOpen(false);
  KillTimer(Window(), frmBit_tim_nextpic);
}

void frmBit::Form_Resize() {
  toolbar_.Resize();
  const RECT formerBar = BoundsInParent(Item(frmBit_sbMain));
  SendMessageW(Item(frmBit_sbMain), WM_SIZE, 0, 0);
  // If the window grows, Wine 10 leaves the old image of a status bar at its former position.
  RedrawWindow(Window(), &formerBar, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
  InvalidateRect(Item(frmBit_sbMain), nullptr, TRUE);  // otherwise its size grip is left there as well
  UpdateCaption();
}

bool frmBit::OnCommand(int id, int code) {
  static constexpr auto events = std::to_array<Event<frmBit>>({
      {frmBit_tlb_control_MoveFirst, frmBit_tlb_control_Exit, BN_CLICKED, Call<&frmBit::tlb_control_ButtonClick>},
      {frmBit_CboZoom, frmBit_CboZoom, CBN_SELCHANGE, Call<&frmBit::CboZoom_Click>},
  });
  return Dispatch<frmBit>(*this, events, id, code);
}

void frmBit::OnTimer(UINT_PTR id) {
  // A tick may already be queued when the show stops.
  if (id == frmBit_tim_nextpic && show_.IsEnabled()) tim_nextpic_Timer();
}

bool frmBit::PreviewMessage(const MSG& message) {
  return message.message == WM_KEYDOWN && Form_KeyDown(static_cast<int>(message.wParam));
}

bool frmBit::Form_KeyDown(int key) {
  const auto button = ButtonOfKey(key);
  if (!button) return false;
  // Sent to the window, so that a run-time error meets the boundary that every handler has.
  SendMessageW(Window(), WM_COMMAND, MAKEWPARAM(*button, BN_CLICKED), 0);
  return true;
}

void frmBit::tlb_control_ButtonClick(int button) {
  struct Action {
    bool stopsShow;
    void (frmBit::*run)();
  };
  static constexpr auto actions = std::to_array<Action>({
      {true, &frmBit::ShowFirst},
      {true, &frmBit::ShowPrevious},
      {true, &frmBit::ShowNext},
      {true, &frmBit::ShowLast},
      {false, &frmBit::StartSlideShow},
      {false, &frmBit::StopSlideShow},
      {false, &frmBit::Slower},
      {false, &frmBit::Faster},
      {false, &frmBit::Exit},
  });
  static_assert(actions.size() == frmBit_tlb_control_Exit - frmBit_tlb_control_MoveFirst + 1);
  const Action& action = actions.at(static_cast<std::size_t>(button));
  if (action.stopsShow) StopSlideShow();
  (this->*action.run)();
}

void frmBit::CboZoom_Click() {
  const int row = ComboBox_GetCurSel(Item(frmBit_CboZoom));
  if (row < 0) return;
  Zoom(ZoomOfRow(row));
  UpdateCaption();
}

void frmBit::tim_nextpic_Timer() {
  if (IsIconic(Window()) == FALSE) ShowNext();
}

void frmBit::StartSlideShow() {
  show_.Start();
  RestartTimer();
  toolbar_.Enable(frmBit_tlb_control_Start, false);
  toolbar_.Enable(frmBit_tlb_control_Stop, true);
}

void frmBit::StopSlideShow() {
  show_.Stop();
  RestartTimer();
  toolbar_.Enable(frmBit_tlb_control_Start, true);
  toolbar_.Enable(frmBit_tlb_control_Stop, false);
}

void frmBit::Slower() {
  if (show_.Slower()) RestartTimer();
}

void frmBit::Faster() {
  if (show_.Faster()) RestartTimer();
}

void frmBit::Exit() {
  // The window closes after the toolbar has finished its click.
  PostMessageW(Window(), WM_CLOSE, 0, 0);
}

void frmBit::RestartTimer() {
  KillTimer(Window(), frmBit_tim_nextpic);
  if (show_.IsEnabled()) SetTimer(Window(), frmBit_tim_nextpic, static_cast<UINT>(show_.Interval()), nullptr);
}

void frmBit::AttachControls() {
  toolbar_.Attach(Item(frmBit_tlb_control), ButtonPictureSide(ScaleOfDisplay()), buttons);
  img_ = PictureBox(Item(frmBit_img));
  img_.Show(&enlarged_);

  const HWND zoomList = Item(frmBit_CboZoom);
  SetWindowPos(zoomList, nullptr, BoundsInParent(zoomList).left,
               toolbar_.Extent().cy + ScaleOfDisplay().ToDisplay(zoomListGap), 0, 0,
               SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

void frmBit::SetLanguageOfForm() {
  ApplyViewLanguage();
  SetTexts(*this, viewNames, state_.CurrentLanguage);
  UpdateCaption();
}

void frmBit::ApplyViewLanguage() {
  for (const FormText& row : viewTooltips) {
    if (const auto text = Pick(row.text, state_.CurrentLanguage)) toolbar_.SetText(row.id, *text);
  }
}

void frmBit::LoadViewSize() {
  const ViewSize size = ReadViewSize(settings_);
  const int dotsPerInch = DotsOfDisplay();
  SetWindowPos(Window(), nullptr, 0, 0, NearestPixels(size.width, dotsPerInch), NearestPixels(size.height, dotsPerInch),
               SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
  basInitEntry::CenterForm(*this);
  MoveOntoScreen();
}

// A large, centred window could extend under the taskbar.
void frmBit::MoveOntoScreen() {
  const RECT area = WorkArea();
  RECT bounds{};
  GetWindowRect(Window(), &bounds);
  const SIZE size = SizeOf(bounds);
  SetWindowPos(Window(), nullptr, std::max(area.left, std::min(bounds.left, area.right - size.cx)),
               std::max(area.top, std::min(bounds.top, area.bottom - size.cy)), 0, 0,
               SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

void frmBit::SaveViewSize() {
  WINDOWPLACEMENT placement{};
  placement.length = sizeof placement;
  GetWindowPlacement(Window(), &placement);
  // A minimised window has no useful size; the size to which it is restored is used.
  const SIZE size = IsIconic(Window()) != FALSE ? SizeOf(placement.rcNormalPosition) : WindowSize(Window());
  const int dotsPerInch = DotsOfDisplay();
  WriteViewSize(settings_,
                {static_cast<float>(ToTwips(size.cy, dotsPerInch)), static_cast<float>(ToTwips(size.cx, dotsPerInch))});
}

void frmBit::UpdateCaption() {
  if (const auto caption = ViewCaption(imgSize_.cy, imgSize_.cx, state_.CurrentLanguage)) SetCaption(*caption);
}

void frmBit::ShowPicture() {
  const PixelView& source = host_.PicIcon();
  picture_.Resize(source.Width(), source.Height(), white);
  picture_.Copy(source);
  Enlarge();
}

void frmBit::ShowStatusText(const std::string& text) {
  SendMessageW(Item(frmBit_sbMain), SB_SETTEXTW, 0, reinterpret_cast<LPARAM>(ToWide(text).c_str()));
}

void frmBit::Zoom(int factor) {
  const PixelView& icon = host_.PicIcon();
  const DisplayScale scale = ScaleOfDisplay();
  const int side = SideOfSquare(factor, scale);
  const int width = side * icon.Width();
  const int height = side * icon.Height();
  imgSize_ = {factor * icon.Width(), factor * icon.Height()};
  enlarged_.Resize(width, height, white);
  SetWindowPos(img_.Window(), nullptr, scale.ToDisplay(pictureLeft), scale.ToDisplay(pictureTop), width, height,
               SWP_NOZORDER | SWP_NOACTIVATE);
  Enlarge();
}

// Every pixel of the picture becomes a square block; colours are not interpolated.
void frmBit::Enlarge() {
  SetStretchBltMode(enlarged_.Dc(), COLORONCOLOR);
  StretchBlt(enlarged_.Dc(), 0, 0, enlarged_.Width(), enlarged_.Height(), picture_.Dc(), 0, 0, picture_.Width(),
             picture_.Height(), SRCCOPY);
  img_.Refresh();
}

}  // namespace tarvik
