#pragma once
// Exported module files as the editor writes them, for the file host's tests.

#include <string>

namespace quillet::hosts::files::samples {

inline const std::string kStandardModule =
    "Attribute VB_Name = \"basMain\"\r\n"
    "Option Explicit\r\n"
    "\r\n"
    "' Caf\xE9 prices\r\n"
    "Public Sub Macro1()\r\n"
    "Attribute Macro1.VB_Description = \"Runs the macro\"\r\n"
    "Attribute Macro1.VB_ProcData.VB_Invoke_Func = \" \\n14\"\r\n"
    "    MsgBox \"Hi\"\r\n"
    "End Sub\r\n"
    "\r\n"
    "Public Function Total(ByVal a As Long, _\r\n"
    "                      ByVal b As Long) As Long\r\n"
    "Attribute Total.VB_Description = \"Adds\"\r\n"
    "    Total = a + b\r\n"
    "End Function\r\n";

inline const std::string kClassModule =
    "VERSION 1.0 CLASS\r\n"
    "BEGIN\r\n"
    "  MultiUse = -1  'True\r\n"
    "END\r\n"
    "Attribute VB_Name = \"clsItem\"\r\n"
    "Attribute VB_GlobalNameSpace = False\r\n"
    "Attribute VB_Creatable = False\r\n"
    "Attribute VB_PredeclaredId = False\r\n"
    "Attribute VB_Exposed = False\r\n"
    "Option Explicit\r\n"
    "\r\n"
    "Private WithEvents mSheet As Worksheet\r\n"
    "Attribute mSheet.VB_VarHelpID = -1\r\n"
    "Private mValue As Double\r\n"
    "\r\n"
    "Public Property Get Value() As Double\r\n"
    "Attribute Value.VB_UserMemId = 0\r\n"
    "    Value = mValue\r\n"
    "End Property\r\n"
    "\r\n"
    "Public Property Let Value(ByVal v As Double)\r\n"
    "    mValue = v\r\n"
    "End Property\r\n";

inline const std::string kDocumentModule =
    "VERSION 1.0 CLASS\r\n"
    "BEGIN\r\n"
    "  MultiUse = -1  'True\r\n"
    "END\r\n"
    "Attribute VB_Name = \"ThisWorkbook\"\r\n"
    "Attribute VB_GlobalNameSpace = False\r\n"
    "Attribute VB_Creatable = False\r\n"
    "Attribute VB_PredeclaredId = True\r\n"
    "Attribute VB_Exposed = True\r\n"
    "Option Explicit\r\n"
    "\r\n"
    "Private Sub Workbook_Open()\r\n"
    "    basMain.Macro1\r\n"
    "End Sub\r\n";

inline const std::string kUserForm =
    "VERSION 5.00\r\n"
    "Begin {C62A69F0-16DC-11CE-9E98-00AA00574A4F} frmEdit \r\n"
    "   Caption         =   \"Edit\"\r\n"
    "   ClientHeight    =   3015\r\n"
    "   ClientLeft      =   120\r\n"
    "   ClientTop       =   465\r\n"
    "   ClientWidth     =   4560\r\n"
    "   OleObjectBlob   =   \"frmEdit.frx\":0000\r\n"
    "   StartUpPosition =   1  'CenterOwner\r\n"
    "End\r\n"
    "Attribute VB_Name = \"frmEdit\"\r\n"
    "Attribute VB_GlobalNameSpace = False\r\n"
    "Attribute VB_Creatable = False\r\n"
    "Attribute VB_PredeclaredId = True\r\n"
    "Attribute VB_Exposed = False\r\n"
    "\r\n"
    "Private Sub cmdOK_Click()\r\n"
    "    Me.Hide\r\n"
    "End Sub\r\n";

inline const std::string kVb6Form =
    "VERSION 5.00\r\n"
    "Object = \"{831FDD16-0C5C-11D2-A9FC-0000F8754DA1}#2.0#0\"; \"MSCOMCTL.OCX\"\r\n"
    "Begin VB.Form Form1 \r\n"
    "   Caption         =   \"Form1\"\r\n"
    "   Begin VB.CommandButton Command1 \r\n"
    "      Caption         =   \"End\"\r\n"
    "      BeginProperty Font \r\n"
    "         Name            =   \"Tahoma\"\r\n"
    "      EndProperty\r\n"
    "   End\r\n"
    "End\r\n"
    "Attribute VB_Name = \"Form1\"\r\n"
    "Attribute VB_GlobalNameSpace = False\r\n"
    "Attribute VB_Creatable = False\r\n"
    "Attribute VB_PredeclaredId = True\r\n"
    "Attribute VB_Exposed = False\r\n"
    "Option Explicit\r\n"
    "\r\n"
    "Private Sub Command1_Click()\r\n"
    "    Unload Me\r\n"
    "End Sub\r\n";

}  // namespace quillet::hosts::files::samples
