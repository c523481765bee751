; The installer. scripts/make-installer compiles it:
;   makensis -DVERSION=X.Y.Z -DFILES=FOLDER -DOUTPUT=FILE [-DPAGE=ADDRESS] [-DSIGN=COMMAND] packaging/tarvik.nsi
; FILES contains tarvik.exe, the texts and guide\. PAGE is the address of the project's page. SIGN is a command that signs
; the file whose name is appended to it.
;
; There is only one installation at a time. A new one goes to the folder of an earlier one, unless the user chooses another
; folder: then it moves the settings there and removes the earlier one.
;
; It asks for the language, which is used for the installer and the program. Silent installation: /S, with the language in
; /LANGUAGE=ENG, CHS or CHT (default: that of an earlier installation, else English), and the folder in /D=FOLDER, last.
; Exit codes: 0 done, 1 cancelled, 2 unknown language or failed (in silent mode also if the program is running).

Target amd64-unicode
SetCompressor /SOLID lzma
SetDateSave off
RequestExecutionLevel admin
ManifestDPIAware true

!include MUI2.nsh
!include FileFunc.nsh
!include LogicLib.nsh

!define PRODUCT "Brindle Tarvik"
!define LANGUAGE_KEY "Software\Vornhold\Brindle Tarvik\RegInfo"
!define UNINSTALL_KEY "Software\Microsoft\Windows\CurrentVersion\Uninstall\Brindle Tarvik"
!define SHORTCUT "$SMPROGRAMS\Brindle Tarvik.lnk"
!define USUAL_FOLDER "$PROGRAMFILES64\Brindle Tarvik"

; The SE_OBJECT_TYPE values of the objects whose access rights are set.
!define FILE_OBJECT 1
!define REGISTRY_KEY 4
; DACL_SECURITY_INFORMATION and UNPROTECTED_DACL_SECURITY_INFORMATION: sets the DACL and keeps inherited entries.
!define CHANGE_RIGHTS 0x20000004
; What "users" get: on the key, the rights with which the program opens it; on the file, to read and write it.
!define KEY_RIGHTS "D:(A;;0x2003F;;;BU)"
!define FILE_RIGHTS "D:(A;;FRFW;;;BU)"

Name "${PRODUCT}"
OutFile "${OUTPUT}"
InstallDir "${USUAL_FOLDER}"
; The folder of an earlier installation takes precedence over it, and /D= over both.
InstallDirRegKey HKLM "${UNINSTALL_KEY}" InstallLocation
!ifdef SIGN
  !uninstfinalize `${SIGN} "%1"` = 0
  !finalize `${SIGN} "%1"` = 0
!endif
BrandingText "${PRODUCT} ${VERSION}"
VIProductVersion "${VERSION}.0"
VIAddVersionKey /LANG=1033 ProductName "${PRODUCT}"
VIAddVersionKey /LANG=1033 ProductVersion "${VERSION}"
VIAddVersionKey /LANG=1033 FileVersion "${VERSION}"
VIAddVersionKey /LANG=1033 FileDescription "Installs ${PRODUCT}"
VIAddVersionKey /LANG=1033 CompanyName "The Brindle Tarvik developers"
VIAddVersionKey /LANG=1033 LegalCopyright "Copyright 2026 The Brindle Tarvik developers"

!define MUI_ICON "../src/tarvik.ico"
!define MUI_UNICON "../src/tarvik.ico"
!define MUI_WELCOMEFINISHPAGE_BITMAP "installer.bmp"
!define MUI_ABORTWARNING
!define MUI_FINISHPAGE_RUN
!define MUI_FINISHPAGE_RUN_FUNCTION StartProgram
!define MUI_LANGDLL_ALLLANGUAGES
!define MUI_LANGDLL_WINDOWTITLE "${PRODUCT}"
!define MUI_LANGDLL_INFO "Language / 语言 / 語言"

!insertmacro MUI_PAGE_WELCOME
!insertmacro MUI_PAGE_LICENSE "${FILES}/LICENSE.txt"
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_PAGE_FINISH
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES

!insertmacro MUI_LANGUAGE English
!insertmacro MUI_LANGUAGE SimpChinese
!insertmacro MUI_LANGUAGE TradChinese

; The system's dialog font has Chinese and Latin letters on every system.
SetFont /LANG=${LANG_SIMPCHINESE} "MS Shell Dlg" 9
SetFont /LANG=${LANG_TRADCHINESE} "MS Shell Dlg" 9

