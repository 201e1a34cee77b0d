address|address prefix|k||
  prefix|prefix|k||
    word|word|k||
      <cr>||||
      !
      lifetime|lifetime|k||
        line|line|lb/le/wa||
          <cr>||||
          !
        !
      !
    !
  !
!
dns-server|dns server|k||
  word|word|m||
    <cr>||||
    !
  !
!
domain-name|domain name|k||
  word|word|k/n||
    <cr>||||
    !
  !
!
prefix-delegation|prefix delegation|k||
  pool|pool|k||
    word|word|||
      <cr>||||
      !
      lifetime|lifetime|k||
        line|line|lb/le/wa||
          <cr>||||
          !
        !
      !
    !
  !
  word|word|||
    <cr>||||
    !
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
!
information|information refresh|k||
  refresh|refresh|k||
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
!
link-address|link address|k||
  word|word|||
    <cr>||||
    !
  !
!
sip|sip server|k||
  address|address|k||
    word|word|||
      <cr>||||
      !
    !
  !
  domain-name|domain-name|k||
    word|word|||
      <cr>||||
      !
    !
  !
!
vendor-specific|vendor specific|k||
  id|id|k||
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
!
import|import configuration|k||
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
exit|exit|k||
  <cr>||||
  !
!
