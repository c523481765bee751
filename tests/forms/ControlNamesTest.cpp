#include "forms/ControlNames.h"

#include <windows.h>

#include <initguid.h>
#include <oleacc.h>

#include <gtest/gtest.h>

#include <map>
#include <memory>
#include <string>

#include "platform/ComObject.h"
#include "platform/ComUse.h"
#include "platform/RegisteredObject.h"
#include "platform/Text.h"
#include "search/window/FindIconFixture.h"
#include "startup/Dialogs.h"

namespace tarvik {
namespace {

// An annotation service that the system makes instead of its own, because this process registered it. It keeps the
// names that it gets; Wine's own service does nothing.
class NotedNames final : public support::ComObject<IAccPropServices> {
 public:
  NotedNames() : ComObject(IID_IAccPropServices) {}

  HRESULT STDMETHODCALLTYPE SetHwndPropStr(HWND window, DWORD object, DWORD child, MSAAPROPID property,
                                           LPCWSTR text) override {
    ++calls;
    EXPECT_EQ(object, static_cast<DWORD>(OBJID_CLIENT));
    EXPECT_EQ(child, static_cast<DWORD>(CHILDID_SELF));
    EXPECT_TRUE(IsEqualGUID(property, PROPID_ACC_NAME));
    names[GetDlgCtrlID(window)] = ToUtf8(text);
    return S_OK;
  }

  // What the program does not use.
  HRESULT STDMETHODCALLTYPE SetPropValue(const BYTE*, DWORD, MSAAPROPID, VARIANT) override { return FailCall(); }
  HRESULT STDMETHODCALLTYPE SetPropServer(const BYTE*, DWORD, const MSAAPROPID*, int, IAccPropServer*,
                                          AnnoScope) override {
    return FailCall();
  }
  HRESULT STDMETHODCALLTYPE ClearProps(const BYTE*, DWORD, const MSAAPROPID*, int) override { return FailCall(); }
  HRESULT STDMETHODCALLTYPE SetHwndProp(HWND, DWORD, DWORD, MSAAPROPID, VARIANT) override { return FailCall(); }
  HRESULT STDMETHODCALLTYPE SetHwndPropServer(HWND, DWORD, DWORD, const MSAAPROPID*, int, IAccPropServer*,
                                              AnnoScope) override {
    return FailCall();
  }
  HRESULT STDMETHODCALLTYPE ClearHwndProps(HWND, DWORD, DWORD, const MSAAPROPID*, int) override { return FailCall(); }
  HRESULT STDMETHODCALLTYPE ComposeHwndIdentityString(HWND, DWORD, DWORD, BYTE**, DWORD*) override {
    return FailCall();
  }
  HRESULT STDMETHODCALLTYPE DecomposeHwndIdentityString(const BYTE*, DWORD, HWND*, DWORD*, DWORD*) override {
    return FailCall();
  }
  HRESULT STDMETHODCALLTYPE SetHmenuProp(HMENU, DWORD, MSAAPROPID, VARIANT) override { return FailCall(); }
  HRESULT STDMETHODCALLTYPE SetHmenuPropStr(HMENU, DWORD, MSAAPROPID, LPCWSTR) override { return FailCall(); }
  HRESULT STDMETHODCALLTYPE SetHmenuPropServer(HMENU, DWORD, const MSAAPROPID*, int, IAccPropServer*,
                                               AnnoScope) override {
    return FailCall();
  }
  HRESULT STDMETHODCALLTYPE ClearHmenuProps(HMENU, DWORD, const MSAAPROPID*, int) override { return FailCall(); }
  HRESULT STDMETHODCALLTYPE ComposeHmenuIdentityString(HMENU, DWORD, BYTE**, DWORD*) override { return FailCall(); }
  HRESULT STDMETHODCALLTYPE DecomposeHmenuIdentityString(const BYTE*, DWORD, HMENU*, DWORD*) override {
    return FailCall();
  }

  std::map<int, std::string> names;  // by the control's id
  int calls = 0;

