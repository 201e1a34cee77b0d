a.b.c.d/<1-32>|prefix|k||
  index|sid index|k||
    id|id|o||
      <cr>||||
      !
      range|range|k||
        id|id|o||
          <cr>||||
          !
        !
        attach|attach|k||
          <cr>||||
          !
        !
      !
    !
  !
  absolute|absolute sid|k||
    id|id|o||
      <cr>||||
      !
      range|range|k||
        id|id|o||
          <cr>||||
          !
        !
      !
    !
  !
!
exit-address-family|leave the address family|k||
  <cr>||||
  !
!
