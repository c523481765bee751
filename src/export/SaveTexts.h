#pragma once

#include "startup/Language.h"

// The messages of the save and copy commands. "%1" stands for a path (see Compose).
namespace tarvik::saveTexts {

inline constexpr Text progress{"Saving...", "正在保存...", "正在存儲..."};

inline constexpr Text iconFailed{"Unable to save the file %1", "保存文件%1失败.", "保存檔案%1失敗."};
inline constexpr Text cursorFailed{"Failed to Save Icon As Cursor.", "无法另存为光标文件.", "無法另存為游標文件."};
inline constexpr Text imageFailed{"Failed to Save Icon As Bitmap.", "无法另存为位图文件.", "無法另存為點陣圖檔."};
inline constexpr Text noneSelected{"No Icon be selected.", "未所中任何图标.", "未所中任何圖示."};
inline constexpr Text clipboardHeld{"The icon was not copied: another program is using the clipboard.",
                                    "未能复制图标: 剪贴板正被其他程序使用.", "未能複製圖示: 剪貼簿正被其他程式使用."};

}  // namespace tarvik::saveTexts
