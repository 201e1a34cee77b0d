configure|enter configuration mode|k||
  <cr>||||
  !
  terminal|configure from the terminal|k||
    <cr>||||
    !
  !
!
disable|turn off privileged commands|k||
  <cr>||||
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
show|show running system information|k||
  running-config|current operating configuration|k||
    <cr>||||
    !
  !
  version|system hardware and software status|k||
    <cr>||||
    !
  !
!
write|write running configuration|k||
  memory|write to nonvolatile memory|k||
    <cr>||||
    !
  !
  terminal|write to terminal|k||
    <cr>||||
    !
  !
!
copy|copy from one file to another|k||
  running-config|running-config|k||
    startup-config|startup-config|k||
      <cr>||||
      !
    !
  !
!
