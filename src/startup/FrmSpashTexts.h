#pragma once

#include "resource.h"
#include "startup/FormTexts.h"

namespace tarvik {

// The start-up window's texts. They name no address: the project's page is where the program came from.
inline constexpr FormText spashTexts[] = {
    {formCaption, {"Brindle Tarvik", "布林德图标搜索", "布林德圖示搜尋"}},
    {FrmSpash_lblDescription,
     {"Finds the icons stored in your files and saves them.", "查找并保存文件中的图标。", "尋找並儲存檔案中的圖示。"}},
    {FrmSpash_LblEmail,
     {"Questions? Ask on the project's page.", "如有疑问，请到项目主页提问。", "如有疑問，請到專案首頁提問。"}},
    {FrmSpash_CmdOk, {"&OK", "确定(&O)", "確定(&O)"}},
};

}  // namespace tarvik
