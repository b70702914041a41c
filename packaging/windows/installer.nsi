; The installer, for one user and without administrator rights. packaging/windows/build calls it:
;   makensis -DVERSION=… -DFOLDER=the folder to install -DFILES=removals.nsh -DICON=trovalis.ico -DKILOBYTES=… -DOUTPUT=…-setup.exe
; Programs and what they read lie in folders of their own, as on other systems, so that a user's files are never among them.
; /S asks and shows nothing, /D=C:\folder (last, without quotes) puts it elsewhere.
Unicode true
Target amd64-unicode
SetCompressor /SOLID lzma
!include MUI2.nsh

!define ENTRY "Software\Microsoft\Windows\CurrentVersion\Uninstall\Trovalis"

Name "Trovalis"
OutFile "${OUTPUT}"
RequestExecutionLevel user
InstallDir "$LOCALAPPDATA\Programs\Trovalis"
InstallDirRegKey HKCU "${ENTRY}" "InstallLocation"
ManifestDPIAware true
BrandingText "Trovalis ${VERSION}"
VIProductVersion "${VERSION}.0"
VIAddVersionKey "ProductName" "Trovalis"
VIAddVersionKey "ProductVersion" "${VERSION}"
VIAddVersionKey "FileVersion" "${VERSION}"
VIAddVersionKey "FileDescription" "Installazione di Trovalis"
VIAddVersionKey "LegalCopyright" "The Trovalis authors"

!define MUI_ICON "${ICON}"
!define MUI_UNICON "${ICON}"
!define MUI_ABORTWARNING
!define MUI_FINISHPAGE_RUN "$INSTDIR\bin\trovalis.exe"
!insertmacro MUI_PAGE_WELCOME
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_PAGE_FINISH
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE "Italian"

; A program that runs cannot be replaced: its file is open.
!macro StopWhereItRuns un
Function ${un}StopWhereItRuns
  again:
  ClearErrors
  IfFileExists "$INSTDIR\bin\trovalis.exe" 0 free
  FileOpen $0 "$INSTDIR\bin\trovalis.exe" a
  IfErrors 0 close
  MessageBox MB_RETRYCANCEL|MB_ICONEXCLAMATION "Trovalis è aperto: chiuderlo, poi riprovare." /SD IDCANCEL IDRETRY again
  SetErrorLevel 3
  Quit
  close:
  FileClose $0
  free:
FunctionEnd
!macroend
!insertmacro StopWhereItRuns ""
!insertmacro StopWhereItRuns "un."

; What an installation has put there, and nothing else that may lie in these folders.
!macro RemoveFiles
  !include "${FILES}"
!macroend

Section
  Call StopWhereItRuns
  SetOutPath "$INSTDIR\bin"
  File /r "${FOLDER}\bin\*"
  SetOutPath "$INSTDIR\share\trovalis"
  File "${FOLDER}\share\trovalis\*"
  SetOutPath "$INSTDIR\licenze"
  File /r "${FOLDER}\licenze\*"
  SetOutPath "$INSTDIR\bin"
  CreateShortcut "$SMPROGRAMS\Trovalis.lnk" "$INSTDIR\bin\trovalis.exe" "" "" "" SW_SHOWNORMAL "" "Liste canali dei ricevitori satellitari"
  WriteUninstaller "$INSTDIR\disinstalla.exe"
  WriteRegStr HKCU "${ENTRY}" "DisplayName" "Trovalis"
  WriteRegStr HKCU "${ENTRY}" "DisplayVersion" "${VERSION}"
  WriteRegStr HKCU "${ENTRY}" "Publisher" "Trovalis"
  WriteRegStr HKCU "${ENTRY}" "DisplayIcon" "$INSTDIR\bin\trovalis.exe"
  WriteRegStr HKCU "${ENTRY}" "InstallLocation" "$INSTDIR"
  WriteRegStr HKCU "${ENTRY}" "UninstallString" '"$INSTDIR\disinstalla.exe"'
  WriteRegStr HKCU "${ENTRY}" "QuietUninstallString" '"$INSTDIR\disinstalla.exe" /S'
  WriteRegDWORD HKCU "${ENTRY}" "EstimatedSize" ${KILOBYTES}
  WriteRegDWORD HKCU "${ENTRY}" "NoModify" 1
  WriteRegDWORD HKCU "${ENTRY}" "NoRepair" 1
SectionEnd

Section "Uninstall"
  Call un.StopWhereItRuns
  !insertmacro RemoveFiles
  Delete "$INSTDIR\disinstalla.exe"
  RMDir "$INSTDIR"
  Delete "$SMPROGRAMS\Trovalis.lnk"
  DeleteRegKey HKCU "${ENTRY}"
SectionEnd
