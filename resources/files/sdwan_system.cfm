system-ip|system ip address|k||
  a.b.c.d|a.b.c.d|o||
    <cr>||||
    !
  !
!
site-id|site identifier|k||
  1-4294967295|1-4294967295|o||
    <cr>||||
    !
  !
!
organization-name|organization name|k||
  word|word|o||
    <cr>||||
    !
  !
  line|line|lb/le/wa/o||
    <cr>||||
    !
  !
!
vbond|orchestrator address|k||
  a.b.c.d|a.b.c.d|o||
    <cr>||||
    !
    port|port|k||
      1-65535|1-65535|o||
        <cr>||||
        !
      !
    !
  !
  word|word|o||
    <cr>||||
    !
    port|port|k||
      1-65535|1-65535|o||
        <cr>||||
        !
      !
    !
  !
!
admin-tech-on-failure|collect admin-tech on failure|k||
  <cr>||||
  !
!
sp-organization-name|service provider organization name|k||
  word|word|o||
    <cr>||||
    !
  !
  line|line|lb/le/wa/o||
    <cr>||||
    !
  !
!
host-name|host name|k||
  word|word|o||
    <cr>||||
    !
  !
!
console-baud-rate|console baud rate|k||
  id|id|o||
    <cr>||||
    !
  !
!
track-transport|track the transport|k||
  <cr>||||
  !
!
overlay-id|overlay identifier|k||
  1-4294967295|1-4294967295|o||
    <cr>||||
    !
  !
!
