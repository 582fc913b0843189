# The installer for Windows, for one user and without an administrator. Given from outside: VERSIE, BESTANDEN
# (the list that maakInstaller.cmake makes), LICENTIE, ICOON, RAND and UIT, which is the installer itself.
#
#   setup.exe [/S] [/PATH] [/D=FOLDER]
#   uninstall-kestrolin.exe [/S] [/SETTINGS] [_?=FOLDER]
#
# /S asks nothing, /PATH adds kestrolin-cli to the search path, /SETTINGS deletes the user's settings too. Both end
# with 0 (done), 1 (cancelled), 2 (failed) or 3 (nothing was changed, since a program is in use); the uninstaller only
# with _?=, its own folder. Else it starts a copy of itself and ends at once: no program can delete itself.
#
# The uninstaller has a name of its own, since a folder that a user chooses may have another program's.
#
# The default stub has 32 bits: a system for 64 bits alone does not start it.
Target amd64-unicode
SetCompressor /SOLID lzma
ManifestDPIAware true
ManifestSupportedOS all
RequestExecutionLevel user
# A file that cannot be written ends an installation that asks nothing, too.
AllowSkipFiles off

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
!define MUI_PAGE_CUSTOMFUNCTION_LEAVE keurMap
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

# $R2 becomes the name of a file in $R0 that is in use: nobody can open a program that runs to write into it. What
# cannot be opened for another reason shows when it is replaced.
!define IN_GEBRUIK 32
!macro KijkOfLoopt naam
  System::Call 'kernel32::CreateFileW(w "$R0\bin\${naam}", i 0xC0000000, i 7, p 0, i 3, i 0, p 0) p .R1 ?e'
  Pop $R3
  ${If} $R1 <> -1
    System::Call 'kernel32::CloseHandle(p R1)'
  ${ElseIf} $R3 = ${IN_GEBRUIK}
    StrCpy $R2 "${naam}"
  ${EndIf}
!macroend

# Sets the flag of errors where a file is there that nobody can delete now.
!macro KijkOfVrij pad
  System::Call 'kernel32::CreateFileW(w "${pad}", i 0x10000, i 7, p 0, i 3, i 0, p 0) p .R1 ?e'
  Pop $R3
  ${If} $R1 <> -1
    System::Call 'kernel32::CloseHandle(p R1)'
  ${ElseIf} $R3 = ${IN_GEBRUIK}
    SetErrors
  ${EndIf}
!macroend

# Takes a folder from the stack, and goes on once no program of it runs.
!macro FunctieEindeNodig un
Function ${un}eindeNodig
  Exch $R0
  Push $R1
  Push $R2
  Push $R3
opnieuw:
  StrCpy $R2 ""
  !insertmacro KijkOfLoopt "libsndfile.dll"
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
  Pop $R3
  Pop $R2
  Pop $R1
  Pop $R0
FunctionEnd
!macroend
!insertmacro FunctieEindeNodig ""
!insertmacro FunctieEindeNodig "un."

# Turns a folder away where the library is another program's.
Function keurMap
  ${If} ${FileExists} "$INSTDIR\bin\libsndfile.dll"
  ${AndIfNot} ${FileExists} "$INSTDIR\uninstall-kestrolin.exe"
    MessageBox MB_OK|MB_ICONSTOP "$(vanAnderen)" /SD IDOK
    Abort
  ${EndIf}
FunctionEnd

# Takes the version away that the registry tells of, since its list of files is its own.
Function verwijderVorige
  ReadRegStr $R0 HKCU "${SLEUTEL}" "InstallLocation"
  ${If} $R0 == ""
  ${OrIfNot} ${FileExists} "$R0\uninstall-kestrolin.exe"
    Return
  ${EndIf}
  Push $R0
  Call eindeNodig
  ClearErrors
  # Without a copy of itself, so that it can be waited for; then it cannot delete itself.
  ExecWait '"$R0\uninstall-kestrolin.exe" /S _?=$R0' $R1
  ${If} ${Errors}
  ${OrIf} $R1 <> 0
    MessageBox MB_OK|MB_ICONSTOP "$(vorigeBlijft)" /SD IDOK
    SetErrorLevel 2
    Abort "$(vorigeBlijft)"
  ${EndIf}
  Delete "$R0\uninstall-kestrolin.exe"
  RMDir "$R0"
