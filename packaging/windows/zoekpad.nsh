# The search path of the user, in the registry. The variables of the installer hold 1024 characters, and a search
# path may have more, which would be cut off; so it stays in memory of its own. There a semicolon stands before
# it and behind it, so that each of its entries has one on both sides.

!define _HKCU -2147483647
!define _LEZEN_EN_SCHRIJVEN 0x2001F
!define _NIET_GEVONDEN 2
!define _REG_SZ 1
!define _REG_EXPAND_SZ 2

!macro ZoekpadFuncties un
# Puts the search path into the memory at $3, with room for the text in $R0, and the place of that entry, or 0,
# into $4. $1 is the open key, $2 the type of the value. Leaves $0 at 0, unless the value is not to be touched.
Function ${un}leesZoekpad
  System::Call 'advapi32::RegOpenKeyExW(p ${_HKCU}, w "Environment", i 0, i ${_LEZEN_EN_SCHRIJVEN}, *p .r1) i .r0'
  ${If} $0 <> 0
    StrCpy $1 0
    Return
  ${EndIf}
  StrCpy $2 ${_REG_EXPAND_SZ}
  System::Call 'advapi32::RegQueryValueExW(p r1, w "Path", p 0, *i .r5, p 0, *i .r6) i .r0'
  ${If} $0 = ${_NIET_GEVONDEN}
    StrCpy $6 0
  ${ElseIf} $0 <> 0
    Return
  ${ElseIf} $5 <> ${_REG_SZ}
  ${AndIf} $5 <> ${_REG_EXPAND_SZ}
    StrCpy $0 1
    Return
  ${Else}
    StrCpy $2 $5
  ${EndIf}
  StrLen $7 "$R0"
  IntOp $7 $7 + 4
  IntOp $7 $7 * 2
  IntOp $7 $7 + $6
  System::Call 'kernel32::GlobalAlloc(i 0x40, p r7) p .r3'
  System::Call 'kernel32::lstrcpyW(p r3, w ";")'
  StrCpy $0 0
  ${If} $6 > 0
    IntPtrOp $7 $3 + 2
    System::Call 'advapi32::RegQueryValueExW(p r1, w "Path", p 0, p 0, p r7, *i r6) i .r0'
  ${EndIf}
  System::Call 'kernel32::lstrcatW(p r3, w ";")'
  StrCpy $7 ";$R0;"
  System::Call 'shlwapi::StrStrIW(p r3, w r7) p .r4'
FunctionEnd

# Writes what stands at $7, or nothing, and lets go.
Function ${un}schrijfZoekpad
  System::Call 'kernel32::lstrlenW(p r7) i .r6'
  ${If} $6 = 0
    System::Call 'advapi32::RegDeleteValueW(p r1, w "Path") i .r0'
  ${Else}
    IntOp $6 $6 + 1
    IntOp $6 $6 * 2
    System::Call 'advapi32::RegSetValueExW(p r1, w "Path", i 0, i r2, p r7, i r6) i .r0'
  ${EndIf}
FunctionEnd

# What is open already has to be told.
Function ${un}sluitZoekpad
  ${If} $3 <> 0
    System::Call 'kernel32::GlobalFree(p r3)'
  ${EndIf}
  ${If} $1 <> 0
    System::Call 'advapi32::RegCloseKey(p r1)'
  ${EndIf}
  SendMessage ${HWND_BROADCAST} ${WM_SETTINGCHANGE} 0 "STR:Environment" /TIMEOUT=5000
FunctionEnd
!macroend
!insertmacro ZoekpadFuncties ""
!insertmacro ZoekpadFuncties "un."

# Adds the folder in $R0 at the end. Empties $R0 where it stands there already, or cannot be added.
Function zetInZoekpad
  StrCpy $3 0
  Call leesZoekpad
  ${If} $0 = 0
  ${AndIf} $4 = 0
    System::Call 'kernel32::lstrlenW(p r3) i .r6'
    System::Call 'kernel32::lstrcatW(p r3, w R0)'
    # Of an empty one both semicolons stay out.
    IntPtrOp $7 $3 + 2
    ${If} $6 = 2
      IntPtrOp $7 $3 + 4
    ${EndIf}
    Call schrijfZoekpad
    ${If} $0 <> 0
      StrCpy $R0 ""
    ${EndIf}
  ${Else}
    StrCpy $R0 ""
  ${EndIf}
  Call sluitZoekpad
FunctionEnd

# Takes the entry of $R0 out, with the semicolon that came with it.
Function un.neemUitZoekpad
  StrCpy $3 0
  Call un.leesZoekpad
  ${If} $0 = 0
  ${AndIf} $4 <> 0
    StrLen $6 ";$R0"
    IntOp $6 $6 * 2
    IntPtrOp $7 $4 + $6
    System::Call 'kernel32::lstrlenW(p r7) i .r6'
    IntOp $6 $6 + 1
    IntOp $6 $6 * 2
    System::Call 'kernel32::RtlMoveMemory(p r4, p r7, p r6)'
    System::Call 'kernel32::lstrlenW(p r3) i .r6'
    IntOp $6 $6 - 1
    IntOp $6 $6 * 2
    IntPtrOp $7 $3 + $6
    System::Call 'kernel32::RtlMoveMemory(p r7, w "", p 2)'
    IntPtrOp $7 $3 + 2
    ${If} $6 = 0
      StrCpy $7 $3
    ${EndIf}
    Call un.schrijfZoekpad
  ${EndIf}
  Call un.sluitZoekpad
FunctionEnd
