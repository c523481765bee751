#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "encoders/DialogText.h"
#include "resource.h"
#include "startup/Language.h"

namespace tarvik {

// What the GIF options dialog decides, without its window.

// The dialog's caption once a file of that many bytes is written, the same in every language: the size in thousands
// of bytes, with as many decimals as it has ("Convert File To Gif  ( Its size is 1.078K)"; 999 bytes are 0.999).
// All of it is deliberate: oddities 47.
std::string CaptionWithSize(std::uint64_t bytes);

// The spelling of "Pallate" is deliberate: oddities 46.
inline constexpr Text convertGifCaption{"Convert File To Gif", "另存为Gif", "另存為Gif"};
inline constexpr std::array<DialogText, 6> convertGifTexts{{
    {FrmConvertGIF_Check1, {"Save &transparent", "透明", "透明"}},
    {FrmConvertGIF_Option1, {"&Pallate [Best Quality]", "设计 [高质量]", "設計 [高品質]"}},
    {FrmConvertGIF_Option2, {"For &Web [Normal Quality]", "Web [普通]", "Web [普通]"}},
    {FrmConvertGIF_Frame1, {"Options", "选项", "選項"}},
    {FrmConvertGIF_CmdOk, {"&OK", "确定(&O)", "確定(&O)"}},
    {FrmConvertGIF_CmdCancel, {"&Cancel", "取消(&C)", "取消(&C)"}},
}};

}  // namespace tarvik
