Attribute VB_Name = "basMain"
Option Explicit

' Builds invoices from the "Orders" sheet and files them in the "Invoices" sheet.

Private Const ORDERS_SHEET As String = "Orders"
Private Const INVOICES_SHEET As String = "Invoices"

Public Sub CreateInvoices()
Attribute CreateInvoices.VB_Description = "Creates one invoice per customer from the open orders"
Attribute CreateInvoices.VB_ProcData.VB_Invoke_Func = "I\n14"
    Dim invoices As Scripting.Dictionary

    Set invoices = CollectOrders(ThisWorkbook.Worksheets(ORDERS_SHEET))

    WriteInvoices invoices, ThisWorkbook.Worksheets(INVOICES_SHEET)
End Sub

Private Function CollectOrders(ByVal orders As Worksheet) As Scripting.Dictionary
    Dim result As New Scripting.Dictionary
    Dim row As Long
    Dim customer As String
    Dim invoice As clsInvoice

    For row = 2 To orders.Cells(orders.Rows.Count, 1).End(xlUp).Row
        customer = Trim$(orders.Cells(row, 1).Value)
        If Not result.Exists(customer) Then
            Set invoice = New clsInvoice
            invoice.Customer = customer
            result.Add customer, invoice
        End If
        result(customer).AddLine orders.Cells(row, 2).Value, _
                                 orders.Cells(row, 3).Value, _
                                 orders.Cells(row, 4).Value
    Next row
    Set CollectOrders = result
End Function

Private Sub WriteInvoices(ByVal invoices As Scripting.Dictionary, ByVal target As Worksheet)
    Dim key As Variant
    Dim row As Long

    row = target.Cells(target.Rows.Count, 1).End(xlUp).Row + 1
    For Each key In invoices.Keys
        target.Cells(row, 1).Value = invoices(key).Number
        target.Cells(row, 2).Value = key
        target.Cells(row, 3).Value = FormatAmount(invoices(key).Total)
        row = row + 1
    Next key
End Sub
