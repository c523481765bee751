#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>

#include "resource.h"
#include "search/icons/IconList.h"
#include "startup/FormTexts.h"

namespace tarvik {

// The tooltips of the toolbar's buttons.
inline constexpr auto viewTooltips = std::to_array<FormText>({
    {frmBit_tlb_control_MoveFirst, {"First", "第一张", "第一張"}},
    {frmBit_tlb_control_MoveLast, {"Last", "最后一张", "最後一張"}},
    {frmBit_tlb_control_MovePrev, {"Back", "上一张", "上一張"}},
    {frmBit_tlb_control_MoveNext, {"Forward", "下一张", "下一張"}},
    {frmBit_tlb_control_Start, {"Start", "开始", "開始"}},
    {frmBit_tlb_control_Stop, {"Stop", "停止", "停止"}},
    {frmBit_tlb_control_Slower, {"Slower", "减慢", "減慢"}},
    {frmBit_tlb_control_Faster, {"Faster", "加快", "加快"}},
});

// The names of its controls for screen readers.
inline constexpr auto viewNames = std::to_array<FormText>({
    {frmBit_lblZoom, {"Enlargement", "放大倍数", "放大倍率"}},
    {frmBit_lblControl, {"Buttons", "按钮", "按鈕"}},
    {frmBit_lblMain, {"Status", "状态", "狀態"}},
    {frmBit_img, {"Enlarged icon", "放大的图标", "放大的圖示"}},
});

// The window's caption. The Traditional Chinese one begins with 流 (deliberate: oddities 52).
inline constexpr Text viewCaption{"Enhanced View - [Height=%1, Width=%2]", "浏览窗口 - [高度=%1, 宽度=%2]",
                                  "流覽窗口 - [高度=%1, 寬度=%2]"};

// The caption for an enlarged picture of that size in pixels; nothing if `code` is no language.
std::optional<std::string> ViewCaption(int height, int width, std::string_view code);

// The source of an entry, for the status bar: its path, " - " and its index.
std::string SourceText(const IconListEntry& entry);

}  // namespace tarvik
