; The installer. It installs for one user, without administrator rights:
;
;   setup.exe [/S] [/ASSOCIATE=act,cmp,gpl,clp] [/D=FOLDER]
;
; /S installs without questions. /ASSOCIATE lists the extensions that Quillhue should open; the list may be empty.
; Without /ASSOCIATE the current associations are kept; initially there are none. /D must be the last argument and takes
; no quotes, even if the folder's name contains blanks. The exit status is 0 for success, 1 if the user cancels, and 2
; on failure.
;
; makensis needs the definitions VERSION, PROGRAMS (the folder with the files to install) and OUT (the installer to
; write).

Unicode true
Target amd64-unicode
SetCompressor /SOLID lzma
ManifestDPIAware true
ManifestSupportedOS Win10
RequestExecutionLevel user

!include FileFunc.nsh
!include LogicLib.nsh
!include MUI2.nsh
!include nsDialogs.nsh
!include Sections.nsh
!include WordFunc.nsh

!define CLASSES "Software\Classes"
!define UNINSTALL "Software\Microsoft\Windows\CurrentVersion\Uninstall\Quillhue"
; The program's settings are in a subkey named after its major version.
!define SETTINGS "Software\Quillhue"
!define ICON "../src/ui/resources/quillhue.ico"
!define NOT_WRITABLE "The files of Quillhue can't be written. If it is running, close it and try again."

Var startBox

Name "Quillhue"
Caption "Quillhue ${VERSION} Setup"
BrandingText "Quillhue ${VERSION}"
OutFile "${OUT}"
InstallDir "$LOCALAPPDATA\Programs\Quillhue"
InstallDirRegKey HKCU "${UNINSTALL}" "InstallLocation"
ShowInstDetails nevershow
ShowUninstDetails nevershow
AutoCloseWindow true
VIProductVersion "${VERSION}.0.0"
VIAddVersionKey "ProductName" "Quillhue"
VIAddVersionKey "ProductVersion" "${VERSION}"
VIAddVersionKey "FileDescription" "Quillhue Setup"
VIAddVersionKey "FileVersion" "${VERSION}"
VIAddVersionKey "LegalCopyright" ""  ; avoids a warning

!define MUI_ICON "${ICON}"
!define MUI_UNICON "${ICON}"
!define MUI_COMPONENTSPAGE_SMALLDESC
!insertmacro MUI_PAGE_COMPONENTS
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
Page custom showFinished leaveFinished
!define MUI_UNCONFIRMPAGE_TEXT_TOP \
  "The program, its shortcut and its settings will be removed, and file types given back. Your own files stay."
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE English

; After an error, asks the user to retry, which jumps to LABEL. Otherwise quits with status 2.
!macro orGiveUp LABEL
  ${If} ${Errors}
    MessageBox MB_RETRYCANCEL|MB_ICONEXCLAMATION "${NOT_WRITABLE}" /SD IDCANCEL IDRETRY ${LABEL}
    SetErrorLevel 2
    Quit
  ${EndIf}
!macroend

!macro openForWriting FILE
  FileOpen $1 "${FILE}" a
  FileClose $1
!macroend

; Continues only if both programs in FOLDER can be written, so that either all files are replaced or removed, or none.
; A running program can't be written. FOLDER must exist.
!macro expectWritable FOLDER
  !define RETRY writable${__COUNTER__}
  ${RETRY}:
  ClearErrors
  !insertmacro openForWriting "${FOLDER}\quillhue.exe"
  !insertmacro openForWriting "${FOLDER}\quillhue-cli.exe"
  !insertmacro orGiveUp ${RETRY}
  !undef RETRY
!macroend

; Deletes the installed files in FOLDER, and FOLDER itself if it is empty then.
!macro deleteFiles FOLDER
  !insertmacro expectWritable "${FOLDER}"
  !define RETRY deleted${__COUNTER__}
  ${RETRY}:
  ClearErrors
  Delete "${FOLDER}\quillhue.exe"
  Delete "${FOLDER}\quillhue-cli.exe"
  Delete "${FOLDER}\readme.txt"
  Delete "${FOLDER}\uninstall.exe"
  !insertmacro orGiveUp ${RETRY}
  !undef RETRY
  RMDir "${FOLDER}"
!macroend

