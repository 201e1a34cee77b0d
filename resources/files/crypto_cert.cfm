certificate|exchange certificates|k||
  self-signed|self signed certificate|k||
    word|certificate serial number|k||
      <cr>||||
      !
    !
  !
  ca|certificate authority certificate|k||
    word|certificate serial number|k||
      <cr>||||
      !
    !
  !
  rollover|rollover|k||
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
  word|certificate serial number|k||
    <cr>||||
    !
  !
!
quit|end of certificate data|k/sn||
  <cr>||||
  !
!
