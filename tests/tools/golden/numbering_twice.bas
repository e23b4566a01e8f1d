Option Explicit

Private mTotal As Long

' Adds the two values and keeps the running total.
Public Function Total(ByVal first As Long, _
                      ByVal second As Long) As Long
    Dim result As Long
    Const LIMIT As Long = 100
    Static calls As Long
1011    On Error GoTo ErrHandler
1012    calls = calls + 1
1013    result = first + _
                second
1015    If result > LIMIT Then
1016        result = LIMIT
            End If
    Dim i As Long
1019    For i = 1 To 3
1020        result = result + i
            Next
1022    Do
1023        result = result - 1
1024    Loop While result > LIMIT
1025    Select Case result
            Case 1
1027        result = 2
            Case Else
1029        result = result * 2
            End Select
            With Application
1032        .StatusBar = "Total: " & result
            End With
            Without = 1
    ' The running total.
1036    mTotal = mTotal + result
1037    Total = result
            Exit Function
ErrHandler:
1040    Debug.Print Err.Description
            Resume Next
End Function

Public Sub Report()
1045    MsgBox "Total so far: " & mTotal
        End Sub
