any|any address|k||
  <cr>||||
  !
  log|log matches|k||
    <cr>||||
    !
  !
!
host|a single host|k||
  a.b.c.d|host address|k||
    <cr>||||
    !
    log|log matches|k||
      <cr>||||
      !
    !
  !
!
a.b.c.d|address|k||
  <cr>||||
  !
  a.b.c.d|wildcard bits|k||
    <cr>||||
    !
    log|log matches|k||
      <cr>||||
      !
    !
  !
!
