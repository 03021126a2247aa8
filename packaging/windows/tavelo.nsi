; The installer: Dutch, for one user, without administrator rights, without a network. Made by `build`, which gives
; VERSION (a.b.c), STAGE (the folder with everything to install), OUTPUT, and beside STAGE the lists install.nsh and
; uninstall.nsh of its files.
;
; Silent:   Tavelo-<version>-setup.exe /S [/RST] [/D=C:\folder without quotes, last]
;           /RST also opens .rst files with Tavelo. Exit code 2: Tavelo is running, and nothing was changed.
; Remove:   "Tavelo verwijderen.exe" /S
Unicode true
ManifestDPIAware true
ManifestSupportedOS Win10
SetCompressor /SOLID lzma
RequestExecutionLevel user

!include "MUI2.nsh"
!include "FileFunc.nsh"
!include "LogicLib.nsh"

!define UNINSTALLER "Tavelo verwijderen.exe"
!define UNINSTALL_KEY "Software\Microsoft\Windows\CurrentVersion\Uninstall\Tavelo"
!define FILE_CLASS "Tavelo.Rooster"

Name "Tavelo"
OutFile "${OUTPUT}"
InstallDir "$LOCALAPPDATA\Programs\Tavelo"
InstallDirRegKey HKCU "${UNINSTALL_KEY}" "InstallLocation"
BrandingText "Tavelo ${VERSION}"
VIProductVersion "${VERSION}.0"
VIAddVersionKey /LANG=1043 "ProductName" "Tavelo"
VIAddVersionKey /LANG=1043 "ProductVersion" "${VERSION}"
VIAddVersionKey /LANG=1043 "FileVersion" "${VERSION}"
VIAddVersionKey /LANG=1043 "FileDescription" "Tavelo installeren"
VIAddVersionKey /LANG=1043 "LegalCopyright" ""

!define MUI_ICON "${ICON}"
!define MUI_UNICON "${ICON}"
!define MUI_ABORTWARNING
!define MUI_WELCOMEPAGE_TITLE "Tavelo ${VERSION}"
!define MUI_WELCOMEPAGE_TEXT "Tavelo toont op een monitor naast de ring welke combinatie er rijdt.$\r$\n$\r$\nHet wordt geïnstalleerd voor u alleen; beheerdersrechten en een netwerk zijn niet nodig."
!define MUI_COMPONENTSPAGE_SMALLDESC
!define MUI_FINISHPAGE_RUN "$INSTDIR\tavelo.exe"
!define MUI_FINISHPAGE_RUN_TEXT "Tavelo nu starten"

!insertmacro MUI_PAGE_WELCOME
!insertmacro MUI_PAGE_COMPONENTS
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_PAGE_FINISH
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE "Dutch"

; A program that runs cannot be opened for writing. Asks until it is closed; silent, it gives up at once.
!macro WAIT_UNTIL_CLOSED
    ${Do}
        ${IfNot} ${FileExists} "$INSTDIR\tavelo.exe"
            ${ExitDo}
        ${EndIf}
        ClearErrors
        FileOpen $0 "$INSTDIR\tavelo.exe" a
        ${IfNot} ${Errors}
            FileClose $0
            ${ExitDo}
        ${EndIf}
        ${If} ${Silent}
            SetErrorLevel 2
            Quit
        ${EndIf}
        MessageBox MB_ICONEXCLAMATION|MB_RETRYCANCEL "Tavelo is nog open.$\r$\n$\r$\nSluit het hoofdvenster van Tavelo en kies daarna Opnieuw. Staat de ring nog op de monitor, kies dan Annuleren: er verandert niets." IDRETRY +3
        SetErrorLevel 2
        Quit
    ${Loop}
!macroend

