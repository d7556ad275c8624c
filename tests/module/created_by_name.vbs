' The registered module, created by both of its names and driven late-bound.
Option Explicit

Sub Check(condition, what)
    If Not condition Then
        WScript.Echo "failed: " & what
        WScript.Quit 1
    End If
End Sub

Dim name, pane
For Each name In Array("QzVandraExt.qzThumbnailCtrl", "QzVandraExt.qzThumbnailCtrl.1")
    Set pane = CreateObject(name)
    Check pane.IsInitialized = 0, name & ": not attached"
    Check pane.ThumbSizeFactor = 14, name & ": size factor"
    pane.BackColor = &H8000000F
    Check pane.BackColor = &H8000000F, name & ": a system colour stays"
Next

On Error Resume Next
pane.Initialize Nothing
Check Err.Number <> 0, "nothing is no host"
Check Len(Err.Description) > 0, "the error says why"
On Error Goto 0

WScript.Echo "script finished"
