Option Explicit

' Invoices: one per customer, built from the open orders.
' Totals are rounded to cents; amounts < 0 are credits.

Private Const VAT_RATE As Double = 0.2
Private mInvoices As Collection

#If VBA7 Then
Private Declare PtrSafe Function GetTickCount Lib "kernel32" () As Long
#Else
Private Declare Function GetTickCount Lib "kernel32" () As Long
#End If

Public Function InvoiceTotal(ByVal net As Currency, Optional ByVal withVat As Boolean = True) As Currency
    Dim total As Currency
    Dim i As Integer
    total = net
    If withVat And net > 0 Then total = total * (1 + VAT_RATE)
    If total < 0 Or total >= 1000000 Then
        Err.Raise 5, "InvoiceTotal", "Amount out of range: " & Format(total, "0.00")
    End If
    For i = 1 To Int(total / 100)
        DoEvents
    Next i
    InvoiceTotal = Round(total, 2)
End Function

Public Sub ListCustomers(ByVal sheet As Object)
    Dim row As Long, name As String
    Rem The first row holds the titles.
    For row = 2 To sheet.UsedRange.Rows.Count
        name = Trim$(sheet.Cells(row, 1).Value)
        If Len(name) = 0 Then GoTo NextRow
        Debug.Print "Customer: """ & UCase(name) & """ isn't new" ' quotes and an apostrophe
        mInvoices.Remove name
NextRow:
    Next row
End Sub
' Last line: a comment with no line end.