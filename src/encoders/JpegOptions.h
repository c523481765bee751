#pragma once

#include <array>
#include <optional>
#include <string_view>

#include "encoders/JpegEncoder.h"

namespace tarvik {

// The logic of the JPEG options dialog and its comment dialog, without their windows.

inline constexpr int minQuality = 1;
inline constexpr int maxQuality = 100;

// The preset of CboSize (see qualityPresets) that is chosen when the dialog opens.
inline constexpr int initialPreset = 2;

// The items of cboSubSample, the same in every language: the horizontal and vertical luminance factors. And the item
// chosen when the dialog opens.
inline constexpr std::array<std::string_view, 16> subSamplings{
    "1:1  [Max Quality]",
    "1:2",
    "2:1",
    "2:2  [Default]",
    "1:3",
    "3:1",
    "2:3",
    "3:2",
    "3:3",
    "1:4",
    "4:1",
    "2:4",
    "4:2",
    "3:4",
    "4:3",
    "4:4  [Max Compress]",
};
inline constexpr int initialSubSampling = 3;

// The quality of a preset (0 to 4): 20, 40, 60, 80 or 100.
int QualityOfPreset(int preset);

// The preset to show for a quality, or nothing if the choice in the list does not change. Every quality up to 20 shows
// the first; of the others only the two ends of each step show one: 21 and 40, 41 and 60, ... (deliberate: oddities
// 45).
std::optional<int> PresetOfQuality(int quality);

// The luminance factors of an item of cboSubSample: its first and third characters as numbers.
SamplingFactors LuminanceOf(std::string_view subSampling);

// The encoder's sampling: those factors for luminance with 1 x 1 for chroma; or for greyscale luminance alone, 1 x 1,
// whatever item is chosen.
JpegSampling SamplingOf(std::string_view subSampling, bool greyscale);

}  // namespace tarvik
