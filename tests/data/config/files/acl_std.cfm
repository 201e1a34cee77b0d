permit|specify packets to forward|k||
  any|any source|||
    <cr>|||||
    !
  !
!
deny|specify packets to reject|k||
  any|any source|||
    <cr>|||||
    !
  !
!
