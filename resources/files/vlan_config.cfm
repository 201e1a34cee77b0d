device-tracking|configure device-tracking on the vlans|k||
  <cr>||||
  !
  attach-policy|apply a policy|k||
    word|policy name|k||
      <cr>||||
      !
    !
  !
!
ipv6|ipv6 vlan feature configuration|k||
  nd|ipv6 neighbor discovery|k||
    raguard|router advertisement guard|k||
      attach-policy|apply a policy|k||
        word|policy name|k||
          <cr>||||
          !
        !
      !
    !
    suppress|neighbor discovery suppress|k||
      attach-policy|apply a policy|k||
        word|policy name|k||
          <cr>||||
          !
        !
      !
    !
  !
  dhcp|ipv6 dhcp|k||
    guard|dhcpv6 guard|k||
      attach-policy|apply a policy|k||
        word|policy name|k||
          <cr>||||
          !
        !
      !
    !
  !
  destination-guard|destination guard|k||
    attach-policy|apply a policy|k||
      word|policy name|k||
        <cr>||||
        !
      !
    !
  !
  source-guard|source guard|k||
    attach-policy|apply a policy|k||
      word|policy name|k||
        <cr>||||
        !
      !
    !
  !
!
member|vlan members|k||
  evpn-instance|evpn instance|k||
    id|evpn instance number|k||
      vni|virtual network identifier|k||
        id|vni number|o||
          <cr>||||
          !
        !
      !
    !
  !
  vni|virtual network identifier|k||
    id|vni number|k||
      <cr>||||
      !
    !
  !
!
et-analytics|encrypted traffic analytics|k||
  enable|enable on the vlans|k||
    <cr>||||
    !
  !
!
