#include "export/FileDialogModes.h"

#include <gtest/gtest.h>

#include <array>

#include <map>
#include <string>

namespace tarvik {
namespace {

using namespace std::string_literals;

TEST(FileDialogModes, TitlesEachModeInEachLanguage) {
  struct Row {
    const FileDialogMode& mode;
    const char* code;
    const char* title;
  };
  const std::array<Row, 10> rows{{
      {saveAsMode, "ENG", "Brindle Tarvik - Save As"},
      {saveAsMode, "CHS", "Brindle Tarvik - 另存为"},
      {saveAsMode, "CHT", "Brindle Tarvik - 另存為"},
      {saveAsImageMode, "ENG", "Brindle Tarvik - Save As Image"},
      {saveAsImageMode, "CHS", "Brindle Tarvik - 另存为图像"},
      {saveAsImageMode, "CHT", "Brindle Tarvik - 另存為圖像"},
      {saveAsCursorMode, "ENG", "Brindle Tarvik - Save As Cursor"},
      {saveAsCursorMode, "CHS", "Brindle Tarvik - 另存为图标"},
      {saveAsCursorMode, "CHT", "Brindle Tarvik - 另存為圖示"},
      {saveAsMode, "XYZ", "Brindle Tarvik"},
  }};
  for (const Row& row : rows) EXPECT_EQ(FileDialogTitle(row.mode, row.code), row.title);
}

TEST(FileDialogModes, ListsTheFiltersAsThePlatformTakesThem) {
  EXPECT_EQ(FilterList(saveAsMode.filters), "Windows Icon (*.ico)\0*.ico\0\0"s);
  EXPECT_EQ(FilterList(saveAsCursorMode.filters), "Windows Cursor (*.cur)\0*.cur\0\0"s);
  EXPECT_EQ(FilterList(saveAsImageMode.filters),
            "Windows Bitmap (*.bmp)\0*.bmp\0GIF Files (*.gif)\0*.gif\0JPG Files (*.jpg)\0*.jpg\0"
            "PNG Files (*.png)\0*.png\0WBMP Files (*.wbmp)\0*.wbmp\0TIF Files (*.tif)\0*.tif\0"
            "TGA Files (*.tga)\0*.tga\0WMF Files (*.wmf)\0*.wmf\0EMF Files (*.emf)\0*.emf\0\0"s);
}

TEST(FileDialogModes, NamesTheDefaultExtensions) {
  EXPECT_EQ(saveAsMode.defaultExtension, ".ico");
  EXPECT_EQ(saveAsImageMode.defaultExtension, ".bmp");
  EXPECT_EQ(saveAsCursorMode.defaultExtension, ".cur");
}

TEST(ImageTypes, GiveAnExtensionForTheFirstNineIndexesOnly) {
  constexpr std::array extensions{".bmp", ".gif", ".jpg", ".png", ".wbmp", ".tif", ".tga", ".wmf", ".emf"};
  for (int index = 0; index < 9; ++index) {
    EXPECT_EQ(ImageExtension(index), extensions.at(static_cast<std::size_t>(index)));
  }
  EXPECT_EQ(ImageExtension(-1), std::nullopt);
  EXPECT_EQ(ImageExtension(9), std::nullopt);
}

}  // namespace
}  // namespace tarvik
