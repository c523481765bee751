#pragma once

#include <string>
#include <string_view>

#include "startup/Language.h"

namespace tarvik {

// Shown if the user's guide does not open, followed by an empty line and the path of its page: one text for a page that
// is not there, the other for one that no program takes.
inline constexpr Text guideMissing{"The user's guide is missing. Installing the program again brings it back.",
                                   "找不到用户指南。重新安装本程序即可恢复。",
                                   "找不到使用指南。重新安裝本程式即可復原。"};
inline constexpr Text guideNotOpened{
    "The user's guide could not be opened, because no web browser took it. Its page is here:",
    "无法打开用户指南，因为没有可用的网页浏览器。页面位于：", "無法開啟使用指南，因為沒有可用的網頁瀏覽器。頁面位於："};

// The page of the user's guide in the language of `code`, in the folder "guide" beside the program; the English one
// where the code is no language. UTF-8.
std::string GuidePath(const std::string& programFolder, std::string_view code);

}  // namespace tarvik