LangString RightsFailed ${LANG_ENGLISH} "Users could not be given the right to keep their settings. The program still runs."
LangString RightsFailed ${LANG_SIMPCHINESE} "无法授予用户保存设置的权限。程序仍可运行。"
LangString RightsFailed ${LANG_TRADCHINESE} "無法授予使用者儲存設定的權限。程式仍可執行。"
LangString CopyFailed ${LANG_ENGLISH} "The files could not be written. Close ${PRODUCT} and try again."
LangString CopyFailed ${LANG_SIMPCHINESE} "无法写入文件。请先关闭 ${PRODUCT}，然后重试。"
LangString CopyFailed ${LANG_TRADCHINESE} "無法寫入檔案。請先關閉 ${PRODUCT}，然後重試。"

LangString CloseFirst ${LANG_ENGLISH} "Close ${PRODUCT} first, then try again."
LangString CloseFirst ${LANG_SIMPCHINESE} "请先关闭 ${PRODUCT}，然后重试。"
LangString CloseFirst ${LANG_TRADCHINESE} "請先關閉 ${PRODUCT}，然後重試。"

Var earlierFolder  ; of an earlier installation; this one's if there is none
Var isSameFolder
Var languageCode

!macro FindEarlier
  ReadRegStr $earlierFolder HKLM "${UNINSTALL_KEY}" InstallLocation
  ${If} $earlierFolder == ""
    StrCpy $earlierFolder $INSTDIR
  ${EndIf}
!macroend

; Sets $isSameFolder to 1 if FOLDER is $INSTDIR, else to 0. A folder can have several path spellings, so a file is created
; in one and looked for in the other.
!macro AskIfSameFolder FOLDER
  StrCpy $isSameFolder 0
  GetTempFileName $R1 "$INSTDIR"
  ${GetFileName} "$R1" $R2
  ${If} ${FileExists} "${FOLDER}\$R2"
    StrCpy $isSameFolder 1
  ${EndIf}
  Delete "$R1"
!macroend

; Removes the files that the installer and the program put into that folder, by name. A folder that contains anything else
; is kept with it. The folder itself is removed last, so if it is gone, everything is.
!macro RemoveFiles FOLDER
  Delete "${FOLDER}\tarvik.exe"
  Delete "${FOLDER}\tarvik.dat"
  Delete "${FOLDER}\README.txt"
  Delete "${FOLDER}\CHANGELOG.txt"
  Delete "${FOLDER}\LICENSE.txt"
  Delete "${FOLDER}\third-party-notices.txt"
  Delete "${FOLDER}\guide\guide-*.html"
  Delete "${FOLDER}\guide\guide.css"
  Delete "${FOLDER}\guide\images\*.png"
  RMDir "${FOLDER}\guide\images"
  RMDir "${FOLDER}\guide"
  ; An uninstaller that the user started continues as a copy, and its original file is locked until it has ended: retry for
  ; ten seconds.
  ${For} $R0 1 100
    Delete "${FOLDER}\uninstall.exe"
    ${IfNot} ${FileExists} "${FOLDER}\uninstall.exe"
      ${ExitFor}
    ${EndIf}
    Sleep 100
  ${Next}
  RMDir "${FOLDER}"
!macroend

; Waits until the program in that folder is closed; its file cannot be written while it runs. In silent mode, or if the
; user cancels, the section is aborted.
!macro WaitUntilClosed FOLDER
  ${Do}
    ${IfNot} ${FileExists} "${FOLDER}\tarvik.exe"
      ${ExitDo}
    ${EndIf}
    SetFileAttributes "${FOLDER}\tarvik.exe" NORMAL
    ClearErrors
    FileOpen $R0 "${FOLDER}\tarvik.exe" a
    ${IfNot} ${Errors}
      FileClose $R0
      ${ExitDo}
    ${EndIf}
    ${If} ${Cmd} `MessageBox MB_RETRYCANCEL|MB_ICONEXCLAMATION "$(CloseFirst)" /SD IDCANCEL IDCANCEL`
      SetErrorLevel 2
      Abort
    ${EndIf}
  ${Loop}
!macroend

