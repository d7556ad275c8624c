' The registered module on the reference host, both as a script sees them.
Option Explicit

Sub Check(condition, what)
    If Not condition Then
        WScript.Echo "failed: " & what
        WScript.Quit 1
    End If
End Sub

' `number` 0: any, as script languages have numbers of their own for some of the system's codes.
Sub CheckError(number, text, what)
    Check Err.Number <> 0 And (number = 0 Or Err.Number = number), what & ": " & Hex(Err.Number)
    Check InStr(Err.Description, text) > 0, what & ": " & Err.Description
    Err.Clear
End Sub

Class Priced
    Public Default Property Get Price()
        Price = 99.5
    End Property
End Class

Dim name
For Each name In Array("qzThumbnailCtrl", "qzBookmarkCtrl", "qzLayersCtrl", "qzStatusCtrl", "qzPropertiesDlg", _
                       "qzGridUnitsDlg", "qzFormatter", "qzCategory", "qzFormat")
    Check Not CreateObject("QzVandraExt." & name) Is Nothing, name
    Check Not CreateObject("QzVandraExt." & name & ".1") Is Nothing, name & ", the version"
Next
Check Not CreateObject("QzVandraExt.qzPluginUIDialogs") Is Nothing, "the dispatcher"
Check GetObject("new:{816F7E96-8C4D-4E9C-ACF0-088C2F3505C4}").Count = 6, "a formatter by its class id"

Dim host, pane, page, pages, told
Set host = CreateObject("VandraX.ReferenceHost")
host.NewDocument 12, 12240, 15840
Set pane = CreateObject("QzVandraExt.qzThumbnailCtrl")
pane.Initialize host
Check pane.IsInitialized = 1 And host.SinkCount = 1, "attached"
pane.SettingsChange 0, 2
pane.BackColor = &H8000000F
Check pane.Settings = 1 And pane.BackColor = &H8000000F, "settings, a system colour"
pane.SelectedPages = Array(2, "5", 7.0)
pages = Array(11)
pane.SelectedPages = pages
For Each page In pane.SelectedPagesVariant
    told = told & page & " "
Next
Check told = "2 5 7 11 ", "the selected pages one by one: " & told
pages = pane.SelectedPagesVariant
Check UBound(pages) = 3 And pages(1) = 5, "and as an array"
On Error Resume Next
pane.SelectedPages = Array("x")
CheckError 0, "An element of the array is no page number", "a text is no page"
pane.ScrollPageThumbIntoView 13
CheckError 0, "no page 13", "there is no such page"
pane.Initialize CreateObject("Scripting.Dictionary")
CheckError 0, "host", "a dictionary is no host"
host.FailOperation "GetPageCount", &H80070005
pane.RedrawAllThumbs
CheckError 0, "number of pages", "the host fails"
host.ClearFaults
On Error Goto 0
pane.Reset
Check pane.IsInitialized = 0 And host.SinkCount = 0, "let go"

Set pane = CreateObject("QzVandraExt.qzBookmarkCtrl")
host.GetBookmarks().AppendChild("Chapter").AppendChild "Section"
pane.InitializeV host
pane.Initialize host
Check host.SinkCount = 1, "one sink"
pane.ExpandAll
pane.TextColor = RGB(1, 2, 3)
Check pane.FitToParent = 1 And pane.TextColor = RGB(1, 2, 3), "the properties"
On Error Resume Next
pane.IconSet = 9
CheckError 0, "", "there is no such icon set"
pane.Initialize Nothing
CheckError 0, "host", "nothing is no host"
host.FailOperation "Bookmark.Title", &H80070005
pane.Refresh
CheckError &H80004005, "", "a bookmark fails"
host.ClearFaults
On Error Goto 0

Dim formatter, category, item, value, values(1)
Set formatter = CreateObject("QzVandraExt.qzFormatter")
told = ""
For Each category In formatter
    For Each item In category
        told = told & category.CategoryID & item.FormatID & " "
    Next
Next
Check told = "00 01 10 11 12 20 21 22 ", "categories and formats one by one: " & told
Set category = formatter.Add("Lengths")
category.Add "0.0"" mm"""
category.Formats(0).FormatID = 7
Check category.Item(7).FormatString = "0.0"" mm""" And category(7).FormatID = 7, "found by its new id"
formatter.DecimalSeperator = Asc(",")
formatter.ThousandSeperator = Asc(".")
value = -12
values(1) = CSng(0.5)
Check formatter.FormatData("#,###.00", 1234567.891) = "1.234.567,89", "a number"
Check formatter.FormatData("0.0;(0.0)", value) = "(12,0)", "a number in a variable"
Check formatter.FormatData("0%", values(1)) = "50%", "a number in an array"
Check formatter.FormatData("0.0", New Priced) = "99,5", "an object's value"
On Error Resume Next
formatter.DecimalSeperator = 59
CheckError &H80040001, "decimal separator", "no separator"
value = formatter.FormatData("#,###.00", True)
CheckError &H80004005, "Boolean", "no number"
value = formatter.FormatData("0", Nothing)
CheckError &H80040006, "object", "no object"
formatter(1).CategoryID = 0
CheckError 0, "has the id 0", "an id that is taken"
On Error Goto 0

WScript.Echo "script finished"
