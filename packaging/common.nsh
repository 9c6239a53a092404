; What setup and the uninstaller both need.

; Says why, and ends with the exit code of a failed step.
!macro Fail text
    MessageBox MB_OK|MB_ICONSTOP "${text}" /SD IDOK
    SetErrorLevel 2
    Quit
!macroend

!macro SharedFunctions un

; A folder has one name in the registry, whichever of its names the user typed.
Function ${un}NameEntry
    System::Call 'kernel32::GetLongPathNameW(w "$INSTDIR", w .r0, i ${NSIS_MAX_STRLEN}) i .r1'
    ${If} $1 > 0
        StrCpy $INSTDIR $0
    ${EndIf}
    ${If} $INSTDIR == "${USUAL_FOLDER}"
        StrCpy $Entry "Zentar"
    ${Else}
        ; A key's name cannot hold a backslash.
        ${WordReplace} "$INSTDIR" "\" "/" "+" $Entry
        StrCpy $Entry "Zentar ($Entry)"
    ${EndIf}
FunctionEnd

; A program or library ($1) that runs cannot be opened for writing. Asks with the text $2.
Function ${un}StopWhileInUse
again:
    ${IfNot} ${FileExists} "$1"
        Return
    ${EndIf}
    System::Call 'kernel32::GetFileAttributesW(w r1) i .r3'
    SetFileAttributes "$1" NORMAL
    ClearErrors
    FileOpen $0 "$1" a
    ${IfNot} ${Errors}
        FileClose $0
        Return
    ${EndIf}
    System::Call 'kernel32::SetFileAttributesW(w r1, i r3)'
    MessageBox MB_RETRYCANCEL|MB_ICONEXCLAMATION "$2" /SD IDCANCEL IDRETRY again
    SetErrorLevel ${RUNNING_EXIT_CODE}
    Quit
FunctionEnd

Function ${un}StopWhileRunning
    StrCpy $1 "$INSTDIR\zentar.exe"
    StrCpy $2 "Zentar is running. Leave it, then choose Retry.$\r$\n$\r$\n$1"
    Call ${un}StopWhileInUse
FunctionEnd

; Whether the folder on the stack is a folder of its own, in which files can be deleted and rights
; given. Its users may have made of it a way to somewhere else.
Function ${un}IsOwnFolder
    Exch $0
    Push $1
    System::Call 'kernel32::GetFileAttributesW(w r0) i .r1'
    StrCpy $0 0
    ${If} $1 != -1
        IntOp $1 $1 & ${REPARSE_POINT}
        ${IfThen} $1 = 0 ${|} StrCpy $0 1 ${|}
    ${EndIf}
    Pop $1
    Exch $0
FunctionEnd

!macroend

!insertmacro SharedFunctions ""
!insertmacro SharedFunctions "un."
