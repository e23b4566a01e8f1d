Attribute VB_Name = "{MODULENAME}"
{MODULEHEADER}Option Explicit

' Reports an error that a procedure's handler caught: in the Immediate window, and in a
' message box unless the project runs unattended.
Public Unattended As Boolean

Public Sub {PROCEDURENAME}(ByVal Number As Long, ByVal Description As String, ByVal Source As String)
    Dim Message As String
    Message = "Error " & Number & " in " & Source & ": " & Description
    Debug.Print "{PROJECTNAME} " & Format$(Now, "yyyy-mm-dd hh:nn:ss") & " " & Message
    If Not Unattended Then
        MsgBox "Error " & Number & " in " & Source & vbCrLf & vbCrLf & Description, _
               vbExclamation, "{PROJECTNAME}"
    End If
End Sub
