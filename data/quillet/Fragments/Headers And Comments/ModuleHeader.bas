'-----------------------------------------------------------------------------------
' Module:   {MODULENAME}
' Purpose:  {DESCRIPTION}
' Created:  {DATE} by {AUTHOR} ({INITIALS})
' Company:  {COMPANYNAME}
' {COPYRIGHT}
'-----------------------------------------------------------------------------------
