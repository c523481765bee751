#pragma once

#include <windows.h>

#include <array>
#include <cstdint>
#include <ostream>
#include <string>
#include <vector>

#include "driver/Dialogs.h"
#include "driver/SaveDialog.h"
#include "end_to_end/SelectionByHand.h"

namespace tarvik::end_to_end {

using Pixels = std::vector<std::uint32_t>;  // 0xAABBGGRR, from the top-left corner; 0 for a transparent pixel
using Names = std::vector<std::string>;

// Indexes of the image types in the chooser's list.
enum ImageType { Bmp, Gif, Jpg };

// Five icons found, and a folder to save them to.
class Saving : public SelectionByHand {
 protected:
  // An icon of 32 pixels: the left and the right half of its upper half; the lower half is transparent.
  struct Picture {
    Color left;
    Color right;
    int bits;
  };
  // One of black and white, three of the sixteen standard colours, one that needs a palette.
  static constexpr std::array<Picture, 5> pictures{{{black, white, 1},
                                                    {0x0000FF, 0xFF0000, 4},
                                                    {0x20C040, 0xA06010, 24},
                                                    {0x00FF00, 0xFF00FF, 4},
                                                    {0x800000, 0xC0C0C0, 4}}};
  static constexpr const char* outName = "输出";
  // A folder of the host system below Wine in which no user may create a file, whatever their rights.
  static constexpr const char* lockedFolder = "Z:\\sys";

  // The program's message for an icon that it could not save as a picture or a cursor.
  static constexpr const char* imageFailed = "Failed to Save Icon As Bitmap.";
  static constexpr const char* cursorFailed = "Failed to Save Icon As Cursor.";

  // Starts the program, finds the icons and moves the pointer to a place that no dialog covers.
  void FindPictures();
  void MakePictures();
  // The same after the test itself has started the program.
  void FindAll();

  static constexpr int many = 2000;
  // Starts the program and finds `many` icons of one library.
  void FindMany();

  static constexpr int withPalette = 2;

  // Pixels of an entry, counted from 0: as in its icon, composed over white, and as a bitmap file has the composed
  // ones.
  static Pixels IconPixels(int entry) { return PixelsOf(entry, 0); }
  static Pixels ComposedPixels(int entry) { return PixelsOf(entry, 0xFFFFFFFF); }

  static Pixels BitmapPixels(int entry);

  std::string Out() const { return In(outName); }
  std::string Out(const std::string& name) const { return In(std::string(outName) + "\\" + name); }
  // Sorted names of everything in a folder; in the folder to save to if it is empty.
  static Names NamesIn(const std::string& folder);
  Names SavedNames() const { return NamesIn(Out()); }

  SaveDialog AskForName(int command) const;
  // Uses one of the three commands that save one icon, up to entering the name.
  void SaveAs(int command, const std::string& path) const { AskForName(command).SaveAs(path); }
  // The same and to the end: agrees if the dialog asks whether to replace a file, and to the options of JPEG and GIF.
  void SaveOneOver(int command, const std::string& path) const;
  // The message of such a command for a file that cannot be written.
  static std::string FailureOf(int command, const std::string& path);
  FolderChooser AskForFolder(int command) const;
  // Chooses the folder to save to, and the image type if one is given.
  void ChooseOut(int command, ImageType type = Bmp) const;
  // The same, and waits for the end of the batch.
  void SaveBatch(int command, ImageType type = Bmp) const;
  // Chooses the root of drive R:, which a test made, to save to.
  void ChooseDriveR(int command, ImageType type = Bmp) const;
  void AcceptJpegOptions() const { Dialog(program_, fSaveJPG_CboSize).End(fSaveJPG_cmdFinish1); }
  void AcceptGifOptions() const { Dialog(program_, FrmConvertGIF_Option1).End(FrmConvertGIF_CmdOk); }
  // Saves all icons to drive R:, which cannot be written, in each format, and reads a message for each file.
  void ExpectEachFileReportedOnDriveR() const;
  // Selects exactly these entries, counted from 0, by the mouse.
  void SelectByMouse(std::initializer_list<int> entries) const;

  // Reads and closes that many messages, one after the other.
  Names ReadMessages(int count) const;

  // The state that a command must leave unchanged.
  struct Standing {
    HCURSOR pointer;
    std::string caption;
    std::string status;
    int windows;
    bool enabled;
    std::string folder;  // the current directory of the process
    friend bool operator==(const Standing&, const Standing&) = default;
    friend void PrintTo(const Standing& standing, std::ostream* out) {
      *out << standing.pointer << ' ' << standing.caption << ' ' << standing.status << ' ' << standing.windows
           << " windows " << standing.enabled << ' ' << standing.folder;
    }
  };
  Standing Now() const;
  // Remembers the state before a command, with the pointer over the window's edge.
  void KeepAsFound();
  // Waits until the state is the same again: a finished command has restored it all.
  void ExpectAsFound() const;

  static HCURSOR ShownPointer();

  Standing found_{};

 private:
  static Pixels PixelsOf(int entry, std::uint32_t transparent);
};

}  // namespace tarvik::end_to_end
