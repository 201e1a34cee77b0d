rd|specify route distinguisher|k||
  aa:nn|aa:nn|o||
    <cr>||||
    !
  !
!
route-target|specify target vpn extended communities|k||
  export|export|k||
    aa:nn|aa:nn|k||
      <cr>||||
      !
    !
  !
  import|import|k||
    aa:nn|aa:nn|k||
      <cr>||||
      !
    !
  !
  both|both|k||
    aa:nn|aa:nn|k||
      <cr>||||
      !
    !
  !
!
description|vrf specific description|k/n/o||
  line|text|lb/le/wa||
    <cr>||||
    !
  !
!
import|vrf import|k||
  map|map|k||
    word|word|||
      <cr>||||
      !
    !
  !
  ipv4|ipv4|k||
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
!
export|vrf export|k||
  map|map|k||
    word|word|||
      <cr>||||
      !
    !
  !
  ipv4|ipv4|k||
    line|line|lb/le/wa||
      <cr>||||
      !
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
mdt|backbone multicast distribution tree|k||
  default|default|k||
    a.b.c.d|a.b.c.d|||
      <cr>||||
      !
    !
  !
  data|data|k||
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
address-family|enter address family configuration mode|k||
  ipv4|ipv4|k||
    <cr>||||
    !
    unicast|unicast|k||
      <cr>||||
      !
    !
    multicast|multicast|k||
      <cr>||||
      !
    !
  !
  ipv6|ipv6|k||
    <cr>||||
    !
    unicast|unicast|k||
      <cr>||||
      !
    !
    multicast|multicast|k||
      <cr>||||
      !
    !
  !
!
exit-address-family|exit from address family configuration mode|k||
  <cr>||||
  !
!
maximum|set a limit|k||
  routes|routes|k||
    line|line|lb/le/wa||
      <cr>||||
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
