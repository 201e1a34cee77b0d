rd|specify route distinguisher|k||
  aa:nn|aa:nn|o||
    <cr>||||
    !
  !
!
description|vrf specific description|k/n/o||
  line|text|lb/le/wa||
    <cr>||||
    !
  !
!
vpn|configure vpn id as specified in rfc 2685|k||
  id|id|||
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
!
address-family|enter address family configuration mode|k||
  ipv4|address family|k||
    <cr>||||@(config-vrf-af)# vrf_af.cfm
    !
    unicast|unicast sub-address family|k||
      <cr>||||@(config-vrf-af)# vrf_af.cfm
      !
    !
    multicast|multicast sub-address family|k||
      <cr>||||@(config-vrf-af)# vrf_af.cfm
      !
    !
  !
  ipv6|address family|k||
    <cr>||||@(config-vrf-af)# vrf_af.cfm
    !
    unicast|unicast sub-address family|k||
      <cr>||||@(config-vrf-af)# vrf_af.cfm
      !
    !
    multicast|multicast sub-address family|k||
      <cr>||||@(config-vrf-af)# vrf_af.cfm
      !
    !
  !
!
vnet|virtual networking configuration|k||
  tag|tag|k||
    id|id|||
      <cr>||||
      !
    !
  !
!
auto-classify|enable auto-classification|k||
  <cr>||||
  !
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
rd-auto|automatically assign a route distinguisher|k||
  <cr>||||
  !
!
context|associate snmp context with this vrf|k||
  word|word|||
    <cr>||||
    !
  !
!
protection|configure local repair|k||
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
route-target|specify target vpn extended communities|k||
  export|export target-vpn extension|k||
    aa:nn|target vpn extended community|k||
      <cr>||||
      !
    !
  !
  import|import target-vpn extension|k||
    aa:nn|target vpn extended community|k||
      <cr>||||
      !
    !
  !
  both|both import and export target-vpn extension|k||
    aa:nn|target vpn extended community|k||
      <cr>||||
      !
    !
  !
!
import|vrf import|k||
  map|route-map based vrf import|k||
    word|route-map name|o||
      <cr>||||
      !
    !
  !
  ipv4|address family based vrf import|k||
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
!
export|vrf export|k||
  map|route-map based vrf export|k||
    word|route-map name|o||
      <cr>||||
      !
    !
  !
  ipv4|address family based vrf export|k||
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
!
mdt|backbone multicast distribution tree|k||
  default|the default group|k||
    a.b.c.d|ip multicast group address|||
      <cr>||||
      !
    !
    mpls|an mpls tree|k||
      mldp|a multipoint ldp tree|k||
        a.b.c.d|root address|||
          <cr>||||
          !
        !
      !
    !
  !
  data|data multicast distribution trees|k||
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
maximum|set a limit|k||
  routes|maximum number of routes allowed in this routing table|k||
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
!
route-replicate|replicate routes from another vrf|k||
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
