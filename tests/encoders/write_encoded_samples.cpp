// Writes sample files of the two encoders, and the source pictures, for independent programs to read back:
// write_encoded_samples FOLDER
// Each sample NAME.jpg or NAME.gif belongs to the picture PICTURE.ppm that its name starts with, up to the first ",".
#include <cstdio>
#include <exception>
#include <fstream>
#include <iostream>
#include <string>
#include <vector>

#include "encoders/GifEncoder.h"
#include "encoders/JpegEncoder.h"
#include "encoders/JpegOptions.h"
#include "support/FileOnDisk.h"
#include "support/TestPictures.h"

namespace tarvik {
namespace {

using support::FileOnDisk;
using support::Gradient;
using support::ManyColors;
using support::Noise;
using support::Photo;
using support::TestRaster;

bool written = true;

void Expect(bool status, const std::string& path) {
  if (status) return;
  std::cerr << "not written: " << path << '\n';
  written = false;
}

void WritePpm(const std::string& path, const PixelView& picture) {
  std::ofstream file(path, std::ios::binary);
  file << "P6\n" << picture.Width() << ' ' << picture.Height() << "\n255\n";
  for (int y = 0; y < picture.Height(); ++y)
    for (int x = 0; x < picture.Width(); ++x)
      for (Color rest = picture.Pixel(x, y), channel = 0; channel < 3; ++channel, rest /= 256)
        file.put(static_cast<char>(rest % 256));
  Expect(file.good(), path);
}

// Every sampling at quality 100, greys, and the presets; one sample with a comment.
void WriteJpegs(const std::string& start, const PixelView& picture) {
  FileOnDisk sink;
  JpegEncoder encoder(sink);
  encoder.TakePicture(picture);
  const auto write = [&](const std::string& name) {
    const std::string path = start + ',' + name + ".jpg";
    Expect(encoder.WriteFile(path), path);
  };
  encoder.SetQuality(maxQuality);
  for (const std::string_view item : subSamplings) {
    encoder.SetSampling(SamplingOf(item, false));
    write(std::string("sampling,") + item[0] + ',' + item[2]);
  }
  encoder.SetSampling(SamplingOf(subSamplings.front(), true));
  write("grey");
  encoder.SetSampling(SamplingOf(subSamplings[initialSubSampling], false));
  encoder.SetComment("Brindle 图标 圖示");
  for (const int quality : {1, 20, 40, 60, 80, 100}) {
    encoder.SetQuality(quality);
    write("quality," + std::to_string(quality));
  }
}

void WriteGifs(const std::string& start, const PixelView& picture) {
  FileOnDisk sink;
  GifEncoder encoder(sink);
  for (const bool transparent : {false, true}) {
    for (const GifPalette palette : {GifPalette::BestQuality, GifPalette::Web}) {
      std::string path = start;
      path += palette == GifPalette::Web ? ",web" : ",best";
      if (transparent) path += ",transparent";
      path += ".gif";
      Expect(encoder.WriteFile(picture, path, {transparent, picture.Pixel(0, 0), palette}), path);
    }
  }
}

void WriteSamples(const std::string& folder) {
  for (const int size : {16, 32, 48, 64}) {
    const std::string number = std::to_string(size);
    const std::vector<std::pair<std::string, TestRaster>> pictures{
        {"gradient" + number, Gradient(size)},
        {"noise" + number, Noise(size, 7)},
        {"photo" + number, Photo(size, 11)},
    };
    for (const auto& [name, picture] : pictures) {
      std::string start = folder;
      start += '/';
      start += name;
      WritePpm(start + ".ppm", picture);
      WriteJpegs(start, picture);
      WriteGifs(start, picture);
    }
  }
  for (const int colors : {1, 2, 255, 256, 257, 4096}) {
    const std::string start = folder + "/colors" + std::to_string(colors);
    const TestRaster picture = ManyColors(64, colors);
    WritePpm(start + ".ppm", picture);
    WriteGifs(start, picture);
  }
}

}  // namespace
}  // namespace tarvik

int main(int count, char** arguments) {
  if (count != 2) {
    std::cerr << "usage: write_encoded_samples FOLDER\n";
    return 2;
  }
  try {
    tarvik::WriteSamples(arguments[1]);
  } catch (const std::exception& error) {
    std::cerr << error.what() << '\n';
    return 1;
  }
  return tarvik::written ? 0 : 1;
}