FunctionEnd

Section "Kestrolin" Programma
  SectionIn RO
  Call keurMap
  Push $INSTDIR
  Call eindeNodig
  Call verwijderVorige

  # First what takes away whatever comes: a full disk may end this halfway.
  ClearErrors
  SetOutPath "$INSTDIR"
  WriteUninstaller "$INSTDIR\uninstall-kestrolin.exe"
  SectionGetSize ${Programma} $0
  WriteRegStr HKCU "${SLEUTEL}" "DisplayName" "Kestrolin"
  WriteRegStr HKCU "${SLEUTEL}" "DisplayVersion" "${VERSIE}"
  WriteRegStr HKCU "${SLEUTEL}" "DisplayIcon" "$INSTDIR\bin\Kestrolin.exe"
  WriteRegStr HKCU "${SLEUTEL}" "Publisher" "The Kestrolin team"
  WriteRegStr HKCU "${SLEUTEL}" "URLInfoAbout" "https://kestrolin.example"
  WriteRegStr HKCU "${SLEUTEL}" "InstallLocation" "$INSTDIR"
  WriteRegStr HKCU "${SLEUTEL}" "UninstallString" '"$INSTDIR\uninstall-kestrolin.exe"'
  WriteRegStr HKCU "${SLEUTEL}" "QuietUninstallString" '"$INSTDIR\uninstall-kestrolin.exe" /S'
  WriteRegDWORD HKCU "${SLEUTEL}" "EstimatedSize" $0
  WriteRegDWORD HKCU "${SLEUTEL}" "NoModify" 1
  WriteRegDWORD HKCU "${SLEUTEL}" "NoRepair" 1

  !insertmacro PLAATS_BESTANDEN

  SetOutPath "$INSTDIR\bin"
  CreateDirectory "${MENU}"
  CreateShortcut "${MENU}\Kestrolin.lnk" "$INSTDIR\bin\Kestrolin.exe"
  CreateShortcut "${MENU}\Kestrolin manual.lnk" "${HANDLEIDING}"
  ${If} ${Errors}
    MessageBox MB_OK|MB_ICONSTOP "$(nietAlles)" /SD IDOK
    Abort "$(nietAlles)"
  ${EndIf}
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

# Ends where the folder of /D= is not the one that the installer took: it passes over one that cannot be.
Function keurOpgegevenMap
  System::Call 'kernel32::GetCommandLineW() w .R0'
  ClearErrors
  ${GetOptions} $R0 "/D=" $R1
  ${If} ${Errors}
    Return
  ${EndIf}
  # A backslash at the end is taken off.
  ${If} "$INSTDIR" != $R1
  ${AndIf} "$INSTDIR\" != $R1
    MessageBox MB_OK|MB_ICONSTOP "$(onbruikbaar)" /SD IDOK
    SetErrorLevel 2
    Quit
  ${EndIf}
FunctionEnd

Function .onInit
  Call keurOpgegevenMap
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

  # What else stands in the folder is the user's, and stays. While another program has one of the files open, all
  # of them stay: an update that cannot go on leaves the version that was there.
  ClearErrors
  !insertmacro KIJK_BESTANDEN
  ${IfNot} ${Errors}
    !insertmacro VERWIJDER_BESTANDEN
  ${Else}
    SetErrors
  ${EndIf}
  ${If} ${Errors}
    MessageBox MB_OK|MB_ICONSTOP "$(un.nietAlles)" /SD IDOK
    Abort "$(un.nietAlles)"
  ${EndIf}
  !insertmacro VERWIJDER_MAPPEN
  ReadRegStr $R0 HKCU "${SLEUTEL}" "PathEntry"
  ${If} $R0 != ""
    Call un.neemUitZoekpad
  ${EndIf}
  Delete "${MENU}\Kestrolin.lnk"
  Delete "${MENU}\Kestrolin manual.lnk"
  RMDir "${MENU}"
  Delete "$INSTDIR\uninstall-kestrolin.exe"
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
