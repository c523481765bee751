// What a batch of the main window leaves behind.

#include <windows.h>

#include <gtest/gtest.h>

#include <string>

#include "forms/Controls.h"
#include "forms/ModalDriver.h"
#include "platform/TemporaryFolder.h"
#include "search/window/FindIconFixture.h"

namespace tarvik {
namespace {

class FrmFindIconBatchTest : public support::FindIconFixture {
 protected:
  // Whether the program has a window, shown or hidden, with a control of that id.
  static bool HasWindowWith(int id) {
    struct Search {
      int id;
      bool found = false;
    } search{.id = id};
    EnumThreadWindows(
        GetCurrentThreadId(),
        [](HWND window, LPARAM data) -> BOOL {
          auto& wanted = *reinterpret_cast<Search*>(data);
          wanted.found = wanted.found || GetDlgItem(window, wanted.id) != nullptr;
          return TRUE;
        },
        reinterpret_cast<LPARAM>(&search));
    return search.found;
  }

  support::TemporaryFolder folder;
  support::ModalDriver driver;
};

// Its options are hidden while it runs.
TEST_F(FrmFindIconBatchTest, ClosesItsOptionsAtItsEnd) {
  struct Format {
    const char* extension;
    int options;
    int ok;
  };
  Open();
  Find(2);
  dialogs.folder = folder.Path();
  for (const Format& format : {Format{".jpg", fSaveJPG_CboSize, fSaveJPG_cmdFinish1},
                               Format{".gif", FrmConvertGIF_Option1, FrmConvertGIF_CmdOk}}) {
    SCOPED_TRACE(format.extension);
    dialogs.extension = format.extension;
    driver.On(format.options, [&](HWND options) { support::Command(options, format.ok); });
    Click(FrmFindIcon_mnuSaveAll2);
    EXPECT_FALSE(support::ReadAll(folder.In(std::string("Images 2") + format.extension)).empty());
    EXPECT_FALSE(HasWindowWith(format.options));
  }
}

}  // namespace
}  // namespace tarvik
