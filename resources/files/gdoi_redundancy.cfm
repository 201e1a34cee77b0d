local|local key server|k||
  priority|priority|k||
    id|id|o||
      <cr>||||
      !
    !
  !
!
peer|peer key server|k||
  address|address|k||
    ipv4|ipv4|k||
      a.b.c.d|a.b.c.d|k||
        <cr>||||
        !
      !
    !
  !
!
timers|redundancy timers|k||
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
exit|exit|k||
  <cr>||||
  !
!
