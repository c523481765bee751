#pragma once

#include "resource.h"
#include "startup/FormTexts.h"

namespace tarvik {

// The GIF options dialog's texts. The spelling of "Pallate" is deliberate: oddities 46.
inline constexpr FormText convertGifTexts[] = {
    {formCaption, {"Convert File To Gif", "另存为Gif", "另存為Gif"}},
    {FrmConvertGIF_Check1, {"Save &transparent", "透明", "透明"}},
    {FrmConvertGIF_Option1, {"&Pallate [Best Quality]", "设计 [高质量]", "設計 [高品質]"}},
    {FrmConvertGIF_Option2, {"For &Web [Normal Quality]", "Web [普通]", "Web [普通]"}},
    {FrmConvertGIF_Frame1, {"Options", "选项", "選項"}},
    {FrmConvertGIF_CmdOk, {"&OK", "确定(&O)", "確定(&O)"}},
    {FrmConvertGIF_CmdCancel, {"&Cancel", "取消(&C)", "取消(&C)"}},
};

}  // namespace tarvik
