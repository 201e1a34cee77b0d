max-ephones|most ip phones|k||
  <1-450>|ip phones|o||
    <cr>||||
    !
  !
!
max-dn|most directory numbers|k||
  <1-1500>|directory numbers|o||
    <cr>||||
    !
    preference|preference of the directory numbers|k||
      id|preference|||
        <cr>||||
        !
      !
    !
    no-reg|do not register|k||
      <cr>||||
      !
    !
  !
!
ip|ip settings|k||
  source-address|address the phones register with|k||
    a.b.c.d|address|o||
      <cr>||||
      !
      port|port that the phones register with|k||
        <2000-9999>|port|||
          <cr>||||
          !
        !
      !
    !
  !
!
create|create files for the phones|k||
  cnf-files|configuration files|k||
    <cr>||||
    !
    version-stamp|version stamp|k||
      line|line|lb/le/wa||
        <cr>||||
        !
      !
    !
  !
!
load|phone firmware|k||
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
max-conferences|most conferences|k||
  line|line|lb/le/wa/o||
    <cr>||||
    !
  !
!
web|web access|k||
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
dialplan-pattern|dial plan pattern|k||
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
voicemail|voice mail number|k||
  word|number|o||
    <cr>||||
    !
  !
!
time-format|time format|k||
  12|12 hours|k/o||
    <cr>||||
    !
  !
  24|24 hours|k/o||
    <cr>||||
    !
  !
!
date-format|date format|k||
  line|line|lb/le/wa/o||
    <cr>||||
    !
  !
!
system|system message|k||
  message|message shown on the phones|k||
    line|line|lb/le/wa/o||
      <cr>||||
      !
    !
  !
!
transfer-system|transfer method|k||
  line|line|lb/le/wa/o||
    <cr>||||
    !
  !
!
transfer-pattern|transfer pattern|k||
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
secondary-dialtone|secondary dial tone|k||
  word|digit|o||
    <cr>||||
    !
  !
!
keepalive|keepalive of the phones|k||
  id|seconds|o||
    <cr>||||
    !
  !
!
timeouts|phone timeouts|k||
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
url|urls|k||
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
moh|music on hold|k||
  word|file|o||
    <cr>||||
    !
  !
!
multicast|multicast music on hold|k||
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
auto|automatic|k||
  assign|assign directory numbers to phones|k||
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
!
