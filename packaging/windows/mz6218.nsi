; The installer for Windows; installer.py says how it is made. FILES names the lists of what it installs.
; It installs for the current user, since the programs keep settings, records and logs beside themselves
; and an ordinary user may not write below "Program Files".
; One for 32 bits runs on every Windows; makensis of Windows makes no other.
Target ${TARGET}
!include "MUI2.nsh"
!include "${FILES}"

!define APP "MZ6218 Power Meter"
!define UNINSTALL_KEY "Software\Microsoft\Windows\CurrentVersion\Uninstall\MZ6218"

Name "${APP}"
OutFile "${OUTPUT}"
InstallDir "$LOCALAPPDATA\Programs\MZ6218"
InstallDirRegKey HKCU "Software\MZ6218" "Folder"
RequestExecutionLevel user
SetCompressor /SOLID lzma

!define MUI_ICON "..\..\src\resources\image\pt.ico"
!insertmacro MUI_PAGE_LICENSE "..\..\LICENSE"
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE "English"
!insertmacro MUI_LANGUAGE "SimpChinese"

Section "Programs"
    !insertmacro INSTALL_FILES
    WriteUninstaller "$INSTDIR\uninstall.exe"
    ; A shortcut starts in the folder that is set when it is made: the programs find their files there.
    SetOutPath "$INSTDIR\bin"
    CreateDirectory "$SMPROGRAMS\MZ6218"
    CreateShortcut "$SMPROGRAMS\MZ6218\${APP}.lnk" "$INSTDIR\bin\mz6218.exe"
    CreateShortcut "$SMPROGRAMS\MZ6218\MZ6218 Antenna Patterns.lnk" "$INSTDIR\bin\mz6218-patterns.exe"
    WriteRegStr HKCU "Software\MZ6218" "Folder" "$INSTDIR"
    WriteRegStr HKCU "${UNINSTALL_KEY}" "DisplayName" "${APP}"
    WriteRegStr HKCU "${UNINSTALL_KEY}" "DisplayVersion" "${VERSION}"
    WriteRegStr HKCU "${UNINSTALL_KEY}" "Publisher" "MZ6218 developers"
    WriteRegStr HKCU "${UNINSTALL_KEY}" "DisplayIcon" "$INSTDIR\bin\mz6218.exe"
    WriteRegStr HKCU "${UNINSTALL_KEY}" "UninstallString" '"$INSTDIR\uninstall.exe"'
SectionEnd

; Records, logs and settings are the user's: only what was installed is removed, and folders that are
; empty then.
Section "Uninstall"
    SetOutPath "$TEMP"
    !insertmacro REMOVE_FILES
    Delete "$INSTDIR\uninstall.exe"
    RMDir "$INSTDIR"
    Delete "$SMPROGRAMS\MZ6218\${APP}.lnk"
    Delete "$SMPROGRAMS\MZ6218\MZ6218 Antenna Patterns.lnk"
    RMDir "$SMPROGRAMS\MZ6218"
    DeleteRegKey HKCU "Software\MZ6218"
    DeleteRegKey HKCU "${UNINSTALL_KEY}"
SectionEnd
