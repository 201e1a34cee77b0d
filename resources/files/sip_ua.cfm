registrar|sip registrar|k||
  <1-6>|registrar index|k||
    word|ipv4:A.B.C.D or dns:NAME|o||
      <cr>||||
      !
      line|line|lb/le/wa||
        <cr>||||
        !
      !
    !
  !
  word|ipv4:A.B.C.D or dns:NAME|o||
    <cr>||||
    !
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
!
sip-server|sip server|k||
  word|ipv4:A.B.C.D or dns:NAME|o||
    <cr>||||
    !
  !
!
credentials|registration credentials|k||
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
authentication|digest authentication|k||
  username|user name|k||
    line|line|lb/le/wa/o||
      <cr>||||
      !
    !
  !
!
retry|retries|k||
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
timers|sip timers|k||
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
transport|sip transport|k||
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
keepalive|keepalive of the sip server|k||
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
mwi-server|message waiting server|k||
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
nat|nat traversal|k||
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
set|sip settings|k||
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
no-alert|no alert|k||
  <cr>||||
  !
!
