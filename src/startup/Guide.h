#pragma once

#include <string>
#include <string_view>

#include "startup/Language.h"

namespace tarvik {

// Shown where the user's guide does not open; its path stands below, after an empty line.
inline constexpr Text guideFailure{"The user's guide could not be opened. Installing the program again brings it back.",
                                   "无法打开用户指南。重新安装本程序即可恢复。",
                                   "無法開啟使用指南。重新安裝本程式即可復原。"};

// The page of the user's guide in the language of `code`, in the folder "guide" beside the program; the English one
// where the code is no language. UTF-8.
std::string GuidePath(const std::string& programFolder, std::string_view code);

}  // namespace tarvik
