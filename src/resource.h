#pragma once

// The ids of all controls and menu items, one range per window: control ids and command ids. Scripts, accessibility
// tools and tests find controls by these ids, so an id never changes its meaning. Macros, because the resource compiler
// reads this file too.

// Resources.
#define Icon_Program 1
#define Dialog_FrmFindIcon 100
#define Menu_FrmFindIcon 101
#define Dialog_FrmSpash 110
#define Bitmap_FrmSpash 111
#define Dialog_frmBit 120
#define Icon_frmBit_StartDisabled 121
#define Icon_frmBit_StopDisabled 122
#define Dialog_FrmHotSpot 130
#define Dialog_frmDir 140
#define Dialog_frmDirCreate 150
#define Dialog_fSaveJPG 160
#define Dialog_fComment 170
#define Dialog_FrmConvertGIF 180

// FrmFindIcon, the main window: 1000 to 1099 controls, 1100 to 1199 menu items. PicIcon, PicMask, PicImage, PicMain
// and PicClip are surfaces in memory and have no id.
#define FrmFindIcon_Drive1 1000
#define FrmFindIcon_Dir1 1001
#define FrmFindIcon_File1 1002
#define FrmFindIcon_Label3 1003
#define FrmFindIcon_ChkFileType0 1010
#define FrmFindIcon_ChkFileType1 1011
#define FrmFindIcon_ChkFileType2 1012
#define FrmFindIcon_ChkFileType3 1013
#define FrmFindIcon_ChkFileType4 1014
#define FrmFindIcon_ChkFileType5 1015
#define FrmFindIcon_ChkFileType6 1016
#define FrmFindIcon_chkSubDir 1020
#define FrmFindIcon_CboIconSize 1021
#define FrmFindIcon_SkinLabel1 1022
#define FrmFindIcon_txtMax 1023
#define FrmFindIcon_udMain 1024
#define FrmFindIcon_SkinLabel2 1025
#define FrmFindIcon_CmdFind 1030
#define FrmFindIcon_CmdOk 1031
#define FrmFindIcon_CmdClose 1032
#define FrmFindIcon_PicFrame 1040
#define FrmFindIcon_PicIcons 1041
#define FrmFindIcon_Vsb 1042
#define FrmFindIcon_Lv 1043
#define FrmFindIcon_OptView0 1044
#define FrmFindIcon_OptView1 1045
#define FrmFindIcon_lblInfo 1046
#define FrmFindIcon_sbMain 1047
// Invisible labels that name the controls after them.
#define FrmFindIcon_lblDrive1 1050
#define FrmFindIcon_lblDir1 1051
#define FrmFindIcon_lblFile1 1052
#define FrmFindIcon_lblIconSize 1053
#define FrmFindIcon_lblMax 1054
#define FrmFindIcon_lblVsb 1055
#define FrmFindIcon_lblLv 1056
#define FrmFindIcon_lblMain 1057

#define FrmFindIcon_mnuFile 1100
#define FrmFindIcon_mnuStart 1101
#define FrmFindIcon_mnuSaveAs 1102
#define FrmFindIcon_MnuSaveAsBitmap 1103
#define FrmFindIcon_MnuSaveAsCursor 1104
#define FrmFindIcon_mnuBatch 1105
#define FrmFindIcon_mnuSaveSel 1106
#define FrmFindIcon_mnuSaveAll 1107
#define FrmFindIcon_mnuBatch2 1108
#define FrmFindIcon_mnuSaveSel2 1109
#define FrmFindIcon_mnuSaveAll2 1110
#define FrmFindIcon_mnuBatch3 1111
#define FrmFindIcon_mnuSaveSel3 1112
#define FrmFindIcon_mnuSaveAll3 1113
#define FrmFindIcon_mnuExit 1114
#define FrmFindIcon_mnuEdit 1120
#define FrmFindIcon_mnuCopy 1121
#define FrmFindIcon_mnuRem 1122
#define FrmFindIcon_mnuOP 1130
#define FrmFindIcon_mnuShowLabel 1131
#define FrmFindIcon_mnuIcLabel 1132
#define FrmFindIcon_mnuIL1 1133
#define FrmFindIcon_mnuIL2 1134
#define FrmFindIcon_mnuView 1140
#define FrmFindIcon_mnuViewopt0 1141
#define FrmFindIcon_mnuViewopt1 1142
#define FrmFindIcon_MnuHelp 1150
#define FrmFindIcon_MnuContent 1151
#define FrmFindIcon_MnuAbout 1152
// Commands that only keys trigger.
#define FrmFindIcon_keyRefresh 1160
#define FrmFindIcon_keySelectAll 1161