; Associates an extension: its default value becomes our class. The value "Replaced" of that class saves the previous
; default. It always exists, and is empty if there was no previous default.
!macro associate EXTENSION TYPE
  ReadRegStr $0 HKCU "${CLASSES}\.${EXTENSION}" ""
  ${If} $0 != "Quillhue.${EXTENSION}"
    WriteRegStr HKCU "${CLASSES}\Quillhue.${EXTENSION}" "Replaced" $0
  ${EndIf}
  WriteRegStr HKCU "${CLASSES}\Quillhue.${EXTENSION}" "" "${TYPE}"
  WriteRegStr HKCU "${CLASSES}\Quillhue.${EXTENSION}\DefaultIcon" "" "$INSTDIR\quillhue.exe,0"
  WriteRegStr HKCU "${CLASSES}\Quillhue.${EXTENSION}\shell\open\command" "" '"$INSTDIR\quillhue.exe" "%1"'
  WriteRegStr HKCU "${CLASSES}\.${EXTENSION}" "" "Quillhue.${EXTENSION}"
  WriteRegStr HKCU "${CLASSES}\.${EXTENSION}\OpenWithProgids" "Quillhue.${EXTENSION}" ""
!macroend

; Restores the previous association, unless another program has taken over the extension meanwhile.
!macro release EXTENSION
  ClearErrors
  ReadRegStr $1 HKCU "${CLASSES}\Quillhue.${EXTENSION}" "Replaced"
  ${IfNot} ${Errors}
    ReadRegStr $0 HKCU "${CLASSES}\.${EXTENSION}" ""
    ${If} $0 == "Quillhue.${EXTENSION}"
      ${If} $1 == ""
        DeleteRegValue HKCU "${CLASSES}\.${EXTENSION}" ""
      ${Else}
        WriteRegStr HKCU "${CLASSES}\.${EXTENSION}" "" $1
      ${EndIf}
    ${EndIf}
    DeleteRegValue HKCU "${CLASSES}\.${EXTENSION}\OpenWithProgids" "Quillhue.${EXTENSION}"
    DeleteRegKey /ifempty HKCU "${CLASSES}\.${EXTENSION}\OpenWithProgids"
    DeleteRegKey /ifempty HKCU "${CLASSES}\.${EXTENSION}"
    DeleteRegKey HKCU "${CLASSES}\Quillhue.${EXTENSION}"
  ${EndIf}
!macroend

Section "Quillhue" program
  SectionIn RO
  ; An installation in another folder is moved here, after both folders have been checked to be writable.
  ReadRegStr $0 HKCU "${UNINSTALL}" "InstallLocation"
  ${If} $0 == $INSTDIR
  ${OrIfNot} ${FileExists} "$0\quillhue.exe"
    StrCpy $0 ""
  ${EndIf}
  ${If} $0 != ""
    !insertmacro expectWritable $0
  ${EndIf}
  SetOutPath $INSTDIR
  !insertmacro expectWritable $INSTDIR
  ${If} $0 != ""
    !insertmacro deleteFiles $0
  ${EndIf}

  SetOverwrite try
  write:
  ClearErrors
  SetOutPath $INSTDIR
  File "${PROGRAMS}/quillhue.exe"
  File "${PROGRAMS}/quillhue-cli.exe"
  File "${PROGRAMS}/readme.txt"
  WriteUninstaller "$INSTDIR\uninstall.exe"
  !insertmacro orGiveUp write
  CreateShortcut "$SMPROGRAMS\Quillhue.lnk" "$INSTDIR\quillhue.exe"

  WriteRegStr HKCU "${UNINSTALL}" "DisplayName" "Quillhue"
  WriteRegStr HKCU "${UNINSTALL}" "DisplayVersion" "${VERSION}"
  WriteRegStr HKCU "${UNINSTALL}" "DisplayIcon" "$INSTDIR\quillhue.exe,0"
  WriteRegStr HKCU "${UNINSTALL}" "InstallLocation" $INSTDIR
  WriteRegStr HKCU "${UNINSTALL}" "UninstallString" '"$INSTDIR\uninstall.exe"'
  WriteRegStr HKCU "${UNINSTALL}" "QuietUninstallString" '"$INSTDIR\uninstall.exe" /S'
  SectionGetSize ${program} $0  ; in KiB, as EstimatedSize requires
  WriteRegDWORD HKCU "${UNINSTALL}" "EstimatedSize" $0
  WriteRegDWORD HKCU "${UNINSTALL}" "NoModify" 1
  WriteRegDWORD HKCU "${UNINSTALL}" "NoRepair" 1
SectionEnd

!macro association EXTENSION TYPE
  Section /o "${TYPE} (*.${EXTENSION})" ${EXTENSION}
    !insertmacro associate ${EXTENSION} "${TYPE}"
  SectionEnd
!macroend
SectionGroup /e "Open these files with Quillhue" associations
  !insertmacro association act "Adobe Color Table"
  !insertmacro association cmp "CMP Palette"
  !insertmacro association gpl "Gimp Palette"
  !insertmacro association clp "Windows Clipboard File"
