#pragma once

#include <array>
#include <span>
#include <string>
#include <string_view>

#include "export/ImageTypes.h"
#include "startup/Language.h"

namespace tarvik {

// The parameters of one use of the common file dialog.
struct FileDialogMode {
  Text titleSuffix;                   // follows the product's name
  std::string_view defaultExtension;  // with its dot
  std::span<const FileType> filters;
};

inline constexpr std::array<FileType, 1> iconFilters{{{"Windows Icon (*.ico)", "*.ico"}}};
inline constexpr std::array<FileType, 1> cursorFilters{{{"Windows Cursor (*.cur)", "*.cur"}}};

inline constexpr FileDialogMode saveAsMode{{" - Save As", " - 另存为", " - 另存為"}, ".ico", iconFilters};
inline constexpr FileDialogMode saveAsImageMode{
    {" - Save As Image", " - 另存为图像", " - 另存為圖像"}, ".bmp", imageTypes};
// In Chinese it says "icon" (deliberate: oddities 41).
inline constexpr FileDialogMode saveAsCursorMode{
    {" - Save As Cursor", " - 另存为图标", " - 另存為圖示"}, ".cur", cursorFilters};

// The dialog's title in the language of `code`: the product's name and the mode's suffix, or the name alone.
std::string FileDialogTitle(const FileDialogMode& mode, std::string_view code);

// The filters in the platform's form: description and pattern in turn, each terminated by a NUL, and one more NUL.
std::string FilterList(std::span<const FileType> filters);

}  // namespace tarvik
