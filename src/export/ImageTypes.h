#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <string_view>

namespace tarvik {

// A file type in a dialog: its description, and the pattern of its names.
struct FileType {
  std::string_view description;
  std::string_view pattern;
};

// The image types in the order in which every dialog offers them. All but GIF and JPG are written as Windows bitmaps
// (deliberate: oddities 40).
inline constexpr std::array<FileType, 9> imageTypes{{
    {"Windows Bitmap (*.bmp)", "*.bmp"},
    {"GIF Files (*.gif)", "*.gif"},
    {"JPG Files (*.jpg)", "*.jpg"},
    {"PNG Files (*.png)", "*.png"},
    {"WBMP Files (*.wbmp)", "*.wbmp"},
    {"TIF Files (*.tif)", "*.tif"},
    {"TGA Files (*.tga)", "*.tga"},
    {"WMF Files (*.wmf)", "*.wmf"},
    {"EMF Files (*.emf)", "*.emf"},
}};

// The extension of an image type by its row in a list that starts with all of them, ".bmp" for 0; none for a row after
// them.
constexpr std::optional<std::string_view> ImageExtension(int row) {
  if (row < 0 || row >= static_cast<int>(imageTypes.size())) return std::nullopt;
  return imageTypes[static_cast<std::size_t>(row)].pattern.substr(1);
}

}  // namespace tarvik
