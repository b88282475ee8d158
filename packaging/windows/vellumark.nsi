; The installer for Windows: for one user, without an administrator.
; makensis -DVERSION=1.0.0 -DFILES=<folder to install> -DICON=<icon> -DOUTPUT=<installer> vellumark.nsi
;
; Silent with /S; /D=<folder>, last and without quotes, installs elsewhere. Exit codes: 0 done,
; 1 cancelled, 2 failed, 3 Vellumark is running.
Unicode true
Target amd64-unicode
ManifestSupportedOS Win10
ManifestDPIAware true
RequestExecutionLevel user
SetCompressor /SOLID lzma

!include MUI2.nsh
!include FileFunc.nsh

!define UNINSTALL_KEY "Software\Microsoft\Windows\CurrentVersion\Uninstall\Vellumark"
!define ARCHIVE_CLASS "Vellumark.Archive"
!define MENU_ENTRY "$SMPROGRAMS\Vellumark.lnk"
!define EXIT_RUNNING 3

Name "Vellumark"
OutFile "${OUTPUT}"
BrandingText "Vellumark ${VERSION}"
InstallDir "$LOCALAPPDATA\Programs\Vellumark"
; An update goes where the program is.
InstallDirRegKey HKCU "${UNINSTALL_KEY}" "InstallLocation"
SetOverwrite on
AllowSkipFiles off

VIProductVersion "${VERSION}.0"
VIAddVersionKey "ProductName" "Vellumark"
VIAddVersionKey "ProductVersion" "${VERSION}"
VIAddVersionKey "FileDescription" "Vellumark Setup"
VIAddVersionKey "FileVersion" "${VERSION}"
VIAddVersionKey "CompanyName" "The Vellumark authors"
VIAddVersionKey "LegalCopyright" "The Vellumark authors, MIT licence"

!define MUI_ICON "${ICON}"
!define MUI_UNICON "${ICON}"
!define MUI_ABORTWARNING
!define MUI_FINISHPAGE_RUN "$INSTDIR\vellumark.exe"
!define MUI_UNCONFIRMPAGE_TEXT_TOP "The program will be removed. What is yours stays in its folder: \
the preferences (manager.prf), the folders temp and rescued, and every *.bak. \
Your archives are not touched."
!define MUI_FINISHPAGE_NOREBOOTSUPPORT

!insertmacro MUI_PAGE_LICENSE "${FILES}/LICENSE.txt"
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_PAGE_FINISH
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE "English"

; A program that runs cannot be opened for writing.
!macro RefuseWhileRunning un
Function ${un}RefuseWhileRunning
  again:
  IfFileExists "$INSTDIR\vellumark.exe" 0 free
  ClearErrors
  FileOpen $0 "$INSTDIR\vellumark.exe" a
  IfErrors running
  FileClose $0
  free:
  Return
  running:
  MessageBox MB_RETRYCANCEL|MB_ICONEXCLAMATION \
    "Vellumark is running. Please close it, then choose Retry." /SD IDCANCEL IDRETRY again
  SetErrorLevel ${EXIT_RUNNING}
  Quit
FunctionEnd
!macroend
!insertmacro RefuseWhileRunning ""
!insertmacro RefuseWhileRunning "un."

Section
  Call RefuseWhileRunning
  SetOutPath "$INSTDIR"
  File /r "${FILES}/*"
  WriteUninstaller "$INSTDIR\uninstall.exe"

  CreateShortCut "${MENU_ENTRY}" "$INSTDIR\vellumark.exe"

  ; The program takes its command line as one path: the path stands there without quotes.
  WriteRegStr HKCU "Software\Classes\.vmk" "" "${ARCHIVE_CLASS}"
  WriteRegStr HKCU "Software\Classes\.vmk\OpenWithProgids" "${ARCHIVE_CLASS}" ""
  WriteRegStr HKCU "Software\Classes\${ARCHIVE_CLASS}" "" "Vellumark savegame archive"
  WriteRegStr HKCU "Software\Classes\${ARCHIVE_CLASS}\DefaultIcon" "" "$INSTDIR\vellumark.exe,0"
  WriteRegStr HKCU "Software\Classes\${ARCHIVE_CLASS}\shell\open\command" "" \
    '"$INSTDIR\vellumark.exe" %1'

  WriteRegStr HKCU "${UNINSTALL_KEY}" "DisplayName" "Vellumark"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "DisplayVersion" "${VERSION}"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "DisplayIcon" "$INSTDIR\vellumark.exe"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "Publisher" "The Vellumark authors"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "InstallLocation" "$INSTDIR"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "UninstallString" '"$INSTDIR\uninstall.exe"'
  WriteRegStr HKCU "${UNINSTALL_KEY}" "QuietUninstallString" '"$INSTDIR\uninstall.exe" /S'
  WriteRegDWORD HKCU "${UNINSTALL_KEY}" "NoModify" 1
  WriteRegDWORD HKCU "${UNINSTALL_KEY}" "NoRepair" 1
  ${GetSize} "$INSTDIR" "/S=0K /M=*.exe /G=0" $0 $1 $2
  WriteRegDWORD HKCU "${UNINSTALL_KEY}" "EstimatedSize" $0

  System::Call 'shell32::SHChangeNotify(i 0x08000000, i 0, p 0, p 0)'
SectionEnd

Section "Uninstall"
  Call un.RefuseWhileRunning
  ; Each file by its name: what else lies here is the player's.
  Delete "$INSTDIR\vellumark.exe"
  Delete "$INSTDIR\default_shot.jpg"
  Delete "$INSTDIR\help_savegame.txt"
  Delete "$INSTDIR\vellumark.png"
  Delete "$INSTDIR\LICENSE.txt"
  Delete "$INSTDIR\s1.wav"
  Delete "$INSTDIR\s2.wav"
  Delete "$INSTDIR\s3.wav"
  Delete "$INSTDIR\s4.wav"
  Delete "$INSTDIR\s5.wav"
  Delete "$INSTDIR\s6.wav"
  Delete "$INSTDIR\s7.wav"
  RMDir /r "$INSTDIR\licences"
  Delete "$INSTDIR\uninstall.exe"
  RMDir "$INSTDIR"

  Delete "${MENU_ENTRY}"
  DeleteRegKey HKCU "${UNINSTALL_KEY}"
  DeleteRegKey HKCU "Software\Classes\${ARCHIVE_CLASS}"
  DeleteRegValue HKCU "Software\Classes\.vmk\OpenWithProgids" "${ARCHIVE_CLASS}"
  DeleteRegKey /ifempty HKCU "Software\Classes\.vmk\OpenWithProgids"
  ; The ending may have got another program meanwhile.
  ReadRegStr $0 HKCU "Software\Classes\.vmk" ""
  StrCmp $0 "${ARCHIVE_CLASS}" 0 +2
  DeleteRegValue HKCU "Software\Classes\.vmk" ""
  DeleteRegKey /ifempty HKCU "Software\Classes\.vmk"
  System::Call 'shell32::SHChangeNotify(i 0x08000000, i 0, p 0, p 0)'

  IfFileExists "$INSTDIR\*.*" 0 done
  MessageBox MB_OK|MB_ICONINFORMATION \
    "Your preferences and whatever was set aside are still here:$\r$\n$\r$\n$INSTDIR" /SD IDOK
  done:
SectionEnd
