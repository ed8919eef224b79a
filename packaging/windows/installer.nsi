; The installer: for the user who runs it alone, without administrator rights.
; Defined on the command line: FOLDER (what to install), OUTPUT (the installer).
Unicode true
Target amd64-unicode
SetCompressor /SOLID lzma
RequestExecutionLevel user

!include MUI2.nsh

!define UNINSTALL "Software\Microsoft\Windows\CurrentVersion\Uninstall\Tarnwick"

Name "Tarnwick 18.0"
OutFile "${OUTPUT}"
InstallDir "$LOCALAPPDATA\Programs\Tarnwick"
InstallDirRegKey HKCU "${UNINSTALL}" "InstallLocation"
BrandingText " "

!define MUI_ICON "${FOLDER}\tarnwick.ico"
!define MUI_UNICON "${FOLDER}\tarnwick.ico"
!define MUI_FINISHPAGE_RUN "$INSTDIR\tarnwick.exe"
!insertmacro MUI_PAGE_LICENSE "${FOLDER}\licences\Tarnwick.txt"
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_PAGE_FINISH
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE "English"

VIProductVersion 18.0.0.0
VIAddVersionKey /LANG=0 "ProductName" "Tarnwick"
VIAddVersionKey /LANG=0 "FileDescription" "Tarnwick installer"
VIAddVersionKey /LANG=0 "FileVersion" "18.0"
VIAddVersionKey /LANG=0 "LegalCopyright" "MIT licence"

Section
  SetOutPath "$INSTDIR"
  File /r "${FOLDER}\*"
  WriteUninstaller "$INSTDIR\uninstall.exe"
  CreateShortcut "$SMPROGRAMS\Tarnwick.lnk" "$INSTDIR\tarnwick.exe"
  WriteRegStr HKCU "${UNINSTALL}" "DisplayName" "Tarnwick 18.0"
  WriteRegStr HKCU "${UNINSTALL}" "DisplayVersion" "18.0"
  WriteRegStr HKCU "${UNINSTALL}" "Publisher" "Ostrel Systems"
  WriteRegStr HKCU "${UNINSTALL}" "DisplayIcon" "$INSTDIR\tarnwick.exe"
  WriteRegStr HKCU "${UNINSTALL}" "InstallLocation" "$INSTDIR"
  WriteRegStr HKCU "${UNINSTALL}" "UninstallString" '"$INSTDIR\uninstall.exe"'
  WriteRegStr HKCU "${UNINSTALL}" "QuietUninstallString" '"$INSTDIR\uninstall.exe" /S'
  WriteRegDWORD HKCU "${UNINSTALL}" "NoModify" 1
  WriteRegDWORD HKCU "${UNINSTALL}" "NoRepair" 1
SectionEnd

; What the user keeps, the saved state, stays.
Section Uninstall
  Delete "$INSTDIR\tarnwick.exe"
  Delete "$INSTDIR\tarnwick.ico"
  Delete "$INSTDIR\read-me.txt"
  Delete "$INSTDIR\uninstall.exe"
  RMDir /r "$INSTDIR\assets"
  RMDir /r "$INSTDIR\licences"
  RMDir "$INSTDIR"
  Delete "$SMPROGRAMS\Tarnwick.lnk"
  DeleteRegKey HKCU "${UNINSTALL}"
SectionEnd
