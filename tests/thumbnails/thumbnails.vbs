' The pane on the reference host, both driven late-bound.
Option Explicit

Sub Check(condition, what)
    If Not condition Then
        WScript.Echo "failed: " & what
        WScript.Quit 1
    End If
End Sub

Dim host, pane
Set host = CreateObject("VandraX.ReferenceHost")
host.NewDocument 12, 12240, 15840
Set pane = CreateObject("QzVandraExt.qzThumbnailCtrl")
pane.Initialize host
Check pane.IsInitialized = 1, "attached"
Check host.SinkCount = 1, "one sink"

pane.ThumbSizeFactor = 51
Check pane.ThumbSizeFactor = 14, "a factor out of range is ignored"
pane.ThumbSizeFactor = 20
pane.RedrawAllThumbs
Check pane.ThumbSizeFactor = 20, "the factor"
pane.SettingsChange 0, 2
Check pane.Settings = 1, "settings"
pane.BackColor = RGB(1, 2, 3)
Check pane.BackColor = RGB(1, 2, 3), "the colour"
pane.ScrollPageThumbIntoView 12

Dim pages, page, told
pages = Array(2, "5", 7.0)
pane.SelectedPages = pages
pane.SelectedPages = Array(11)
For Each page In pane.SelectedPagesVariant
    told = told & page & " "
Next
Check told = "2 5 7 11 ", "the selected pages one by one: " & told
pages = pane.SelectedPagesVariant
Check UBound(pages) = 3 And pages(1) = 5, "and as an array"
pane.SelectedPages = pages

On Error Resume Next
pane.SelectedPages = Array("x")
Check Err.Number <> 0, "a text is no page"
Check InStr(Err.Description, "An element of the array is no page number") = 1, "the error says so: " & Err.Description
Err.Clear
pane.ScrollPageThumbIntoView 13
Check Err.Number <> 0, "there is no such page"
Check InStr(Err.Description, "no page 13") > 0, "the error says why: " & Err.Description
Err.Clear
pane.Initialize CreateObject("Scripting.Dictionary")
Check Err.Number <> 0, "a dictionary is no host"
Check Len(Err.Description) > 0, "the error says why"
Err.Clear
host.FailOperation "GetPageCount", &H80070005
pane.RedrawAllThumbs
Check Err.Number <> 0, "the host fails"
Check InStr(Err.Description, "number of pages") > 0, "the error says what: " & Err.Description
On Error Goto 0
host.ClearFaults

pane.Reset
Check pane.IsInitialized = 0, "let go"
Check host.SinkCount = 0, "no sink is left"

WScript.Echo "script finished"
