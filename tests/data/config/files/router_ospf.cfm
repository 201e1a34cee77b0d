network|enable routing on an ip network|k||
  a.b.c.d|network number|k||
    a.b.c.d|wildcard bits|k||
      area|ospf area|||
        id|area id|||
          <cr>|||||
          !
        !
      !
    !
  !
!
router-id|router identifier|k/o||
  a.b.c.d|router id|||
    <cr>|||||
    !
  !
!
