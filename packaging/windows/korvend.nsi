; The installer of the Windows program: Hungarian, for one user, without an administrator's rights. epit gives VALTOZAT, MAPPA
; (what is installed), KI (the installer's name) and FAJLOK (the lists of what MAPPA holds).
; A 64-bit program as the one it installs: where this does not start, that would not either.
Target amd64-unicode
Unicode true
SetCompressor /SOLID lzma
RequestExecutionLevel user
ManifestDPIAware true

!include MUI2.nsh
!include FileFunc.nsh
!include LogicLib.nsh
!include "${FAJLOK}"

!define KULCS "Software\Microsoft\Windows\CurrentVersion\Uninstall\Korvend"
!define KVH "Software\Classes\.kvh"
!define KVH_NEV "Korvend.Keplet"
!define ELTAVOLITO "eltavolitas.exe"

Name "Korvend"
OutFile "${KI}"
InstallDir "$LOCALAPPDATA\Programs\Korvend"
InstallDirRegKey HKCU "${KULCS}" "InstallLocation"
BrandingText "Korvend ${VALTOZAT}"
VIProductVersion "${VALTOZAT}.0.0"
VIAddVersionKey /LANG=1038 "ProductName" "Korvend"
VIAddVersionKey /LANG=1038 "FileDescription" "A Korvend telepítője"
VIAddVersionKey /LANG=1038 "FileVersion" "${VALTOZAT}"
VIAddVersionKey /LANG=1038 "ProductVersion" "${VALTOZAT}"
VIAddVersionKey /LANG=1038 "LegalCopyright" "MIT"

!define MUI_ICON "${IKON}"
!define MUI_UNICON "${IKON}"
!define MUI_WELCOMEFINISHPAGE_BITMAP "${NSISDIR}\Contrib\Graphics\Wizard\nsis3-grey.bmp"
!define MUI_ABORTWARNING
!define MUI_WELCOMEPAGE_TITLE "A Korvend ${VALTOZAT} telepítése"
!define MUI_WELCOMEPAGE_TEXT "A Korvend születési és előrejelző horoszkópokat rajzol.$\r$\n$\r$\nA telepítéshez nem kell \
rendszergazda: a program csak az Ön felhasználójának települ. A képletfájlokat (.kvh) ezután kettős kattintás nyitja \
meg.$\r$\n$\r$\nHa a Korvend régebbi változata fut, előbb zárja be."
!define MUI_FINISHPAGE_TITLE "A Korvend települt"
!define MUI_FINISHPAGE_TEXT "A program a Start menüből indul."
!define MUI_FINISHPAGE_RUN
!define MUI_FINISHPAGE_RUN_FUNCTION Inditas
!define MUI_FINISHPAGE_RUN_TEXT "A Korvend indítása"
!define MUI_FINISHPAGE_SHOWREADME "$INSTDIR\doc\kezikonyv.html"
!define MUI_FINISHPAGE_SHOWREADME_TEXT "A kézikönyv megnyitása"
!define MUI_FINISHPAGE_SHOWREADME_NOTCHECKED

!insertmacro MUI_PAGE_WELCOME
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_PAGE_FINISH
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE "Hungarian"

; Exit code of a silent run.
!define FUT_A_PROGRAM 4

!macro Frissites
  System::Call 'shell32::SHChangeNotify(i 0x08000000, i 0, p 0, p 0)'
!macroend

; A program that runs holds its file: then nothing is touched.
!macro NeFusson un
Function ${un}NeFusson
  ${DoWhile} ${FileExists} "$INSTDIR\korvend.exe"
    ClearErrors
    FileOpen $0 "$INSTDIR\korvend.exe" a
    ${IfNot} ${Errors}
      FileClose $0
      Return
    ${EndIf}
    MessageBox MB_RETRYCANCEL|MB_ICONEXCLAMATION "A Korvend fut. Zárja be, azután folytassa." /SD IDCANCEL IDRETRY ujra
    SetErrorLevel ${FUT_A_PROGRAM}
    Quit
    ujra:
  ${Loop}
FunctionEnd
!macroend
!insertmacro NeFusson ""
!insertmacro NeFusson "un."

Function Inditas
  SetOutPath "$DOCUMENTS"
  Exec '"$INSTDIR\korvend.exe"'
FunctionEnd

Section "Korvend"
  Call NeFusson
  ; An older version goes first, as it may have files that this one has not; what the user set stays.
  ${If} ${FileExists} "$INSTDIR\${ELTAVOLITO}"
    ExecWait '"$INSTDIR\${ELTAVOLITO}" /S /FRISSITES _?=$INSTDIR'
  ${EndIf}

  !insertmacro Telepitendo
  SetOutPath "$INSTDIR"
  WriteUninstaller "$INSTDIR\${ELTAVOLITO}"

  ; Started from the menu the program works in the user's documents.
  SetOutPath "$DOCUMENTS"
  CreateDirectory "$SMPROGRAMS\Korvend"
  CreateShortCut "$SMPROGRAMS\Korvend\Korvend.lnk" "$INSTDIR\korvend.exe"
  CreateShortCut "$SMPROGRAMS\Korvend\Korvend kézikönyv.lnk" "$INSTDIR\doc\kezikonyv.html"
  SetOutPath "$INSTDIR"

  ; What opened these files before comes back when the program goes.
  ReadRegStr $0 HKCU "${KVH}" ""
  ${If} $0 != ""
  ${AndIf} $0 != "${KVH_NEV}"
    WriteRegStr HKCU "${KVH}" "Korvend.elozo" "$0"
  ${EndIf}
  WriteRegStr HKCU "${KVH}" "" "${KVH_NEV}"
  WriteRegStr HKCU "${KVH}\OpenWithProgids" "${KVH_NEV}" ""
  WriteRegStr HKCU "Software\Classes\${KVH_NEV}" "" "Korvend-képlet"
  WriteRegStr HKCU "Software\Classes\${KVH_NEV}\DefaultIcon" "" '"$INSTDIR\korvend.exe",1'
  WriteRegStr HKCU "Software\Classes\${KVH_NEV}\shell\open\command" "" '"$INSTDIR\korvend.exe" "%1"'
  !insertmacro Frissites

  WriteRegStr HKCU "${KULCS}" "DisplayName" "Korvend"
  WriteRegStr HKCU "${KULCS}" "DisplayVersion" "${VALTOZAT}"
  WriteRegStr HKCU "${KULCS}" "DisplayIcon" "$INSTDIR\korvend.exe"
  WriteRegStr HKCU "${KULCS}" "Publisher" "A Korvend szerzői"
  WriteRegStr HKCU "${KULCS}" "InstallLocation" "$INSTDIR"
  WriteRegStr HKCU "${KULCS}" "UninstallString" '"$INSTDIR\${ELTAVOLITO}"'
  WriteRegStr HKCU "${KULCS}" "QuietUninstallString" '"$INSTDIR\${ELTAVOLITO}" /S'
  WriteRegDWORD HKCU "${KULCS}" "NoModify" 1
  WriteRegDWORD HKCU "${KULCS}" "NoRepair" 1
  ${GetSize} "$INSTDIR" "/S=0K" $0 $1 $2
  IntFmt $0 "0x%08X" $0
  WriteRegDWORD HKCU "${KULCS}" "EstimatedSize" "$0"
SectionEnd

; Only what was installed is removed, by name: charts that somebody keeps in the program's folder stay, and so does then the
; folder.
Section "Uninstall"
  Call un.NeFusson
  !insertmacro Eltavolitando
  Delete "$INSTDIR\${ELTAVOLITO}"
  RMDir "$INSTDIR"
  ${GetParameters} $0
  ${GetOptions} $0 "/FRISSITES" $1
  ${If} ${Errors}
    Delete "$SMPROGRAMS\Korvend\Korvend.lnk"
    Delete "$SMPROGRAMS\Korvend\Korvend kézikönyv.lnk"
    RMDir "$SMPROGRAMS\Korvend"
    ReadRegStr $0 HKCU "${KVH}" ""
    ${If} $0 == "${KVH_NEV}"
      ReadRegStr $0 HKCU "${KVH}" "Korvend.elozo"
      ${If} $0 != ""
        WriteRegStr HKCU "${KVH}" "" "$0"
      ${Else}
        DeleteRegValue HKCU "${KVH}" ""
      ${EndIf}
    ${EndIf}
    DeleteRegValue HKCU "${KVH}" "Korvend.elozo"
    DeleteRegValue HKCU "${KVH}\OpenWithProgids" "${KVH_NEV}"
    DeleteRegKey /ifempty HKCU "${KVH}\OpenWithProgids"
    DeleteRegKey /ifempty HKCU "${KVH}"
    DeleteRegKey HKCU "Software\Classes\${KVH_NEV}"
    DeleteRegKey HKCU "${KULCS}"
    RMDir /r "$LOCALAPPDATA\Korvend"
    !insertmacro Frissites
  ${EndIf}
SectionEnd
