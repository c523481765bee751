// Actions in the windows over the main one, and the ways in which the main window is closed.
#include <windows.h>

#include <commctrl.h>
#include <windowsx.h>

#include "model/Driver.h"
#include "model/Seen.h"
#include "resource.h"

namespace tarvik::model {
namespace {

void PressKey(HWND window, WPARAM key, bool alt) {
  PostMessageW(window, alt ? WM_SYSKEYDOWN : WM_KEYDOWN, key, alt ? 1 << 29 : 0);
}

}  // namespace

bool Driver::Close(const Action& action) {
  const int way = action.a % 6;
  static constexpr const char* ways[] = {"by its button", "by the menu",          "by the close box",
                                         "by Alt+F4",     "by OK, with an entry", "by the end of the session"};
  Note(ways[way]);
  if (way == 0 && !model_.closeEnabled) return false;
  if (way == 1 && !model_.fileEnabled) return false;
  if (way == 4 && !model_.okEnabled) return false;
  if (way == 4) {
    const Entry& entry = model_.entries.at(static_cast<std::size_t>(model_.current));
    model_.handedPath = entry.path;
    model_.handedIndex = entry.index;
  }
  model_.CloseMain();
  Perform([&] { CloseAsked(way); });
  return true;
}

void Driver::CloseAsked(int way) {
  switch (way) {
    case 0:
      return Command(Main(), FrmFindIcon_CmdClose);
    case 1:
      return Command(Main(), FrmFindIcon_mnuExit);
    case 2:
      SendMessageW(Main(), WM_SYSCOMMAND, SC_CLOSE, 0);
      return;
    case 3:
      SendMessageW(Main(), WM_CLOSE, 0, 0);
      return;
    case 4:
      return Command(Main(), FrmFindIcon_CmdOk);
    default:
      SendMessageW(Main(), WM_ENDSESSION, TRUE, 0);
  }
}

// Closes the main window below the others, as the task bar can, and as the system does when the session ends.
bool Driver::CloseMainBelow(const Action& action) {
  const bool session = action.a % 3 == 0;
  Note(session ? "the session ends" : "WM_CLOSE");
  if (session) {
    model_.EndSession();
  } else {
    model_.CloseMain();
  }
  Perform([&] { CloseAsked(session ? 5 : 3); });
  return true;
}

bool Driver::AnswerBox(const Action& /*action*/) {
  const HWND box = seen::MessageBoxInSight();
  model_.AnswerBox();
  Perform([&] { SendMessageW(box, WM_COMMAND, IDOK, 0); });
  return true;
}

bool Driver::StepView(const Action& action) {
  static constexpr int buttons[] = {frmBit_tlb_control_MoveNext, frmBit_tlb_control_MovePrev,
                                    frmBit_tlb_control_MoveFirst, frmBit_tlb_control_MoveLast};
  static constexpr const char* names[] = {"next", "previous", "first", "last"};
  static constexpr WPARAM keys[] = {VK_NEXT, VK_PRIOR};
  const int way = action.a % 4;
  const bool byKey = way < 2 && action.b % 2 == 1;
  Note(std::string(names[way]) + (byKey ? " by key" : ""));
  if (way < 2) {
    model_.Step(way == 0 ? 1 : -1);
  } else if (way == 2) {
    model_.First();
  } else {
    model_.Last();
  }
  const HWND view = seen::WindowWith(frmBit_img);
  if (byKey) {
    PressKey(view, way == 0 && action.c % 2 == 0 ? VK_SPACE : keys[way], false);
    PostTick();
  } else {
    Perform([&] { Command(view, buttons[way]); });
  }
  return true;
}

bool Driver::ShowInView(const Action& action) {
  const HWND view = seen::WindowWith(frmBit_img);
  const int way = action.a % 6;
  static constexpr const char* names[] = {"start",  "stop",   "the clock strikes",
                                          "slower", "faster", "the clock strikes"};
  Note(names[way]);
  if (way == 0 || way == 1) model_.RunShow(way == 0);
  if (way == 2 || way == 5) model_.Tick();
  static constexpr int buttons[] = {frmBit_tlb_control_Start, frmBit_tlb_control_Stop, 0, frmBit_tlb_control_Slower,
                                    frmBit_tlb_control_Faster};
  Perform([&] {
    if (way == 2 || way == 5) {
      SendMessageW(view, WM_TIMER, frmBit_tim_nextpic, 0);
    } else {
      Command(view, buttons[way]);
    }
    // The real timer must not fire between two steps.
    KillTimer(view, frmBit_tim_nextpic);
  });
  return true;
}

bool Driver::ZoomView(const Action& action) {
  const int row = action.a % 10;
  Note(std::to_string((row + 1) * 100) + " %");
  const HWND view = seen::WindowWith(frmBit_img);
  model_.Zoom(row);
  Perform([&] {
    SendMessageW(GetDlgItem(view, frmBit_CboZoom), CB_SETCURSEL, static_cast<WPARAM>(row), 0);
    Command(view, frmBit_CboZoom, CBN_SELCHANGE);
  });
  return true;
}

bool Driver::ResizeView(const Action& action) {
  const int width = 350 + action.a % 300;
  const int height = 250 + action.b % 250;
  Note(std::to_string(width) + " by " + std::to_string(height));
  const HWND view = seen::WindowWith(frmBit_img);
  model_.ResizeView(width, height);
  Perform([&] { SetWindowPos(view, nullptr, 0, 0, width, height, SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE); });
  return true;
}

bool Driver::CloseView(const Action& action) {
  const HWND view = seen::WindowWith(frmBit_img);
  const int way = action.a % 3;
  Note(way == 0 ? "by Exit" : way == 1 ? "by the close box" : "by Alt+F4");
  model_.CloseView();
  Perform([&] {
    if (way == 0) {
      Command(view, frmBit_tlb_control_Exit);
    } else if (way == 1) {
      SendMessageW(view, WM_SYSCOMMAND, SC_CLOSE, 0);
    } else {
      PressKey(view, VK_F4, true);
    }
  });
  return true;
}

bool Driver::PickHotSpot(const Action& action) {
  const HWND picture = GetDlgItem(seen::WindowWith(FrmHotSpot_PicCursor), FrmHotSpot_PicCursor);
  const LPARAM point = MAKELPARAM(action.a % 385, action.b % 385);
  Perform([&] {
    SendMessageW(picture, WM_MOUSEMOVE, 0, point);
    SendMessageW(picture, action.c % 3 == 0 ? WM_RBUTTONDOWN : WM_LBUTTONDOWN, MK_LBUTTON, point);
    SendMessageW(picture, action.c % 3 == 0 ? WM_RBUTTONUP : WM_LBUTTONUP, 0, point);
  });
  return true;
}

bool Driver::EndHotSpot(const Action& action) {
  const HWND window = seen::WindowWith(FrmHotSpot_PicCursor);
  const int way = action.a % 4;
  Note(way < 2 ? "by OK" : way == 2 ? "by Cancel" : "by the close box");
  model_.EndHotSpot(way < 2);
  Perform([&] {
    if (way == 3) {
      SendMessageW(window, WM_CLOSE, 0, 0);
    } else {
      Command(window, way == 2 ? FrmHotSpot_CmdCancel : FrmHotSpot_CmdOk);
    }
  });
  return true;
}

bool Driver::OpenChooserRow(const Action& action) {
  const HWND window = seen::WindowWith(frmDir_dirMain);
  const std::vector<std::string> rows = Model::FolderRows(disk_, model_.chooser.folder);
  const int row = action.a % static_cast<int>(rows.size());
  Note(rows.at(static_cast<std::size_t>(row)));
  model_.OpenChooserRow(row);
  Perform([&] {
    SendMessageW(GetDlgItem(window, frmDir_dirMain), LB_SETCURSEL, static_cast<WPARAM>(row), 0);
    Command(window, frmDir_dirMain, LBN_DBLCLK);
  });
  return true;
}

bool Driver::ChooseChooserDrive(const Action& action) {
  const HWND window = seen::WindowWith(frmDir_dirMain);
  const int row = action.a % 2;
  Note(Disk::Drives().at(static_cast<std::size_t>(row)).root);
  model_.ChooseChooserDrive(row);
  Perform([&] {
    SendMessageW(GetDlgItem(window, frmDir_drvMain), CB_SETCURSEL, static_cast<WPARAM>(row), 0);
    Command(window, frmDir_drvMain, CBN_SELCHANGE);
  });
  return true;
}

bool Driver::ChooseChooserType(const Action& action) {
  if (!model_.chooser.offersTypes) return false;
  const HWND window = seen::WindowWith(frmDir_dirMain);
  const int row = action.a % model_.chooser.types;
  Note(std::to_string(row));
  model_.ChooseChooserType(row);
  Perform([&] {
    SendMessageW(GetDlgItem(window, frmDir_CboFileType), CB_SETCURSEL, static_cast<WPARAM>(row), 0);
    Command(window, frmDir_CboFileType, CBN_SELCHANGE);
  });
  return true;
}

bool Driver::OpenNewFolder(const Action& /*action*/) {
  const HWND window = seen::WindowWith(frmDir_dirMain);
  model_.OpenNewFolder();
  Perform([&] { Command(window, frmDir_cmdCreate); });
  return true;
}

bool Driver::EndChooser(const Action& action) {
  const HWND window = seen::WindowWith(frmDir_dirMain);
  const int way = action.a % 4;
  Note(way < 2 ? "by OK" : way == 2 ? "by Cancel" : "by the close box");
  if (way == 3) {
    model_.CloseChooserByBox();
  } else {
    model_.EndChooser(way < 2);
  }
  Perform([&] {
    if (way == 3) {
      SendMessageW(window, WM_CLOSE, 0, 0);
    } else {
      Command(window, way == 2 ? frmDir_CmdCancel : frmDir_CmdOk);
    }
  });
  return true;
}

bool Driver::NameFolder(const Action& action) {
  static constexpr const char* names[] = {"new", "a:b", "", "icons", "other"};
  const char* name = names[action.a % 5];
  Note(name);
  model_.newFolderName = name;
  Perform([&] { SetWindowTextA(GetDlgItem(seen::WindowWith(frmDirCreate_txt), frmDirCreate_txt), name); });
  return true;
}

bool Driver::EndNewFolder(const Action& action) {
  const HWND window = seen::WindowWith(frmDirCreate_txt);
  const int way = action.a % 4;
  Note(way < 2 ? "by Create" : way == 2 ? "by Cancel" : "by the close box");
  if (way < 2) {
    model_.MakeFolder(model_.newFolderName);
  } else {
    model_.CancelNewFolder();
  }
  Perform([&] {
    if (way == 3) {
      SendMessageW(window, WM_CLOSE, 0, 0);
    } else {
      Command(window, way == 2 ? frmDirCreate_CmdCancel : frmDirCreate_CmdOk);
    }
  });
  return true;
}

bool Driver::EndOptions(const Action& action) {
  const bool jpeg = model_.Foremost() == Front::JpegOptions;
  const HWND window = seen::WindowWith(jpeg ? fSaveJPG_txtQual : FrmConvertGIF_Option1);
  const int way = action.a % 4;
  Note(way < 2 ? "by OK" : way == 2 ? "by Cancel" : "by the close box");
  model_.EndEncoderOptions(way < 2);
  const int ok = jpeg ? fSaveJPG_cmdFinish1 : FrmConvertGIF_CmdOk;
  const int cancel = jpeg ? fSaveJPG_cmdFinish0 : FrmConvertGIF_CmdCancel;
  Perform([&] {
    if (way == 3) {
      SendMessageW(window, WM_CLOSE, 0, 0);
    } else {
      Command(window, way == 2 ? cancel : ok);
    }
  });
  return true;
}

bool Driver::EndAbout(const Action& action) {
  const HWND window = seen::WindowWith(FrmSpash_LblEmail);
  model_.CloseAbout();
  Perform([&] {
    if (action.a % 2 == 0) {
      Command(window, FrmSpash_CmdOk);
    } else {
      SendMessageW(window, WM_CLOSE, 0, 0);
    }
  });
  return true;
}

}  // namespace tarvik::model
