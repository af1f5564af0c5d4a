; The installer for one user: no administrator is asked for. STAGE is the folder with all files, REMOVALS the list of what the
; uninstaller removes, which is what was installed and nothing else: record books stay wherever they are.
Unicode true
Target amd64-unicode
SetCompressor /SOLID lzma
RequestExecutionLevel user
ManifestDPIAware true
ManifestLongPathAware true
ManifestSupportedOS Win10

!include MUI2.nsh
!define UNINSTALL "Software\Microsoft\Windows\CurrentVersion\Uninstall\Tallywick"

Name "Tallywick"
OutFile "${OUTPUT}"
InstallDir "$LOCALAPPDATA\Programs\Tallywick"
InstallDirRegKey HKCU "${UNINSTALL}" "InstallLocation"
BrandingText "Tallywick ${VERSION}"
VIProductVersion "${VERSION}.0"
VIAddVersionKey "ProductName" "Tallywick"
VIAddVersionKey "FileDescription" "Installs Tallywick"
VIAddVersionKey "FileVersion" "${VERSION}"
VIAddVersionKey "ProductVersion" "${VERSION}"
VIAddVersionKey "LegalCopyright" "GPL-3.0-or-later"

!define MUI_ICON "${ICON}"
!define MUI_UNICON "${ICON}"
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!define MUI_FINISHPAGE_RUN "$INSTDIR\tallywick.exe"
!insertmacro MUI_PAGE_FINISH
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE "English"

; A program that runs keeps its file from being replaced.
!macro RefuseWhileRunning
  ${If} ${FileExists} "$INSTDIR\tallywick.exe"
    ClearErrors
    FileOpen $0 "$INSTDIR\tallywick.exe" a
    ${If} ${Errors}
      MessageBox MB_OK|MB_ICONEXCLAMATION "Tallywick is running. Close it and start this again." /SD IDOK
      SetErrorLevel 2
      Quit
    ${EndIf}
    FileClose $0
  ${EndIf}
!macroend

Section
  !insertmacro RefuseWhileRunning
  ; An earlier version takes its own files away.
  ${If} ${FileExists} "$INSTDIR\uninstall.exe"
    ExecWait '"$INSTDIR\uninstall.exe" /S _?=$INSTDIR'
  ${EndIf}
  SetOutPath "$INSTDIR"
  File /r "${STAGE}/*"
  CreateShortcut "$SMPROGRAMS\Tallywick.lnk" "$INSTDIR\tallywick.exe"
  WriteUninstaller "$INSTDIR\uninstall.exe"
  WriteRegStr HKCU "${UNINSTALL}" "DisplayName" "Tallywick"
  WriteRegStr HKCU "${UNINSTALL}" "DisplayVersion" "${VERSION}"
  WriteRegStr HKCU "${UNINSTALL}" "DisplayIcon" "$INSTDIR\tallywick.exe"
  WriteRegStr HKCU "${UNINSTALL}" "Publisher" "The Tallywick developers"
  WriteRegStr HKCU "${UNINSTALL}" "InstallLocation" "$INSTDIR"
  WriteRegStr HKCU "${UNINSTALL}" "UninstallString" '"$INSTDIR\uninstall.exe"'
  WriteRegStr HKCU "${UNINSTALL}" "QuietUninstallString" '"$INSTDIR\uninstall.exe" /S'
  WriteRegDWORD HKCU "${UNINSTALL}" "EstimatedSize" ${KIBIBYTES}
  WriteRegDWORD HKCU "${UNINSTALL}" "NoModify" 1
  WriteRegDWORD HKCU "${UNINSTALL}" "NoRepair" 1
SectionEnd

Section Uninstall
  !insertmacro RefuseWhileRunning
  !include "${REMOVALS}"
  Delete "$SMPROGRAMS\Tallywick.lnk"
  Delete "$INSTDIR\uninstall.exe"
  SetOutPath "$TEMP"
  RMDir "$INSTDIR"
  DeleteRegKey HKCU "${UNINSTALL}"
SectionEnd
