; SPDX-License-Identifier: GPL-3.0-or-later
; The installer for Windows: for one user, without an administrator. Silent with /S; the folder with
; /D=... as the last word. Made by build-packages, which defines VERSION, FOLDER, SOLUTIONS and OUT.
Target amd64-unicode
Unicode true
SetCompressor /SOLID lzma
!include MUI2.nsh

Name "Tavorno ${VERSION}"
OutFile "${OUT}"
RequestExecutionLevel user
InstallDir "$LOCALAPPDATA\Programs\Tavorno"
InstallDirRegKey HKCU "Software\Tavorno" "Folder"
ManifestDPIAware true

!define UNINSTALL "Software\Microsoft\Windows\CurrentVersion\Uninstall\Tavorno"
!define TYPE "Tavorno.Progetto"
!define MUI_ICON "${ICON}"
!define MUI_UNICON "${ICON}"
!define MUI_FINISHPAGE_RUN "$INSTDIR\tavorno.exe"
!insertmacro MUI_PAGE_WELCOME
!insertmacro MUI_PAGE_COMPONENTS
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_PAGE_FINISH
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE "Italian"

Section "Programma, guida ed esempi"
  SectionIn RO
  SetOutPath "$INSTDIR"
  ; Pages and examples of an earlier version that this one does not have any more.
  RMDir /r "$INSTDIR\HTML"
  RMDir /r "$INSTDIR\examples"
  RMDir /r "$INSTDIR\licences"
  File /r "${FOLDER}/*"
  WriteUninstaller "$INSTDIR\disinstalla.exe"
  CreateShortcut "$SMPROGRAMS\Tavorno.lnk" "$INSTDIR\tavorno.exe"

  WriteRegStr HKCU "Software\Tavorno" "Folder" "$INSTDIR"
  WriteRegStr HKCU "Software\Classes\${TYPE}" "" "Progetto AWL"
  WriteRegStr HKCU "Software\Classes\${TYPE}\DefaultIcon" "" "$INSTDIR\tavorno.exe,0"
  WriteRegStr HKCU "Software\Classes\${TYPE}\shell\open\command" "" '"$INSTDIR\tavorno.exe" "%1"'
  ; What another program has taken stays its own; ours is offered beside it.
  WriteRegStr HKCU "Software\Classes\.awl\OpenWithProgids" "${TYPE}" ""
  ReadRegStr $0 HKCU "Software\Classes\.awl" ""
  StrCmp $0 "" 0 +2
    WriteRegStr HKCU "Software\Classes\.awl" "" "${TYPE}"
  System::Call 'shell32::SHChangeNotify(i 0x08000000, i 0, p 0, p 0)'

  WriteRegStr HKCU "${UNINSTALL}" "DisplayName" "Tavorno"
  WriteRegStr HKCU "${UNINSTALL}" "DisplayVersion" "${VERSION}"
  WriteRegStr HKCU "${UNINSTALL}" "DisplayIcon" "$INSTDIR\tavorno.exe"
  WriteRegStr HKCU "${UNINSTALL}" "UninstallString" '"$INSTDIR\disinstalla.exe"'
  WriteRegStr HKCU "${UNINSTALL}" "QuietUninstallString" '"$INSTDIR\disinstalla.exe" /S'
  WriteRegDWORD HKCU "${UNINSTALL}" "NoModify" 1
  WriteRegDWORD HKCU "${UNINSTALL}" "NoRepair" 1
SectionEnd

Section /o "Progetti risolti (per il docente)"
  SetOutPath "$INSTDIR\solutions"
  File "${SOLUTIONS}/*"
SectionEnd

Section "Uninstall"
  ; Only what was installed: a student may keep projects in the same folder.
  Delete "$INSTDIR\tavorno.exe"
  Delete "$INSTDIR\tavorno-banco.exe"
  Delete "$INSTDIR\LEGGIMI.txt"
  RMDir /r "$INSTDIR\HTML"
  RMDir /r "$INSTDIR\examples"
  RMDir /r "$INSTDIR\licences"
  RMDir /r "$INSTDIR\solutions"
  Delete "$INSTDIR\disinstalla.exe"
  RMDir "$INSTDIR"
  Delete "$SMPROGRAMS\Tavorno.lnk"
  ReadRegStr $0 HKCU "Software\Classes\.awl" ""
  StrCmp $0 "${TYPE}" 0 +2
    DeleteRegValue HKCU "Software\Classes\.awl" ""
  DeleteRegValue HKCU "Software\Classes\.awl\OpenWithProgids" "${TYPE}"
  DeleteRegKey /ifempty HKCU "Software\Classes\.awl\OpenWithProgids"
  DeleteRegKey /ifempty HKCU "Software\Classes\.awl"
  DeleteRegKey HKCU "Software\Classes\${TYPE}"
  DeleteRegKey HKCU "Software\Tavorno"
  DeleteRegKey HKCU "${UNINSTALL}"
  System::Call 'shell32::SHChangeNotify(i 0x08000000, i 0, p 0, p 0)'
SectionEnd
