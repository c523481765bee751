#include "startup/RunTimeErrorBox.h"

#include <gtest/gtest.h>

#include <utility>

#include "forms/BoxWatcher.h"

namespace tarvik {
namespace {

// Errors that a test can hardly cause on a working system; the others are tested in the main window.
TEST(RunTimeErrorBox, NamesAMissingFunctionAndItsLibraryInEachLanguage) {
  struct Row {
    const char* code;
    const char* text;
    const char* title;
  };
  const Row rows[] = {
      {"ENG", "This version of Windows lacks a function that the program needs:", "Brindle Tarvik - Error"},
      {"CHS", "此版本的 Windows 缺少本程序需要的函数：", "Brindle Tarvik - 错误"},
      {"CHT", "此版本的 Windows 缺少本程式需要的函式：", "Brindle Tarvik - 錯誤"}};
  for (const Row& row : rows) {
    const support::BoxWatcher boxes;
    ShowRuntimeError(nullptr, MissingFunctionError("ExtractIconExA", "shell32.dll"), row.code);
    ASSERT_EQ(boxes.Boxes().size(), 1U) << row.code;
    EXPECT_EQ(boxes.Boxes()[0].title, row.title);
    EXPECT_EQ(boxes.Boxes()[0].text, std::string(row.text) + "\r\n\r\nExtractIconExA (shell32.dll)");
  }
}

TEST(RunTimeErrorBox, SaysThatThereIsNoWindowInEachLanguage) {
  const std::pair<const char*, const char*> rows[] = {
      {"ENG", "Windows could not create the window"}, {"CHS", "Windows 无法创建窗口"}, {"CHT", "Windows 無法建立視窗"}};
  for (const auto& [code, text] : rows) {
    const support::BoxWatcher boxes;
    ShowRuntimeError(nullptr, NoWindowError(), code);
    ASSERT_EQ(boxes.Boxes().size(), 1U) << code;
    EXPECT_EQ(boxes.Boxes()[0].text, text);
  }
}

TEST(RunTimeErrorBox, SaysNothingInAnUnknownLanguage) {
  const support::BoxWatcher boxes;
  ShowRuntimeError(nullptr, MissingFunctionError("ExtractIconExA", "shell32.dll"), "CHI");
  EXPECT_TRUE(boxes.Boxes().empty());
}

}  // namespace
}  // namespace tarvik
