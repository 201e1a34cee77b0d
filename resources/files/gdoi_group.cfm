identity|group identity|k||
  number|number|k||
    id|id|o||
      <cr>||||
      !
    !
  !
  address|address|k||
    ipv4|ipv4|k||
      a.b.c.d|a.b.c.d|o||
        <cr>||||
        !
      !
    !
  !
!
server|group server|k||
  local|local|k||
    <cr>||||@(gkm-local-server)# gdoi_server.cfm
    !
  !
  address|address|k||
    ipv4|ipv4|k||
      a.b.c.d|a.b.c.d|k||
        <cr>||||
        !
      !
    !
  !
!
client|group client|k||
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
passive|passive|k||
  <cr>||||
  !
!
exit|exit|k||
  <cr>||||
  !
!
