; The files in the folder of a copy, and its shortcut.

; Puts $1.new, unless writing it failed, in the place of $1. In one step, so that an interrupted
; upgrade leaves the old file or the new one.
Function PutInPlace
    ${IfNot} ${Errors}
        System::Call 'kernel32::MoveFileExW(w "$1.new", w r1, i ${MOVE_REPLACING}) i .r0'
        ${If} $0 != 0
            Return
        ${EndIf}
    ${EndIf}
    Delete "$1.new"
    !insertmacro Fail "$1 could not be written."
FunctionEnd

Function PutUninstaller
    StrCpy $1 "$INSTDIR\uninstall.exe"
    ClearErrors
    WriteUninstaller "$1.new"
    Call PutInPlace
FunctionEnd

Function PutProgram
    StrCpy $1 "$INSTDIR\zentar.exe"
    ClearErrors
    File "/oname=$1.new" "${BUILD}/zentar.exe"
    Call PutInPlace
FunctionEnd

; Lets the users of the machine change what $1 names; `rights` in the words of icacls. Where the
; disk knows no rights it fails, and nobody needs them.
!macro GrantUsers rights
    nsExec::Exec '"$SYSDIR\icacls.exe" "$1" /grant ${USERS}:${rights}'
    Pop $0
!macroend

; The settings, and the folder of the designs. They are the users' own, so rights are given on these
; alone, and only when they are new to setup ($R0 tells): later each can be whatever the users made
; there, and rights given by an administrator would reach that, too.
Function PutUsersFiles
    StrCpy $1 "$INSTDIR\zentar.ini"
    ${IfNot} ${FileExists} "$1"
        ClearErrors
        FileOpen $0 "$1" w
        FileClose $0
        ${If} ${Errors}
            !insertmacro Fail "$1 could not be written."
        ${EndIf}
        !insertmacro GrantUsers "(M)"
    ${ElseIf} $R0 != 1
        !insertmacro GrantUsers "(M)"
    ${EndIf}
    StrCpy $1 "$INSTDIR\data"
    StrCpy $2 $R0
    ${IfNot} ${FileExists} "$1\*.*"
        StrCpy $2 0
    ${EndIf}
    ClearErrors
    CreateDirectory "$1\q3text"
    ${If} ${Errors}
        !insertmacro Fail "The folder $1\q3text could not be made."
    ${EndIf}
    ${If} $2 == 1
        Return
    ${EndIf}
    Push "$1"
    Call IsOwnFolder
    Pop $0
    ${If} $0 = 1
        !insertmacro GrantUsers "(OI)(CI)(M)"
    ${EndIf}
FunctionEnd

Function PutShortcut
    ClearErrors
    CreateShortcut "${SHORTCUT}" "$INSTDIR\zentar.exe"
    ${If} ${Errors}
        !insertmacro Fail "${SHORTCUT} could not be written."
    ${EndIf}
FunctionEnd

; Also what an interrupted step left.
Function un.DeleteProgram
    Delete "$INSTDIR\zentar.exe"
    ${If} ${FileExists} "$INSTDIR\zentar.exe"
        !insertmacro Fail "$INSTDIR\zentar.exe could not be deleted."
    ${EndIf}
    Delete "$INSTDIR\zentar.exe.new"
    Delete "$INSTDIR\uninstall.exe.new"
    Delete "$INSTDIR\zentar.ini"
    Delete "$INSTDIR\zentar.ini.zentar-new"
    Delete "$INSTDIR\tmp.bmp"
    Push "$INSTDIR\data"
    Call un.IsOwnFolder
    Pop $0
    ${If} $0 = 1
        Delete "$INSTDIR\data\zentar.ini.new"
    ${EndIf}
FunctionEnd

; Goes through the designs: $2 becomes their number, and those of $3 = 1 are deleted. One under its
; temporary name may be all that there is of it. By the ends of their names, since a pattern would
; find files by their short names as well: "clan.ini_old" by "CLAN~1.INI".
Function un.VisitDesigns
    StrCpy $2 0
    FindFirst $0 $1 "$INSTDIR\data\q3text\*"
    ${DoWhile} $1 != ""
        StrCpy $4 $1 "" -4
        StrCpy $5 $1 "" -15
        ${If} $4 == ".ini"
        ${OrIf} $5 == ".ini.zentar-new"
            IntOp $2 $2 + 1
            ${If} $3 = 1
                Delete "$INSTDIR\data\q3text\$1"
            ${EndIf}
        ${EndIf}
        FindNext $0 $1
    ${Loop}
    FindClose $0
FunctionEnd

Function un.DeleteDesigns
    Push "$INSTDIR\data"
    Call un.IsOwnFolder
    Pop $0
    Push "$INSTDIR\data\q3text"
    Call un.IsOwnFolder
    Pop $1
    ${If} $0 = 1
    ${AndIf} $1 = 1
        StrCpy $3 1
        Call un.VisitDesigns
    ${EndIf}
FunctionEnd

; The shortcut leads to the copy that was installed last; another copy's stays.
Function un.DeleteShortcut
    StrCpy $2 ""
    !insertmacro ComHlpr_CreateInProcInstance ${CLSID_ShellLink} ${IID_IShellLink} r0 ""
    ${If} $0 P<> 0
        ${IUnknown::QueryInterface} $0 '("${IID_IPersistFile}", .r1)'
        ${If} $1 P<> 0
            ${IPersistFile::Load} $1 '("${SHORTCUT}", ${STGM_READ})'
            ; By its shell items, which spell every name; the path beside them may not.
            ${IShellLink::GetIDList} $0 '(.r3)'
            System::Call 'shell32::SHGetPathFromIDListW(p r3, w .r2)'
            System::Call 'ole32::CoTaskMemFree(p r3)'
            ${IUnknown::Release} $1 ""
        ${EndIf}
        ${IUnknown::Release} $0 ""
    ${EndIf}
    ${If} $2 == "$INSTDIR\zentar.exe"
        Delete "${SHORTCUT}"
    ${EndIf}
FunctionEnd

; The folders of the designs, if they are empty. One that leads to somewhere else would go however
; full that is.
Function un.RemoveData
    Push "$INSTDIR\data"
    Call un.IsOwnFolder
    Pop $0
    Push "$INSTDIR\data\q3text"
    Call un.IsOwnFolder
    Pop $1
    ${If} $0 = 1
    ${AndIf} $1 = 1
        RMDir "$INSTDIR\data\q3text"
    ${EndIf}
    ${If} $0 = 1
        RMDir "$INSTDIR\data"
    ${EndIf}
FunctionEnd

; The uninstaller itself, once the one that was started has ended, and the folders that are empty.
; Not when setup has put a new copy there meanwhile.
Function un.RemoveRest
    ; The copy that does this goes at the next start of Windows; its folder after it, not before.
    RMDir /REBOOTOK "$EXEDIR"
    StrCpy $1 0
    ${DoWhile} ${FileExists} "$INSTDIR\uninstall.exe"
        ReadRegStr $0 HKLM "${UNINSTALL_KEYS}\$Entry" "InstallLocation"
        ${If} $0 != ""
        ${OrIf} $1 = 100
            Return
        ${EndIf}
        Delete "$INSTDIR\uninstall.exe"
        Sleep 100
        IntOp $1 $1 + 1
    ${Loop}
    Call un.RemoveData
    RMDir "$INSTDIR"
FunctionEnd
