; The installer for Windows: for the user who starts it, without an administrator.
;
;   makensis -DVERSION=1.0.0 -DPROGRAMS=FOLDER -DGUIDE=FILE -DSAMPLES=FOLDER -DICON=FILE -DOUTPUT=FILE tolvane.nsi
;
; What it puts on the disk it takes away again, and nothing else: maps and rescue copies are the user's. It can be run
; without a window, "setup.exe /S /D=C:\folder" and "uninstall.exe /S".

Unicode true
Target amd64-unicode
RequestExecutionLevel user
SetCompressor /SOLID lzma
; A program that is running cannot be replaced. To skip its file would leave half of an old and half of a new version.
AllowSkipFiles off
ManifestDPIAware true

!include "FileFunc.nsh"
!include "LogicLib.nsh"
!include "MUI2.nsh"

!define NAME "Modbus Map Editor"
!define GUIDE_FOLDER "varnokconfigure\DOCUMENTATION"
!define GUIDE_NAME "Modbus Map Editor User Guide.pdf"
!define MENU_FOLDER "$SMPROGRAMS\${NAME}"
!define OPEN_SAMPLE "--json $\"$INSTDIR\samples\waterworks.json$\" --modbus $\"$INSTDIR\samples\waterworks.csv$\""
!define UNINSTALL_KEY "Software\Microsoft\Windows\CurrentVersion\Uninstall\Tolvane"
!define VENDOR_KEY "Software\BELTHORNE LTD"
!define SUITE_KEY "${VENDOR_KEY}\Varnok Software Suite"

Name "${NAME}"
OutFile "${OUTPUT}"
InstallDir "$LOCALAPPDATA\Programs\Tolvane"
InstallDirRegKey HKCU "${UNINSTALL_KEY}" "InstallLocation"

VIProductVersion "${VERSION}.0"
VIAddVersionKey "ProductName" "${NAME}"
VIAddVersionKey "ProductVersion" "${VERSION}"
VIAddVersionKey "FileVersion" "${VERSION}"
VIAddVersionKey "FileDescription" "${NAME} setup"
VIAddVersionKey "CompanyName" "BELTHORNE LTD"
VIAddVersionKey "LegalCopyright" "BELTHORNE LTD"

!define MUI_ICON "${ICON}"
!define MUI_UNICON "${ICON}"
!define MUI_FINISHPAGE_RUN "$INSTDIR\tolvane.exe"
!define MUI_FINISHPAGE_RUN_PARAMETERS "${OPEN_SAMPLE}"
!define MUI_FINISHPAGE_RUN_TEXT "Open the editor on the sample plant"
!insertmacro MUI_PAGE_WELCOME
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_PAGE_FINISH
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE "English"

; ---- The suite's key -------------------------------------------------------------------------------------------------
;
; The editor starts only where the suite's key is, and finds its documents by the value "Path". What is there already
; belongs to an installed suite and stays. What is missing is made and noted beside the data for the uninstaller:
;
;   MadeVendorKey, MadeSuiteKey    1 when there was no such key
;   MadePath                       the text that was written as "Path"

; $0 = 1 when the key of the current user exists.
!macro KeyExists KEY
    System::Call 'advapi32::RegOpenKeyExW(p 0x80000001, w "${KEY}", i 0, i 0x20019, *p .r1) i .r0'
    ${If} $0 = 0
        System::Call 'advapi32::RegCloseKey(p r1)'
        StrCpy $0 1
    ${Else}
        StrCpy $0 0
    ${EndIf}
!macroend

!macro NoteWhenMissing KEY NOTE
    !insertmacro KeyExists "${KEY}"
    ${If} $0 = 0
        WriteRegDWORD HKCU "${UNINSTALL_KEY}" "${NOTE}" 1
    ${EndIf}
!macroend

Function MakeSuiteKey
    !insertmacro NoteWhenMissing "${VENDOR_KEY}" "MadeVendorKey"
    !insertmacro NoteWhenMissing "${SUITE_KEY}" "MadeSuiteKey"
    ; The value that an earlier version of this program made goes with the program when that moves.
    ReadRegStr $0 HKCU "${UNINSTALL_KEY}" "MadePath"
    ClearErrors
    ReadRegStr $1 HKCU "${SUITE_KEY}" "Path"
    ${If} ${Errors}
    ${OrIf} $1 == $0
        ; Documents are sought right behind the text, so it ends with a separator.
        WriteRegStr HKCU "${SUITE_KEY}" "Path" "$INSTDIR\"
        WriteRegStr HKCU "${UNINSTALL_KEY}" "MadePath" "$INSTDIR\"
    ${EndIf}
FunctionEnd

Function un.RemoveSuiteKey
    ReadRegStr $0 HKCU "${UNINSTALL_KEY}" "MadePath"
    ReadRegStr $1 HKCU "${SUITE_KEY}" "Path"
    ; A suite that came later has written its own path.
    ${If} $0 != ""
    ${AndIf} $0 == $1
        DeleteRegValue HKCU "${SUITE_KEY}" "Path"
    ${EndIf}
    ReadRegDWORD $0 HKCU "${UNINSTALL_KEY}" "MadeSuiteKey"
    ${If} $0 = 1
        DeleteRegKey /ifempty HKCU "${SUITE_KEY}"
    ${EndIf}
    ReadRegDWORD $0 HKCU "${UNINSTALL_KEY}" "MadeVendorKey"
    ${If} $0 = 1
        DeleteRegKey /ifempty HKCU "${VENDOR_KEY}"
    ${EndIf}
FunctionEnd

; ---- Installing ------------------------------------------------------------------------------------------------------

