; The installer for Windows:
;   makensis -DVERSION=1.0.0 -DSOURCE=<deployed folder> -DOUTPUT=<installer> mz6218.nsi
; It installs for the current user, since the programs keep settings, records and logs beside themselves
; and an ordinary user may not write below "Program Files".
Unicode true
!include "MUI2.nsh"

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
    SetOutPath "$INSTDIR"
    File /r "${SOURCE}\*.*"
    WriteUninstaller "$INSTDIR\uninstall.exe"
    CreateDirectory "$SMPROGRAMS\MZ6218"
    CreateShortcut "$SMPROGRAMS\MZ6218\${APP}.lnk" "$INSTDIR\bin\mz6218.exe"
    CreateShortcut "$SMPROGRAMS\MZ6218\MZ6218 Antenna Patterns.lnk" "$INSTDIR\bin\mz6218-patterns.exe"
    WriteRegStr HKCU "Software\MZ6218" "Folder" "$INSTDIR"
    WriteRegStr HKCU "${UNINSTALL_KEY}" "DisplayName" "${APP}"
    WriteRegStr HKCU "${UNINSTALL_KEY}" "DisplayVersion" "${VERSION}"
    WriteRegStr HKCU "${UNINSTALL_KEY}" "DisplayIcon" "$INSTDIR\bin\mz6218.exe"
    WriteRegStr HKCU "${UNINSTALL_KEY}" "UninstallString" '"$INSTDIR\uninstall.exe"'
SectionEnd

; Records, logs and settings are the user's: only what was installed is removed.
Section "Uninstall"
    Delete "$INSTDIR\bin\mz6218.exe"
    Delete "$INSTDIR\bin\mz6218-sim.exe"
    Delete "$INSTDIR\bin\mz6218-patterns.exe"
    Delete "$INSTDIR\bin\*.dll"
    Delete "$INSTDIR\bin\help.pdf"
    Delete "$INSTDIR\README.txt"
    RMDir /r "$INSTDIR\bin\bearer"
    RMDir /r "$INSTDIR\bin\platforms"
    RMDir /r "$INSTDIR\bin\styles"
    RMDir /r "$INSTDIR\bin\imageformats"
    RMDir /r "$INSTDIR\bin\iconengines"
    RMDir /r "$INSTDIR\bin\printsupport"
    RMDir /r "$INSTDIR\bin\translations"
    RMDir /r "$INSTDIR\samples"
    RMDir /r "$INSTDIR\licences"
    RMDir "$INSTDIR\bin"
    Delete "$INSTDIR\uninstall.exe"
    RMDir "$INSTDIR"
    RMDir /r "$SMPROGRAMS\MZ6218"
    DeleteRegKey HKCU "Software\MZ6218"
    DeleteRegKey HKCU "${UNINSTALL_KEY}"
SectionEnd
