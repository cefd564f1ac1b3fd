; The installer. pack.py gives VERSION (2.0), FULL_VERSION (2.0.0.0), MAKER, WEB_PAGE, STAGE (a folder with what is laid
; down and the pictures), SIZE (of what is laid down, in KB), OUTPUT, and WIDTH of the installer itself: x86 runs
; everywhere.
;
; Exit codes: 0 done; 1 nothing was changed; 2 broken off. In silent mode the reason goes to the console.

Unicode true
!if ${WIDTH} == x64
    Target amd64-unicode
    !pragma warning disable 6012 ; a label behind a test whose outcome is known
!else
    Target x86-unicode
!endif
SetCompressor /SOLID lzma
RequestExecutionLevel user
ManifestDPIAware true
ManifestSupportedOS all

!include MUI2.nsh
!include nsDialogs.nsh
!include LogicLib.nsh
!include FileFunc.nsh
!include x64.nsh
!include WinVer.nsh
!include Win\COM.nsh

Name "Tarvelon"
OutFile "${OUTPUT}"
BrandingText "Tarvelon ${VERSION}"
VIProductVersion ${FULL_VERSION}
VIAddVersionKey ProductName "Tarvelon"
VIAddVersionKey ProductVersion "${VERSION}"
VIAddVersionKey FileDescription "Tarvelon Setup"
VIAddVersionKey FileVersion "${FULL_VERSION}"
VIAddVersionKey CompanyName "${MAKER}"
VIAddVersionKey LegalCopyright "MIT License"

!define ENTRY "Software\Microsoft\Windows\CurrentVersion\Uninstall\Tarvelon"
!define PROGRAM "$INSTDIR\TarvelonLow.exe"

Var mode       ; "one" user or "all"
Var installed  ; where it is installed in that mode, or empty
Var user       ; the SID of who is to change the data
Var link       ; 1: a desktop link for Secure Shut Down
Var data       ; 1: the uninstaller deletes Data too
Var upgrade    ; 1: the uninstaller only clears the way for a newer program
Var result     ; of a run with an administrator's rights
Var box1
Var box2
Var box3

!define MUI_ICON "${STAGE}\application.ico"
!define MUI_UNICON "${STAGE}\application.ico"
!define MUI_HEADERIMAGE
!define MUI_HEADERIMAGE_RIGHT
!define MUI_HEADERIMAGE_BITMAP "${STAGE}\header.bmp"
!define MUI_HEADERIMAGE_UNBITMAP "${STAGE}\header.bmp"
!define MUI_WELCOMEFINISHPAGE_BITMAP "${STAGE}\side.bmp"
!define MUI_ABORTWARNING

!insertmacro MUI_PAGE_LICENSE "${STAGE}\LICENSE.txt"
Page custom showChoice leaveChoice
!define MUI_PAGE_CUSTOMFUNCTION_PRE skipFolder
!define MUI_PAGE_CUSTOMFUNCTION_LEAVE leaveFolder
!insertmacro MUI_PAGE_DIRECTORY
!insertmacro MUI_PAGE_INSTFILES
!define MUI_FINISHPAGE_RUN "${PROGRAM}"
!define MUI_FINISHPAGE_RUN_TEXT "Start Tarvelon"
!define MUI_FINISHPAGE_TEXT "At its first start Tarvelon asks for a full scan, which takes a few minutes. Say yes on a \
computer that you trust."
!insertmacro MUI_PAGE_FINISH

UninstPage custom un.showChoice un.leaveChoice
!insertmacro MUI_UNPAGE_INSTFILES

!insertmacro MUI_LANGUAGE English

; Tells why nothing is done, and ends.
!macro refuse text
    ${If} ${Silent}
        System::Call 'kernel32::GetStdHandle(i -11) p.r0'
        ${If} $0 P= 0
            System::Call 'kernel32::AttachConsole(i -1)'
            System::Call 'kernel32::GetStdHandle(i -11) p.r0'
        ${EndIf}
        FileWrite $0 `${text}$\r$\n`
    ${Else}
        MessageBox MB_OK|MB_ICONEXCLAMATION `${text}`
    ${EndIf}
    SetErrorLevel 1
    Quit
