network|network|k||
  a.b.c.d|a.b.c.d|k||
    <cr>||||
    !
    a.b.c.d|a.b.c.d|k||
      <cr>||||
      !
    !
  !
!
eigrp|eigrp|k||
  router-id|router-id|k||
    a.b.c.d|a.b.c.d|o||
      <cr>||||
      !
    !
  !
  stub|stub|k||
    <cr>||||
    !
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
!
af-interface|af-interface|k||
  <cr>||||@(config-router-af-interface)# router_eigrp_afif.cfm
  !
  default|default|k||
    <cr>||||@(config-router-af-interface)# router_eigrp_afif.cfm
    !
  !
  &interfacefile.cfm|interface type|k||
    <number>|interface number|k||
      <cr>||||@(config-router-af-interface)# router_eigrp_afif.cfm
      !
    !
  !
!
topology|topology|k||
  base|base|k||
    <cr>||||@(config-router-af-topology)# router_eigrp_topo.cfm
    !
  !
  word|word|||
    <cr>||||@(config-router-af-topology)# router_eigrp_topo.cfm
    !
  !
!
exit-address-family|exit-address-family|k||
  <cr>||||
  !
!
exit-service-family|exit from service family configuration mode|k||
  <cr>||||
  !
!
metric|metric|k||
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
shutdown|shutdown|k||
  <cr>||||
  !
!
nsf|nsf|k||
  <cr>||||
  !
!
passive-interface|passive-interface|k||
  &interfacefile.cfm|interface type|k||
    <number>|interface number|k||
      <cr>||||
      !
    !
  !
!
