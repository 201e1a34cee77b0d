hostname|set the system's network name|k||
  word|this system's network name|o||
    <cr>||||
    !
  !
!
interface|select an interface to configure|k||
  &interfacefile.cfm|interface type|k||
    <number>|interface number|k||
      <cr>||||@(config-if)# port.cfm
      !
    !
  !
!
ip|global ip commands|k||
  route|establish a static route|k||
    a.b.c.d|destination prefix|k||
      a.b.c.d|destination prefix mask|k||
        a.b.c.d|forwarding router's address|||
          <cr>||||
          !
        !
      !
    !
  !
!
