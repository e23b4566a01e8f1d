Option Explicit

Private mTotal As Long

' Adds the two values and keeps the running total.
Public Function Total(ByVal first As Long, _
                      ByVal second As Long) As Long
    Dim result As Long
    Const LIMIT As Long = 100
    Static calls As Long
    On Error GoTo ErrHandler
    calls = calls + 1
    result = first + _
            second
    If result > LIMIT Then
        result = LIMIT
        End If
    Dim i As Long
    For i = 1 To 3
        result = result + i
        Next
    Do
        result = result - 1
    Loop While result > LIMIT
    Select Case result
        Case 1
        result = 2
        Case Else
        result = result * 2
        End Select
        With Application
        .StatusBar = "Total: " & result
        End With
        Without = 1
    ' The running total.
    mTotal = mTotal + result
    Total = result
        Exit Function
ErrHandler:
    Debug.Print Err.Description
        Resume Next
End Function

Public Sub Report()
    MsgBox "Total so far: " & mTotal
    End Sub
