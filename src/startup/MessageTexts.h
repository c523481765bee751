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

// For a second copy of the program, if it were refused. It is not, so these are never shown (deliberate: oddities 5).
inline constexpr Text alreadyRunningTitle{"error!", "错误!", "錯誤!"};
inline constexpr Text alreadyRunningText{"Program is running !", "请不要重复运行程序！", "請不要重複運行程式！"};

// What a run-time error of a kind is called. Some are followed by a detail of the error: the name of the missing
// function and of its library, what an unexpected exception says.
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
