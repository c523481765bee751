#pragma once

#include <array>
#include <optional>
#include <string_view>

#include "encoders/DialogText.h"
#include "encoders/JpegEncoder.h"
#include "resource.h"
#include "startup/Language.h"

namespace tarvik {

// What the JPEG options dialog and its comment dialog decide, without their windows.

inline constexpr int minQuality = 1;
inline constexpr int maxQuality = 100;

// The presets of CboSize, from the smallest file to the best picture, and the one chosen when the dialog opens.
inline constexpr std::array<Text, 5> qualityPresets{{
    {"Lowest", "最小", "最小"},
    {"Low", "小", "小"},
    {"Medium", "正常", "正常"},
    {"High", "高", "高"},
    {"Highest", "最高", "最高"},
}};
inline constexpr int initialPreset = 2;

// The items of cboSubSample, the same in every language: the luminance factors across and down. And the item chosen
// when the dialog opens.
inline constexpr std::array<std::string_view, 16> subSamplings{
    "1:1  [Max Quality]",
    "1:2",
    "2:1",
    "2:2  [Default]",
    "1:3",
    "3:1",
    "2:3",
    "3:2",
    "3:3",
    "1:4",
    "4:1",
    "2:4",
    "4:2",
    "3:4",
    "4:3",
    "4:4  [Max Compress]",
};
inline constexpr int initialSubSampling = 3;

// The quality that a preset (0 to 4) stands for: 20, 40, 60, 80 or 100.
int QualityOfPreset(int preset);

// The preset to show for a quality, or nothing if the list stays as it is. Every quality up to 20 shows the first; of
// the others only the two ends of each step show one: 21 and 40, 41 and 60, ... (deliberate: oddities 45).
std::optional<int> PresetOfQuality(int quality);

// The luminance factors of an item of cboSubSample: its first and third characters as numbers.
SamplingFactors LuminanceOf(std::string_view subSampling);

// What the encoder is set to: those factors for luminance with 1 x 1 for chroma; or luminance alone, 1 x 1, where
// the picture is to be greyscale, whatever item is chosen.
JpegSampling SamplingOf(std::string_view subSampling, bool greyscale);

inline constexpr Text saveJpgCaption{"JPEG Compression Settings", "JPEG 压缩选项", "JPEG 壓縮選項"};
inline constexpr std::array<DialogText, 10> saveJpgTexts{{
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
}};

inline constexpr Text commentCaption{"Comment", "内容", "內容"};
inline constexpr std::array<DialogText, 2> commentTexts{{
    {fComment_lblComment, {"Comment", "内容", "內容"}},
    {fComment_cmdFinish, {"&OK", "确定(&O)", "確定(&O)"}},
}};

}  // namespace tarvik
