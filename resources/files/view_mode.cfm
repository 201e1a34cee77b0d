enable|turn on privileged commands|k||
  <cr>||||
  !
  id|privilege level|||
    <cr>||||
    !
  !
!
exit|leave the terminal|k||
  <cr>||||
  !
!
logout|leave the terminal|k||
  <cr>||||
  !
!