SectionGroupEnd

!macro releaseUnlessSelected EXTENSION
  ${IfNot} ${SectionIsSelected} ${${EXTENSION}}
    !insertmacro release ${EXTENSION}
  ${EndIf}
!macroend
Section "-released"
  !insertmacro releaseUnlessSelected act
  !insertmacro releaseUnlessSelected cmp
  !insertmacro releaseUnlessSelected gpl
  !insertmacro releaseUnlessSelected clp
  ${RefreshShellIcons}
SectionEnd

!define OPENED "A double click on such a file opens it in Quillhue."
!insertmacro MUI_FUNCTION_DESCRIPTION_BEGIN
  !insertmacro MUI_DESCRIPTION_TEXT ${program} "The editor, the tool quillhue-cli and the manual."
  !insertmacro MUI_DESCRIPTION_TEXT ${associations} "${OPENED}"
  !insertmacro MUI_DESCRIPTION_TEXT ${act} "${OPENED}"
  !insertmacro MUI_DESCRIPTION_TEXT ${cmp} "${OPENED}"
  !insertmacro MUI_DESCRIPTION_TEXT ${gpl} "${OPENED}"
  !insertmacro MUI_DESCRIPTION_TEXT ${clp} "${OPENED}"
!insertmacro MUI_FUNCTION_DESCRIPTION_END

!macro selectAsItIs EXTENSION
  ReadRegStr $0 HKCU "${CLASSES}\.${EXTENSION}" ""
  ${If} $0 == "Quillhue.${EXTENSION}"
    !insertmacro SelectSection ${${EXTENSION}}
  ${EndIf}
!macroend

; If the list $R0 (",act,gpl,") contains the extension, removes it from the list and selects its section.
!macro selectAsAsked EXTENSION
  ${WordReplace} $R0 ",${EXTENSION}," "," "+" $0
  ${If} $0 != $R0
    StrCpy $R0 $0
    !insertmacro SelectSection ${${EXTENSION}}
  ${EndIf}
!macroend

Function .onInit
  ${GetParameters} $R1
  ClearErrors
  ${GetOptions} $R1 "/ASSOCIATE=" $R0
  ${If} ${Errors}
    !insertmacro selectAsItIs act
    !insertmacro selectAsItIs cmp
    !insertmacro selectAsItIs gpl
    !insertmacro selectAsItIs clp
  ${Else}
    StrCpy $R0 ",$R0,"
    !insertmacro selectAsAsked act
    !insertmacro selectAsAsked cmp
    !insertmacro selectAsAsked gpl
    !insertmacro selectAsAsked clp
    ${If} $R0 != ","
    ${AndIf} $R0 != ",,"
      MessageBox MB_OK|MB_ICONSTOP "/ASSOCIATE takes act, cmp, gpl and clp, with commas between them." /SD IDOK
      SetErrorLevel 2
      Quit
    ${EndIf}
  ${EndIf}
FunctionEnd

; The last page offers to start the program. The controls 1, 2 and 3 are the buttons below the pages.
Function showFinished
  !insertmacro MUI_HEADER_TEXT "Quillhue is installed" "The Start menu has it from now on."
  nsDialogs::Create 1018
  Pop $0
  ${NSD_CreateCheckbox} 0 0 100% 12u "&Start Quillhue now"
  Pop $startBox
  ${NSD_Check} $startBox
  ${NSD_SetFocus} $startBox
  GetDlgItem $0 $HWNDPARENT 1
  ${NSD_SetText} $0 "&Finish"
  GetDlgItem $0 $HWNDPARENT 2
  EnableWindow $0 0
  GetDlgItem $0 $HWNDPARENT 3
  ShowWindow $0 ${SW_HIDE}
  nsDialogs::Show
FunctionEnd

Function leaveFinished
  ${NSD_GetState} $startBox $0
  ${If} $0 == ${BST_CHECKED}
    Exec '"$INSTDIR\quillhue.exe"'
  ${EndIf}
FunctionEnd

Section "Uninstall"
  !insertmacro deleteFiles $INSTDIR
  Delete "$SMPROGRAMS\Quillhue.lnk"
  !insertmacro release act
  !insertmacro release cmp
  !insertmacro release gpl
  !insertmacro release clp
  ${RefreshShellIcons}
  DeleteRegKey HKCU "${SETTINGS}\4"
  DeleteRegKey /ifempty HKCU "${SETTINGS}"
  DeleteRegKey HKCU "${UNINSTALL}"
SectionEnd
