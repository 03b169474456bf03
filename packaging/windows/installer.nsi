; The installer. From the command line: VERSION, FOLDER (what is installed), OUTPUT, ICON.
Unicode true
Target amd64-unicode
SetCompressor /SOLID lzma
!include MUI2.nsh
!include x64.nsh

Name "TarnEmissao"
OutFile "${OUTPUT}"
InstallDir "$PROGRAMFILES64\TarnEmissao"
InstallDirRegKey HKLM "Software\TarnEmissao" "Folder"
RequestExecutionLevel admin
BrandingText "TarnEmissao ${VERSION}"

VIProductVersion "${VERSION}.0"
VIAddVersionKey /LANG=1046 "ProductName" "TarnEmissao"
VIAddVersionKey /LANG=1046 "FileDescription" "Instalador do TarnEmissao"
VIAddVersionKey /LANG=1046 "FileVersion" "${VERSION}"
VIAddVersionKey /LANG=1046 "LegalCopyright" ""

!define MUI_ICON "${ICON}"
!define MUI_UNICON "${ICON}"
!define REMOVAL "Software\Microsoft\Windows\CurrentVersion\Uninstall\TarnEmissao"
!insertmacro MUI_PAGE_COMPONENTS
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!insertmacro MUI_UNPAGE_CONFIRM
!insertmacro MUI_UNPAGE_INSTFILES
!insertmacro MUI_LANGUAGE "PortugueseBR"

Function .onInit
  ${IfNot} ${RunningX64}
    MessageBox MB_ICONSTOP "O TarnEmissao precisa de um Windows de 64 bits."
    Abort
  ${EndIf}
  SetRegView 64
FunctionEnd

Function un.onInit
  SetRegView 64
FunctionEnd

Section "TarnEmissao" desk
  SectionIn RO
  SetShellVarContext all
  SetOutPath "$INSTDIR"
  File "${FOLDER}\tarnemissao.exe"
  File "${FOLDER}\*.dll"
  File "${FOLDER}\qt.conf"
  File "${FOLDER}\*.txt"
  File /r "${FOLDER}\platforms"
  File /r "${FOLDER}\imageformats"
  File /r "${FOLDER}\translations"
  File /r "${FOLDER}\manual"
  ; Where the pictures of bills are put.
  CreateDirectory "C:\TARN"
  CreateShortcut "$SMPROGRAMS\TarnEmissao.lnk" "$INSTDIR\tarnemissao.exe"
  WriteUninstaller "$INSTDIR\desinstalar.exe"
  WriteRegStr HKLM "Software\TarnEmissao" "Folder" "$INSTDIR"
  WriteRegStr HKLM "${REMOVAL}" "DisplayName" "TarnEmissao"
  WriteRegStr HKLM "${REMOVAL}" "DisplayVersion" "${VERSION}"
  WriteRegStr HKLM "${REMOVAL}" "DisplayIcon" "$INSTDIR\tarnemissao.exe"
  WriteRegStr HKLM "${REMOVAL}" "UninstallString" '"$INSTDIR\desinstalar.exe"'
  WriteRegDWORD HKLM "${REMOVAL}" "EstimatedSize" ${KILOBYTES}
  WriteRegDWORD HKLM "${REMOVAL}" "NoModify" 1
  WriteRegDWORD HKLM "${REMOVAL}" "NoRepair" 1
SectionEnd

Section "Ferramentas (tarnimprime e impressora virtual)" tools
  SetShellVarContext all
  SetOutPath "$INSTDIR"
  File "${FOLDER}\tarnimprime.exe"
  File "${FOLDER}\tarnimpressora.exe"
  CreateShortcut "$SMPROGRAMS\TarnEmissao - impressora virtual.lnk" "$INSTDIR\tarnimpressora.exe"
SectionEnd

Section "Treino (servidor e roteiro)" practice
  SetShellVarContext all
  SetOutPath "$INSTDIR"
  File "${FOLDER}\tarnservidor.exe"
  File "${FOLDER}\tarnroteiro.exe"
  File "${FOLDER}\tarnemissao-treino.exe"
  File /r "${FOLDER}\sqldrivers"
  CreateShortcut "$SMPROGRAMS\TarnEmissao (treino).lnk" "$INSTDIR\tarnemissao-treino.exe"
SectionEnd

LangString deskText ${LANG_PORTUGUESEBR} "A mesa de emissão."
LangString toolsText ${LANG_PORTUGUESEBR} "Imprime documentos gravados, e mostra o papel de uma matricial na tela."
LangString practiceText ${LANG_PORTUGUESEBR} "O servidor de treino, com dados inventados."
!insertmacro MUI_FUNCTION_DESCRIPTION_BEGIN
  !insertmacro MUI_DESCRIPTION_TEXT ${desk} $(deskText)
  !insertmacro MUI_DESCRIPTION_TEXT ${tools} $(toolsText)
  !insertmacro MUI_DESCRIPTION_TEXT ${practice} $(practiceText)
!insertmacro MUI_FUNCTION_DESCRIPTION_END

; C:\TARN stays: its pictures are the customer's.
Section "Uninstall"
  SetShellVarContext all
  Delete "$SMPROGRAMS\TarnEmissao.lnk"
  Delete "$SMPROGRAMS\TarnEmissao - impressora virtual.lnk"
  Delete "$SMPROGRAMS\TarnEmissao (treino).lnk"
  Delete "$INSTDIR\*.exe"
  Delete "$INSTDIR\*.dll"
  Delete "$INSTDIR\qt.conf"
  Delete "$INSTDIR\*.txt"
  RMDir /r "$INSTDIR\platforms"
  RMDir /r "$INSTDIR\imageformats"
  RMDir /r "$INSTDIR\translations"
  RMDir /r "$INSTDIR\manual"
  RMDir /r "$INSTDIR\sqldrivers"
  RMDir "$INSTDIR"
  RMDir "C:\TARN"
  DeleteRegKey HKLM "${REMOVAL}"
  DeleteRegKey HKLM "Software\TarnEmissao"
SectionEnd