!macroend

; What both the installer and the uninstaller need.
!macro shared un
Function ${un}findInstalled
    ${If} ${RunningX64}
        SetRegView 64
    ${EndIf}
    ${If} $mode == all
        SetShellVarContext all
    ${Else}
        SetShellVarContext current
    ${EndIf}
    ReadRegStr $installed SHCTX "${ENTRY}" InstallLocation
FunctionEnd

; In $0: whether it runs. In this session its mark stands; of another session's the file cannot be written.
Function ${un}findRunning
    System::Call 'kernel32::OpenMutexW(i 0x100000, i 0, w "TarvelonLow") p.r0 ?e'
    Pop $1
    ${If} $0 P<> 0
        System::Call 'kernel32::CloseHandle(p r0)'
        StrCpy $0 1
        Return
    ${EndIf}
    ${If} $1 = ${ACCESS_DENIED}
        StrCpy $0 1
        Return
    ${EndIf}
    System::Call 'kernel32::CreateFileW(w "${PROGRAM}", i 0x40000000, i 7, p 0, i 3, i 0, p 0) p.r0 ?e'
    Pop $1
    ${If} $0 P<> -1
        System::Call 'kernel32::CloseHandle(p r0)'
    ${EndIf}
    StrCpy $0 0
    ${If} $1 = ${SHARING_VIOLATION}
        StrCpy $0 1
    ${EndIf}
FunctionEnd

Function ${un}refuseWhileItRuns
    Call ${un}findRunning
    ${IfNot} ${Silent}
        ${DoWhile} $0 = 1
            MessageBox MB_RETRYCANCEL|MB_ICONEXCLAMATION "Tarvelon is running. Close it, then press Retry." \
                IDRETRY +3
            SetErrorLevel 1
            Quit
            Call ${un}findRunning
        ${Loop}
    ${EndIf}
    ${If} $0 = 1
        !insertmacro refuse "Tarvelon is running. Close it, then try again. Nothing was changed."
    ${EndIf}
FunctionEnd

; Runs this file again, with an administrator's rights and the arguments in $0, and waits for it.
Function ${un}runAsAdministrator
    DetailPrint "Waiting for an administrator's consent..."
    ; The arguments hold paths, which are no part of a pattern of the call.
    System::Call '*(i ${RECORD}, i 0x440, p $HWNDPARENT, w "runas", w "$EXEPATH", w r0, p 0, p 1, p 0, p 0, p 0, p 0, \
        p 0, p 0, p 0) p.r1'
    System::Call 'shell32::ShellExecuteExW(p r1) i.r2'
    StrCpy $result 1
    ${If} $2 <> 0
        System::Call '*$1(i, i, p, p, p, p, p, p, p, p, p, p, p, p, p .r3)'
        System::Call 'kernel32::WaitForSingleObject(p r3, i -1)'
        System::Call 'kernel32::GetExitCodeProcess(p r3, *i .r2)'
        System::Call 'kernel32::CloseHandle(p r3)'
        StrCpy $result $2
    ${EndIf}
    System::Free $1
FunctionEnd
!macroend

!define ACCESS_DENIED 5
!define SHARING_VIOLATION 32
!if ${WIDTH} == x64
    !define RECORD 112
!else
    !define RECORD 60
!endif
!insertmacro shared ""
!insertmacro shared "un."

; The installer

; Where it goes by itself, where nobody has named a folder.
Function setFolder
    Call findInstalled
    ${If} $installed != ""
        StrCpy $INSTDIR $installed
    ${ElseIf} $mode == one
        StrCpy $INSTDIR "$LOCALAPPDATA\Programs\Tarvelon"
    ${ElseIf} ${RunningX64}
        StrCpy $INSTDIR "$PROGRAMFILES64\Tarvelon"
    ${Else}
        StrCpy $INSTDIR "$PROGRAMFILES\Tarvelon"
    ${EndIf}
FunctionEnd

