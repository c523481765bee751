#pragma once

#include "resource.h"
#include "startup/FormTexts.h"

namespace tarvik {

inline constexpr FormText frmDirTexts[] = {
    {formCaption, {"Store To Directory...", "存储目录...", "存儲目錄..."}},
    {frmDir_CmdOk, {"&OK", "确定(&O)", "確定(&O)"}},
    {frmDir_CmdCancel, {"&Cancel", "取消(&C)", "取消(&C)"}},
    {frmDir_cmdCreate, {"Cr&eate", "创建(&R)", "創建(&R)"}},
    {frmDir_lblDrive, {"Drive", "驱动器", "磁碟機"}},
    {frmDir_lblFolder, {"Folder", "文件夹", "資料夾"}},
    {frmDir_lblFileType, {"File type", "文件类型", "檔案類型"}},
    {frmDir_lblCaption, {"Selected Directory:", "存储目录为:", "存儲目錄為:"}},
};

inline constexpr FormText frmDirCreateTexts[] = {
    {frmDirCreate_CmdOk, {"Cr&eate", "创建(&R)", "創建(&R)"}},
    {frmDirCreate_CmdCancel, {"&Cancel", "取消(&C)", "取消(&C)"}},
    {frmDirCreate_lblCaption, {"Folder:", "文件夹:", "文件夾:"}},
};

// "%1" is the parent folder (see Compose).
inline constexpr Text createInCaption{"Create In %1", "在%1中创建子文件夹", "在%1中創建子文件夾"};
inline constexpr Text newFolderName{"New Folder", "新建文件夹", "新建文件夾"};

inline constexpr Text cannotCreateTitle{"Cannot Create", "创建失败", "創建失敗"};
inline constexpr Text cannotCreateText{
    "Unable to create folder. Please check that whether the name you entered is valid and contains no invalid "
    "characters",
    "无法创建文件夹. 文件夹名称不能包括以下字符:\r\n\\/:*?\"<>|",
    "無法創建文件夾. 檔夾名稱不能包括以下字元:\r\n\\/:*?\"<>|"};

}  // namespace tarvik
