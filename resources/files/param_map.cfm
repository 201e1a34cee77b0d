alert|alert messages|k||
  on|on|k/o||
    <cr>||||
    !
  !
  off|off|k/o||
    <cr>||||
    !
  !
!
audit-trail|audit trail messages|k||
  on|on|k/o||
    <cr>||||
    !
  !
  off|off|k/o||
    <cr>||||
    !
  !
!
max-incomplete|maximum half-open sessions|k||
  low|low|k||
    id|id|o||
      <cr>||||
      !
    !
  !
  high|high|k||
    id|id|o||
      <cr>||||
      !
    !
  !
!
one-minute|one minute rates|k||
  low|low|k||
    id|id|o||
      <cr>||||
      !
    !
  !
  high|high|k||
    id|id|o||
      <cr>||||
      !
    !
  !
!
sessions|session limits|k||
  maximum|maximum|k||
    id|id|o||
      <cr>||||
      !
    !
  !
!
tcp|tcp settings|k||
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
udp|udp settings|k||
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
icmp|icmp settings|k||
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
dns-timeout|dns timeout|k||
  id|id|o||
    <cr>||||
    !
  !
!
log|logging|k||
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
pattern|regular expression|k||
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
vrf|vrf of the parameters|k||
  word|word|o||
    <cr>||||
    !
  !
!
