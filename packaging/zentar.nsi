; zentar-<version>-setup.exe: puts Zentar on a machine, for all its users, and takes it off again.
; Made by make_packages, which defines VERSION, FOUR_NUMBERS (the version as Windows counts), SIZE
; (what is installed, in KB), WEB_SITE, BUILD (the folder of zentar.exe and nviewlib.dll) and OUTPUT.
;
;   setup:     /S silent, /D=<folder> as the last argument, without quotation marks
;   uninstall: /S silent, /DESIGNS deletes the designs of coloured texts, too
;
; Exit codes of both: 0 done, 1 left by the user, 2 a step failed, 3 Zentar is running, or
; another copy of it uses an older library.
; The uninstaller works from a copy of itself, so that it can delete itself, and what started it
; does not wait for that copy. With _?=<folder> as the last argument it works where it is, and its
; exit code tells the outcome; that is what the quiet command of "Apps" does.
Target amd64-unicode
Name "Zentar"
OutFile "${OUTPUT}"
SetCompressor /SOLID lzma
; Also against the switch that would leave the check out: a download with a wrong byte is refused.
CRCCheck force
RequestExecutionLevel admin
ManifestDPIAware PerMonitor
ManifestLongPathAware true
ManifestSupportedOS Win10
!define USUAL_FOLDER "$PROGRAMFILES64\Zentar"
InstallDir "${USUAL_FOLDER}"
BrandingText "Zentar ${VERSION}"
SpaceTexts none
ShowInstDetails nevershow
ShowUninstDetails nevershow
SetOverwrite try

!include MUI2.nsh
!include LogicLib.nsh
!include FileFunc.nsh
!include WordFunc.nsh
!include Win/COM.nsh

!define PUBLISHER "The Zentar developers"
!define UNINSTALL_KEYS "Software\Microsoft\Windows\CurrentVersion\Uninstall"
!define SHARED_KEY "Software\Microsoft\Windows\CurrentVersion\SharedDLLs"
; In the entry of a copy: it is one of those that SharedDLLs counts.
!define COUNTED "CountsLibrary"
!define SHORTCUT "$SMPROGRAMS\Zentar.lnk"
!define RUNNING_EXIT_CODE 3
!define USERS "*S-1-5-32-545"
!define MOVE_REPLACING 9    ; MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH
!define REPARSE_POINT 0x400  ; FILE_ATTRIBUTE_REPARSE_POINT
!define LONGEST_FOLDER 200   ; leaves room for the names below it

VIProductVersion "${FOUR_NUMBERS}"
VIFileVersion "${FOUR_NUMBERS}"
VIAddVersionKey "ProductName" "Zentar"
VIAddVersionKey "ProductVersion" "${VERSION}"
VIAddVersionKey "FileVersion" "${VERSION}"
VIAddVersionKey "FileDescription" "Zentar Setup"
VIAddVersionKey "CompanyName" "${PUBLISHER}"
VIAddVersionKey "LegalCopyright" "${PUBLISHER}"

!define MUI_ICON "../ui/icons/zentar.ico"
!define MUI_UNICON "../ui/icons/zentar.ico"
; Drawn at twice its size, for screens of high resolution.
!define MUI_WELCOMEFINISHPAGE_BITMAP "finish.bmp"
!define MUI_ABORTWARNING
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!define MUI_FINISHPAGE_RUN
!define MUI_FINISHPAGE_RUN_FUNCTION StartZentar
!insertmacro MUI_PAGE_FINISH

!insertmacro MUI_UNPAGE_CONFIRM
!define MUI_PAGE_CUSTOMFUNCTION_PRE un.AskOnlyWithDesigns
!define MUI_PAGE_HEADER_TEXT "Your designs"
!define MUI_PAGE_HEADER_SUBTEXT "The coloured texts that you saved can stay."
!define MUI_COMPONENTSPAGE_TEXT_TOP "They are in $INSTDIR\data\q3text."
!define MUI_COMPONENTSPAGE_TEXT_COMPLIST "Tick what else shall be deleted:"
!define MUI_COMPONENTSPAGE_NODESC
!insertmacro MUI_UNPAGE_COMPONENTS
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE "English"

; The name of this copy's uninstall entry: each folder has its own.
Var Entry

!include common.nsh
!include library.nsh
!include files.nsh

; --- Setup ---

; Instead of a folder that cannot be, NSIS takes the usual one, which nobody asked for ($1).
Function RefuseOtherFolder
    ${If} $INSTDIR == "${USUAL_FOLDER}"
        StrCpy $2 $1 "" -1
        ${If} $2 == "\"
            StrCpy $1 $1 -1
        ${EndIf}
        System::Call 'kernel32::GetFullPathNameW(w r1, i ${NSIS_MAX_STRLEN}, w .r2, p 0)'
        ${If} $2 != "${USUAL_FOLDER}"
            !insertmacro Fail "The folder $1 could not be made."
        ${EndIf}
    ${EndIf}
FunctionEnd

