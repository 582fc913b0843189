# The installer for Windows, for one user and without an administrator. Given from outside: VERSIE, BESTANDEN
# (the list that maakInstaller.cmake makes), LICENTIE, ICOON, RAND and UIT, which is the installer itself.
#
#   setup.exe [/S] [/PATH] [/D=FOLDER]         /S asks nothing; /PATH adds kestrolin-cli to the search path
#   uninstall.exe [/S] [/SETTINGS]             /SETTINGS deletes the user's settings too
#
# Both end with 0 (done), 1 (cancelled), 2 (failed) or 3 (nothing was changed, since a program runs).
# The default stub has 32 bits: a system for 64 bits alone does not start it.
Target amd64-unicode
SetCompressor /SOLID lzma
ManifestDPIAware true
ManifestSupportedOS all
RequestExecutionLevel user

!include MUI2.nsh
!include LogicLib.nsh
!include FileFunc.nsh
!include Sections.nsh
!include "${BESTANDEN}"

!define SLEUTEL "Software\Microsoft\Windows\CurrentVersion\Uninstall\Kestrolin"
!define MENU "$SMPROGRAMS\Kestrolin"
!define HANDLEIDING "$INSTDIR\share\doc\kestrolin\html\manual.html"
!define LOOPT 3

Name "Kestrolin"
OutFile "${UIT}"
InstallDir "$LOCALAPPDATA\Programs\Kestrolin"
# A new version goes where the one before is.
InstallDirRegKey HKCU "${SLEUTEL}" "InstallLocation"
BrandingText "Kestrolin ${VERSIE}"
VIProductVersion "${VERSIE}.0"
VIAddVersionKey "ProductName" "Kestrolin"
VIAddVersionKey "ProductVersion" "${VERSIE}"
VIAddVersionKey "FileVersion" "${VERSIE}"
VIAddVersionKey "FileDescription" "Installs Kestrolin ${VERSIE}"
VIAddVersionKey "CompanyName" "The Kestrolin team"
VIAddVersionKey "LegalCopyright" "The Kestrolin team, MIT licence"

!define MUI_ICON "${ICOON}"
!define MUI_UNICON "${ICOON}"
!define MUI_ABORTWARNING
!define MUI_COMPONENTSPAGE_SMALLDESC
!define MUI_WELCOMEFINISHPAGE_BITMAP "${RAND}"
!define MUI_FINISHPAGE_RUN "$INSTDIR\bin\Kestrolin.exe"
!define MUI_FINISHPAGE_SHOWREADME "${HANDLEIDING}"
!define MUI_FINISHPAGE_SHOWREADME_TEXT "$(toonHandleiding)"
!define MUI_FINISHPAGE_SHOWREADME_NOTCHECKED
!insertmacro MUI_PAGE_LICENSE "${LICENTIE}"
!insertmacro MUI_PAGE_COMPONENTS
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_PAGE_FINISH
!insertmacro MUI_UNPAGE_COMPONENTS
!insertmacro MUI_UNPAGE_INSTFILES

# The first one is for users of any other language.
!insertmacro MUI_LANGUAGE "English"
!insertmacro MUI_LANGUAGE "Dutch"
!insertmacro MUI_LANGUAGE "German"
!insertmacro MUI_LANGUAGE "French"
!insertmacro MUI_LANGUAGE "Italian"
!insertmacro MUI_LANGUAGE "Spanish"
!include teksten.nsh
!include zoekpad.nsh

# Nobody can open a program that runs to write into it. $R2 becomes the name of such a one in $R0.
!macro KijkOfLoopt naam
  ${If} ${FileExists} "$R0\bin\${naam}"
    ClearErrors
    FileOpen $R1 "$R0\bin\${naam}" a
    ${If} ${Errors}
      StrCpy $R2 "${naam}"
    ${Else}
      FileClose $R1
    ${EndIf}
  ${EndIf}
!macroend

# Takes a folder from the stack, and goes on once no program of it runs.
!macro FunctieEindeNodig un
Function ${un}eindeNodig
  Exch $R0
  Push $R1
  Push $R2
opnieuw:
  StrCpy $R2 ""
  !insertmacro KijkOfLoopt "kestrolin-cli.exe"
  !insertmacro KijkOfLoopt "Kestrolin.exe"
  ${If} $R2 != ""
    ${IfNot} ${Silent}
    ${AndIf} ${Cmd} 'MessageBox MB_RETRYCANCEL|MB_ICONEXCLAMATION "$(loopt)" IDRETRY'
      Goto opnieuw
    ${EndIf}
    SetErrorLevel ${LOOPT}
    Quit
  ${EndIf}
  Pop $R2
  Pop $R1
  Pop $R0
FunctionEnd
!macroend
!insertmacro FunctieEindeNodig ""
!insertmacro FunctieEindeNodig "un."

