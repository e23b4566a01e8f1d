Function F$(a As Long) ' note
Rem Exit Function
End Function
Sub S(Optional s = "a,b", Optional n As Long =5)
End Sub
