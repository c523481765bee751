#pragma once

#include <string>
#include <string_view>

#include "startup/Language.h"
#include "startup/ProgramState.h"

namespace tarvik {

// What follows the product's name in the title of every failure.
inline constexpr Text failureSuffix{" - Error", " - 错误", " - 錯誤"};

// For a second copy of the program, if it were refused. It is not, so these are never shown (deliberate: oddities 5).
inline constexpr Text alreadyRunningTitle{"error!", "错误!", "錯誤!"};
inline constexpr Text alreadyRunningText{"Program is running !", "请不要重复运行程序！", "請不要重複運行程式！"};

// Run-time errors.
inline constexpr Text overflowText{"Overflow", "溢出", "溢位"};
inline constexpr Text typeMismatchText{"Type mismatch", "类型不匹配", "型態不符合"};
inline constexpr Text outOfMemoryText{"Out of memory", "内存不足", "記憶體不足"};
// Followed by the name of the function and of its library.
inline constexpr Text missingFunctionText{
    "This version of Windows lacks a function that the program needs:", "此版本的 Windows 缺少本程序需要的函数：",
    "此版本的 Windows 缺少本程式需要的函式："};

// The title of a failure's message box in the language of `code`; the product's name alone for any other code.
inline std::string FailureTitle(std::string_view code) {
  return std::string(productTitle).append(Pick(failureSuffix, code).value_or(""));
}

}  // namespace tarvik
