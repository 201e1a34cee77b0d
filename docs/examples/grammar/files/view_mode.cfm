enable|turn on privileged commands|k||
  <cr>||||
  !
!
