    On Error GoTo {HANDLEERRORLABEL}
<end_of_top><begin_of_bottom>

{HANDLEEXITLABEL}:
    Exit {PROCEDURETYPE}

{HANDLEERRORLABEL}:
    {ERRORHANDLEPROCEDURE} Err.Number, Err.Description, "{MODULENAME}.{PROCEDURENAME}"
    Resume {HANDLEEXITLABEL}