 private:
  static HRESULT FailCall() {
    ADD_FAILURE() << "unexpected call";
    return E_NOTIMPL;
  }
};

// Asks every control of a window for its accessible object, as a screen reader does.
void AskAll(HWND window) {
  for (HWND item = GetWindow(window, GW_CHILD); item != nullptr; item = GetWindow(item, GW_HWNDNEXT))
    SendMessageW(item, WM_GETOBJECT, 0, static_cast<LPARAM>(OBJID_CLIENT));
}

class ControlNamesTest : public support::FindIconFixture {
 protected:
  ComUse use_;
  NotedNames service_;
  support::RegisteredObject registered_{CLSID_AccPropServices, service_};
};

TEST_F(ControlNamesTest, AreTheTextsOfTheInvisibleLabelsInEachLanguage) {
  for (const auto& [language, names] : std::map<std::string, std::map<int, std::string>>{
           {"ENG",
            {{FrmFindIcon_Drive1, "Drive"},
             {FrmFindIcon_Dir1, "Folder"},
             {FrmFindIcon_File1, "Files to search"},
             {FrmFindIcon_udMain, "Most icons in the list"},
             {FrmFindIcon_Vsb, "Scroll the icons"},
             {FrmFindIcon_Lv, "Icons found: number, file, index"},
             {FrmFindIcon_sbMain, "Status"}}},
           {"CHS",
            {{FrmFindIcon_Drive1, "驱动器"},
             {FrmFindIcon_Dir1, "文件夹"},
             {FrmFindIcon_File1, "要查找的文件"},
             {FrmFindIcon_udMain, "列表中的最大图标数"},
             {FrmFindIcon_Vsb, "滚动图标"},
             {FrmFindIcon_Lv, "找到的图标：序号、文件路径、图标索引"},
             {FrmFindIcon_sbMain, "状态"}}},
           {"CHT",
            {{FrmFindIcon_Drive1, "磁碟機"},
             {FrmFindIcon_Dir1, "資料夾"},
             {FrmFindIcon_File1, "要查找的檔案"},
             {FrmFindIcon_udMain, "清單中的最大圖示數"},
             {FrmFindIcon_Vsb, "捲動圖示"},
             {FrmFindIcon_Lv, "找到的圖示：序號、檔案路徑、圖示索引"},
             {FrmFindIcon_sbMain, "狀態"}}},
       }) {
    service_.names.clear();
    Open(language);
    AskAll(window->Window());
    EXPECT_EQ(service_.names, names) << language;
    window.reset();
  }
}

TEST_F(ControlNamesTest, AreGivenOnceWhenTheyAreFirstAskedFor) {
  Open();
  EXPECT_EQ(service_.calls, 0) << "a start without a screen reader does not wait for it";
  AskAll(window->Window());
  const int calls = service_.calls;
  EXPECT_EQ(calls, 7);
  Find(3);
  Click(FrmFindIcon_OptView1);
  AskAll(window->Window());
  EXPECT_EQ(service_.calls, calls);
  EXPECT_EQ(service_.References(), 0U) << "it is released";
}

class ControlNamesOfDialogs : public ControlNamesTest {
 protected:
  struct Access : support::Dialogs {
    Access() : Dialogs("ENG") {}
    using Dialogs::FolderChooser;
    using Dialogs::HotSpotPicker;
    using Dialogs::JpegComment;
    using Dialogs::JpegOptions;
  };
  std::map<int, std::string> NamesOf(const std::unique_ptr<Form>& form) {
    service_.names.clear();
    form->Load();
    AskAll(form->Window());
    return service_.names;
  }
  Access dialogs_;
};

TEST_F(ControlNamesOfDialogs, AreTheTextsOfTheirInvisibleLabels) {
  using Names = std::map<int, std::string>;
  EXPECT_EQ(NamesOf(dialogs_.FolderChooser()),
            (Names{{frmDir_drvMain, "Drive"}, {frmDir_dirMain, "Folder"}, {frmDir_CboFileType, "File type"}}));
  EXPECT_EQ(NamesOf(dialogs_.JpegOptions()),
            (Names{{fSaveJPG_CboSize, "Quality step"}, {fSaveJPG_hscQuality, "Quality"}}));
  EXPECT_EQ(NamesOf(dialogs_.JpegComment()), (Names{{fComment_txtComment, "Comment"}}));
  EXPECT_EQ(NamesOf(dialogs_.HotSpotPicker()), (Names{{FrmHotSpot_lblxy, "Pointer"}}));
}

}  // namespace
}  // namespace tarvik
