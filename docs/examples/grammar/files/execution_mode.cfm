configure|enter configuration mode|k||
  <cr>||||
  !
  terminal|configure from the terminal|k||
    <cr>||||
    !
  !
!
