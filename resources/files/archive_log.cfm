logging|logging settings|k||
  enable|enable the configuration log|k||
    <cr>||||
    !
  !
  size|entries kept|k||
    id|entries|o||
      <cr>||||
      !
    !
  !
  persistent|persist the log|k||
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
!
notify|notifications|k||
  syslog|send to syslog|k||
    <cr>||||
    !
    contenttype|content type|k||
      plaintext|plaintext|k/o||
        <cr>||||
        !
      !
      xml|xml|k/o||
        <cr>||||
        !
      !
    !
  !
!
hidekeys|hide keys in the log|k||
  <cr>||||
  !
!
