Attribute VB_Name = "basText"
Option Explicit

' Text helpers: amounts, padding and the invoice number.
' Note: amounts use the "€" sign; the workbook is saved in Windows-1252.

Public Function FormatAmount(ByVal amount As Currency) As String
Attribute FormatAmount.VB_Description = "The amount with two decimals and the currency sign"
    FormatAmount = Format$(amount, "#,##0.00") & " €"
End Function

Public Function PadLeft(ByVal text As String, ByVal width As Long, _
                        Optional ByVal fill As String = " ") As String
Attribute PadLeft.VB_Description = "The text right-aligned in a field of that width"
    If Len(text) >= width Then
        PadLeft = text
    Else
        PadLeft = String$(width - Len(text), fill) & text
    End If
End Function

Public Function InvoiceNumber(ByVal sequence As Long) As String
    ' Invoice numbers look like "INV-2024-00017"; the café on the corner asked for them.
    InvoiceNumber = "INV-" & Year(Date) & "-" & PadLeft(CStr(sequence), 5, "0")
End Function
