; The installer for one user: no administrator is asked for. STAGE is the folder with all files, FILES the list of them, programs
; first. The uninstaller removes what was installed and nothing else: record books stay wherever they are. Both change nothing
; while a program or library of theirs is in use, and end with 2 where they did not do all.
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

; Without a button that passes over a file which cannot be written.
AllowSkipFiles off

; What FILES has, in two uses: "PackedProgram FILE", "PackedFile FILE" and "PackedFolder FOLDER".
!macro CheckProgram name
  StrCpy $0 "${name}"
  Call ${SIDE}RefuseWhileInUse
!macroend
!macro CheckFile name
!macroend
!macro CheckFolder name
!macroend
!macro RemoveProgram name
  Delete "$INSTDIR\${name}"
!macroend
!macro RemoveFile name
  Delete "$INSTDIR\${name}"
!macroend
!macro RemoveFolder name
  RMDir "$INSTDIR\${name}"
!macroend
!macro CheckThatNoneIsInUse prefix
  !define SIDE "${prefix}"
  !define USE Check
  !include "${FILES}"
  !undef USE
  !undef SIDE
!macroend

!macro Stop text
  MessageBox MB_OK|MB_ICONEXCLAMATION "${text}" /SD IDOK
  SetErrorLevel 2
  Quit
!macroend

; Ends this where the file $0 is there and cannot be written: that of a program that runs cannot be.
!macro RefuseWhileInUse prefix
Function ${prefix}RefuseWhileInUse
  ${If} ${FileExists} "$INSTDIR\$0"
    again:
    ClearErrors
    FileOpen $1 "$INSTDIR\$0" a
    ${If} ${Errors}
      MessageBox MB_RETRYCANCEL|MB_ICONEXCLAMATION "$0 is in use. Close Tallywick and press Retry." /SD IDCANCEL IDRETRY again
      SetErrorLevel 2
      Quit
    ${EndIf}
    FileClose $1
  ${EndIf}
FunctionEnd
!macroend
!insertmacro RefuseWhileInUse ""
!insertmacro RefuseWhileInUse "un."

Section
  !insertmacro CheckThatNoneIsInUse ""
  ; An earlier version takes its own files away.
  ${If} ${FileExists} "$INSTDIR\uninstall.exe"
    ExecWait '"$INSTDIR\uninstall.exe" /S _?=$INSTDIR' $0
    ${If} $0 <> 0
      !insertmacro Stop "The earlier version cannot be removed. Close Tallywick and start this again."
    ${EndIf}
  ${EndIf}
  SetOutPath "$INSTDIR"
  ClearErrors
  File /r "${STAGE}/*"
  WriteUninstaller "$INSTDIR\uninstall.exe"
  ${If} ${Errors}
    !insertmacro Stop "Not all files could be written. Make room on the disk and start this again."
  ${EndIf}
  CreateShortcut "$SMPROGRAMS\Tallywick.lnk" "$INSTDIR\tallywick.exe"
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
  !insertmacro CheckThatNoneIsInUse "un."
  SetOutPath "$TEMP"
  ClearErrors
  !define USE Remove
  !include "${FILES}"
  !undef USE
  ${If} ${Errors}
    !insertmacro Stop "Some files in $INSTDIR are in use. Close them and start this again."
  ${EndIf}
  Delete "$SMPROGRAMS\Tallywick.lnk"
  Delete "$INSTDIR\uninstall.exe"
  RMDir "$INSTDIR"
  DeleteRegKey HKCU "${UNINSTALL}"
SectionEnd
