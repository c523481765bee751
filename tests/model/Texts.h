#pragma once

#include <cstddef>
#include <string>

namespace tarvik::model {

enum class Tongue { English, Simplified, Traditional };

// The expected texts in the three languages. "#" and "@" are placeholders for values.
struct Words {
  const char* english;
  const char* simplified;
  const char* traditional;

  std::string In(Tongue tongue, const std::string& first = {}, const std::string& second = {}) const {
    const char* chosen[] = {english, simplified, traditional};
    std::string text;
    for (const char* letter = chosen[static_cast<int>(tongue)]; *letter != '\0'; ++letter) {
      if (*letter == '#') {
        text += first;
      } else if (*letter == '@') {
        text += second;
      } else {
        text += *letter;
      }
    }
    return text;
  }
};

namespace words {

inline constexpr Words product{"Brindle Tarvik", "布林德图标搜索", "布林德圖示搜尋"};
inline constexpr Words title{"Brindle Tarvik - # - @ Icons", "Brindle Tarvik - # - @ 个图标",
                             "Brindle Tarvik - # - @ 個圖示"};
inline constexpr Words firstStatus{"Click the Start button to start search", "Click the Start button to start search",
                                   "Click the Start button to start search"};
inline constexpr Words added{"# Icons Added. Double click an icon for enhanced view.",
                             "#个图标被加入列表.双击图标可以浏览.", "#個圖示被加入列表.雙擊圖示可以流覽."};
inline constexpr Words firstSelected{"Icon No 1 Selected.", "选中NO.1 图标.", "選中NO.1 圖示."};
inline constexpr Words selected{"Icon No # Selected.", "选中 NO.# 图标.", "選中 NO.# 圖示."};
inline constexpr Words tipIndex{"\r\nIndex #", "\r\n索引 #", "\r\n索引 #"};
inline constexpr Words cannotRead{"The folder cannot be read:\r\n#", "无法读取文件夹：\r\n#", "無法讀取資料夾：\r\n#"};
inline constexpr Words noIcons{"# ... contains no icons.", "#中没有图标.", "#中沒有圖示."};
inline constexpr Words raiseLimit{
    "Found # icons.\r\nOnce search only support Maximum @ icons!\r\nTry again after increasing  icons number of list.",
    "共搜索到#个图标.\r\n每次搜索只支持最大@个图标,请增大每次搜索图标数再重试!",
    "共搜索到#個圖示.\r\n每次搜索只支援最大@個圖示,請增大每次搜索圖示數再重試!"};
inline constexpr Words narrowFolders{"Found # icons.\r\nOnce search only support Maximum @ icons!",
                                     "共搜索到#个图标.\r\n每次搜索只支持最大@个图标,请缩小目录层次后再重试!",
                                     "共搜索到#個圖示.\r\n每次搜索只支援最大@個圖示,請縮小目錄層次後再重試!"};
inline constexpr Words errorTitle{"Brindle Tarvik - Error", "Brindle Tarvik - 错误", "Brindle Tarvik - 錯誤"};
inline constexpr Words driveNotReady{"Driver Not Ready!", "路径无效!", "路徑無效!"};
inline constexpr Words mismatch{"Type mismatch", "类型不匹配", "型態不符合"};
inline constexpr Words overflow{"Overflow", "溢出", "溢位"};
inline constexpr Words iconFailed{"Unable to save the file #", "保存文件#失败.", "保存檔案#失敗."};
inline constexpr Words cursorFailed{"Failed to Save Icon As Cursor.", "无法另存为光标文件.", "無法另存為游標文件."};
inline constexpr Words imageFailed{"Failed to Save Icon As Bitmap.", "无法另存为位图文件.", "無法另存為點陣圖檔."};
inline constexpr Words noneSelected{"No Icon be selected.", "未所中任何图标.", "未所中任何圖示."};
inline constexpr Words viewTitle{"Enhanced View - [Height=#, Width=@]", "浏览窗口 - [高度=#, 宽度=@]",
                                 "流覽窗口 - [高度=#, 寬度=@]"};
inline constexpr Words createIn{"Create In #", "在#中创建子文件夹", "在#中創建子文件夾"};
inline constexpr Words newFolder{"New Folder", "新建文件夹", "新建文件夾"};
inline constexpr Words cannotCreate{"Cannot Create", "创建失败", "創建失敗"};
inline constexpr Words cannotCreateText{
    "Unable to create folder. Please check that whether the name you entered is valid and contains no invalid "
    "characters",
    "无法创建文件夹. 文件夹名称不能包括以下字符:\r\n\\/:*?\"<>|",
    "無法創建文件夾. 檔夾名稱不能包括以下字元:\r\n\\/:*?\"<>|"};

}  // namespace words
}  // namespace tarvik::model