Function readUser
    System::Call 'advapi32::OpenProcessToken(p -1, i 8, *p .r0)'
    System::Call 'advapi32::GetTokenInformation(p r0, i 1, p 0, i 0, *i .r1)'
    System::Alloc $1
    Pop $2
    System::Call 'advapi32::GetTokenInformation(p r0, i 1, p r2, i r1, *i)'
    System::Call '*$2(p .r3)'
    System::Call 'advapi32::ConvertSidToStringSidW(p r3, *p .r4)'
    System::Call 'kernel32::lstrcpynW(w .r5, p r4, i 200)'
    System::Call 'kernel32::LocalFree(p r4)'
    System::Call 'kernel32::CloseHandle(p r0)'
    System::Free $2
    StrCpy $user $5
FunctionEnd

Function .onInit
    ${GetParameters} $R0
    StrCpy $link 0
    ClearErrors
    ${GetOptions} $R0 "/Desktop" $R1
    ${IfNot} ${Errors}
        StrCpy $link 1
    ${EndIf}
    ClearErrors
    ${GetOptions} $R0 "/User=" $user
    ${If} ${Errors}
        Call readUser
    ${EndIf}
    StrCpy $mode all
    ClearErrors
    ${GetOptions} $R0 "/AllUsers" $R1
    ${If} ${Errors}
        StrCpy $mode one
        Call findInstalled
        ${IfNot} ${Silent}
        ${AndIf} $installed == ""
            StrCpy $mode all
            Call findInstalled
            ${If} $installed == ""
                StrCpy $mode one
            ${EndIf}
        ${EndIf}
    ${EndIf}
    ${If} $INSTDIR == ""
        ; Without a word NSIS passes over a folder that cannot be.
        System::Call 'kernel32::GetCommandLineW() w.r0'
        ClearErrors
        ${GetOptions} $0 "/D=" $R1
        ${IfNot} ${Errors}
            !insertmacro refuse "There can be no folder $R1. Nothing was changed."
        ${EndIf}
        Call setFolder
    ${Else}
        Call findInstalled
        ${If} $installed != ""
        ${AndIf} $installed != $INSTDIR
            !insertmacro refuse "Tarvelon is installed in $installed. Uninstall it there first, and keep its data."
        ${EndIf}
    ${EndIf}
    Call refuseWhileItRuns
    ${If} ${Silent}
        ${If} $mode == all
            UserInfo::GetAccountType
            Pop $0
            ${If} $0 != "Admin"
                !insertmacro refuse "To install for all users takes an administrator. Nothing was changed."
            ${EndIf}
        ${EndIf}
        Call tryFolder
        Pop $0
        ${If} $0 = 0
            !insertmacro refuse "Nothing can be written to $INSTDIR. Nothing was changed."
        ${EndIf}
    ${EndIf}
FunctionEnd

Function showChoice
    !insertmacro MUI_HEADER_TEXT "Who is it for?" "Tarvelon keeps its data in its own folder."
    nsDialogs::Create 1018
    Pop $0
    ${NSD_CreateRadioButton} 0 0 100% 12u "Only for &me"
    Pop $box1
    ${NSD_CreateLabel} 12u 13u -12u 20u "Takes no administrator. Program and data are in a folder of your own."
    Pop $0
    ${NSD_CreateRadioButton} 0 36u 100% 12u "For &all who use this computer"
    Pop $box2
    ${NSD_CreateLabel} 12u 49u -12u 36u "An administrator has to agree. All can start the program, but its settings \
        and checksums are one set for the computer, and only you can change them: whoever could change them could have \
        any program started as the virus scanner of the others."
    Pop $0
    ${NSD_CreateCheckBox} 0 96u 100% 12u "A link on the &desktop for Secure Shut Down: scans first, then turns off"
    Pop $box3
    ${If} $mode == all
        ${NSD_Check} $box2
    ${Else}
        ${NSD_Check} $box1
    ${EndIf}
    ${NSD_SetState} $box3 $link
    nsDialogs::Show
FunctionEnd

