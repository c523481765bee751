#include "encoders/JpegOptions.h"

#include "encoders/fSaveJPGTexts.h"

namespace tarvik {
namespace {

constexpr int qualityStep = maxQuality / static_cast<int>(qualityPresets.size());
static_assert(qualityStep * static_cast<int>(qualityPresets.size()) == maxQuality);

constexpr int DigitOf(char character) {
  return character - '0';
}

}  // namespace

int QualityOfPreset(int preset) {
  return (preset + 1) * qualityStep;
}

std::optional<int> PresetOfQuality(int quality) {
  if (quality >= minQuality && quality <= qualityStep) return 0;
  for (int preset = 1; preset < static_cast<int>(qualityPresets.size()); ++preset)
    if (quality == QualityOfPreset(preset - 1) + 1 || quality == QualityOfPreset(preset)) return preset;
  return std::nullopt;
}

SamplingFactors LuminanceOf(std::string_view subSampling) {
  return {DigitOf(subSampling[0]), DigitOf(subSampling[2])};
}

JpegSampling SamplingOf(std::string_view subSampling, bool greyscale) {
  constexpr SamplingFactors whole{1, 1};
  constexpr SamplingFactors absent{};
  if (greyscale) return {whole, absent, absent};
  return {LuminanceOf(subSampling), whole, whole};
}

}  // namespace tarvik
