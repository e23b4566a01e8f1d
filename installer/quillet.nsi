; The Quillet installer: per user, no administrator rights. Installs both builds of the add-in
; (x86 for 32-bit Office and the VB6 IDE, x64 for 64-bit Office) with the default files each
; one finds beside it (data\), registers them for the current user through their own
; DllRegisterServer, and adds an uninstaller to Apps & Features.
;
;   makensis -DVERSION=0.1.0 -DWIN32_DLL=... -DWIN64_DLL=... -DDATA_DIR=... -DOUT_FILE=... quillet.nsi
;
; The installer that ships is a 32-bit program, so it runs on every Windows. -DTARGET_AMD64 makes
; the same installer as a 64-bit program; only the tests use it, on machines that cannot run
; 32-bit programs.
;
; Silent use: Quillet-setup.exe /S [/D=folder]; uninstall.exe /S.

Unicode true
!ifdef TARGET_AMD64
  Target amd64-unicode
!endif
RequestExecutionLevel user
SetCompressor /SOLID lzma

!include "x64.nsh"
!include "LogicLib.nsh"

!define PRODUCT "Quillet"
!define UNINSTALL_KEY "Software\Microsoft\Windows\CurrentVersion\Uninstall\Quillet"

Name "${PRODUCT} ${VERSION}"
OutFile "${OUT_FILE}"
InstallDir "$LOCALAPPDATA\Programs\Quillet"
InstallDirRegKey HKCU "Software\Quillet" "InstallDir"

Page directory
Page instfiles
UninstPage uninstConfirm
UninstPage instfiles

; regsvr32 of the DLL's own bitness: the 64-bit one lives in the real System32, the 32-bit one
; in what a 32-bit installer sees as its system folder (SysWOW64 for a 64-bit installer).
!ifdef TARGET_AMD64
  !define REGSVR32_X86 "$WINDIR\SysWOW64\regsvr32.exe"
!else
  !define REGSVR32_X86 "$SYSDIR\regsvr32.exe"
!endif
!macro Regsvr32 ARGS DLL
  StrCpy $0 ""
  ${If} ${RunningX64}
  ${AndIf} "${DLL}" == "x64"
    ${DisableX64FSRedirection}
    ExecWait '"$WINDIR\System32\regsvr32.exe" ${ARGS} "$INSTDIR\x64\Quillet.dll"' $0
    ${EnableX64FSRedirection}
  ${ElseIf} "${DLL}" == "x86"
    ExecWait '"${REGSVR32_X86}" ${ARGS} "$INSTDIR\x86\Quillet.dll"' $0
  ${EndIf}
!macroend

Section "Quillet"
  SetOutPath "$INSTDIR\x86"
  File "/oname=Quillet.dll" "${WIN32_DLL}"
  SetOutPath "$INSTDIR\x86\data"
  File /r /x .gitattributes /x README.md "${DATA_DIR}/*.*"
  SetOutPath "$INSTDIR\x64"
  File "/oname=Quillet.dll" "${WIN64_DLL}"
  SetOutPath "$INSTDIR\x64\data"
  File /r /x .gitattributes /x README.md "${DATA_DIR}/*.*"

  ; The 32-bit build serves 32-bit Office and the VB6 IDE; on 64-bit Windows the 64-bit build
  ; serves 64-bit Office. Both are registered, so either Office finds its own.
  !insertmacro Regsvr32 "/s" "x86"
  ${If} $0 != 0
  ${OrIf} $0 == ""
    DetailPrint "The 32-bit add-in could not be registered ($0)."
  ${EndIf}
  ${If} ${RunningX64}
    !insertmacro Regsvr32 "/s" "x64"
    ${If} $0 != 0
    ${OrIf} $0 == ""
      DetailPrint "The 64-bit add-in could not be registered ($0)."
    ${EndIf}
  ${EndIf}

  WriteUninstaller "$INSTDIR\uninstall.exe"
  WriteRegStr HKCU "Software\Quillet" "InstallDir" "$INSTDIR"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "DisplayName" "${PRODUCT}"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "DisplayVersion" "${VERSION}"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "Publisher" "${PRODUCT}"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "InstallLocation" "$INSTDIR"
  WriteRegStr HKCU "${UNINSTALL_KEY}" "UninstallString" '"$INSTDIR\uninstall.exe"'
  WriteRegStr HKCU "${UNINSTALL_KEY}" "QuietUninstallString" '"$INSTDIR\uninstall.exe" /S'
  WriteRegDWORD HKCU "${UNINSTALL_KEY}" "NoModify" 1
  WriteRegDWORD HKCU "${UNINSTALL_KEY}" "NoRepair" 1
SectionEnd

Section "Uninstall"
  ${If} ${RunningX64}
    !insertmacro Regsvr32 "/u /s" "x64"
  ${EndIf}
  !insertmacro Regsvr32 "/u /s" "x86"
  RMDir /r "$INSTDIR\x64"
  RMDir /r "$INSTDIR\x86"
  Delete "$INSTDIR\uninstall.exe"
  RMDir "$INSTDIR"
  DeleteRegKey HKCU "${UNINSTALL_KEY}"
  DeleteRegKey HKCU "Software\Quillet"
SectionEnd
