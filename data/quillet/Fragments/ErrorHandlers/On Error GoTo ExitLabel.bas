    On Error GoTo {HANDLEEXITLABEL}
<end_of_top><begin_of_bottom>

{HANDLEEXITLABEL}:
