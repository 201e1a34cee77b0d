member|cross connect members|k||
  &interfacefile.cfm|interface type|k||
    <number>|interface number|k||
      <cr>||||
      !
      service-instance|service-instance|k||
        id|id|k||
          <cr>||||
          !
        !
      !
    !
  !
  a.b.c.d|a.b.c.d|k||
    id|id|k||
      <cr>||||
      !
      encapsulation|encapsulation|k||
        mpls|mpls|k||
          <cr>||||
          !
        !
      !
    !
  !
  pseudowire|pseudowire|k||
    id|id|k||
      <cr>||||
      !
    !
  !
!
rd|route distinguisher|k||
  aa:nn|aa:nn|o||
    <cr>||||
    !
  !
!
