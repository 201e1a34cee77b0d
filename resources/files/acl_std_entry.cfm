any|any address|||
  <cr>||||
  !
  log|log matches|||
    <cr>||||
    !
  !
!
host|a single host|||
  a.b.c.d|host address|n||
    <cr>||||
    !
    log|log matches|||
      <cr>||||
      !
    !
  !
!
a.b.c.d|address|n||
  <cr>||||
  !
  a.b.c.d|wildcard bits|n||
    <cr>||||
    !
    log|log matches|||
      <cr>||||
      !
    !
  !
!