; A sample that the user has worked on is the user's, also when a new version brings a new one.
!macro InstallSample FILE
    ${IfNot} ${FileExists} "$INSTDIR\samples\${FILE}"
        File "${SAMPLES}\${FILE}"
    ${EndIf}
!macroend

Section
    SetShellVarContext current
    SetOutPath "$INSTDIR"
    File "${PROGRAMS}\tolvane.exe"
    File "${PROGRAMS}\tolvane-map.exe"
    WriteUninstaller "$INSTDIR\uninstall.exe"
    SetOutPath "$INSTDIR\${GUIDE_FOLDER}"
    File "/oname=${GUIDE_NAME}" "${GUIDE}"
    SetOutPath "$INSTDIR\samples"
    File "${SAMPLES}\README.md"
    !insertmacro InstallSample "waterworks.json"
    !insertmacro InstallSample "waterworks.csv"

    Call MakeSuiteKey

    CreateDirectory "${MENU_FOLDER}"
    ; A link starts in the folder that was the last one to be written to.
    SetOutPath "$INSTDIR"
    CreateShortCut "${MENU_FOLDER}\${NAME}.lnk" "$INSTDIR\tolvane.exe"
    CreateShortCut "${MENU_FOLDER}\Sample plant.lnk" "$INSTDIR\tolvane.exe" \
        "${OPEN_SAMPLE}"
    CreateShortCut "${MENU_FOLDER}\User guide.lnk" "$INSTDIR\${GUIDE_FOLDER}\${GUIDE_NAME}"
    CreateShortCut "${MENU_FOLDER}\Uninstall.lnk" "$INSTDIR\uninstall.exe"

    ${GetSize} "$INSTDIR" "/S=0K" $0 $1 $2
    WriteRegDWORD HKCU "${UNINSTALL_KEY}" "EstimatedSize" $0
    WriteRegStr HKCU "${UNINSTALL_KEY}" "DisplayName" "${NAME}"
    WriteRegStr HKCU "${UNINSTALL_KEY}" "DisplayVersion" "${VERSION}"
    WriteRegStr HKCU "${UNINSTALL_KEY}" "DisplayIcon" "$INSTDIR\tolvane.exe"
    WriteRegStr HKCU "${UNINSTALL_KEY}" "Publisher" "BELTHORNE LTD"
    WriteRegStr HKCU "${UNINSTALL_KEY}" "InstallLocation" "$INSTDIR"
    WriteRegStr HKCU "${UNINSTALL_KEY}" "UninstallString" '"$INSTDIR\uninstall.exe"'
    WriteRegStr HKCU "${UNINSTALL_KEY}" "QuietUninstallString" '"$INSTDIR\uninstall.exe" /S'
    WriteRegDWORD HKCU "${UNINSTALL_KEY}" "NoModify" 1
    WriteRegDWORD HKCU "${UNINSTALL_KEY}" "NoRepair" 1
SectionEnd

; ---- Uninstalling ----------------------------------------------------------------------------------------------------

; $0 = 1 when the two files hold the same bytes. Also uses $1 to $4.
!macro CompareFiles ONE OTHER
    StrCpy $0 0
    ClearErrors
    FileOpen $1 "${ONE}" r
    FileOpen $2 "${OTHER}" r
    ${IfNot} ${Errors}
        ${Do}
            ; At the end of a file nothing is read.
            StrCpy $3 ""
            StrCpy $4 ""
            FileReadByte $1 $3
            FileReadByte $2 $4
            ${If} $3 != $4
                ${ExitDo}
            ${ElseIf} $3 == ""
                StrCpy $0 1
                ${ExitDo}
            ${EndIf}
        ${Loop}
    ${EndIf}
    FileClose $1
    FileClose $2
!macroend

!macro RemoveUnchangedSample FILE
    File "${SAMPLES}\${FILE}"
    !insertmacro CompareFiles "$PLUGINSDIR\${FILE}" "$INSTDIR\samples\${FILE}"
    ${If} $0 = 1
        Delete "$INSTDIR\samples\${FILE}"
    ${EndIf}
!macroend

Section "Uninstall"
    SetShellVarContext current
    ; First what cannot be taken away while it runs: either all of the program goes or nothing.
    ClearErrors
    Delete "$INSTDIR\tolvane.exe"
    ${If} ${Errors}
        MessageBox MB_OK|MB_ICONEXCLAMATION "${NAME} is still open. Close it, then uninstall it again." /SD IDOK
        SetErrorLevel 2
        Abort
    ${EndIf}
    Delete "$INSTDIR\tolvane-map.exe"
    Delete "$INSTDIR\${GUIDE_FOLDER}\${GUIDE_NAME}"
    Delete "$INSTDIR\samples\README.md"
    InitPluginsDir
    SetOutPath "$PLUGINSDIR"
    !insertmacro RemoveUnchangedSample "waterworks.json"
    !insertmacro RemoveUnchangedSample "waterworks.csv"
    Delete "${MENU_FOLDER}\${NAME}.lnk"
    Delete "${MENU_FOLDER}\Sample plant.lnk"
    Delete "${MENU_FOLDER}\User guide.lnk"
    Delete "${MENU_FOLDER}\Uninstall.lnk"
    RMDir "${MENU_FOLDER}"

    Call un.RemoveSuiteKey
    DeleteRegKey HKCU "${UNINSTALL_KEY}"

    ; Folders go when nothing of the user's is in them, and none that is the current one.
    SetOutPath "$TEMP"
    Delete "$INSTDIR\uninstall.exe"
    RMDir "$INSTDIR\samples"
    RMDir "$INSTDIR\${GUIDE_FOLDER}"
    RMDir "$INSTDIR\varnokconfigure"
    RMDir "$INSTDIR"
SectionEnd
