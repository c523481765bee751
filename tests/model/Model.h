#pragma once

#include <array>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include "model/Disk.h"
#include "model/ExpectedFiles.h"
#include "model/Grid.h"
#include "model/Texts.h"

namespace tarvik::model {

// The window that receives the user's input.
enum class Front { Main, Menu, Box, View, HotSpot, Chooser, NewFolder, About, JpegOptions, GifOptions };

struct Entry {
  std::string path;
  int index = 0;
  bool selected = false;
};

struct Box {
  std::string title;
  std::string text;
};

// What the program saves for its next start; nothing if it has not been saved yet.
struct Kept {
  std::optional<std::string> folder;
  std::optional<std::string> subDir;
  int viewWidth = 443;  // pixels
  int viewHeight = 354;
};

// How much larger than at first the main window is, in pixels.
struct Room {
  int across = 0;
  int down = 0;
};

struct ViewShown {
  int entry = 0;
  Picture picture;
  int zoom = 5;
  int zoomRow = -1;
  std::string title;
  std::string status;
  bool showRuns = false;
  int width = 0;
  int height = 0;
};

struct ChooserShown {
  std::string folder;
  std::string answer;
  std::string drive;
  bool offersTypes = false;
  int types = 0;
  int type = -1;
  std::string extension;
};

enum class Kind { Icon, Image, Cursor };
enum class Scope { All, Selected };

// The expected content of a saved file: all bytes, or for the encoders' formats the bytes at its start.
struct Written {
  Bytes bytes;
  bool isBeginning = false;
};

// A text in the limit's box and its value; negative if the text is not a number.
struct LimitText {
  const char* text;
  int value;
};
inline constexpr std::array<LimitText, 15> limitTexts{{{"300", 300},
                                                       {"1", 1},
                                                       {"20", 20},
                                                       {"75", 75},
                                                       {"90", 90},
                                                       {"150", 150},
                                                       {"1000", 1000},
                                                       {"5000", 5000},
                                                       {"0", 0},
                                                       {"2.5", 2},
                                                       {" 40 ", 40},
                                                       {"1e2", 100},
                                                       {"99999", 99999},
                                                       {"abc", -1},
                                                       {"", -1}}};
inline constexpr int highestNumber = 32767;  // highest value of the limit; above it, the search fails

// What the windows must show, and how each action of the user changes it. Written from the documented behaviour,
// independently of the program's code.
class Model {
 public:
  Model(Disk& disk, Tongue tongue) : disk_(&disk), tongue_(tongue) {}

  // --- windows
  void Start(const std::string& programFolder);
  bool IsRunning() const { return !fronts.empty(); }
  Front Foremost() const { return fronts.back(); }
  // How many windows wait for a modal window above them.
  int Depth() const { return static_cast<int>(fronts.size()) - 1; }
  bool Has(Front front) const;
  // A request to close the main window, from any source. It is refused while a search or a save is running.
  void CloseMain();
  void EndSession();
  void AnswerBox();
  // Resizes it by its border; at first it has its smallest size.
  void ResizeMain(Room wanted);
  // `given` is the system's choice.
  void MaximiseMain(Room given);
  void RestoreMain();
  void OpenGuide() { ++guides; }
  void OpenAbout() { fronts.push_back(Front::About); }
  void CloseAbout() { fronts.pop_back(); }

  // --- options
  void ChooseDrive(const Disk::Drive& chosen);
  void ClickFolderRow(int row) { folderRow = row; }
  void OpenFolderRow(int row);
  // Drops these files and folders on the main window; the first counts.
  void Drop(const std::vector<std::string>& paths);
  // Reads folders and files again, and keeps the chosen row as long as it exists.
  void ReadAgain();
  void TickType(int box);
  void TickSubDir() { subDir = !subDir; }
  void ChooseSize(int row);
  void TypeLimit(const LimitText& text);
  void Spin(bool up);
  void ShowList(bool list) {
    // The list opens at the current icon, and a range with Shift begins there.
    if (list && !listShown && current < static_cast<int>(entries.size())) anchor = current;
    listShown = list;
    tip = "";
  }
  void ToggleLabel() { labelShown = !labelShown; }
  void NumberByFile(bool yes);

  // --- search
  void Find();

  // --- selection
  void ClickGrid(int x, int y, bool ctrlAlone);
  void ClickRow(int row, bool ctrl, bool shift);
  // Opens the context menu of a row, and with it chooses the row.
  void OpenRowMenu(int row);
  void CloseMenu() { fronts.pop_back(); }
  // Rests the pointer on the grid.
  void Hover(int x, int y);
  void SelectAllRows();
  void Invert();

