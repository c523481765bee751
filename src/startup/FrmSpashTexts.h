#pragma once

#include "resource.h"
#include "startup/FormTexts.h"

namespace tarvik {

// The start-up window's texts. The contact address is the same in every language.
inline constexpr FormText spashTexts[] = {
    {formCaption, {"Brindle Tarvik", "布林德图标搜索", "布林德圖示搜尋"}},
    {FrmSpash_lblDescription,
     {"Finds the icons stored in your files and saves them.", "查找并保存文件中的图标。", "尋找並儲存檔案中的圖示。"}},
    {FrmSpash_CmdOk, {"&OK", "确定(&O)", "確定(&O)"}},
};

}  // namespace tarvik
