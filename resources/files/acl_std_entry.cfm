any|any address|k||
  <cr>||||
  !
  log|log matches|k/ob/oe||
    <cr>||||
    !
  !
!
host|a single host|k||
  a.b.c.d|host address|k||
    <cr>||||
    !
    log|log matches|k/ob/oe||
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
    log|log matches|k/ob/oe||
      <cr>||||
      !
    !
  !
!
