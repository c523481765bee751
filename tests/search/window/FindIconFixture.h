#pragma once

#include <windows.h>

#include <gtest/gtest.h>

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "export/TemporaryBitmap.h"
#include "forms/Application.h"
#include "forms/BoxWatcher.h"
#include "platform/DiskFile.h"
#include "platform/Handles.h"
#include "platform/Surface.h"
#include "platform/Text.h"
#include "resource.h"
#include "search/window/FrmFindIcon.h"
#include "startup/RunTimeErrorBox.h"
#include "support/AnsweredDialogs.h"
#include "support/MemoryIni.h"

namespace tarvik::support {

// An icon that is one opaque square of a colour of its own.
class SquareIcon final : public ExtractedIcon {
 public:
  explicit SquareIcon(Color color) : color_(color) {}
  bool Draw(DrawSurface& surface, Point corner, int size, int step, DrawPart part) override {
    if (step >= 1) return false;
    const RECT bounds{corner.x, corner.y, corner.x + size, corner.y + size};
    const BrushHandle brush(CreateSolidBrush(part == DrawPart::Mask ? black : color_));
    FillRect(static_cast<Surface&>(surface).Dc(), &bounds, brush.get());
    return true;
  }
  int StepBound() const override { return 1; }

 private:
  Color color_;
};

// A machine of a few folders: each file holds as many icons as the map says. Files have a dot in their names.
class SmallMachine final : public IconSource, public FolderReader {
 public:
  static Color ColorOf(int index) { return 0x010203U * static_cast<Color>(index % 60 + 1); }

  int CountIcons(const std::string& path) override { return icons.contains(path) ? icons.at(path) : 0; }
  std::unique_ptr<ExtractedIcon> Extract(const std::string& path, int index) override {
    if (index >= CountIcons(path)) return nullptr;
    return std::make_unique<SquareIcon>(ColorOf(index));
  }
  std::vector<std::string> Files(const std::string& folder, const std::string& pattern) override {
    patterns.push_back(pattern);
    if (onFiles) onFiles();
    return files[folder];
  }
  std::vector<std::string> SubFolders(const std::string& folder) override { return subFolders[folder]; }

  std::vector<WalkedFolder> WalkedFolders(const std::string& folder) override {
    std::vector<WalkedFolder> walked;
    for (const std::string& path : subFolders[folder]) walked.push_back({path});
    return walked;
  }
  std::string Identity(const std::string& folder) override { return folder; }

  std::map<std::string, int> icons;  // by path
  std::map<std::string, std::vector<std::string>> files;
  std::map<std::string, std::vector<std::string>> subFolders;  // full paths
  std::vector<std::string> patterns;                           // as requested
  std::function<void()> onFiles;                               // each time a folder's files are read
};

// The machine with callbacks: each time a file's icons are counted, once in each pass, and each time an icon is
// extracted.
class WatchedMachine final : public IconSource {
 public:
  explicit WatchedMachine(SmallMachine& machine) : machine_(machine) {}

  int CountIcons(const std::string& path) override {
    if (onCount) onCount();
    return machine_.CountIcons(path);
  }
  std::unique_ptr<ExtractedIcon> Extract(const std::string& path, int index) override {
    if (onExtract) onExtract();
    return machine_.Extract(path, index);
  }

  std::function<void()> onCount;
  std::function<void()> onExtract;

 private:
  SmallMachine& machine_;
};

// The real main window over a small machine: "C:\icons" with one file of as many icons as a test wants.
class FindIconFixture : public ::testing::Test {
 protected:
  FindIconFixture() {
    state.CurrentLanguage = "ENG";
    application.onRuntimeError = [this](Form& form, const RuntimeError& error) {
      ShowRuntimeError(form.Window(), error, state.CurrentLanguage);
    };
    ini.values["FindIcon/Folder"] = "C:\\icons";
    machine.files["C:\\icons"] = {"some.dll"};
  }

  void Open(const std::string& language = "ENG") { OpenOver(machine, machine, language); }

