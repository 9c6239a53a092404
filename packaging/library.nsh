; nviewlib.dll in the Windows folder, which all copies of Zentar share. SharedDLLs counts them.

!define LIBRARY "$WINDIR\nviewlib.dll"
; The one that setup brings, to compare that one with.
!define NEW_LIBRARY "$PLUGINSDIR\nviewlib.dll"

; Counts this copy, once. A library that is there uncounted was put there by hand, for a copy that
; nobody installed; that one counts, too.
Function CountLibrary
    ReadRegDWORD $0 HKLM "${UNINSTALL_KEYS}\$Entry" "${COUNTED}"
    ${If} $0 == 1
        Return
    ${EndIf}
    ReadRegDWORD $0 HKLM "${SHARED_KEY}" "${LIBRARY}"
    ${If} $0 == ""
    ${AndIf} ${FileExists} "${LIBRARY}"
        StrCpy $0 1
    ${EndIf}
    IntOp $0 $0 + 1
    ClearErrors
    WriteRegDWORD HKLM "${SHARED_KEY}" "${LIBRARY}" $0
    WriteRegDWORD HKLM "${UNINSTALL_KEYS}\$Entry" "${COUNTED}" 1
    ${If} ${Errors}
        !insertmacro Fail "The count of ${LIBRARY} could not be written."
    ${EndIf}
FunctionEnd

; $R1 becomes -1, 0 or 1: the library that is there is older than the new one, as old, or newer.
; One without a version is older.
Function CompareLibraries
    StrCpy $2 0
    StrCpy $3 0
    GetDLLVersion "${LIBRARY}" $2 $3
    GetDLLVersion "${NEW_LIBRARY}" $4 $5
    StrCpy $R1 -1
    ${If} $2 U> $4
        StrCpy $R1 1
    ${ElseIf} $2 = $4
    ${AndIf} $3 U> $5
        StrCpy $R1 1
    ${ElseIf} $2 = $4
    ${AndIf} $3 = $5
        StrCpy $R1 0
    ${EndIf}
FunctionEnd

; An older library is to go, which it cannot while a copy uses it. Asked before anything is changed.
Function StopWhileLibraryIsUsed
    InitPluginsDir
    ClearErrors
    File "/oname=${NEW_LIBRARY}" "${BUILD}/nviewlib.dll"
    ${If} ${Errors}
        !insertmacro Fail "${NEW_LIBRARY} could not be written."
    ${EndIf}
    Call CompareLibraries
    ${If} $R1 = -1
        StrCpy $1 "${LIBRARY}"
        StrCpy $2 "Another copy of Zentar is using $1. Leave it, then choose Retry."
        Call StopWhileInUse
    ${EndIf}
FunctionEnd

; A newer library stays. One as old is put there afresh, unless another copy is using it, and then
; it does.
Function PutLibrary
    ${If} $R1 = 1
        Return
    ${EndIf}
    ClearErrors
    File "/oname=${LIBRARY}.new" "${BUILD}/nviewlib.dll"
    ${If} ${Errors}
        Delete "${LIBRARY}.new"
        !insertmacro Fail "${LIBRARY} could not be written."
    ${EndIf}
    SetFileAttributes "${LIBRARY}" NORMAL
    StrCpy $1 "${LIBRARY}"
    System::Call 'kernel32::MoveFileExW(w "$1.new", w r1, i ${MOVE_REPLACING}) i .r2'
    Delete "${LIBRARY}.new"
    ${If} $2 = 0
    ${AndIf} $R1 = -1
        !insertmacro Fail "${LIBRARY} could not be written."
    ${EndIf}
FunctionEnd

; The last copy takes the library along, and what the program keeps in the Windows folder for as
; long as it runs. A library that is in use stays: only a copy that nobody installed can use it now.
Function un.ReleaseLibrary
    ReadRegDWORD $0 HKLM "${UNINSTALL_KEYS}\$Entry" "${COUNTED}"
    ${If} $0 != 1
        Return
    ${EndIf}
    DeleteRegValue HKLM "${UNINSTALL_KEYS}\$Entry" "${COUNTED}"
    ReadRegDWORD $0 HKLM "${SHARED_KEY}" "${LIBRARY}"
    IntOp $0 $0 - 1
    ${If} $0 > 0
        WriteRegDWORD HKLM "${SHARED_KEY}" "${LIBRARY}" $0
        Return
    ${EndIf}
    DeleteRegValue HKLM "${SHARED_KEY}" "${LIBRARY}"
    Delete "${LIBRARY}"
    Delete "${LIBRARY}.new"
    Delete "$WINDIR\zentar-tmp.gif"
    Delete "$WINDIR\zentar-tmp.htm"
    Delete "$WINDIR\zentar-help.htm"
FunctionEnd