Section "Tavelo" SectionTavelo
    SectionIn RO
    !insertmacro WAIT_UNTIL_CLOSED
    ; An older version takes its own files away; it knows which those are.
    ${If} ${FileExists} "$INSTDIR\${UNINSTALLER}"
        ExecWait '"$INSTDIR\${UNINSTALLER}" /S _?=$INSTDIR'
    ${EndIf}

    !include "${LISTS}\install.nsh"
    SetOutPath "$INSTDIR"
    WriteUninstaller "$INSTDIR\${UNINSTALLER}"
    CreateShortcut "$SMPROGRAMS\Tavelo.lnk" "$INSTDIR\tavelo.exe" "" "" "" "" "" "Toont de combinatie in de ring op een monitor"

    WriteRegStr HKCU "${UNINSTALL_KEY}" "DisplayName" "Tavelo"
    WriteRegStr HKCU "${UNINSTALL_KEY}" "DisplayVersion" "${VERSION}"
    WriteRegStr HKCU "${UNINSTALL_KEY}" "DisplayIcon" "$INSTDIR\tavelo.exe"
    WriteRegStr HKCU "${UNINSTALL_KEY}" "InstallLocation" "$INSTDIR"
    WriteRegStr HKCU "${UNINSTALL_KEY}" "UninstallString" '"$INSTDIR\${UNINSTALLER}"'
    WriteRegStr HKCU "${UNINSTALL_KEY}" "QuietUninstallString" '"$INSTDIR\${UNINSTALLER}" /S'
    WriteRegDWORD HKCU "${UNINSTALL_KEY}" "NoModify" 1
    WriteRegDWORD HKCU "${UNINSTALL_KEY}" "NoRepair" 1
    ${GetSize} "$INSTDIR" "/S=0K" $0 $1 $2
    WriteRegDWORD HKCU "${UNINSTALL_KEY}" "EstimatedSize" $0
SectionEnd

; Beside what opened .rst files before: the user may go on choosing.
Section /o "Roosters (.rst) openen met Tavelo" SectionRst
    WriteRegStr HKCU "Software\Classes\${FILE_CLASS}" "" "Rooster"
    WriteRegStr HKCU "Software\Classes\${FILE_CLASS}\DefaultIcon" "" "$INSTDIR\tavelo.exe,0"
    WriteRegStr HKCU "Software\Classes\${FILE_CLASS}\shell\open\command" "" '"$INSTDIR\tavelo.exe" "%1"'
    WriteRegStr HKCU "Software\Classes\.rst" "" "${FILE_CLASS}"
    System::Call 'shell32::SHChangeNotify(i 0x08000000, i 0, p 0, p 0)'
SectionEnd

LangString TextTavelo 1043 "Het programma zelf, met een ingang in het startmenu."
LangString TextRst 1043 "Een dubbelklik op een roosterbestand van het wedstrijdprogramma opent het in Tavelo."
!insertmacro MUI_FUNCTION_DESCRIPTION_BEGIN
    !insertmacro MUI_DESCRIPTION_TEXT ${SectionTavelo} $(TextTavelo)
    !insertmacro MUI_DESCRIPTION_TEXT ${SectionRst} $(TextRst)
!insertmacro MUI_FUNCTION_DESCRIPTION_END

; Asked for on the command line, or chosen when the older version was installed.
Function .onInit
    ${GetParameters} $0
    ClearErrors
    ${GetOptions} $0 "/RST" $1
    ${IfNot} ${Errors}
        !insertmacro SelectSection ${SectionRst}
    ${EndIf}
    ReadRegStr $0 HKCU "Software\Classes\.rst" ""
    ${If} $0 == "${FILE_CLASS}"
        !insertmacro SelectSection ${SectionRst}
    ${EndIf}
FunctionEnd

; The settings of the user stay: other programs of the suite read them, and a next version does.
Section "Uninstall"
    !insertmacro WAIT_UNTIL_CLOSED
    !include "${LISTS}\uninstall.nsh"
    Delete "$INSTDIR\${UNINSTALLER}"
    RMDir "$INSTDIR"
    Delete "$SMPROGRAMS\Tavelo.lnk"
    DeleteRegKey HKCU "${UNINSTALL_KEY}"
    DeleteRegKey HKCU "Software\Classes\${FILE_CLASS}"
    ReadRegStr $0 HKCU "Software\Classes\.rst" ""
    ${If} $0 == "${FILE_CLASS}"
        DeleteRegValue HKCU "Software\Classes\.rst" ""
        DeleteRegKey /ifempty HKCU "Software\Classes\.rst"
        System::Call 'shell32::SHChangeNotify(i 0x08000000, i 0, p 0, p 0)'
    ${EndIf}
SectionEnd
