// Compares the windows over the main one, and the written files, with the model.
#include <windows.h>

#include <commctrl.h>

#include <algorithm>
#include <string>
#include <vector>

#include "model/Compared.h"
#include "model/Driver.h"
#include "model/Seen.h"
#include "resource.h"

namespace tarvik::model {
namespace {

constexpr POINT pictureCorner{100, 100};

// The kinds of line ends in a static control are treated as equal.
std::string Lines(std::string text) {
  std::erase(text, '\r');
  return text;
}

std::string BoxDifference(const Model& model) {
  const HWND box = seen::MessageBoxInSight();
  if (box == nullptr) return "no box, where one should say: " + model.box.text + "\n";
  return Compared("box's title", model.box.title, seen::Text(box)) +
         Compared("box's text", Lines(model.box.text), Lines(seen::BoxText(box)));
}

// Compares every pixel of the enlarged icon in the part of the window above the status bar.
std::string PictureDifference(const ViewShown& view, HWND window) {
  const HWND picture = seen::ControlsOf(window).Of(frmBit_img);
  const int side = view.zoom * view.picture.width;
  RECT bounds{};
  GetWindowRect(picture, &bounds);
  MapWindowPoints(nullptr, window, reinterpret_cast<POINT*>(&bounds), 2);
  std::string all = Compared("picture's left", pictureCorner.x, bounds.left) +
                    Compared("picture's top", pictureCorner.y, bounds.top) +
                    Compared("picture's width", side, bounds.right - bounds.left) +
                    Compared("picture's height", side, bounds.bottom - bounds.top);
  if (!all.empty()) return all;
  RECT inner{};
  GetClientRect(window, &inner);
  RECT bar{};
  GetWindowRect(seen::ControlsOf(window).Of(frmBit_sbMain), &bar);
  const int width = std::min<int>(side, inner.right - pictureCorner.x);
  const int height = std::min<int>(side, inner.bottom - (bar.bottom - bar.top) - pictureCorner.y);
  if (width <= 0 || height <= 0) return {};
  const Picture& shown = seen::Pixels(picture, width, height);
  std::vector<Pixel> expected(static_cast<std::size_t>(width));
  auto row = shown.pixels.begin();
  for (int y = 0; y < height; ++y, row += width) {
    if (y % view.zoom == 0) {
      for (int x = 0; x < width; ++x)
        expected[static_cast<std::size_t>(x)] = view.picture.At(x / view.zoom, y / view.zoom);
    }
    const auto differs = std::mismatch(expected.begin(), expected.end(), row);
    if (differs.first == expected.end()) continue;
    return "view's pixel (" + std::to_string(differs.first - expected.begin()) + ", " + std::to_string(y) +
           "): " + std::to_string(*differs.second) + " and not " + std::to_string(*differs.first) + "\n";
  }
  return {};
}

std::string ViewDifference(const Model& model) {
  const HWND window = seen::WindowWith(frmBit_img);
  if (window == nullptr) return "no enhanced view\n";
  const ViewShown& view = model.view;
  const HWND bar = seen::ControlsOf(window).Of(frmBit_tlb_control);
  const auto canPress = [bar](int id) {
    return SendMessageW(bar, TB_ISBUTTONENABLED, static_cast<WPARAM>(id), 0) != 0;
  };
  RECT bounds{};
  GetWindowRect(window, &bounds);
  return Compared("view's title", view.title, seen::Text(window)) +
         Compared("view's status", view.status, seen::Status(seen::ControlsOf(window).Of(frmBit_sbMain))) +
         Compared("view's zoom row", view.zoomRow,
                  static_cast<int>(SendMessageW(seen::ControlsOf(window).Of(frmBit_CboZoom), CB_GETCURSEL, 0, 0))) +
         Compared("Start enabled", view.showRuns ? 0 : 1, canPress(frmBit_tlb_control_Start) ? 1 : 0) +
         Compared("Stop enabled", view.showRuns ? 1 : 0, canPress(frmBit_tlb_control_Stop) ? 1 : 0) +
         Compared("view's width", view.width, bounds.right - bounds.left) +
         Compared("view's height", view.height, bounds.bottom - bounds.top) + PictureDifference(view, window);
}

std::string HotSpotDifference() {
  const HWND window = seen::WindowWith(FrmHotSpot_PicCursor);
  if (window == nullptr) return "no hot-spot picker\n";
  return Compared("hot x", "00", seen::Text(window, FrmHotSpot_LblHotX)) +
         Compared("hot y", "00", seen::Text(window, FrmHotSpot_LblHotY));
}

std::string ChooserDifference(const Model& model) {
  const HWND window = seen::WindowWith(frmDir_dirMain);
  if (window == nullptr) return "no folder chooser\n";
  const ChooserShown& chooser = model.chooser;
  const HWND types = seen::ControlsOf(window).Of(frmDir_CboFileType);
  std::string all = Compared("chosen path", chooser.answer, seen::Text(window, frmDir_lblDir));
  all += Compared("types offered", chooser.offersTypes ? 1 : 0, seen::IsShown(types) ? 1 : 0);
  if (chooser.offersTypes) {
    all += Compared("types", chooser.types, static_cast<int>(SendMessageW(types, CB_GETCOUNT, 0, 0)));
    all += Compared("type", chooser.type, static_cast<int>(SendMessageW(types, CB_GETCURSEL, 0, 0)));
  }
  const std::vector<std::string> rows = seen::ListRows(seen::ControlsOf(window).Of(frmDir_dirMain));
  std::string chain;
  for (const std::string& path : Chain(chooser.folder)) chain += LastName(path) + "|";
  std::string shown;
  for (std::size_t i = 0; i < Chain(chooser.folder).size() && i < rows.size(); ++i) shown += rows[i] + "|";
  return all + Compared("chooser's folders", chain, shown);
}

std::string NewFolderDifference(const Model& model) {
  const HWND window = seen::WindowWith(frmDirCreate_txt);
  if (window == nullptr) return "no dialog for a new folder\n";
  return Compared("new folder's title", words::createIn.In(model.Language(), model.newFolderParent),
                  seen::Text(window)) +
         Compared("new folder's name", model.newFolderName, seen::Text(window, frmDirCreate_txt));
}

// Compares which windows over the main one are open with those that the model expects.
std::string OpenDifference(const Model& model) {
  struct Known {
    Front front;
    const char* name;
    int control;
  };
  static constexpr Known all[] = {{Front::View, "the enhanced view", frmBit_img},
                                  {Front::HotSpot, "the hot-spot picker", FrmHotSpot_PicCursor},
                                  {Front::Chooser, "the folder chooser", frmDir_dirMain},
                                  {Front::NewFolder, "the dialog for a new folder", frmDirCreate_txt},
                                  {Front::About, "the About box", FrmSpash_LblEmail},
                                  {Front::JpegOptions, "the JPEG options", fSaveJPG_txtQual},
                                  {Front::GifOptions, "the GIF options", FrmConvertGIF_Option1}};
  const std::vector<HWND> windows = seen::WindowsInSight();
  std::string difference;
  for (const Known& known : all) {
    const bool isOpen = seen::WindowWith(known.control, windows) != nullptr;
    if (isOpen != model.Has(known.front))
      difference += std::string(known.name) + (isOpen ? " is open\n" : " is not open\n");
  }
  const auto count = static_cast<int>(windows.size());
  return difference + Compared("windows in sight", model.Depth() + 1, count);
}

std::string WrittenDifference(const Model& model, const std::map<std::string, Bytes>& files) {
  std::string all;
  for (const auto& [path, expected] : model.written) {
    const auto found = files.find(path);
    if (found == files.end()) {
      all += "not written: " + path + "\n";
      continue;
    }
    const bool isRight =
        expected.isBeginning
            ? std::ranges::equal(expected.bytes.begin(), expected.bytes.end(), found->second.begin(),
                                 found->second.begin() +
                                     std::min<std::ptrdiff_t>(std::ssize(expected.bytes), std::ssize(found->second)))
            : expected.bytes == found->second;
    if (!isRight) all += "wrong bytes: " + path + " of " + std::to_string(found->second.size()) + "\n";
  }
  for (const auto& [path, bytes] : files) {
    if (!model.written.contains(path)) all += "written for nothing: " + path + "\n";
  }
  return all;
}

}  // namespace

std::string DialogDifference(const Model& model) {
  std::string all = OpenDifference(model);
  if (!all.empty()) return all;
  if (model.Has(Front::Box)) all += BoxDifference(model);
  if (model.Has(Front::View)) all += ViewDifference(model);
  if (model.Has(Front::HotSpot)) all += HotSpotDifference();
  if (model.Has(Front::Chooser)) all += ChooserDifference(model);
  if (model.Has(Front::NewFolder)) all += NewFolderDifference(model);
  return all;
}

std::string Difference(const Model& model, RealProgram& program, const seen::Controls& controls, bool everything) {
  const HWND window = program.Main();
  if (window == nullptr || IsWindowVisible(window) == FALSE) return "the main window is gone\n";
  return MainDifference(model, controls, everything) + DialogDifference(model) +
         WrittenDifference(model, program.Files().written);
}

}  // namespace tarvik::model