# Takes the version away that the registry tells of, since its list of files is its own.
Function verwijderVorige
  ReadRegStr $R0 HKCU "${SLEUTEL}" "InstallLocation"
  ${If} $R0 == ""
  ${OrIfNot} ${FileExists} "$R0\uninstall.exe"
    Return
  ${EndIf}
  Push $R0
  Call eindeNodig
  ClearErrors
  # Without a copy of itself, so that it can be waited for; then it cannot delete itself.
  ExecWait '"$R0\uninstall.exe" /S _?=$R0' $R1
  ${If} ${Errors}
  ${OrIf} $R1 <> 0
    MessageBox MB_OK|MB_ICONSTOP "$(vorigeBlijft)" /SD IDOK
    SetErrorLevel 2
    Abort "$(vorigeBlijft)"
  ${EndIf}
  Delete "$R0\uninstall.exe"
  RMDir "$R0"
FunctionEnd

Section "Kestrolin" Programma
  SectionIn RO
  Push $INSTDIR
  Call eindeNodig
  Call verwijderVorige

  # First what takes away whatever comes: a full disk may end this halfway.
  SetOutPath "$INSTDIR"
  WriteUninstaller "$INSTDIR\uninstall.exe"
  SectionGetSize ${Programma} $0
  WriteRegStr HKCU "${SLEUTEL}" "DisplayName" "Kestrolin"
  WriteRegStr HKCU "${SLEUTEL}" "DisplayVersion" "${VERSIE}"
  WriteRegStr HKCU "${SLEUTEL}" "DisplayIcon" "$INSTDIR\bin\Kestrolin.exe"
  WriteRegStr HKCU "${SLEUTEL}" "Publisher" "The Kestrolin team"
  WriteRegStr HKCU "${SLEUTEL}" "URLInfoAbout" "https://kestrolin.example"
  WriteRegStr HKCU "${SLEUTEL}" "InstallLocation" "$INSTDIR"
  WriteRegStr HKCU "${SLEUTEL}" "UninstallString" '"$INSTDIR\uninstall.exe"'
  WriteRegStr HKCU "${SLEUTEL}" "QuietUninstallString" '"$INSTDIR\uninstall.exe" /S'
  WriteRegDWORD HKCU "${SLEUTEL}" "EstimatedSize" $0
  WriteRegDWORD HKCU "${SLEUTEL}" "NoModify" 1
  WriteRegDWORD HKCU "${SLEUTEL}" "NoRepair" 1

  !insertmacro PLAATS_BESTANDEN

  SetOutPath "$INSTDIR\bin"
  CreateDirectory "${MENU}"
  CreateShortcut "${MENU}\Kestrolin.lnk" "$INSTDIR\bin\Kestrolin.exe"
  CreateShortcut "${MENU}\Kestrolin manual.lnk" "${HANDLEIDING}"
SectionEnd

Section /o "$(naamZoekpad)" Zoekpad
  StrCpy $R0 "$INSTDIR\bin"
  Call zetInZoekpad
  ${If} $R0 != ""
    WriteRegStr HKCU "${SLEUTEL}" "PathEntry" "$R0"
  ${EndIf}
SectionEnd

!insertmacro MUI_FUNCTION_DESCRIPTION_BEGIN
!insertmacro MUI_DESCRIPTION_TEXT ${Programma} "$(uitlegProgramma)"
!insertmacro MUI_DESCRIPTION_TEXT ${Zoekpad} "$(uitlegZoekpad)"
!insertmacro MUI_FUNCTION_DESCRIPTION_END

Function .onInit
  ${GetParameters} $R0
  ClearErrors
  ${GetOptions} $R0 "/PATH" $R1
  ${IfNot} ${Errors}
    !insertmacro SelectSection ${Zoekpad}
  ${EndIf}
  # What was chosen for the version before.
  ReadRegStr $R0 HKCU "${SLEUTEL}" "PathEntry"
  ${If} $R0 != ""
    !insertmacro SelectSection ${Zoekpad}
  ${EndIf}
FunctionEnd

Section "un.Kestrolin" OnProgramma
  SectionIn RO
  Push $INSTDIR
  Call un.eindeNodig
  # Nobody can delete the folder that a process stands in.
  SetOutPath "$TEMP"

  ReadRegStr $R0 HKCU "${SLEUTEL}" "PathEntry"
  ${If} $R0 != ""
    Call un.neemUitZoekpad
  ${EndIf}
  Delete "${MENU}\Kestrolin.lnk"
  Delete "${MENU}\Kestrolin manual.lnk"
  RMDir "${MENU}"
  # What else stands in the folder is the user's, and stays.
  !insertmacro VERWIJDER_BESTANDEN
  Delete "$INSTDIR\uninstall.exe"
  RMDir "$INSTDIR"
  DeleteRegKey HKCU "${SLEUTEL}"
SectionEnd

Section /o "un.$(naamInstellingen)" OnInstellingen
  Delete "$APPDATA\Kestrolin.ini"
SectionEnd

!insertmacro MUI_UNFUNCTION_DESCRIPTION_BEGIN
!insertmacro MUI_DESCRIPTION_TEXT ${OnProgramma} "$(un.uitlegProgramma)"
!insertmacro MUI_DESCRIPTION_TEXT ${OnInstellingen} "$(un.uitlegInstellingen)"
!insertmacro MUI_UNFUNCTION_DESCRIPTION_END

Function un.onInit
  ${GetParameters} $R0
  ClearErrors
  ${GetOptions} $R0 "/SETTINGS" $R1
  ${IfNot} ${Errors}
    !insertmacro SelectSection ${OnInstellingen}
  ${EndIf}
FunctionEnd
