#include "encoders/fSaveJPG.h"

#include <windows.h>

#include <windowsx.h>

#include "encoders/JpegOptions.h"
#include "encoders/fSaveJPGTexts.h"
#include "forms/MousePointer.h"
#include "platform/Text.h"
#include "resource.h"
#include "startup/FormPlacement.h"

namespace tarvik {
namespace {

constexpr int qualityPage = 10;  // by a click next to the thumb
constexpr int okButton = 1;      // of cmdFinish

}  // namespace

fSaveJPG::fSaveJPG(Application& application, const ProgramState& state, HWND owner, FileSink& sink)
    : Form(application, Dialog_fSaveJPG), state_(state), owner_(owner), export_(sink), comment_(application, state) {}

void fSaveJPG::InitJpegExport(const PixelView& picture, const std::string& target, DialogMode mode) {
  export_.InitJpegExport(picture, target, mode);
}

DialogAnswer fSaveJPG::ShowFor(DialogMode mode) {
  export_.SetMode(mode);
  answer_ = DialogAnswer::Cancelled;
  ShowModal(owner_);
  return answer_;
}

bool fSaveJPG::SaveToJPGForNoSingle(const std::string& target) {
  return export_.Save(target);
}

void fSaveJPG::FreeObj() {
  export_.FreeObj();
  Unload();
}

void fSaveJPG::Form_Load() {
  basInitEntry::ApplySkinToForm(*this);
  basInitEntry::CenterForm(*this);
  SetTexts(*this, saveJpgTexts, state_.CurrentLanguage);
  hscQuality_.Attach(Item(fSaveJPG_hscQuality));
  hscQuality_.SetRange({minQuality, maxQuality, 1, qualityPage}, 1);
  FillLists();
  ComboBox_SetCurSel(Item(fSaveJPG_CboSize), initialPreset);
  CboSize_Click();
  ComboBox_SetCurSel(Item(fSaveJPG_cboSubSample), initialSubSampling);
  cboSubSample_Click();
}

void fSaveJPG::FillLists() {
  for (const Text& preset : qualityPresets)
    ComboBox_AddString(Item(fSaveJPG_CboSize),
                       ToWide(Pick(preset, state_.CurrentLanguage).value_or(preset.eng)).c_str());
  for (const std::string_view subSampling : subSamplings)
    ComboBox_AddString(Item(fSaveJPG_cboSubSample), ToWide(subSampling).c_str());
}

bool fSaveJPG::OnCommand(int id, int code) {
  static constexpr Event<fSaveJPG> events[] = {
      {fSaveJPG_CboSize, fSaveJPG_CboSize, CBN_SELCHANGE, Call<&fSaveJPG::CboSize_Click>},
      {fSaveJPG_cboSubSample, fSaveJPG_cboSubSample, CBN_SELCHANGE, Call<&fSaveJPG::cboSubSample_Click>},
      {fSaveJPG_chkGreyscale, fSaveJPG_chkGreyscale, BN_CLICKED, Call<&fSaveJPG::cboSubSample_Click>},
      {fSaveJPG_cmdComment, fSaveJPG_cmdComment, BN_CLICKED, Call<&fSaveJPG::cmdComment_Click>},
      {fSaveJPG_cmdFinish0, fSaveJPG_cmdFinish1, BN_CLICKED, Call<&fSaveJPG::cmdFinish_Click>},
      {IDCANCEL, IDCANCEL, BN_CLICKED, Call<&fSaveJPG::Cancel>},  // Esc
  };
  return Dispatch<fSaveJPG>(*this, events, id, code);
}

void fSaveJPG::OnScroll(HWND scrollBar, int request) {
  if (scrollBar == hscQuality_.Window() && hscQuality_.Scroll(request)) hscQuality_Change();
}

void fSaveJPG::CboSize_Click() {
  const int preset = ComboBox_GetCurSel(Item(fSaveJPG_CboSize));
  if (preset < 0) return;
  hscQuality_.SetValue(QualityOfPreset(preset));
  hscQuality_Change();
}

void fSaveJPG::hscQuality_Change() {
  const int quality = hscQuality_.Value();
  if (const auto preset = PresetOfQuality(quality)) ComboBox_SetCurSel(Item(fSaveJPG_CboSize), *preset);
  SetItemText(fSaveJPG_txtQual, std::to_string(quality));
  export_.Encoder().SetQuality(quality);
}

void fSaveJPG::cboSubSample_Click() {
  const bool greyscale = IsChecked(fSaveJPG_chkGreyscale);
  EnableItem(fSaveJPG_cboSubSample, !greyscale);
  const int chosen = ComboBox_GetCurSel(Item(fSaveJPG_cboSubSample));
  if (chosen < 0) return;
  export_.Encoder().SetSampling(SamplingOf(subSamplings.at(static_cast<std::size_t>(chosen)), greyscale));
}

void fSaveJPG::cmdComment_Click() {
  JpegEncoder& encoder = export_.Encoder();
  encoder.SetComment(comment_.Edit(Window(), encoder.Comment()));
}

void fSaveJPG::cmdFinish_Click(int index) {
  Finish(index == okButton);
}

void fSaveJPG::Cancel() {
  Finish(false);
}

void fSaveJPG::Finish(bool accepted) {
  answer_ = accepted ? DialogAnswer::Ok : DialogAnswer::Cancelled;
  if (export_.Mode() == DialogMode::NoSingle) return Hide();
  {
    const Finally hourglass = ShowHourglass();
    if (accepted && !export_.Save()) answer_ = DialogAnswer::Failed;
  }
  FreeObj();
}

}  // namespace tarvik
