&certdatafile.cfm|certificate data|k/lb/le/wa||
  <cr>||||
  !
!
