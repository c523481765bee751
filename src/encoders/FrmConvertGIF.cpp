#include "encoders/FrmConvertGIF.h"

#include <windows.h>

#include <utility>

#include "base/FolderPath.h"
#include "encoders/FrmConvertGIFTexts.h"
#include "encoders/GifOptions.h"
#include "forms/MousePointer.h"
#include "platform/Text.h"
#include "resource.h"
#include "startup/FormPlacement.h"

namespace tarvik {
namespace {

// The label's text in a batch, whose files have no name yet.
constexpr const char* batchTarget = "*.gif";
constexpr COLORREF convertingColor = RGB(0xC0, 0, 0);

}  // namespace

FrmConvertGIF::FrmConvertGIF(Application& application, const ProgramState& state, HWND owner, Dependencies dependencies)
    : Form(application, Dialog_FrmConvertGIF), state_(state), owner_(owner), dependencies_(std::move(dependencies)) {}

void FrmConvertGIF::InitGifExport(const PixelView& picture, const std::string& target) {
  picture_ = &picture;
  target_ = target;
}

DialogAnswer FrmConvertGIF::ShowFor(DialogMode mode) {
  mode_ = mode;
  answer_ = DialogAnswer::Cancelled;
  ShowModal(owner_);
  return answer_;
}

bool FrmConvertGIF::SaveToGIFNoSingle(const std::string& target) {
  return Convert(target);
}

void FrmConvertGIF::FreeGifObj() {
  encoder_.reset();
  picture_ = nullptr;
  Unload();
}

void FrmConvertGIF::Form_Load() {
  basInitEntry::ApplySkinToForm(*this);
  basInitEntry::CenterForm(*this);
  SetTexts(*this, convertGifTexts, state_.CurrentLanguage);
  SetItemText(FrmConvertGIF_Label1, mode_ == DialogMode::Single ? FolderName(target_) : batchTarget);
  SetChecked(FrmConvertGIF_Option1, true);
}

bool FrmConvertGIF::OnCommand(int id, int code) {
  static constexpr Event<FrmConvertGIF> events[] = {
      {FrmConvertGIF_CmdOk, FrmConvertGIF_CmdOk, BN_CLICKED, Call<&FrmConvertGIF::CmdOk_Click>},
      {FrmConvertGIF_CmdCancel, FrmConvertGIF_CmdCancel, BN_CLICKED, Call<&FrmConvertGIF::CmdCancel_Click>},
      {IDCANCEL, IDCANCEL, BN_CLICKED, Call<&FrmConvertGIF::CmdCancel_Click>},  // Esc
  };
  return Dispatch<FrmConvertGIF>(*this, events, id, code);
}

// The label is owner-drawn, so that it can change its colour.
void FrmConvertGIF::OnDrawItem(const DRAWITEMSTRUCT& item) {
  if (item.CtlID != FrmConvertGIF_Label1) return;
  RECT bounds = item.rcItem;
  FillRect(item.hDC, &bounds, GetSysColorBrush(COLOR_BTNFACE));
  SetBkMode(item.hDC, TRANSPARENT);
  SetTextColor(item.hDC, converting_ ? convertingColor : GetSysColor(COLOR_BTNTEXT));
  DrawTextW(item.hDC, ToWide(ItemText(FrmConvertGIF_Label1)).c_str(), -1, &bounds,
            DT_SINGLELINE | DT_NOPREFIX | DT_END_ELLIPSIS);
}

void FrmConvertGIF::CmdOk_Click() {
  answer_ = DialogAnswer::Ok;
  if (mode_ == DialogMode::NoSingle) return Hide();
  ConvertSingle();
  FreeGifObj();
}

void FrmConvertGIF::ConvertSingle() {
  const Finally hourglass = ShowHourglass();
  converting_ = true;
  RedrawWindow(Item(FrmConvertGIF_Label1), nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
  EnableItem(FrmConvertGIF_CmdOk, false);
  if (Convert(target_)) {
    SetCaption(CaptionWithSize(dependencies_.fileLength(target_)));
  } else {
    answer_ = DialogAnswer::Failed;
  }
  converting_ = false;
  EnableItem(FrmConvertGIF_CmdOk, true);
}

bool FrmConvertGIF::Convert(const std::string& target) {
  if (picture_ == nullptr) return false;
  const GifSettings settings{
      .transparent = IsChecked(FrmConvertGIF_Check1),
      .transparentColor = picture_->Pixel(0, 0),
      .palette = IsChecked(FrmConvertGIF_Option1) ? GifPalette::BestQuality : GifPalette::Web,
  };
  if (!encoder_) encoder_.emplace(dependencies_.sink);
  return encoder_->WriteFile(*picture_, target, settings);
}

void FrmConvertGIF::CmdCancel_Click() {
  Unload();
}

}  // namespace tarvik
