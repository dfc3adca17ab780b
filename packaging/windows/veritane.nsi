; The installer: makensis -DARCHITECTURE=x86_64|i686 -DVERSION=1.0.0 -DBUILD=<build folder> -DOUTPUT=<file> veritane.nsi
; Puts the programs into the program folder and lays out the data folder, which the uninstaller leaves as it is. /S asks
; nothing; /D=folder chooses the program folder.
!include MUI2.nsh
!include FileFunc.nsh
!include LogicLib.nsh

!if ${ARCHITECTURE} == x86_64
  Target amd64-unicode
  InstallDir "$PROGRAMFILES64\Kestrova\Veritane"
!else
  Target x86-unicode
  InstallDir "$PROGRAMFILES32\Kestrova\Veritane"
!endif

Name "Veritane ${VERSION}"
OutFile "${OUTPUT}"
RequestExecutionLevel admin
SetCompressor /SOLID lzma
ManifestDPIAware true
VIProductVersion "${VERSION}.0"
VIAddVersionKey ProductName "Veritane"
VIAddVersionKey ProductVersion "${VERSION}"
VIAddVersionKey FileVersion "${VERSION}"
VIAddVersionKey FileDescription "Veritane set-up"
VIAddVersionKey LegalCopyright "Licensed under the Apache License 2.0"

!define UNINSTALL_KEY "Software\Microsoft\Windows\CurrentVersion\Uninstall\Veritane"
!define MENU "$SMPROGRAMS\Veritane"

!define MUI_ICON "${BUILD}/veritane.ico"
!define MUI_ABORTWARNING
!insertmacro MUI_PAGE_WELCOME
!insertmacro MUI_PAGE_LICENSE "../../LICENSE"
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_PAGE_FINISH
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE "English"

!macro UseOwnView
  SetShellVarContext all
  !if ${ARCHITECTURE} == x86_64
    SetRegView 64
  !endif
!macroend

Function .onInit
  !insertmacro UseOwnView
FunctionEnd

Function un.onInit
  !insertmacro UseOwnView
FunctionEnd

; $0 becomes 1 when the prediction library beside the programs holds the same bytes as the copy of the one that was
; installed, else 0: then a laboratory has put its own there.
!macro IsShippedLibrary UN
Function ${UN}IsShippedLibrary
  StrCpy $0 0
  ClearErrors
  FileOpen $1 "$INSTDIR\PLSIQP32.DLL" r
  FileOpen $2 "$INSTDIR\shipped\PLSIQP32.DLL" r
  ${IfNot} ${Errors}
    FileSeek $1 0 END $3
    FileSeek $2 0 END $4
    ${If} $3 = $4
      FileSeek $1 0 SET
      FileSeek $2 0 SET
      System::Alloc $3
      Pop $5
      System::Alloc $3
      Pop $6
      System::Call 'kernel32::ReadFile(p r1, p r5, i r3, *i .r7, p 0) i .r9'
      System::Call 'kernel32::ReadFile(p r2, p r6, i r3, *i .r8, p 0) i .r9'
      ${If} $7 = $3
      ${AndIf} $8 = $3
        System::Call 'ntdll::RtlCompareMemory(p r5, p r6, p r3) p .r9'
        ${If} $9 = $3
          StrCpy $0 1
        ${EndIf}
      ${EndIf}
      System::Free $5
      System::Free $6
    ${EndIf}
  ${EndIf}
  FileClose $1
  FileClose $2
FunctionEnd
!macroend
!insertmacro IsShippedLibrary ""
!insertmacro IsShippedLibrary "un."

