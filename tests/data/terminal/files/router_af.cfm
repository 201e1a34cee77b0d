network|specify a network to announce via bgp|k||
  a.b.c.d|network number|k||
    <cr>|||||
    !
  !
!