; Grants ordinary users rights on one object, in addition to inherited ones, and on no child objects.
!macro GrantUsers NAME KIND RIGHTS
  StrCpy $0 1
  System::Call 'advapi32::ConvertStringSecurityDescriptorToSecurityDescriptorW(w "${RIGHTS}", i 1, *p 0 r1, p 0) i .r2'
  ${If} $2 <> 0
    System::Call 'advapi32::GetSecurityDescriptorDacl(p r1, *i .r2, *p 0 r3, *i .r4) i .r5'
    ${If} $5 <> 0
    ${AndIf} $2 <> 0
      System::Call 'advapi32::SetNamedSecurityInfoW(w "${NAME}", i ${KIND}, i ${CHANGE_RIGHTS}, p 0, p 0, p r3, p 0) i .r0'
    ${EndIf}
    System::Call 'kernel32::LocalFree(p r1)'
  ${EndIf}
  ${If} $0 <> 0
    DetailPrint "$(RightsFailed)"
    MessageBox MB_OK|MB_ICONEXCLAMATION "$(RightsFailed)" /SD IDOK
  ${EndIf}
!macroend

; Converts the program's language code in $R1 to $LANGUAGE; sets the error flag if it is none of the three.
Function ChooseLanguage
  ClearErrors
  ${If} $R1 == "ENG"
    StrCpy $LANGUAGE ${LANG_ENGLISH}
  ${ElseIf} $R1 == "CHS"
    StrCpy $LANGUAGE ${LANG_SIMPCHINESE}
  ${ElseIf} $R1 == "CHT"
    StrCpy $LANGUAGE ${LANG_TRADCHINESE}
  ${Else}
    SetErrors
  ${EndIf}
FunctionEnd

Function .onInit
  SetRegView 64
  SetShellVarContext all
  ; Do not install to an earlier folder that no longer exists, perhaps because its drive is missing.
  ReadRegStr $R1 HKLM "${UNINSTALL_KEY}" InstallLocation
  ${If} $R1 == $INSTDIR
  ${AndIfNot} ${FileExists} "$INSTDIR\*.*"
    StrCpy $INSTDIR "${USUAL_FOLDER}"
  ${EndIf}
  ${GetParameters} $R0
  ClearErrors
  ${GetOptions} $R0 "/LANGUAGE=" $R1
  ${IfNot} ${Errors}
    Call ChooseLanguage
    ${If} ${Errors}
      MessageBox MB_OK|MB_ICONSTOP "/LANGUAGE=ENG, CHS, CHT" /SD IDOK
      SetErrorLevel 2
      Quit
    ${EndIf}
    Return
  ${EndIf}

  ; The language of an earlier installation is kept in silent mode, or preselected.
  ReadRegStr $R1 HKLM "${LANGUAGE_KEY}" Language
  Call ChooseLanguage
  ${If} ${Errors}
    StrCpy $LANGUAGE ${LANG_ENGLISH}
  ${EndIf}
  ${IfNot} ${Silent}
    !insertmacro MUI_LANGDLL_DISPLAY
  ${EndIf}
FunctionEnd

; The installer runs elevated, and the program must not. explorer.exe hands the program to the user's desktop, which starts
; it without elevation.
Function StartProgram
  Exec '"$WINDIR\explorer.exe" "$INSTDIR\tarvik.exe"'
FunctionEnd

; Removes the earlier installation if it is in another folder.
Function RemoveEarlier
  ${If} ${FileExists} "$earlierFolder\tarvik.exe"
    !insertmacro AskIfSameFolder "$earlierFolder"
    ${If} $isSameFolder = 0
      !insertmacro RemoveFiles "$earlierFolder"
    ${EndIf}
  ${EndIf}
FunctionEnd

