nat|network address translation|k||
  server|server|k||
    <cr>||||
    !
  !
  client|client|k||
    word|word|||
      <cr>||||
      !
    !
  !
!
real|a real server|k||
  a.b.c.d|a.b.c.d|k||
    <cr>||||@(config-slb-real)# slb_real.cfm
    !
    id|id|k||
      <cr>||||@(config-slb-real)# slb_real.cfm
      !
    !
  !
!
predictor|load balancing algorithm|k||
  roundrobin|roundrobin|k||
    <cr>||||
    !
  !
  leastconns|leastconns|k||
    <cr>||||
    !
  !
!
probe|probe|k||
  word|word|k||
    <cr>||||
    !
  !
!
description|description|k||
  line|text|lb/le/wa||
    <cr>||||
    !
  !
!
