neighbor|specify a neighbor router|k||
  a.b.c.d|neighbor address|k||
    remote-as|specify a bgp neighbor|k||
      id|as of remote neighbor|||
        <cr>|||||
        !
      !
    !
  !
!
address-family|enter address family command mode|k||
  ipv4|address family|k||
    <cr>||||@(config-router-af)# router_af.cfm
    !
  !
!