Section
  !insertmacro FindEarlier
  !insertmacro WaitUntilClosed "$INSTDIR"
  !insertmacro WaitUntilClosed "$earlierFolder"
  SetOutPath "$INSTDIR"
  SetOverwrite try
  ClearErrors
  File "${FILES}/tarvik.exe"
  File "${FILES}/README.txt"
  File "${FILES}/CHANGELOG.txt"
  File "${FILES}/LICENSE.txt"
  File "${FILES}/third-party-notices.txt"
  SetOutPath "$INSTDIR\guide"
  File "${FILES}/guide/*.*"
  SetOutPath "$INSTDIR\guide\images"
  File "${FILES}/guide/images/*.*"
  SetOutPath "$INSTDIR"
  ${If} ${Errors}
    MessageBox MB_OK|MB_ICONSTOP "$(CopyFailed)" /SD IDOK
    SetErrorLevel 2
    Abort
  ${EndIf}

  ; The settings of an earlier installation are kept.
  ${If} ${FileExists} "$earlierFolder\tarvik.dat"
  ${AndIfNot} ${FileExists} "$INSTDIR\tarvik.dat"
    CopyFiles /SILENT "$earlierFolder\tarvik.dat" "$INSTDIR\tarvik.dat"
  ${EndIf}
  ${IfNot} ${FileExists} "$INSTDIR\tarvik.dat"
    FileOpen $R2 "$INSTDIR\tarvik.dat" w
    FileClose $R2
  ${EndIf}
  !insertmacro GrantUsers "$INSTDIR\tarvik.dat" ${FILE_OBJECT} "${FILE_RIGHTS}"

  StrCpy $languageCode ENG
  ${If} $LANGUAGE = ${LANG_SIMPCHINESE}
    StrCpy $languageCode CHS
  ${ElseIf} $LANGUAGE = ${LANG_TRADCHINESE}
    StrCpy $languageCode CHT
  ${EndIf}
  WriteRegStr HKLM "${LANGUAGE_KEY}" Language $languageCode
  !insertmacro GrantUsers "MACHINE\${LANGUAGE_KEY}" ${REGISTRY_KEY} "${KEY_RIGHTS}"

  CreateShortCut "${SHORTCUT}" "$INSTDIR\tarvik.exe"

  Call RemoveEarlier
  WriteUninstaller "$INSTDIR\uninstall.exe"
  WriteRegStr HKLM "${UNINSTALL_KEY}" DisplayName "${PRODUCT}"
  WriteRegStr HKLM "${UNINSTALL_KEY}" DisplayVersion "${VERSION}"
  WriteRegStr HKLM "${UNINSTALL_KEY}" DisplayIcon "$INSTDIR\tarvik.exe"
  WriteRegStr HKLM "${UNINSTALL_KEY}" Publisher "The Brindle Tarvik developers"
  WriteRegStr HKLM "${UNINSTALL_KEY}" InstallLocation "$INSTDIR"
  WriteRegStr HKLM "${UNINSTALL_KEY}" InstallerLanguage $LANGUAGE
  WriteRegStr HKLM "${UNINSTALL_KEY}" UninstallString '"$INSTDIR\uninstall.exe"'
  WriteRegStr HKLM "${UNINSTALL_KEY}" QuietUninstallString '"$INSTDIR\uninstall.exe" /S'
  WriteRegStr HKLM "${UNINSTALL_KEY}" HelpLink "$INSTDIR\guide\guide-$languageCode.html"
!ifdef PAGE
  WriteRegStr HKLM "${UNINSTALL_KEY}" URLInfoAbout "${PAGE}"
!endif
  WriteRegDWORD HKLM "${UNINSTALL_KEY}" NoModify 1
  WriteRegDWORD HKLM "${UNINSTALL_KEY}" NoRepair 1
  ${GetSize} "$INSTDIR" "/S=0K" $R4 $R5 $R6
  WriteRegDWORD HKLM "${UNINSTALL_KEY}" EstimatedSize $R4
SectionEnd

Function un.onInit
  SetRegView 64
  SetShellVarContext all
  ReadRegStr $R0 HKLM "${UNINSTALL_KEY}" InstallerLanguage
  ${If} $R0 != ""
    StrCpy $LANGUAGE $R0
  ${EndIf}
FunctionEnd

; The entries of an installation in another folder are kept: this one is then an unregistered copy.
Section Uninstall
  !insertmacro WaitUntilClosed "$INSTDIR"
  !insertmacro FindEarlier
  !insertmacro AskIfSameFolder "$earlierFolder"
  ${If} $isSameFolder = 1
  ${OrIfNot} ${FileExists} "$earlierFolder\uninstall.exe"
    Delete "${SHORTCUT}"
    DeleteRegValue HKLM "${LANGUAGE_KEY}" Language
    DeleteRegKey /ifempty HKLM "${LANGUAGE_KEY}"
    DeleteRegKey /ifempty HKLM "Software\Vornhold\Brindle Tarvik"
    DeleteRegKey /ifempty HKLM "Software\Vornhold"
    DeleteRegKey HKLM "${UNINSTALL_KEY}"
  ${EndIf}
  !insertmacro RemoveFiles "$INSTDIR"
SectionEnd
