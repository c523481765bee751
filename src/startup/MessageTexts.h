#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

#include "base/RuntimeError.h"
#include "startup/Language.h"
#include "startup/ProgramState.h"

namespace tarvik {

// What follows the product's name in the title of every failure.
inline constexpr Text failureSuffix{" - Error", " - 错误", " - 錯誤"};

// For refusing a second copy of the program. A second copy is not refused, so these are never shown (deliberate:
// oddities 5).
inline constexpr Text alreadyRunningTitle{"error!", "错误!", "錯誤!"};
inline constexpr Text alreadyRunningText{"Program is running !", "请不要重复运行程序！", "請不要重複運行程式！"};

// Shown if the user's guide does not open, followed by an empty line and the path of its page: one text if the page is
// missing, the other if no program opens it.
inline constexpr Text guideMissing{"The user's guide is missing. Installing the program again brings it back.",
                                   "找不到用户指南。重新安装本程序即可恢复。",
                                   "找不到使用指南。重新安裝本程式即可復原。"};
inline constexpr Text guideNotOpened{
    "The user's guide could not be opened, because no web browser took it. Its page is here:",
    "无法打开用户指南，因为没有可用的网页浏览器。页面位于：", "無法開啟使用指南，因為沒有可用的網頁瀏覽器。頁面位於："};

// Why the program does not start: the product's name and the first sentence, an empty line, the second sentence.
struct Refusal {
  Text first;
  Text second;
};

inline constexpr Refusal tooFewColors{
    {" requires at least high color mode.", " 颜色模式需设置为真彩色.", " 顏色模式需設置為真彩色."},
    {"Please adjust your color mode and try again.", "请在调整颜色模式后重新运行程序.",
     "請在調整顏色模式後重新運行程式."}};

inline constexpr Refusal tooSmall{{" requires a screen resolution of at least 800 x 600 pixels.",
                                   " 显示屏分辨率需设置为800×600以上.", " 顯示幕解析度需設置為800×600以上."},
                                  {"Please adjust your screen resolution and try again.",
                                   "请在调整分辨率后重新运行程序.", "請在調整解析度後重新運行程式."}};

// The name of a kind of run-time error. Some are followed by a detail of the error: the name of the missing function
// and of its library, or the message of an unexpected exception.
struct RuntimeErrorText {
  RuntimeErrorKind kind;
  Text text;
};
inline constexpr auto runtimeErrorTexts = std::to_array<RuntimeErrorText>({
    {RuntimeErrorKind::Overflow, {"Overflow", "溢出", "溢位"}},
    {RuntimeErrorKind::TypeMismatch, {"Type mismatch", "类型不匹配", "型態不符合"}},
    {RuntimeErrorKind::OutOfMemory, {"Out of memory", "内存不足", "記憶體不足"}},
    {RuntimeErrorKind::MissingFunction,
     {"This version of Windows lacks a function that the program needs:", "此版本的 Windows 缺少本程序需要的函数：",
      "此版本的 Windows 缺少本程式需要的函式："}},
    {RuntimeErrorKind::NoWindow,
     {"Windows could not create the window", "Windows 无法创建窗口", "Windows 無法建立視窗"}},
    {RuntimeErrorKind::UnheldName,
     {"This version of Windows cannot pass on some characters of the name. Choose another name or another folder:",
      "此版本的 Windows 无法处理名称中的某些字符。请选择其他名称或文件夹：",
      "此版本的 Windows 無法處理名稱中的某些字元。請選擇其他名稱或資料夾："}},
    {RuntimeErrorKind::Unexpected, {"Unexpected error:", "意外错误：", "未預期的錯誤："}},
});

constexpr const Text& RuntimeErrorTextOf(RuntimeErrorKind kind) {
  return runtimeErrorTexts.at(static_cast<std::size_t>(kind)).text;
}
// Each kind has its row, in the order of the kinds.
static_assert([] {
  for (std::size_t row = 0; row < runtimeErrorTexts.size(); ++row)
    if (runtimeErrorTexts[row].kind != static_cast<RuntimeErrorKind>(row)) return false;
  return runtimeErrorTexts.back().kind == RuntimeErrorKind::Unexpected;
}());

// The title of a failure's message box in the language of `code`; the product's name alone for any other code.
inline std::string FailureTitle(std::string_view code) {
  return std::string(productTitle).append(Pick(failureSuffix, code).value_or(""));
}

}  // namespace tarvik
