#include "export/TemporaryBitmap.h"

#include <windows.h>

#include <cstddef>
#include <cstdlib>
#include <cstring>
#include <span>
#include <utility>
#include <vector>

#include "export/FileFormats.h"
#include "export/IconSurfaces.h"
#include "export/ModMicroArtFileIO.h"
#include "platform/Paths.h"
#include "platform/Text.h"

namespace tarvik {
namespace {

constexpr const char* preferredPath = "C:\\tmp.bmp";

// Overwrites the whole content of the open file with these bytes.
bool WriteFromStart(HANDLE file, std::span<const std::byte> bytes) {
  DWORD written = 0;
  return SetFilePointer(file, 0, nullptr, FILE_BEGIN) == 0 && SetEndOfFile(file) != 0 &&
         WriteFile(file, bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr) != 0 &&
         written == bytes.size();
}

// All bytes of an open file; none if they cannot be read.
std::vector<std::byte> ReadFromStart(HANDLE file) {
  std::vector<std::byte> bytes(GetFileSize(file, nullptr));
  DWORD read = 0;
  if (SetFilePointer(file, 0, nullptr, FILE_BEGIN) != 0 ||
      ReadFile(file, bytes.data(), static_cast<DWORD>(bytes.size()), &read, nullptr) == 0 || read != bytes.size())
    return {};
  return bytes;
}

}  // namespace

TemporaryBitmap::TemporaryBitmap(Paths paths) : paths_(std::move(paths)) {}

const PixelView* TemporaryBitmap::PassThrough(const PixelView& picture) {
  if (!file_ && !Make()) return nullptr;
  if (!Write(picture) || !ReadBack() || !picture_) return nullptr;
  return &*picture_;
}

void TemporaryBitmap::Delete() {
  file_.reset();
  path_.clear();
  picture_.reset();
}

bool TemporaryBitmap::Make() {
  if (MakeNew(paths_.path)) return true;
  constexpr int attempts = 100;
  const std::string stem = paths_.folder + "tarvik" + std::to_string(GetCurrentProcessId()) + "-";
  for (int attempt = 0; attempt < attempts; ++attempt)
    if (MakeNew(stem + std::to_string(attempt) + ".bmp")) return true;
  return false;
}

bool TemporaryBitmap::MakeNew(const std::string& path) {
  file_.reset(CreateFileW(ToWide(path).c_str(), GENERIC_READ | GENERIC_WRITE | DELETE,
                          FILE_SHARE_READ | FILE_SHARE_DELETE, nullptr, CREATE_NEW,
                          FILE_ATTRIBUTE_TEMPORARY | FILE_FLAG_DELETE_ON_CLOSE, nullptr));
  if (file_) path_ = path;
  return static_cast<bool>(file_);
}

bool TemporaryBitmap::Write(const PixelView& picture) {
  return WriteFromStart(file_.get(), ModMicroArtFileIO::TrueColorBitmap(picture).Bytes());
}

bool TemporaryBitmap::ReadBack() {
  constexpr std::size_t infoOffset = fileFormats::bitmapFileHeaderBytes;
  constexpr std::size_t pixelOffset = infoOffset + fileFormats::infoHeaderBytes;
  const std::vector<std::byte> bytes = ReadFromStart(file_.get());
  if (bytes.size() <= pixelOffset) return false;
  BITMAPINFO info{};
  std::memcpy(&info.bmiHeader, &bytes[infoOffset], sizeof info.bmiHeader);
  const int width = info.bmiHeader.biWidth;
  const int height = info.bmiHeader.biHeight;
  if (!picture_) picture_.emplace(width, height, surfaceBackground);
  picture_->Resize(width, height, surfaceBackground);
  return SetDIBitsToDevice(picture_->Dc(), 0, 0, static_cast<DWORD>(width), static_cast<DWORD>(height), 0, 0, 0,
                           static_cast<UINT>(height), &bytes[pixelOffset], &info, DIB_RGB_COLORS) == height;
}

TemporaryBitmap::Paths TemporaryBitmapPaths() {
  return {preferredPath, TempFolder()};
}

}  // namespace tarvik