  void OpenOver(IconSource& icons, FolderReader& folders, const std::string& language = "ENG") {
    state.CurrentLanguage = language;
    window = std::make_unique<FrmFindIcon>(
        application,
        FrmFindIcon::Dependencies{state,
                                  settings,
                                  icons,
                                  folders,
                                  [this] { return drives; },
                                  [this](const std::string& folder) {
                                    lookedAt.push_back(folder);
                                    return !folder.starts_with("D:");
                                  },
                                  programFolder,
                                  [this] { ++aboutShown; },
                                  [this] { ++guideShown; },
                                  {dialogs, files, temporaryBitmap},
                                  [](const std::string& path) { return path.find('.') == std::string::npos; },
                                  taskBar});
    window->Show();
    application.DoEvents();
  }

  void Find(int icons) {
    machine.icons["C:\\icons\\some.dll"] = icons;
    Click(FrmFindIcon_CmdFind);
    application.DoEvents();
  }

  void Click(int id) { SendMessageW(window->Window(), WM_COMMAND, static_cast<WPARAM>(id), 0); }
  HWND Item(int id) const { return window->Item(id); }
  HWND Grid() const { return GetDlgItem(Item(FrmFindIcon_PicFrame), FrmFindIcon_PicIcons); }
  std::string Text(int id) const { return window->ItemText(id); }
  void SetText(int id, const std::string& text) const { window->SetItemText(id, text); }
  bool IsEnabled(int id) const {
    return Item(id) != nullptr ? IsWindowEnabled(Item(id)) != FALSE : window->TheMenu().IsEnabled(id);
  }
  std::string Caption() const {
    std::wstring text(512, L'\0');
    text.resize(static_cast<std::size_t>(GetWindowTextW(window->Window(), text.data(), 512)));
    return ToUtf8(text);
  }
  std::string Status() const {
    std::wstring text(512, L'\0');
    SendMessageW(Item(FrmFindIcon_sbMain), SB_GETTEXTW, 0, reinterpret_cast<LPARAM>(text.data()));
    return ToUtf8(text.c_str());
  }
  // The rows of a list box, from the top.
  std::vector<std::string> RowsOf(int id) const {
    std::vector<std::string> rows;
    const auto count = SendMessageW(Item(id), LB_GETCOUNT, 0, 0);
    for (LRESULT row = 0; row < count; ++row) {
      std::wstring text(512, L'\0');
      SendMessageW(Item(id), LB_GETTEXT, static_cast<WPARAM>(row), reinterpret_cast<LPARAM>(text.data()));
      rows.push_back(ToUtf8(text.c_str()));
    }
    return rows;
  }
  // A pixel of the grid picture as the window paints it.
  Color GridPixel(int x, int y) const {
    application.DoEvents();
    const WindowDc dc(Grid());
    return GetPixel(dc.get(), x, y);
  }
  void ReleaseOnGrid(int x, int y, WPARAM keys = 0, UINT message = WM_LBUTTONUP) const {
    SendMessageW(Grid(), message, keys, MAKELPARAM(x, y));
  }
  bool IsRowSelected(int number) const {
    return ListView_GetItemState(Item(FrmFindIcon_Lv), number - 1, LVIS_SELECTED) != 0;
  }

  ProgramState state;
  MemoryIni ini;
  Settings settings{ini, "C:\\program\\tarvik.exe"};
  SmallMachine machine;
  mutable Application application{GetModuleHandleW(nullptr)};  // also serves the messages for looks at the window
  DiskFile files;
  TemporaryBitmap temporaryBitmap{TemporaryBitmapPaths()};
  AnsweredDialogs dialogs{application, state, [this] { return window->Window(); }};
  TaskBar* taskBar = nullptr;  // settled before the window opens
  std::string programFolder = "C:\\program";
  std::vector<std::string> lookedAt;  // the folders that the window tested for read access
  int aboutShown = 0;
  int guideShown = 0;
  std::vector<DriveListBox::Drive> drives{{"C:\\", "c: [SYSTEM]"}, {"D:\\", "d:"}};
  BoxWatcher boxes;
  std::unique_ptr<FrmFindIcon> window;
};

}  // namespace tarvik::support
