address|configure an address range|k||
  range|address range|k||
    a.b.c.d|start address|k||
      a.b.c.d|end address|k||
        <cr>||||
        !
      !
    !
  !
!
relay|relay settings for this class|k||
  target|relay target|k||
    a.b.c.d|target address|k||
      <cr>||||
      !
      line|line|lb/le/wa||
        <cr>||||
        !
      !
    !
  !
!