Function leaveChoice
    ${NSD_GetState} $box3 $link
    ${NSD_GetState} $box2 $0
    StrCpy $1 one
    ${If} $0 = ${BST_CHECKED}
        StrCpy $1 all
    ${EndIf}
    ${If} $1 != $mode
        StrCpy $mode $1
        Call setFolder
    ${EndIf}
FunctionEnd

; A newer program goes where the older one is.
Function skipFolder
    ${If} $installed != ""
        Abort
    ${EndIf}
FunctionEnd

; 1 when a file can be made there; an administrator makes the folder, too. Leaves nothing behind.
Function tryFolder
    Push 1
    UserInfo::GetAccountType
    Pop $0
    ${If} $mode == all
    ${AndIf} $0 != "Admin"
        Return
    ${EndIf}
    ${If} ${FileExists} "$INSTDIR\*.*"
        StrCpy $1 1
    ${Else}
        StrCpy $1 0
        CreateDirectory $INSTDIR
    ${EndIf}
    ClearErrors
    FileOpen $0 "$INSTDIR\Tarvelon.new" w
    ${If} ${Errors}
        Pop $0
        Push 0
    ${Else}
        FileClose $0
        Delete "$INSTDIR\Tarvelon.new"
    ${EndIf}
    ${If} $1 = 0
        RMDir $INSTDIR
    ${EndIf}
FunctionEnd

Function leaveFolder
    Call tryFolder
    Pop $0
    ${If} $0 = 0
        MessageBox MB_OK|MB_ICONEXCLAMATION "Nothing can be written to this folder:$\r$\n$INSTDIR$\r$\n$\r$\nPlease \
            choose another one."
        Abort
    ${EndIf}
FunctionEnd

; Gives a folder these rights and no others. Drives without rights, such as memory sticks, stay as they are.
!macro setRights folder rights
    System::Call 'advapi32::ConvertStringSecurityDescriptorToSecurityDescriptorW(w "${rights}", i 1, *p .r0, p 0)'
    System::Call 'advapi32::GetSecurityDescriptorDacl(p r0, *i, *p .r1, *i)'
    System::Call 'advapi32::SetNamedSecurityInfoW(w "${folder}", i 1, i 0x80000004, p 0, p 0, p r1, p 0) i.r2'
    System::Call 'kernel32::LocalFree(p r0)'
    DetailPrint "Rights to ${folder}: $2"
!macroend
!define ADMINISTRATORS_FULL "(A;OICI;FA;;;SY)(A;OICI;FA;;;BA)"
!define USERS_READ "(A;OICI;0x1200a9;;;BU)"

Function layDown
    Call findInstalled
    ${If} $installed != ""
    ${AndIf} ${FileExists} "$INSTDIR\Uninstall.exe"
        ExecWait '"$INSTDIR\Uninstall.exe" /S /Upgrade _?=$INSTDIR' $0
        ${If} $0 <> 0
            SetErrorLevel 2
            Abort "The older program cannot be taken away: its uninstaller gave $0."
        ${EndIf}
    ${EndIf}
    CreateDirectory $INSTDIR
    ${If} $mode == all
        !insertmacro setRights $INSTDIR "D:P${ADMINISTRATORS_FULL}${USERS_READ}"
        ; An upgrade leaves the data to whom it is.
        ${If} $installed == ""
            CreateDirectory "$INSTDIR\Data"
            !insertmacro setRights "$INSTDIR\Data" "D:P${ADMINISTRATORS_FULL}(A;OICI;0x1301bf;;;$user)${USERS_READ}"
        ${EndIf}
    ${EndIf}

    SetOverwrite on
    SetOutPath $INSTDIR
    ${If} ${IsNativeARM64}
    ${AndIf} ${AtLeastBuild} 22000
    ${OrIf} ${IsNativeAMD64}
        File "${STAGE}\x64\TarvelonLow.exe"
    ${Else}
        File "${STAGE}\x86\TarvelonLow.exe"
    ${EndIf}
    !include "${STAGE}\lay.nsh"
    WriteUninstaller "$INSTDIR\Uninstall.exe"
    SetOutPath $INSTDIR
    CreateShortcut "$SMPROGRAMS\Tarvelon.lnk" "${PROGRAM}"

    WriteRegStr SHCTX "${ENTRY}" DisplayName "Tarvelon"
    WriteRegStr SHCTX "${ENTRY}" DisplayVersion "${VERSION}"
    WriteRegStr SHCTX "${ENTRY}" Publisher "${MAKER}"
    WriteRegStr SHCTX "${ENTRY}" URLInfoAbout "${WEB_PAGE}"
    WriteRegStr SHCTX "${ENTRY}" DisplayIcon "${PROGRAM}"
    WriteRegStr SHCTX "${ENTRY}" InstallLocation $INSTDIR
    WriteRegStr SHCTX "${ENTRY}" UninstallString '"$INSTDIR\Uninstall.exe"'
    WriteRegStr SHCTX "${ENTRY}" QuietUninstallString '"$INSTDIR\Uninstall.exe" /S'
    WriteRegDWORD SHCTX "${ENTRY}" EstimatedSize ${SIZE}
    WriteRegDWORD SHCTX "${ENTRY}" NoModify 1
    WriteRegDWORD SHCTX "${ENTRY}" NoRepair 1
