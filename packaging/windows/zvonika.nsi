; The installer: for the user who starts it, without the rights of an administrator. packaging/windows/make calls it with
; VERSION, FOLDER (what is to be installed), LISTS (install.nsh, uninstall.nsh: every file of it), ICON, OUTPUT and SIZE (KB).
Target amd64-unicode
SetCompressor /SOLID lzma
RequestExecutionLevel user
ManifestDPIAware true
Name "Zvonika"
OutFile "${OUTPUT}"
InstallDir "$LOCALAPPDATA\Programs\Zvonika"
InstallDirRegKey HKCU "Software\Zvonika" "Folder"
VIProductVersion "${VERSION}.0"
VIAddVersionKey /LANG=1029 ProductName "Zvonika"
VIAddVersionKey /LANG=1029 FileDescription "Instalace programu Zvonika"
VIAddVersionKey /LANG=1029 FileVersion "${VERSION}"
VIAddVersionKey /LANG=1029 LegalCopyright "GPL-3.0-or-later"

!include MUI2.nsh
!include LogicLib.nsh
!include WinVer.nsh

!define MUI_ICON "${ICON}"
!define MUI_UNICON "${ICON}"
!define MUI_FINISHPAGE_RUN "$INSTDIR\zvonika.exe"
!insertmacro MUI_PAGE_WELCOME
!insertmacro MUI_PAGE_LICENSE "${FOLDER}/GPL-3.txt"
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_PAGE_FINISH
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE "Czech"

!define UNINSTALL_KEY "Software\Microsoft\Windows\CurrentVersion\Uninstall\Zvonika"

; A program that runs cannot be replaced, and half of it would be the new one.
!macro RefuseWhileItRuns
  ${If} ${FileExists} "$INSTDIR\zvonika.exe"
    ClearErrors
    FileOpen $0 "$INSTDIR\zvonika.exe" a
    ${If} ${Errors}
      MessageBox MB_OK|MB_ICONEXCLAMATION "Zvonika právě běží. Ukončete ji a spusťte to znovu." /SD IDOK
      SetErrorLevel 2
      Quit
    ${EndIf}
    FileClose $0
  ${EndIf}
!macroend

Function .onInit
  ${Unless} ${AtLeastWin10}
  ${OrUnless} ${AtLeastBuild} 17763
    MessageBox MB_OK|MB_ICONEXCLAMATION "Zvonika potřebuje Windows 10 verze 1809 nebo novější." /SD IDOK
    SetErrorLevel 2
    Quit
  ${EndUnless}
FunctionEnd

Section
  !insertmacro RefuseWhileItRuns
  ; What the version before has put here and this one has no more.
  ${If} ${FileExists} "$INSTDIR\odinstalovat.exe"
    ExecWait '"$INSTDIR\odinstalovat.exe" /S _?=$INSTDIR'
  ${EndIf}
  !include "${LISTS}/install.nsh"
  WriteUninstaller "$INSTDIR\odinstalovat.exe"
  SetOutPath "$INSTDIR" ; where the program starts from the menu
  CreateShortcut "$SMPROGRAMS\Zvonika.lnk" "$INSTDIR\zvonika.exe"
  WriteRegStr HKCU "Software\Zvonika" "Folder" "$INSTDIR"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "DisplayName" "Zvonika"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "DisplayVersion" "${VERSION}"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "DisplayIcon" "$INSTDIR\zvonika.exe"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "InstallLocation" "$INSTDIR"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "UninstallString" '"$INSTDIR\odinstalovat.exe"'
  WriteRegStr HKCU "${UNINSTALL_KEY}" "QuietUninstallString" '"$INSTDIR\odinstalovat.exe" /S'
  WriteRegDWORD HKCU "${UNINSTALL_KEY}" "EstimatedSize" ${SIZE}
  WriteRegDWORD HKCU "${UNINSTALL_KEY}" "NoModify" 1
  WriteRegDWORD HKCU "${UNINSTALL_KEY}" "NoRepair" 1
SectionEnd

; Songs, settings and the records of unsaved changes are the user's and stay, as does whatever else he has put here.
Section Uninstall
  !insertmacro RefuseWhileItRuns
  SetOutPath "$TEMP" ; a folder that is in use cannot go
  !include "${LISTS}/uninstall.nsh"
  Delete "$INSTDIR\odinstalovat.exe"
  RMDir "$INSTDIR"
  Delete "$SMPROGRAMS\Zvonika.lnk"
  DeleteRegKey HKCU "${UNINSTALL_KEY}"
  DeleteRegKey HKCU "Software\Zvonika"
SectionEnd
