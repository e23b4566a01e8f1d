VERSION 5.00
Begin {C62A69F0-16DC-11CE-9E98-00AA00574A4F} frmInvoice 
   Caption         =   "Invoice"
   ClientHeight    =   3015
   ClientLeft      =   120
   ClientTop       =   465
   ClientWidth     =   4560
   OleObjectBlob   =   "frmInvoice.frx":0000
   StartUpPosition =   1  'CenterOwner
End
Attribute VB_Name = "frmInvoice"
Attribute VB_GlobalNameSpace = False
Attribute VB_Creatable = False
Attribute VB_PredeclaredId = True
Attribute VB_Exposed = False
Option Explicit

Private Sub UserForm_Initialize()
    txtCustomer.Text = vbNullString
    lblTotal.Caption = FormatAmount(0)
End Sub

Private Sub cmdCreate_Click()
    If Len(Trim$(txtCustomer.Text)) = 0 Then
        MsgBox "Enter a customer first.", vbExclamation, Me.Caption
        Exit Sub
    End If
    basMain.CreateInvoices
    Unload Me
End Sub

Private Sub cmdCancel_Click()
    Unload Me
End Sub
