// Saving: one icon, many icons.
#include <algorithm>
#include <cctype>
#include <string>

#include "model/Model.h"

namespace tarvik::model {
namespace {

struct Format {
  const char* prefix;
  const char* extension;
  const Words& failed;
};

const Format& FormatOf(Kind kind) {
  static const Format formats[] = {{"Icon ", ".ico", words::iconFailed},
                                   {"Images ", "", words::imageFailed},
                                   {"Curor ", ".cur", words::cursorFailed}};
  return formats[static_cast<int>(kind)];
}

std::string UpperExtension(const std::string& path) {
  const auto dot = path.rfind('.');
  std::string extension = dot == std::string::npos ? std::string() : path.substr(dot);
  std::ranges::transform(extension, extension.begin(),
                         [](unsigned char letter) { return static_cast<char>(std::toupper(letter)); });
  return extension;
}

bool IsEncoders(const std::string& path) {
  return UpperExtension(path) == ".JPG" || UpperExtension(path) == ".GIF";
}

}  // namespace

bool IsRefusedPath(const std::string& path) {
  return path.starts_with("D:\\") &&
         (path.find("refused") != std::string::npos || path.find(" 2.") != std::string::npos);
}

void Model::Write(const std::string& path, const Capture& icon) {
  if (kind_ == Kind::Image && UpperExtension(path) == ".JPG") {
    written[path] = {{0xFF, 0xD8}, true};
  } else if (kind_ == Kind::Image && UpperExtension(path) == ".GIF") {
    written[path] = {{'G', 'I', 'F', '8'}, true};
  } else if (kind_ == Kind::Image) {
    written[path] = {BitmapFile(icon)};
  } else if (kind_ == Kind::Icon) {
    written[path] = {IconFile(icon)};
  } else {
    written[path] = {CursorFile(icon, hotSpot)};
  }
}

void Model::SaveOne(Kind kind, const std::string& path) {
  if (!Answers(current)) return;
  isSaving = true;
  kind_ = kind;
  many_ = false;
  path_ = path;
  if (kind == Kind::Cursor) {
    fronts.push_back(Front::HotSpot);
  } else {
    FinishOne(path);
  }
}

void Model::EndHotSpot(bool ok) {
  fronts.pop_back();
  if (!ok) return EndSaving();
  hotSpot = {};  // every click is limited to the first pixel
  FinishOne(path_);
}

void Model::FinishOne(const std::string& path) {
  if (path.empty()) return EndSaving();
  if (kind_ == Kind::Image && IsEncoders(path)) {
    fronts.push_back(UpperExtension(path) == ".JPG" ? Front::JpegOptions : Front::GifOptions);
    return;
  }
  if (IsRefusedPath(path)) {
    return ShowBox(words::errorTitle.In(tongue_), FormatOf(kind_).failed.In(tongue_, path), After::Saving);
  }
  Write(path, Rendered(current));
  EndSaving();
}

void Model::EndEncoderOptions(bool ok) {
  fronts.pop_back();
  if (!ok) return EndSaving();
  if (many_) {
    statusBefore_ = status;
    return WriteMany();
  }
  Write(path_, Rendered(current));
  EndSaving();
}

void Model::SaveMany(Kind kind, Scope scope) {
  const bool any = std::ranges::any_of(entries, [](const Entry& entry) { return entry.selected; });
  if (scope == Scope::Selected && !any) {
    return ShowBox(words::errorTitle.In(tongue_), words::noneSelected.In(tongue_), After::Nothing);
  }
  isSaving = true;
  kind_ = kind;
  scope_ = scope;
  many_ = true;
  chooser = {};
  chooser.folder = chooser.answer = folder;
  chooser.drive = Chain(folder).front();
  chooser.offersTypes = kind == Kind::Image;
  chooser.types = chooser.offersTypes ? 18 : 0;
  chooser.type = chooser.offersTypes ? 0 : -1;
  chooser.extension = chooser.offersTypes ? ".bmp" : FormatOf(kind).extension;
  fronts.push_back(Front::Chooser);
}

void Model::EndChooser(bool ok) {
  fronts.pop_back();
  saveFolder_ = ok ? chooser.answer : std::string();
  if (saveFolder_.empty()) return EndSaving();
  nextToWrite_ = 0;
  savedFiles_ = 0;
  if (kind_ == Kind::Image && IsEncoders(chooser.extension)) {
    fronts.push_back(UpperExtension(chooser.extension) == ".JPG" ? Front::JpegOptions : Front::GifOptions);
    return;
  }
  statusBefore_ = status;
  WriteMany();
}

// Continues after the file at which a failure stopped it.
void Model::WriteMany() {
  static constexpr Words progress{"Saving...", "正在保存...", "正在存儲..."};
  status = progress.In(tongue_);
  while (nextToWrite_ < entries.size()) {
    const std::size_t row = nextToWrite_++;
    if (scope_ == Scope::Selected && !entries.at(row).selected) continue;
    ++savedFiles_;
    const std::string name = FormatOf(kind_).prefix + std::to_string(savedFiles_) + chooser.extension;
    const std::string path = Joined(saveFolder_, name);
    if (IsRefusedPath(path)) {
      return ShowBox(words::errorTitle.In(tongue_), FormatOf(kind_).failed.In(tongue_, path), After::Saving);
    }
    Write(path, Rendered(static_cast<int>(row)));
  }
  status = statusBefore_;
  EndSaving();
}

}  // namespace tarvik::model
