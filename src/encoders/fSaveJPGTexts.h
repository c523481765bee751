#pragma once

#include <array>

#include "resource.h"
#include "startup/FormTexts.h"

namespace tarvik {

// The texts of the JPEG options dialog and of its comment dialog.
inline constexpr FormText saveJpgTexts[] = {
    {formCaption, {"JPEG Compression Settings", "JPEG 压缩选项", "JPEG 壓縮選項"}},
    {fSaveJPG_Label2, {"Small", "小", "小"}},
    {fSaveJPG_Label3, {"Large", "大", "大"}},
    {fSaveJPG_lblQuality, {"Quality:", "品质:", "品質:"}},
    {fSaveJPG_lblSize, {"Quality step", "品质等级", "品質等級"}},
    {fSaveJPG_lblBar, {"Quality", "品质", "品質"}},
    {fSaveJPG_lblSubSample, {"Sub Sampling:", "取样比例:", "取樣比例:"}},
    {fSaveJPG_chkGreyscale, {"Greyscale", "灰度", "灰度"}},
    {fSaveJPG_cmdComment, {"Co&mment", "内容", "內容"}},
    {fSaveJPG_cmdFinish0, {"&Cancel", "取消(&C)", "取消(&C)"}},
    {fSaveJPG_cmdFinish1, {"&OK", "确定(&O)", "確定(&O)"}},
};

// The presets of CboSize, from the smallest file to the best picture.
inline constexpr std::array<Text, 5> qualityPresets{{
    {"Lowest", "最小", "最小"},
    {"Low", "小", "小"},
    {"Medium", "正常", "正常"},
    {"High", "高", "高"},
    {"Highest", "最高", "最高"},
}};

inline constexpr FormText commentTexts[] = {
    {formCaption, {"Comment", "内容", "內容"}},
    {fComment_lblComment, {"Comment", "内容", "內容"}},
    {fComment_cmdFinish, {"&OK", "确定(&O)", "確定(&O)"}},
};

}  // namespace tarvik
