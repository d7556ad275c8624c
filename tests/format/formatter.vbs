' The formatter and its collections, driven late-bound.
Option Explicit

Sub Check(condition, what)
    If Not condition Then
        WScript.Echo "failed: " & what
        WScript.Quit 1
    End If
End Sub

Class Priced
    Public Default Property Get Price()
        Price = 99.5
    End Property
End Class

Dim name, formatter, category, format, listing, value, values(2)
For Each name In Array("qzFormatter", "qzCategory", "qzFormat")
    Check Not CreateObject("QzVandraExt." & name) Is Nothing, name
    Check Not CreateObject("QzVandraExt." & name & ".1") Is Nothing, name & ", the version"
Next
Check GetObject("new:{816F7E96-8C4D-4E9C-ACF0-088C2F3505C4}").Count = 6, "a formatter by its class id"
Check GetObject("new:{591FB06F-1EEB-4C9C-8C3A-ACA84FAE477F}").Count = 0, "a category by its class id"
Check GetObject("new:{27081A24-B18E-4FE8-BFC1-7B3B594508EA}").FormatID = 0, "a format by its class id"

Set formatter = CreateObject("QzVandraExt.qzFormatter")
listing = ""
For Each category In formatter
    listing = listing & "[" & category.CategoryID & " " & category.Name & "]"
    For Each format In category
        listing = listing & format.FormatID & " " & format.FormatString & " "
    Next
Next
Check listing = "[0 General Number]0 # 1 #,###.00 [1 Date]0 dddd/mmm/yyyy 1 dd\m\yyyy 2 mm/dd/yyyy " & _
    "[2 Time]0 hh:MM:SS 1 HH:MM:SS 2 HH:MM:SS T [3 Date and Time][4 Percentage][5 Currency]", listing

Set category = formatter.Add("Lengths")
category.Add "0.0"" mm"""
category.Formats(0).FormatID = 7
Check category.Item(7).FormatString = "0.0"" mm""" And category(7).FormatID = 7, "found by its new id"
Check formatter(6).Name = "Lengths" And formatter.Count = 7 And category.Count = 1, "the new category"
category.Name = "Measures"
Check formatter.Item(6).Name = "Measures", "the name"
formatter.Remove 6
Check formatter.Count = 6 And category.Count = 1, "removed, and alive by itself"

formatter.DecimalSeperator = Asc(",")
formatter.ThousandSeperator = Asc(".")
Check formatter.DecimalSeperator = 44 And formatter.ThousandSeperator = 46, "the separators"
Check UBound(Split(formatter.EnumCategories, vbTab)) = 5, "the names"
Check formatter.EnumFormats(0) = "#" & vbTab & "#,###.00", "the formats"

Check formatter.FormatData("#,###.00", 1234567.891) = "1.234.567,89", "a number"
value = -12
Check formatter.FormatData("0.0;(0.0)", value) = "(12,0)", "a number in a variable"
values(1) = CSng(0.5)
Check formatter.FormatData("0%", values(1)) = "50%", "a number in an array"
Check formatter.FormatData("yyyy-mm-dd HH:MM", DateSerial(2002, 3, 5) + TimeSerial(15, 6, 0)) = "2002-03-05 15:06", "a date"
value = "abcde"
Check formatter.FormatData("@@@-@@", value) = "abc-de", "a text"
Check formatter.FormatData("0.0", New Priced) = "99,5", "an object's value"
Check formatter.FormatData("", "as it is") = "as it is", "no format"
Check formatter.FormatData("", 12) = "12", "a number without a format"

Sub CheckError(number, text, what)
    Check Err.Number = number And number <> 0, what & ": " & Hex(Err.Number)
    Check InStr(Err.Description, text) > 0, what & ": " & Err.Description
    Err.Clear
End Sub

On Error Resume Next
formatter.DecimalSeperator = 59
CheckError &H80040001, "decimal separator", "no separator"
formatter.ThousandSeperator = 59
CheckError &H80040007, "thousands separator", "no separator"
value = formatter.EnumFormats(6)
CheckError &H80040002, "6", "no such category"
value = formatter.FormatData("#,###.00", True)
CheckError &H80004005, "Boolean", "no number"
value = formatter.FormatData("0", Nothing)
CheckError &H80040006, "object", "no object"
' Script languages may have numbers of their own for the system's codes.
formatter.Remove 17
CheckError Err.Number, "17", "no such id"
value = formatter.Item(-3).Name
CheckError Err.Number, "-3", "no such id"
formatter(1).CategoryID = 0
CheckError Err.Number, "has the id 0", "an id that is taken"
Check formatter(1).CategoryID = 1 And formatter.DecimalSeperator = 44, "kept"
On Error Goto 0

WScript.Echo "script finished"
