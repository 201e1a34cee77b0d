allocate|allocate local labels|k||
  global|global table|k||
    host-routes|host routes only|k/o||
      <cr>||||
      !
    !
    prefix-list|prefixes of a list|k||
      word|prefix list name|o||
        <cr>||||
        !
      !
    !
    all-routes|all routes|k/o||
      <cr>||||
      !
    !
  !
!
