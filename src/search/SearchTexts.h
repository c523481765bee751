#pragma once

#include "startup/Language.h"

// The texts of a search. "%1" and "%2" stand for values (see Compose).
namespace tarvik::searchTexts {

// Window title: Dir1's path, the count.
inline constexpr Text title{"Brindle Tarvik - %1 - %2 Icons", "Brindle Tarvik - %1 - %2 个图标",
                            "Brindle Tarvik - %1 - %2 個圖示"};

// Status panel: a folder; the number of the entry about to be added; the count after a folder. The Traditional
// Chinese texts of the first two are the simplified ones (deliberate: oddities 22), and "th" follows every number
// (deliberate: oddities 21).
inline constexpr Text searching{"Wait..., Searching %1", "请稍候..., 正在查找中 %1", "请稍候..., 正在查找中 %1"};
inline constexpr Text adding{"Adding %1th icon to list", "正添加No.%1到列表中", "正添加No.%1到列表中"};
inline constexpr Text added{"%1 Icons Added. Double click an icon for enhanced view.",
                            "%1个图标被加入列表.双击图标可以浏览.", "%1個圖示被加入列表.雙擊圖示可以流覽."};

// Label after a search.
inline constexpr Text firstSelected{"Icon No 1 Selected.", "选中NO.1 图标.", "選中NO.1 圖示."};

// Message boxes: the start of the folder's path; the count and the limit; the count and the highest limit. Their
// wording and the two blanks are deliberate: oddities 23.
inline constexpr Text noIcons{"%1 ... contains no icons.", "%1中没有图标.", "%1中沒有圖示."};
inline constexpr Text raiseLimit{
    "Found %1 icons.\r\nOnce search only support Maximum %2 icons!\r\n"
    "Try again after increasing  icons number of list.",
    "共搜索到%1个图标.\r\n每次搜索只支持最大%2个图标,请增大每次搜索图标数再重试!",
    "共搜索到%1個圖示.\r\n每次搜索只支援最大%2個圖示,請增大每次搜索圖示數再重試!"};
inline constexpr Text narrowFolders{"Found %1 icons.\r\nOnce search only support Maximum %2 icons!",
                                    "共搜索到%1个图标.\r\n每次搜索只支持最大%2个图标,请缩小目录层次后再重试!",
                                    "共搜索到%1個圖示.\r\n每次搜索只支援最大%2個圖示,請縮小目錄層次後再重試!"};

// Information box after a search that left files out: how many, the path of the first.
inline constexpr Text leftOut{
    "Files left out: %1. This version of Windows cannot pass on some characters of their names or of the names of "
    "their "
    "folders. The first one is:\r\n%2",
    "未查找的文件：%1 个。此版本的 Windows 无法处理其名称或所在文件夹名称中的某些字符。第一个是：\r\n%2",
    "未查找的檔案：%1 個。此版本的 Windows 無法處理其名稱或所在資料夾名稱中的某些字元。第一個是：\r\n%2"};

}  // namespace tarvik::searchTexts
