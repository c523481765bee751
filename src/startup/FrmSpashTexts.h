#pragma once

#include "resource.h"
#include "startup/FormTexts.h"

namespace tarvik {

// The start-up window's texts. They contain no address: the project's page is where the program came from. The
// copyright line is the same in every language.
inline constexpr FormText spashTexts[] = {
    {formCaption, {"Brindle Tarvik", "布林德图标搜索", "布林德圖示搜尋"}},
    {FrmSpash_lblDescription,
     {"Finds the icons stored in your files and saves them.", "查找并保存文件中的图标。", "尋找並儲存檔案中的圖示。"}},
    {FrmSpash_LblEmail,
     {"Questions? Ask on the project's page.", "如有疑问，请到项目主页提问。", "如有疑問，請到專案首頁提問。"}},
    {FrmSpash_lblLicence,
     {"Free software under the MIT License", "以 MIT 许可证发布的自由软件", "以 MIT 授權條款發布的自由軟體"}},
    {FrmSpash_CmdOk, {"&OK", "确定(&O)", "確定(&O)"}},
};

// The About box's line with the version, "%1".
inline constexpr Text versionLine{"Version %1", "版本 %1", "版本 %1"};

}  // namespace tarvik
