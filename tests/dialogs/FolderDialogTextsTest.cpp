#include "dialogs/FolderDialogTexts.h"

#include <gtest/gtest.h>

#include "startup/FormTextRows.h"

namespace tarvik {
namespace {

TEST(FolderDialogTexts, NameTheChoosersControlsInThreeLanguages) {
  support::ExpectRows(frmDirTexts, {
                                       {formCaption, {"Store To Directory...", "存储目录...", "存儲目錄..."}},
                                       {frmDir_CmdOk, {"&OK", "确定(&O)", "確定(&O)"}},
                                       {frmDir_CmdCancel, {"&Cancel", "取消(&C)", "取消(&C)"}},
                                       {frmDir_cmdCreate, {"Cr&eate", "创建(&R)", "創建(&R)"}},
                                       {frmDir_lblCaption, {"Selected Directory:", "存储目录为:", "存儲目錄為:"}},

                                       // The names of the controls for screen readers.
                                       {frmDir_lblDrive, {"Drive", "驱动器", "磁碟機"}},
                                       {frmDir_lblFolder, {"Folder", "文件夹", "資料夾"}},
                                       {frmDir_lblFileType, {"File type", "文件类型", "檔案類型"}},
                                   });
}

TEST(FolderDialogTexts, NameTheNewFolderDialogsControlsInThreeLanguages) {
  support::ExpectRows(frmDirCreateTexts, {
                                             {frmDirCreate_CmdOk, {"Cr&eate", "创建(&R)", "創建(&R)"}},
                                             {frmDirCreate_CmdCancel, {"&Cancel", "取消(&C)", "取消(&C)"}},
                                             {frmDirCreate_lblCaption, {"Folder:", "文件夹:", "文件夾:"}},
                                         });
}

}  // namespace
}  // namespace tarvik
