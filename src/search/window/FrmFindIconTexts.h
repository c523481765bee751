#pragma once

#include "resource.h"
#include "startup/FormTexts.h"

namespace tarvik {

// The main window's texts. A control without a row here keeps its design text in every language.
inline constexpr FormText findIconTexts[] = {
    {formCaption, {"Brindle Tarvik", "布林德图标搜索", "布林德圖示搜尋"}},
    {FrmFindIcon_chkSubDir, {"Include SubDir", "包含子目录", "包含子目錄"}},
    {FrmFindIcon_CmdFind, {"&Find", "查找(&F)", "查找(&F)"}},
    {FrmFindIcon_CmdClose, {"&Close", "关闭(&C)", "關閉(&C)"}},
    {FrmFindIcon_CmdOk, {"&OK", "确定(&O)", "確定(&O)"}},
    {FrmFindIcon_lblDrive1, {"Drive", "驱动器", "磁碟機"}},
    {FrmFindIcon_lblDir1, {"Folder", "文件夹", "資料夾"}},
    {FrmFindIcon_lblFile1, {"Files to search", "要查找的文件", "要查找的檔案"}},
    {FrmFindIcon_lblIconSize, {"Icon Size:", "图标大小:", "圖示大小:"}},
    {FrmFindIcon_lblMax, {"Most icons in the list", "列表中的最大图标数", "清單中的最大圖示數"}},
    {FrmFindIcon_PicFrame, {"Icons found", "找到的图标", "找到的圖示"}},
    {FrmFindIcon_lblVsb, {"Scroll the icons", "滚动图标", "捲動圖示"}},
    {FrmFindIcon_lblLv,
     {"Icons found: number, file, index", "找到的图标：序号、文件路径、图标索引",
      "找到的圖示：序號、檔案路徑、圖示索引"}},
    {FrmFindIcon_lblMain, {"Status", "状态", "狀態"}},
    {FrmFindIcon_Label3, {"File Type:", "文件类型:", "文件類型:"}},
    {FrmFindIcon_lblInfo, {"Icon No 1 Selected.", "选中NO.1 图标.", "選中NO.1 圖示."}},
    {FrmFindIcon_SkinLabel1, {"&Automatically stop after listing", "每次允许最大", "每次允許最大"}},
    {FrmFindIcon_SkinLabel2, {"icons to save memory", "个图标出现在结果列表中", "個圖示出現在結果列表中"}},
    {FrmFindIcon_OptView0, {"Icon", "图标", "圖示"}},
    {FrmFindIcon_OptView1, {"List", "列表", "列表"}},
    {FrmFindIcon_mnuViewopt0, {"Icon", "图标", "圖示"}},
    {FrmFindIcon_mnuViewopt1, {"List", "列表", "列表"}},
    {FrmFindIcon_mnuFile, {"&File", "(&F)文件", "(&F)文件"}},
    {FrmFindIcon_mnuStart, {"&Find Icon", "(&I)查找", "(&I)查找"}},
    {FrmFindIcon_mnuSaveAs, {"&Save As", "(&S)保存为", "(&S)保存為"}},
    {FrmFindIcon_MnuSaveAsBitmap, {"Save As Image", "另存为图像", "另存為圖像"}},
    {FrmFindIcon_MnuSaveAsCursor, {"Save As Cursor", "另存为光标", "另存為游標"}},
    {FrmFindIcon_mnuBatch, {"&Batch Save", "(&B)批量保存", "(&B)批量保存"}},
    {FrmFindIcon_mnuBatch2, {"Batch Save As Image", "批量保存为图像", "批量保存為圖像"}},
    {FrmFindIcon_mnuBatch3, {"Batch Save As Cursor", "批量保存为光标", "批量保存為游標"}},
    {FrmFindIcon_mnuSaveSel, {"Save Selected Icons", "保存选中的图标", "保存選中的圖示"}},
    {FrmFindIcon_mnuSaveSel2, {"Save Selected Icons", "保存选中的图标", "保存選中的圖示"}},
    {FrmFindIcon_mnuSaveSel3, {"Save Selected Icons", "保存选中的图标", "保存選中的圖示"}},
    {FrmFindIcon_mnuSaveAll, {"Save All Icons In List", "保存列表中所有图标", "保存列表中所有圖示"}},
    {FrmFindIcon_mnuSaveAll2, {"Save All Icons In List", "保存列表中所有图标", "保存列表中所有圖示"}},
    {FrmFindIcon_mnuSaveAll3, {"Save All Icons In List", "保存列表中所有图标", "保存列表中所有圖示"}},
    {FrmFindIcon_mnuExit, {"E&xit", "(&X)关闭", "(&X)關閉"}},
    {FrmFindIcon_mnuEdit, {"&Edit", "(&E)编辑", "(&E)編輯"}},
    {FrmFindIcon_mnuCopy, {"&Copy to Clipboard", "(&C)复制到剪切板", "(&C)複製到剪切板"}},
    {FrmFindIcon_mnuRem, {"&Invert Selection", "(&I)反选", "(&I)反向選取"}},
    {FrmFindIcon_mnuOP, {"&Options", "(&P)选项", "(&P)選項"}},
    {FrmFindIcon_mnuShowLabel, {"&Display Labels", "(&D)显示标签", "(&D)顯示標籤"}},
    {FrmFindIcon_mnuIcLabel, {"&Icon Labels", "(&L)图标标签", "(&L)圖示標籤"}},
    {FrmFindIcon_mnuIL1, {"&Continuous Naming", "(&C)连续编号", "(&C)連續編號"}},
    {FrmFindIcon_mnuIL2, {"&With Respect To File", "(&W)按文件编号", "(&W)依檔案編號"}},
    {FrmFindIcon_mnuView, {"&View", "(&V)视图", "(&V)視圖"}},
    {FrmFindIcon_MnuHelp, {"&Help", "(&H)帮助", "(&H)説明"}},
    {FrmFindIcon_MnuContent, {"&Contents", "主题", "主題"}},
    {FrmFindIcon_MnuAbout, {"&About...", "关于...", "關於..."}},
};

// For a drive that cannot be read. "Driver" is deliberate: oddities 11.
inline constexpr Text driveNotReady{"Driver Not Ready!", "路径无效!", "路徑無效!"};

// For a folder that was dropped on the window and cannot be read.
inline constexpr Text folderNotReadable{"The folder cannot be read:\r\n%1", "无法读取文件夹：\r\n%1",
                                        "無法讀取資料夾：\r\n%1"};

// The grid's tool tip for an icon: its file, in lines, and its index there.
inline constexpr Text gridTip{"%1\r\nIndex %2", "%1\r\n索引 %2", "%1\r\n索引 %2"};

// The current icon for screen readers: its number, its file, its index there.
inline constexpr Text gridItemName{"Icon %1, %2, index %3", "图标 %1，%2，索引 %3", "圖示 %1，%2，索引 %3"};

}  // namespace tarvik
