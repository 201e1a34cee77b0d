shutdown|shut down the gatekeeper|k/sb/o||
  <cr>||||
  !
!
zone|zone definition|k||
  local|define the local zone of the gatekeeper|k||
    word|gatekeeper name|k||
      word|domain name|k||
        <cr>||||
        !
        line|line|lb/le/wa||
          <cr>||||
          !
        !
      !
    !
  !
  remote|define a remote zone|k||
    word|gatekeeper name|k||
      line|line|lb/le/wa||
        <cr>||||
        !
      !
    !
  !
  prefix|prefix of a zone|k||
    word|gatekeeper name|k||
      word|e.164 prefix|k||
        <cr>||||
        !
        line|line|lb/le/wa||
          <cr>||||
          !
        !
      !
    !
  !
!
gw-type-prefix|gateway technology prefix|k||
  word|technology prefix|k||
    <cr>||||
    !
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
!
lrq|location request settings|k||
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
arq|admission request settings|k||
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
ras|registration, admission and status settings|k||
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
bandwidth|bandwidth settings|k||
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
endpoint|endpoint settings|k||
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
