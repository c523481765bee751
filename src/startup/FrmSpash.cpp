#include "startup/FrmSpash.h"

#include <windows.h>

#include <utility>

#include "platform/Handles.h"
#include "platform/Text.h"
#include "resource.h"
#include "startup/FormPlacement.h"
#include "startup/FrmSpashTexts.h"
#include "version.h"

namespace tarvik {
namespace {

constexpr UINT startUpTime = 3000;  // milliseconds
constexpr int aboutLines = 37;      // how much higher the About box is, in dialog units

// The position of the version in the picture, below the product's name, in thousandths of its sides.
constexpr int versionLeft = 53;
constexpr int versionTop = 720;
constexpr COLORREF versionColor = RGB(0xC9, 0xD6, 0xEE);

int Thousandths(int side, int part) {
  return MulDiv(side, part, 1000);
}

// Removes bits from a window's style and adds others; returns the new style.
DWORD ChangeStyle(HWND window, int which, LONG_PTR taken, LONG_PTR added) {
  const LONG_PTR style = (GetWindowLongPtrW(window, which) & ~taken) | added;
  SetWindowLongPtrW(window, which, style);
  return static_cast<DWORD>(style);
}

void DrawVersion(const Surface& surface, HFONT font) {
  const SelectedObject selected(surface.Dc(), font);
  SetBkMode(surface.Dc(), TRANSPARENT);
  SetTextColor(surface.Dc(), versionColor);
  const std::wstring text = ToWide(TARVIK_VERSION_TEXT);
  TextOutW(surface.Dc(), Thousandths(surface.Width(), versionLeft), Thousandths(surface.Height(), versionTop),
           text.data(), static_cast<int>(text.size()));
}

}  // namespace

FrmSpash::FrmSpash(Application& application, const ProgramState& state, std::function<void()> showMainWindow)
    : Form(application, Dialog_FrmSpash), state_(state), showMainWindow_(std::move(showMainWindow)) {}

void FrmSpash::Form_Load() {
  picture_.reset();
  if (state_.ShowAsAbout) {
    MakeRoomForAbout();
  } else {
    RemoveCaption();
  }
  basInitEntry::CenterForm(*this);
  SetTexts(*this, spashTexts, state_.CurrentLanguage);
  basInitEntry::CenterForm(*this);
  const auto version = Compose(versionLine, state_.CurrentLanguage, {TARVIK_VERSION_TEXT});
  SetItemText(FrmSpash_lblVersion, version.value_or(TARVIK_VERSION_TEXT));
  for (const int id : {FrmSpash_CmdOk, FrmSpash_lblVersion, FrmSpash_lblCopyright, FrmSpash_lblLicence})
    ShowItem(id, state_.ShowAsAbout);
  if (!state_.ShowAsAbout) SetTimer(Window(), FrmSpash_Timer1, startUpTime, nullptr);
}

// The picture is drawn at the first paint, so the window appears before it.
void FrmSpash::Form_Paint(HDC /*dc*/) {
  if (!picture_) DrawPicture();
}

bool FrmSpash::OnCommand(int id, int code) {
  static constexpr Event<FrmSpash> events[] = {
      {FrmSpash_CmdOk, FrmSpash_CmdOk, BN_CLICKED, Call<&FrmSpash::CmdOk_Click>},
      {IDCANCEL, IDCANCEL, BN_CLICKED, Call<&FrmSpash::CmdOk_Click>},  // Esc
  };
  return Dispatch<FrmSpash>(*this, events, id, code);
}

void FrmSpash::OnTimer(UINT_PTR id) {
  if (id == FrmSpash_Timer1) Timer1_Timer();
}

void FrmSpash::Timer1_Timer() {
  Unload();
  showMainWindow_();
}

void FrmSpash::CmdOk_Click() {
  // Enter and Esc arrive here too, and the button is hidden during the start-up.
  if (state_.ShowAsAbout) Unload();
}

// The lines that the start-up window does not show are below its bottom edge.
void FrmSpash::MakeRoomForAbout() {
  RECT bounds;
  GetWindowRect(Window(), &bounds);
  RECT more{0, 0, 0, aboutLines};
  MapDialogRect(Window(), &more);
  SetWindowPos(Window(), nullptr, 0, 0, bounds.right - bounds.left, bounds.bottom - bounds.top + more.bottom,
               SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
}

void FrmSpash::RemoveCaption() {
  RECT bounds;
  GetClientRect(Window(), &bounds);
  const DWORD style = ChangeStyle(Window(), GWL_STYLE, WS_CAPTION | WS_SYSMENU, WS_BORDER);
  const DWORD extended = ChangeStyle(Window(), GWL_EXSTYLE, WS_EX_DLGMODALFRAME, 0);
  AdjustWindowRectEx(&bounds, style, FALSE, extended);
  SetWindowPos(Window(), nullptr, 0, 0, bounds.right - bounds.left, bounds.bottom - bounds.top,
               SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE | SWP_FRAMECHANGED);
}

// Draws the picture at the size that its control has at this screen's dpi.
void FrmSpash::DrawPicture() {
  const HWND item = Item(FrmSpash_Picture);
  RECT bounds;
  GetClientRect(item, &bounds);
  picture_.emplace(bounds.right, bounds.bottom, black);

  const BitmapHandle bitmap(static_cast<HBITMAP>(LoadImageW(
      TheApplication().Instance(), MAKEINTRESOURCEW(Bitmap_FrmSpash), IMAGE_BITMAP, 0, 0, LR_CREATEDIBSECTION)));
  BITMAP size{};
  GetObjectW(bitmap.get(), sizeof size, &size);
  const MemoryDc source(CreateCompatibleDC(picture_->Dc()));
  const SelectedObject selected(source.get(), bitmap.get());
  SetStretchBltMode(picture_->Dc(), HALFTONE);
  SetBrushOrgEx(picture_->Dc(), 0, 0, nullptr);
  StretchBlt(picture_->Dc(), 0, 0, picture_->Width(), picture_->Height(), source.get(), 0, 0, size.bmWidth,
             size.bmHeight, SRCCOPY);

  DrawVersion(*picture_, reinterpret_cast<HFONT>(SendMessageW(Item(FrmSpash_lblDescription), WM_GETFONT, 0, 0)));
  PictureBox(item).Show(&*picture_);
}

}  // namespace tarvik
