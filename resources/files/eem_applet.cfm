event|applet event|k||
  none|run by hand|k||
    <cr>||||
    !
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
  syslog|syslog event|k||
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
  timer|timer event|k||
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
  cli|cli event|k||
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
  track|track event|k||
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
  snmp|snmp event|k||
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
  snmp-notification|snmp notification event|k||
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
  interface|interface counter event|k||
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
  ipsla|ip sla event|k||
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
  tag|event tag|k||
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
  routing|routing event|k||
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
  counter|counter event|k||
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
  oir|online insertion event|k||
    <cr>||||
    !
  !
  resource|resource event|k||
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
  neighbor-discovery|neighbor event|k||
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
  application|application event|k||
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
  rf|redundancy event|k||
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
  identity|identity event|k||
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
  nf|netflow event|k||
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
  gold|diagnostic event|k||
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
  rpc|remote procedure call event|k||
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
  env|environment event|k||
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
!
action|applet action|k||
  word|action label|k||
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
!
trigger|multiple event correlation|k||
  <cr>||||
  !
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
description|applet description|k/n/o||
  line|text|lb/le/wa||
    <cr>||||
    !
  !
!
exit|exit|k||
  <cr>||||
  !
!
