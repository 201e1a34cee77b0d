any|any address|||
  <cr>||||
  !
  log|log matches|||
    <cr>||||
    !
  !
!
host|a single host|||
  a.b.c.d|host address|||
    <cr>||||
    !
    log|log matches|||
      <cr>||||
      !
    !
  !
!
a.b.c.d|address|||
  <cr>||||
  !
  a.b.c.d|wildcard bits|||
    <cr>||||
    !
    log|log matches|||
      <cr>||||
      !
    !
  !
!
