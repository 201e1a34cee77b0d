vpn|vpn settings|k||
  id|vpn id|||
    1-4294967295|1-4294967295|o||
      <cr>||||
      !
    !
  !
!
autodiscovery|auto discovery|k||
  bgp|bgp auto discovery|k||
    signaling|signaling|k||
      ldp|ldp|k||
        <cr>||||
        !
        template|template|k||
          word|word|||
            <cr>||||
            !
          !
        !
      !
      bgp|bgp|k||
        <cr>||||
        !
      !
    !
  !
!
vpls-id|vpls id|k||
  aa:nn|aa:nn|o||
    <cr>||||
    !
  !
!
rd|route distinguisher|k||
  aa:nn|aa:nn|o||
    <cr>||||
    !
  !
!
route-target|route target|k||
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
  aa:nn|aa:nn|k||
    <cr>||||
    !
  !
!
auto-route-target|automatic route target|k||
  <cr>||||
  !
!
mtu|vfi mtu|k||
  64-65535|64-65535|o||
    <cr>||||
    !
  !
!
member|vfi members|k||
  a.b.c.d|a.b.c.d|k||
    <cr>||||
    !
    id|id|||
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
neighbor|vfi neighbor|k||
  a.b.c.d|a.b.c.d|k||
    <cr>||||
    !
    id|id|||
      encapsulation|encapsulation|k||
        mpls|mpls|k||
          <cr>||||
          !
        !
      !
    !
  !
!
shutdown|shutdown|k||
  <cr>||||
  !
!