  // --- the enhanced view
  void OpenView();
  void CloseView();
  void Step(int by);
  void First();
  void Last();
  void RunShow(bool run) { view.showRuns = run; }
  void Tick();
  void Zoom(int row);
  void ResizeView(int width, int height);

  // --- saves; `path` is the answer of the Save dialog, empty if it was cancelled
  void SaveOne(Kind kind, const std::string& path);
  void SaveMany(Kind kind, Scope scope);
  // The picture that a copy puts on the clipboard.
  Picture Copied() const { return Rendered(current).composed; }
  void EndHotSpot(bool ok);
  void EndEncoderOptions(bool ok);

  // --- the folder chooser
  void OpenChooserRow(int row);
  void ChooseChooserDrive(int row);
  void ChooseChooserType(int row);
  void EndChooser(bool ok);
  void CloseChooserByBox();
  void OpenNewFolder();
  void MakeFolder(const std::string& name);
  void CancelNewFolder() { fronts.pop_back(); }

  bool Answers(int row) const { return row >= 0 && row < static_cast<int>(entries.size()); }
  bool IsBusy() const { return isSearching || isSaving; }
  const Geometry& Size() const { return geometries[static_cast<std::size_t>(sizeRow)]; }
  Tongue Language() const { return tongue_; }
  static std::vector<std::string> FolderRows(const Disk& disk, const std::string& folder);

  // --- the visible state
  std::vector<Front> fronts;
  Kept kept;
  Room room;
  bool isMaximised = false;
  int guides = 0;  // how often the guide was opened

  std::string title;
  std::string status;
  std::string label;
  std::string drive;
  std::string folder;
  std::vector<std::string> folderRows;  // full paths
  int folderRow = 0;
  std::vector<std::string> files;
  bool listsAreStale = false;  // files changed on the disk since both lists were filled
  std::array<bool, 7> types{};
  std::string pattern;
  bool subDir = false;
  int sizeRow = 0;
  std::string limitText;
  int spinner = 0;
  bool listShown = false;
  bool labelShown = true;
  bool byFile = false;
  bool isSearching = false;
  bool isSaving = false;
  bool findEnabled = true;
  bool okEnabled = false;
  bool closeEnabled = true;
  bool fileEnabled = true;
  bool editEnabled = true;

  Grid grid;
  std::vector<Entry> entries;
  bool hasColumns = false;
  int iconCount = 0;
  int nextNumber = 0;
  int current = 0;
  int frameX = 0;
  int frameY = 0;
  std::optional<int> anchor;           // the row from which Shift extends the selection
  std::optional<std::string> tip{""};  // of the grid; nothing if it may or may not be there

  Box box;
  ViewShown view;
  ChooserShown chooser;
  std::string newFolderParent;
  std::string newFolderName;
  Spot hotSpot;
  std::map<std::string, Written> written;  // since the last comparison
  std::string handedPath;                  // by OK
  int handedIndex = 0;

 private:
  enum class After { Nothing, FailureExit, Saving };

  void SetFolder(const std::string& path);
  void FillLists();
  void UpdatePattern();
  void SetEnabled(bool enabled);
  void FailureExit();
  void Count(const std::string& root, std::string& dirAt);
  void List(const std::string& root);
  bool IsRefused();
  void ShowBox(const std::string& boxTitle, const std::string& text, After after);

  void ShowCurrentLabel();
  // The entry that a click there chooses.
  std::optional<int> EntryAt(int x, int y) const;
  void Choose(int index, int x, int y, bool ctrl);
  void SetSelected(int row, bool selected);
  int CornerX(int index) const { return index % Size().columns * Size().pitch + 1; }
  int CornerY(int index) const { return index / Size().columns * Size().pitch + 1; }

  Capture Rendered(int row) const;
  void ShowEntry();

  void FinishOne(const std::string& path);
  void WriteMany();
  void Write(const std::string& path, const Capture& icon);
  void EndSaving() { isSaving = false; }

  Disk* disk_;
  Tongue tongue_;
  Room roomBefore_;  // it was maximised
  After afterBox_ = After::Nothing;
  Kind kind_ = Kind::Icon;
  Scope scope_ = Scope::All;
  bool many_ = false;
  std::string path_;        // of a single save
  std::string saveFolder_;  // of a batch
  std::string statusBefore_;
  std::size_t nextToWrite_ = 0;
  int savedFiles_ = 0;
};

// Whether the made machine refuses to write to that path.
bool IsRefusedPath(const std::string& path);

}  // namespace tarvik::model