FunctionEnd

Section
    AddSize ${SIZE}
    Call refuseWhileItRuns
    UserInfo::GetAccountType
    Pop $0
    ${If} $mode == all
    ${AndIf} $0 != "Admin"
        StrCpy $0 "/S /AllUsers /User=$user /D=$INSTDIR"
        Call runAsAdministrator
        ${If} $result <> 0
            MessageBox MB_OK|MB_ICONEXCLAMATION "Tarvelon was not installed. An administrator has to agree, and \
                it must not run for another user."
            SetErrorLevel 1
            Abort "Not installed."
        ${EndIf}
    ${Else}
        Call layDown
    ${EndIf}
    ${If} $link = 1
        SetShellVarContext current
        CreateShortcut "$DESKTOP\SecureShutDown.lnk" "${PROGRAM}" "/s"
    ${EndIf}
SectionEnd

; The uninstaller

Function un.onInit
    ${GetParameters} $R0
    StrCpy $data 0
    ClearErrors
    ${GetOptions} $R0 "/Data" $R1
    ${IfNot} ${Errors}
        StrCpy $data 1
    ${EndIf}
    StrCpy $upgrade 0
    ClearErrors
    ${GetOptions} $R0 "/Upgrade" $R1
    ${IfNot} ${Errors}
        StrCpy $upgrade 1
    ${EndIf}
    StrCpy $mode all
    Call un.findInstalled
    ${If} $installed != $INSTDIR
        StrCpy $mode one
        Call un.findInstalled
    ${EndIf}
    Call un.refuseWhileItRuns
    ${If} ${Silent}
    ${AndIf} $mode == all
        UserInfo::GetAccountType
        Pop $0
        ${If} $0 != "Admin"
            !insertmacro refuse "To uninstall it for all users takes an administrator. Nothing was changed."
        ${EndIf}
    ${EndIf}
FunctionEnd

Function un.showChoice
    !insertmacro MUI_HEADER_TEXT "Uninstall Tarvelon" "The program, its help and its shortcuts are removed."
    nsDialogs::Create 1018
    Pop $0
    ${NSD_CreateLabel} 0 0 100% 24u "Tarvelon is removed from:$\r$\n$INSTDIR"
    Pop $0
    ${NSD_CreateCheckBox} 0 36u 100% 12u "Also delete the &data: settings, checksums and reports"
    Pop $box1
    ${NSD_CreateLabel} 12u 49u -12u 24u "They are in the folder Data. Left alone, they are there again when Tarvelon is \
        installed again in the same place."
    Pop $0
    ${NSD_SetState} $box1 $data
    GetDlgItem $0 $HWNDPARENT 1
    SendMessage $0 ${WM_SETTEXT} 0 "STR:&Uninstall"
    nsDialogs::Show
FunctionEnd

Function un.leaveChoice
    ${NSD_GetState} $box1 $data
FunctionEnd