; A copy that is installed is upgraded where it is, unless the command line says otherwise, in
; which a folder stands behind a capital D only.
Function FindInstalledCopy
    System::Call 'kernel32::GetCommandLineW() w .r0'
    ClearErrors
    ${GetOptionsS} $0 "/D=" $1
    ${IfNot} ${Errors}
        Call RefuseOtherFolder
        Return
    ${EndIf}
    StrCpy $0 0
    ${Do}
        EnumRegKey $1 HKLM "${UNINSTALL_KEYS}" $0
        ${If} $1 == ""
            Return
        ${EndIf}
        ReadRegDWORD $2 HKLM "${UNINSTALL_KEYS}\$1" "${COUNTED}"
        ReadRegStr $3 HKLM "${UNINSTALL_KEYS}\$1" "InstallLocation"
        StrCpy $4 $1 6
        ${If} $4 == "Zentar"
        ${AndIf} $2 == 1
        ${AndIf} ${FileExists} "$3\zentar.exe"
            StrCpy $INSTDIR $3
            Return
        ${EndIf}
        IntOp $0 $0 + 1
    ${Loop}
FunctionEnd

Function .onInit
    SetRegView 64
    SetShellVarContext all
    Call FindInstalledCopy
FunctionEnd

; The desktop starts it, with the user's own rights, not with those of setup.
Function StartZentar
    Exec '"$WINDIR\explorer.exe" "$INSTDIR\zentar.exe"'
FunctionEnd

; Written before the files, so that what an interrupted setup leaves can be uninstalled.
Function WriteEntry
    ClearErrors
    StrCpy $0 "${UNINSTALL_KEYS}\$Entry"
    ${If} $Entry == "Zentar"
        WriteRegStr HKLM $0 "DisplayName" "Zentar"
    ${Else}
        WriteRegStr HKLM $0 "DisplayName" "Zentar ($INSTDIR)"
    ${EndIf}
    WriteRegStr HKLM $0 "DisplayVersion" "${VERSION}"
    WriteRegStr HKLM $0 "Publisher" "${PUBLISHER}"
    WriteRegStr HKLM $0 "DisplayIcon" "$INSTDIR\zentar.exe,0"
    WriteRegStr HKLM $0 "InstallLocation" "$INSTDIR"
    WriteRegStr HKLM $0 "UninstallString" '"$INSTDIR\uninstall.exe"'
    WriteRegStr HKLM $0 "QuietUninstallString" '"$INSTDIR\uninstall.exe" /S _?=$INSTDIR'
    WriteRegStr HKLM $0 "URLInfoAbout" "${WEB_SITE}"
    WriteRegDWORD HKLM $0 "EstimatedSize" ${SIZE}
    WriteRegDWORD HKLM $0 "NoModify" 1
    WriteRegDWORD HKLM $0 "NoRepair" 1
    ${If} ${Errors}
        !insertmacro Fail "The entry of the uninstaller could not be written."
    ${EndIf}
FunctionEnd

Section "Zentar"
    AddSize ${SIZE}
    StrLen $0 $INSTDIR
    ${If} $0 > ${LONGEST_FOLDER}
        !insertmacro Fail "The name of the folder is too long."
    ${EndIf}
    Call StopWhileRunning
    Call StopWhileLibraryIsUsed
    ClearErrors
    SetOutPath "$INSTDIR"
    ${If} ${Errors}
        !insertmacro Fail "The folder $INSTDIR could not be made."
    ${EndIf}
    Call NameEntry
    ReadRegDWORD $R0 HKLM "${UNINSTALL_KEYS}\$Entry" "${COUNTED}"
    Call PutUninstaller
    Call WriteEntry
    Call PutProgram
    ; Before the count, whose mark says that the rights were given.
    Call PutUsersFiles
    Call CountLibrary
    Call PutLibrary
    Call PutShortcut
SectionEnd

; --- Uninstall ---

Function un.onInit
    SetRegView 64
    SetShellVarContext all
    Call un.NameEntry
    ${GetParameters} $0
    ClearErrors
    ${GetOptions} $0 "/REST" $1
    ${IfNot} ${Errors}
        Call un.RemoveRest
        Quit
    ${EndIf}
    Call un.ChooseDesigns
FunctionEnd

Section "-un.Check"
    Call un.StopWhileRunning
SectionEnd

Section /o "un.My designs" Designs
    Call un.DeleteDesigns
SectionEnd

; The entry goes last, so that what an interrupted uninstall leaves can be uninstalled again.
Section "-un.Zentar"
    SetOutPath "$TEMP"
    Call un.DeleteProgram
    Call un.ReleaseLibrary
    Call un.DeleteShortcut
    DeleteRegKey HKLM "${UNINSTALL_KEYS}\$Entry"
    ${If} $EXEDIR == $INSTDIR
        ; Only another program can delete this one: a copy of it, once it has ended.
        Exec '"$INSTDIR\uninstall.exe" /S /REST'
    ${Else}
        Call un.RemoveRest
    ${EndIf}
SectionEnd

; Without designs there is nothing to ask, and no line to tick.
Function un.ChooseDesigns
    ${GetParameters} $0
    ClearErrors
    ${GetOptions} $0 "/DESIGNS" $1
    ${IfNot} ${Errors}
        SectionSetFlags ${Designs} 1  ; SF_SELECTED
    ${EndIf}
FunctionEnd

Function un.AskOnlyWithDesigns
    StrCpy $3 0
    Call un.VisitDesigns
    ${If} $2 = 0
        Abort
    ${EndIf}
FunctionEnd