// FrmSpash, the start-up window and About box: 1200 to 1299.
#define FrmSpash_Timer1 1200
#define FrmSpash_CmdOk 1201
#define FrmSpash_lblDescription 1202
#define FrmSpash_LblEmail 1203
#define FrmSpash_Picture 1204
#define FrmSpash_lblVersion 1205
#define FrmSpash_lblCopyright 1206
#define FrmSpash_lblLicence 1207

// frmBit, the enhanced view: 1300 to 1399. A button's id is also its picture's.
#define frmBit_img 1300
#define frmBit_CboZoom 1301
#define frmBit_tlb_control 1302
#define frmBit_tim_nextpic 1303
#define frmBit_sbMain 1304
#define frmBit_lblZoom 1305
#define frmBit_lblControl 1306
#define frmBit_lblMain 1307
#define frmBit_tlb_control_MoveFirst 1310
#define frmBit_tlb_control_MovePrev 1311
#define frmBit_tlb_control_MoveNext 1312
#define frmBit_tlb_control_MoveLast 1313
#define frmBit_tlb_control_Start 1314
#define frmBit_tlb_control_Stop 1315
#define frmBit_tlb_control_Slower 1316
#define frmBit_tlb_control_Faster 1317
#define frmBit_tlb_control_Exit 1318

// FrmHotSpot, the hot-spot picker: 1400 to 1499.
#define FrmHotSpot_PicCursor 1400
#define FrmHotSpot_ImgXY 1401
#define FrmHotSpot_lblHotX1 1402
#define FrmHotSpot_lblHotY1 1403
#define FrmHotSpot_LblHotX 1404
#define FrmHotSpot_LblHotY 1405
#define FrmHotSpot_lblxy 1406
#define FrmHotSpot_CmdOk 1407
#define FrmHotSpot_CmdCancel 1408
#define FrmHotSpot_lblPointer 1409

// frmDir, the folder chooser: 1500 to 1599.
#define frmDir_drvMain 1500
#define frmDir_dirMain 1501
#define frmDir_lblCaption 1502
#define frmDir_lblDir 1503
#define frmDir_CboFileType 1504
#define frmDir_CmdOk 1505
#define frmDir_CmdCancel 1506
#define frmDir_cmdCreate 1507
#define frmDir_keyRefresh 1508
#define frmDir_lblDrive 1509
#define frmDir_lblFolder 1510
#define frmDir_lblFileType 1511

// frmDirCreate, the new-folder dialog: 1600 to 1699.
#define frmDirCreate_lblCaption 1600
#define frmDirCreate_txt 1601
#define frmDirCreate_CmdOk 1602
#define frmDirCreate_CmdCancel 1603

// fSaveJPG, the JPEG options: 1700 to 1799.
#define fSaveJPG_hscQuality 1700
#define fSaveJPG_txtQual 1701
#define fSaveJPG_CboSize 1702
#define fSaveJPG_cboSubSample 1703
#define fSaveJPG_chkGreyscale 1704
#define fSaveJPG_cmdComment 1705
#define fSaveJPG_cmdFinish0 1706
#define fSaveJPG_cmdFinish1 1707
#define fSaveJPG_lblQuality 1708
#define fSaveJPG_lblSubSample 1709
#define fSaveJPG_Label2 1710
#define fSaveJPG_Label3 1711
#define fSaveJPG_lblSize 1712
#define fSaveJPG_lblBar 1713

// fComment, the JPEG comment: 1800 to 1899.
#define fComment_txtComment 1800
#define fComment_cmdFinish 1801
#define fComment_lblComment 1802

// FrmConvertGIF, the GIF options: 1900 to 1999.
#define FrmConvertGIF_Check1 1900
#define FrmConvertGIF_Option1 1901
#define FrmConvertGIF_Option2 1902
#define FrmConvertGIF_CmdOk 1903
#define FrmConvertGIF_CmdCancel 1904
#define FrmConvertGIF_Frame1 1905
#define FrmConvertGIF_Label1 1906
