#include "forms/Toolbar.h"

#include <windows.h>

#include <commctrl.h>

#include "forms/ToolbarKeys.h"
#include "platform/Text.h"

namespace tarvik {
namespace {

// An image list with the buttons' pictures, in their order; `iconOf` returns the icon resource of a button.
template <typename IconOf>
ImageListHandle Pictures(HINSTANCE instance, int side, std::span<const Toolbar::Button> buttons, IconOf iconOf) {
  ImageListHandle list(ImageList_Create(side, side, ILC_COLOR32 | ILC_MASK, static_cast<int>(buttons.size()), 0));
  for (const Toolbar::Button& button : buttons) {
    const IconHandle icon(static_cast<HICON>(
        LoadImageW(instance, MAKEINTRESOURCEW(iconOf(button)), IMAGE_ICON, side, side, LR_DEFAULTCOLOR)));
    ImageList_ReplaceIcon(list.get(), -1, icon.get());
  }
  return list;
}

}  // namespace

void Toolbar::Attach(HWND toolbar, int side, std::span<const Button> buttons) {
  window_ = toolbar;
  AddToolbarKeys(window_);
  // The pictures outlive the control and are used for the next one too.
  if (!pictures_) {
    const auto instance = reinterpret_cast<HINSTANCE>(GetWindowLongPtrW(window_, GWLP_HINSTANCE));
    pictures_ = Pictures(instance, side, buttons, [](const Button& button) { return button.id; });
    disabledPictures_ = Pictures(instance, side, buttons, [](const Button& button) {
      return button.disabledIcon != 0 ? button.disabledIcon : button.id;
    });
  }
  SendMessageW(window_, TB_BUTTONSTRUCTSIZE, sizeof(TBBUTTON), 0);
  // In this style a button's text is not shown next to it, but as its tooltip.
  SendMessageW(window_, TB_SETEXTENDEDSTYLE, 0, TBSTYLE_EX_MIXEDBUTTONS);
  SendMessageW(window_, TB_SETIMAGELIST, 0, reinterpret_cast<LPARAM>(pictures_.get()));
  SendMessageW(window_, TB_SETDISABLEDIMAGELIST, 0, reinterpret_cast<LPARAM>(disabledPictures_.get()));

  int picture = 0;
  for (const Button& button : buttons) {
    if (button.startsGroup) {
      const TBBUTTON separator{0, 0, 0, BTNS_SEP, {}, 0, 0};
      SendMessageW(window_, TB_ADDBUTTONSW, 1, reinterpret_cast<LPARAM>(&separator));
    }
    const std::wstring text = ToWide(button.text);
    const TBBUTTON row{picture++,
                       button.id,
                       TBSTATE_ENABLED,
                       BTNS_BUTTON | BTNS_AUTOSIZE,
                       {},
                       0,
                       reinterpret_cast<INT_PTR>(text.c_str())};
    SendMessageW(window_, TB_ADDBUTTONSW, 1, reinterpret_cast<LPARAM>(&row));
  }
  Resize();
}

void Toolbar::SetText(int id, std::string_view text) {
  std::wstring wide = ToWide(text);
  TBBUTTONINFOW info{};
  info.cbSize = sizeof info;
  info.dwMask = TBIF_TEXT;
  info.pszText = wide.data();
  SendMessageW(window_, TB_SETBUTTONINFOW, static_cast<WPARAM>(id), reinterpret_cast<LPARAM>(&info));
}

void Toolbar::Enable(int id, bool enabled) {
  SendMessageW(window_, TB_ENABLEBUTTON, static_cast<WPARAM>(id), MAKELPARAM(enabled ? TRUE : FALSE, 0));
}

SIZE Toolbar::Extent() const {
  SIZE extent{};
  SendMessageW(window_, TB_GETMAXSIZE, 0, reinterpret_cast<LPARAM>(&extent));
  RECT bounds{};
  GetWindowRect(window_, &bounds);
  extent.cy = bounds.bottom - bounds.top;
  return extent;
}

void Toolbar::Resize() {
  SendMessageW(window_, TB_AUTOSIZE, 0, 0);
}

}  // namespace tarvik
