' The dispatcher of the tool dialogs, late-bound; nothing here opens a window.
Option Explicit

Sub Check(condition, what)
    If Not condition Then
        WScript.Echo "failed: " & what
        WScript.Quit 1
    End If
End Sub

Dim host, pane, dialogs, number
Set host = CreateObject("VandraX.ReferenceHost")
host.NewDocument 1, 12240, 15840
Set pane = CreateObject("QzVandraExt.qzBookmarkCtrl")
Set dialogs = CreateObject("QzVandraExt.qzPluginUIDialogs")
dialogs.PDF = host
Set dialogs.BookmarkCtrl = pane
Set dialogs.ThumbnailsCtrl = Nothing
Set dialogs.LayersCtrl = pane
Set dialogs.StatusCtrl = Nothing
dialogs.ParentWindowHandle = 0
Check dialogs.LastResult = 0, "no dialog was run yet"
Check dialogs.Password = "", "no password yet"
dialogs.Password = "secret"
Check dialogs.Password = "secret", "the password stays"

On Error Resume Next
For Each number In Array(0, 13, 1, 12)
    Err.Clear
    dialogs.DoDialog number
    Check Err.Number <> 0, number & " has no dialog"
    Check InStr(Err.Description, number) > 0, "the error names " & number
    Check dialogs.LastResult = &H80004001, "and is the last result"
    Err.Clear
    dialogs.DoDialogEx number
    Check Err.Number <> 0, number & " has no dialog with data either"
Next
On Error Goto 0

WScript.Echo "script finished"