Section "Veritane"
  SetOutPath "$INSTDIR"
  File "${BUILD}/bin/veritane.exe"
  File "${BUILD}/bin/veritane-console.exe"
  File "${BUILD}/bin/veritane-setup.exe"
  File "${BUILD}/bin/veritane-calibrate.exe"
  File "${BUILD}/bin/veritane-predict.exe"
  File "${BUILD}/bin/simulator-panel.exe"
  File "${BUILD}/bin/spectrometer-simulator.exe"
  File "/oname=LICENSE.txt" "../../LICENSE"
  ; A prediction library that the laboratory has put in the place of ours stays, now and when the program is removed. Ours lies
  ; in a folder of its own as well: to tell the two apart, and to go back to.
  Call IsShippedLibrary
  ${If} $0 = 1
  ${OrIfNot} ${FileExists} "$INSTDIR\PLSIQP32.DLL"
    File "${BUILD}/bin/PLSIQP32.DLL"
  ${EndIf}
  SetOutPath "$INSTDIR\shipped"
  File "${BUILD}/bin/PLSIQP32.DLL"
  SetOutPath "$INSTDIR"
  ; Users may not write beside the programs: what these write there, they write into the data folder.
  FileOpen $0 "$INSTDIR\program_folder" w
  FileWrite $0 "$APPDATA\Kestrova\Veritane$\r$\n"
  FileClose $0
  WriteUninstaller "$INSTDIR\uninstall.exe"

  CreateDirectory "${MENU}"
  CreateShortCut "${MENU}\Veritane.lnk" "$INSTDIR\veritane.exe"
  CreateShortCut "${MENU}\Veritane with a simulated spectrometer.lnk" "$INSTDIR\veritane.exe" "--instrument simulated"
  CreateShortCut "${MENU}\Sample compartment of the simulated spectrometer.lnk" "$INSTDIR\simulator-panel.exe"
  CreateShortCut "${MENU}\Remove Veritane.lnk" "$INSTDIR\uninstall.exe"

  WriteRegStr HKLM "${UNINSTALL_KEY}" "DisplayName" "Veritane"
  WriteRegStr HKLM "${UNINSTALL_KEY}" "DisplayVersion" "${VERSION}"
  WriteRegStr HKLM "${UNINSTALL_KEY}" "Publisher" "Kestrova"
  WriteRegStr HKLM "${UNINSTALL_KEY}" "InstallLocation" "$INSTDIR"
  WriteRegStr HKLM "${UNINSTALL_KEY}" "UninstallString" '"$INSTDIR\uninstall.exe"'
  WriteRegStr HKLM "${UNINSTALL_KEY}" "QuietUninstallString" '"$INSTDIR\uninstall.exe" /S'
  WriteRegDWORD HKLM "${UNINSTALL_KEY}" "NoModify" 1
  WriteRegDWORD HKLM "${UNINSTALL_KEY}" "NoRepair" 1
  ${GetSize} "$INSTDIR" "/S=0K" $0 $1 $2
  WriteRegDWORD HKLM "${UNINSTALL_KEY}" "EstimatedSize" $0

  ; The data folder: tables, methods, Standards. What is there already stays as it is.
  DetailPrint "Laying out the data folder"
  nsExec::ExecToLog '"$INSTDIR\veritane-setup.exe"'
  Pop $0
  ${If} $0 != 0
    DetailPrint "The data folder could not be laid out ($0)."
    SetErrorLevel 3
    Abort
  ${EndIf}
  ; Whoever works at the instrument writes there, whoever installed it. S-1-5-32-545 are the users, in every language.
  nsExec::ExecToLog 'icacls "$APPDATA\Kestrova\Veritane" /grant *S-1-5-32-545:(OI)(CI)M /T /Q'
  Pop $0
  ${If} $0 != 0
    DetailPrint "The users were not given the right to write into the data folder ($0)."
    SetErrorLevel 4
    MessageBox MB_OK|MB_ICONEXCLAMATION "Veritane is installed, but its users were not given the right to write into the data \
folder (icacls: $0). Give it to them before they work with it:$\r$\n$APPDATA\Kestrova\Veritane" /SD IDOK
  ${EndIf}
SectionEnd

Section "Uninstall"
  ; The simulated spectrometer may have been registered in place of a real one.
  nsExec::ExecToLog '"$INSTDIR\spectrometer-simulator.exe" /unregserver'
  Pop $0
  Delete "$INSTDIR\veritane.exe"
  Delete "$INSTDIR\veritane-console.exe"
  Delete "$INSTDIR\veritane-setup.exe"
  Delete "$INSTDIR\veritane-calibrate.exe"
  Delete "$INSTDIR\veritane-predict.exe"
  Delete "$INSTDIR\simulator-panel.exe"
  Delete "$INSTDIR\spectrometer-simulator.exe"
  Call un.IsShippedLibrary
  ${If} $0 = 1
    Delete "$INSTDIR\PLSIQP32.DLL"
  ${EndIf}
  Delete "$INSTDIR\shipped\PLSIQP32.DLL"
  RMDir "$INSTDIR\shipped"
  Delete "$INSTDIR\LICENSE.txt"
  Delete "$INSTDIR\program_folder"
  Delete "$INSTDIR\uninstall.exe"
  ; Only when nothing else lies there.
  RMDir "$INSTDIR"
  RMDir "$INSTDIR\.."

  Delete "${MENU}\Veritane.lnk"
  Delete "${MENU}\Veritane with a simulated spectrometer.lnk"
  Delete "${MENU}\Sample compartment of the simulated spectrometer.lnk"
  Delete "${MENU}\Remove Veritane.lnk"
  RMDir "${MENU}"
  DeleteRegKey HKLM "${UNINSTALL_KEY}"
SectionEnd
