description|description of the record|k||
  line|line|lb/le/wa/o||
    <cr>||||
    !
  !
!
match|match fields|k||
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
collect|collect fields|k||
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