; Deletes the link in $0 where it starts this program: a copy in another folder keeps its own.
Function un.deleteLink
    ${IfNot} ${FileExists} $0
        Return
    ${EndIf}
    StrCpy $3 ""
    !insertmacro ComHlpr_CreateInProcInstance ${CLSID_ShellLink} ${IID_IShellLink} r1 ""
    ${If} $1 P<> 0
        ${IUnknown::QueryInterface} $1 '("${IID_IPersistFile}", .r2)'
        ${If} $2 P<> 0
            ${IPersistFile::Load} $2 '("$0", ${STGM_READ})'
            ${IShellLink::GetPath} $1 '(.r3, ${NSIS_MAX_STRLEN}, p 0, 0)'
            ${IUnknown::Release} $2 ""
        ${EndIf}
        ${IUnknown::Release} $1 ""
    ${EndIf}
    ${If} $3 == "${PROGRAM}"
        Delete $0
        ${If} ${FileExists} $0
            MessageBox MB_OK|MB_ICONINFORMATION "This shortcut stays, as only an administrator may delete it:\
                $\r$\n$0" /SD IDOK
        ${EndIf}
    ${EndIf}
FunctionEnd

; Those that the program makes, and that in the start menu.
Function un.deleteLinks
    StrCpy $0 "$SMPROGRAMS\Tarvelon.lnk"
    Call un.deleteLink
    StrCpy $0 "$SMSTARTUP\Tarvelon.lnk"
    Call un.deleteLink
    StrCpy $0 "$DESKTOP\SecureShutDown.lnk"
    Call un.deleteLink
FunctionEnd

; In $1: whether the folder in $0 is there and does not lead elsewhere, where an administrator could be made to delete
; what is others'.
Function un.isOwnFolder
    System::Call 'kernel32::GetFileAttributesW(w r0) i.r1'
    ${If} $1 <> -1
        IntOp $1 $1 & 0x400
        IntOp $1 $1 !
    ${Else}
        StrCpy $1 0
    ${EndIf}
FunctionEnd

Function un.deleteData
    StrCpy $0 "$INSTDIR\Data"
    Call un.isOwnFolder
    ${If} $1 = 1
        StrCpy $0 "$INSTDIR\Data\Log"
        Call un.isOwnFolder
        ${If} $1 = 1
            Delete "$INSTDIR\Data\Log\*.*"
            RMDir "$INSTDIR\Data\Log"
        ${EndIf}
        Delete "$INSTDIR\Data\*.*"
        RMDir "$INSTDIR\Data"
    ${EndIf}
FunctionEnd

Function un.takeAway
    Delete "${PROGRAM}"
    ${If} ${FileExists} "${PROGRAM}"
        SetErrorLevel 2
        Abort "TarvelonLow.exe cannot be deleted."
    ${EndIf}
    !include "${STAGE}\take.nsh"
    ${If} $upgrade = 1
        Return
    ${EndIf}
    Delete "$INSTDIR\SecureShutDown.lnk"
    Delete "$INSTDIR\Uninstall.exe"
    ${If} $data = 1
        Call un.deleteData
    ${EndIf}
    RMDir $INSTDIR
    Call un.findInstalled
    ${If} $installed == $INSTDIR
        DeleteRegKey SHCTX "${ENTRY}"
    ${EndIf}
    SetShellVarContext all
    Call un.deleteLinks
FunctionEnd

Section un.Uninstall
    UserInfo::GetAccountType
    Pop $0
    ${If} $mode == all
    ${AndIf} $0 != "Admin"
        StrCpy $0 "/S"
        ${If} $data = 1
            StrCpy $0 "/S /Data"
        ${EndIf}
        StrCpy $0 "$0 _?=$INSTDIR"
        Call un.runAsAdministrator
        ${If} $result <> 0
            MessageBox MB_OK|MB_ICONEXCLAMATION "Tarvelon was not removed. An administrator has to agree, and \
                it must not run for another user."
            SetErrorLevel 1
            Abort "Not removed."
        ${EndIf}
    ${Else}
        Call un.takeAway
    ${EndIf}
    ${If} $upgrade = 0
        SetShellVarContext current
        Call un.deleteLinks
    ${EndIf}
SectionEnd
