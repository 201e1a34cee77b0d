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
exit-address-family|exit from address family configuration mode|k||
  <cr>||||
  !
!
