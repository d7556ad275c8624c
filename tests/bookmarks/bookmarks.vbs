' The pane on the reference host, both driven late-bound.
Option Explicit

Sub Check(condition, what)
    If Not condition Then
        WScript.Echo "failed: " & what
        WScript.Quit 1
    End If
End Sub

Dim host, pane, chapter
Set host = CreateObject("VandraX.ReferenceHost")
host.NewDocument 3, 12240, 15840
Set chapter = host.GetBookmarks().AppendChild("Chapter")
chapter.AppendChild "Section"
Set pane = CreateObject("QzVandraExt.qzBookmarkCtrl")
pane.Refresh
pane.InitializeV host
Check host.SinkCount = 1, "one sink"
pane.Initialize host
Check host.SinkCount = 1, "still one sink"
pane.ExpandAll
pane.CollapseAll
pane.Refresh

Check pane.FitToParent = 1 And pane.ReadOnly = 0 And pane.EnableDragDrop = 1, "the defaults"
pane.ReadOnly = 1
pane.IconSet = 2
pane.TextColor = RGB(1, 2, 3)
pane.SelectedTextBackColor = &H80000008
Check pane.ReadOnly = 1 And pane.IconSet = 2 And pane.TextColor = RGB(1, 2, 3), "the properties"

On Error Resume Next
pane.IconSet = 9
Check Err.Number <> 0, "there is no such icon set"
Err.Clear
pane.Initialize Nothing
Check Err.Number <> 0, "nothing is no host"
Check Len(Err.Description) > 0, "the error says why"
Err.Clear
host.FailOperation "Bookmark.Title", &H80070005
pane.Refresh
Check Err.Number = &H80004005, "a general failure: " & Hex(Err.Number)
Check Len(Err.Description) > 0, "the error says why"
Err.Clear
host.ClearFaults
pane.Refresh
Check Err.Number = 0, "it works again"

WScript.Echo "script finished"
