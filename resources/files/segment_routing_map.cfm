address-family|address family|k||
  ipv4|ipv4|k||
    <cr>||||@(config-srmpls-conn-af)# segment_routing_af.cfm
    !
  !
  ipv6|ipv6|k||
    <cr>||||@(config-srmpls-conn-af)# segment_routing_af.cfm
    !
  !
!
