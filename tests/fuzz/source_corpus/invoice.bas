Option Explicit
' Invoices: totals and taxes
Private Const mcstrModule As String = "basInvoice"
Public Const gcdblTax As Double = 0.2, gclngMax = 100
Private mcolLines As New Collection, mlngCount&
Global gstrUser As String * 20
Public Enum eStatus
    stOpen = 1
    stPaid
End Enum
Private Type tLine
    Amount As Currency
End Type
Public Declare PtrSafe Function GetTickCount Lib "kernel32" () As Long

' Adds a line.
Public Function LineAdd(ByVal vcurAmount As Currency, _
                        Optional ByVal vstrText As String = "a, b: c's") As Long
    Dim lngIndex As Long, strMsg$
    Static lngCalls As Long
    Const clngStep As Long = 1 ' step
    On Error GoTo ErrHandler
    If vcurAmount < 0 Then Exit Function
10  mlngCount = mlngCount + 1: LineAdd = mlngCount
    Exit Function
ErrHandler:
    MsgBox "Error: " & Err.Description
    Resume Next
End Function

Private Property Get Count() As Long
    Count = mlngCount
End Property
Private Property Let Count(ByVal v As Long)
    mlngCount = v
End Property
