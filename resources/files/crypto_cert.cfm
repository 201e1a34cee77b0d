&certdatafile.cfm|certificate data|k/lb/le/wa||
  <cr>||||
  !
!
certificate|exchange certificates|k||
  self-signed|self signed certificate|k||
    word|certificate serial number|k||
      <cr>||||
      !
      word|file that holds the certificate (nvram:NAME.cer)|||
        <cr>||||
        !
      !
    !
  !
  ca|certificate authority certificate|k||
    word|certificate serial number|k||
      <cr>||||
      !
      word|file that holds the certificate (nvram:NAME.cer)|||
        <cr>||||
        !
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
    word|file that holds the certificate (nvram:NAME.cer)|||
      <cr>||||
      !
    !
  !
!
quit|end of certificate data|k/sn||
  <cr>||||
  !
!
