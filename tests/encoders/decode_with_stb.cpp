// Reads JPEG files with a decoder that shares no code with the library that wrote them, and writes each one's picture
// next to it as NAME.stb.ppm:  decode_with_stb FILE...
#include <cstddef>
#include <cstdlib>
#include <fstream>
#include <iostream>
#include <memory>
#include <string>

#define STBI_ONLY_JPEG
#define STB_IMAGE_STATIC
#define STB_IMAGE_IMPLEMENTATION
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wunused-function"
#include <stb/stb_image.h>
#pragma GCC diagnostic pop

namespace {

struct FreePicture {
  void operator()(stbi_uc* picture) const { stbi_image_free(picture); }
};

bool Decode(const std::string& path) {
  int width = 0;
  int height = 0;
  int components = 0;
  const std::unique_ptr<stbi_uc, FreePicture> picture(stbi_load(path.c_str(), &width, &height, &components, 3));
  if (picture == nullptr) {
    std::cerr << path << ": " << stbi_failure_reason() << '\n';
    return false;
  }
  std::ofstream file(path + ".stb.ppm", std::ios::binary);
  file << "P6\n" << width << ' ' << height << "\n255\n";
  for (std::ptrdiff_t i = 0; i < std::ptrdiff_t{3} * width * height; ++i) file.put(static_cast<char>(picture.get()[i]));
  return file.good();
}

}  // namespace

int main(int count, char** arguments) {
  bool good = count > 1;
  for (int i = 1; i < count; ++i) good = Decode(arguments[i]) && good;
  return good ? EXIT_SUCCESS : EXIT_FAILURE;
}
