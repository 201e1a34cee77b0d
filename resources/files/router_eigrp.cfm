network|enable routing on an ip network|k||
  a.b.c.d|a.b.c.d|k||
    <cr>||||
    !
    a.b.c.d|a.b.c.d|k||
      <cr>||||
      !
    !
  !
!
eigrp|eigrp specific commands|k||
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
  log-neighbor-changes|log-neighbor-changes|k||
    <cr>||||
    !
  !
  log-neighbor-warnings|log-neighbor-warnings|k||
    <cr>||||
    !
    id|id|||
      <cr>||||
      !
    !
  !
!
passive-interface|suppress routing updates on an interface|k||
  default|default|k||
    <cr>||||
    !
  !
  &interfacefile.cfm|interface type|k||
    <number>|interface number|k||
      <cr>||||
      !
    !
  !
!
redistribute|redistribute information from another routing protocol|k||
  connected|connected|k||
    <cr>||||
    !
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
  static|static|k||
    <cr>||||
    !
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
  ospf|ospf|k||
    id|id|k||
      <cr>||||
      !
      line|line|lb/le/wa||
        <cr>||||
        !
      !
    !
  !
  bgp|bgp|k||
    <as>|as|k||
      <cr>||||
      !
      line|line|lb/le/wa||
        <cr>||||
        !
      !
    !
  !
  eigrp|eigrp|k||
    id|id|k||
      <cr>||||
      !
      line|line|lb/le/wa||
        <cr>||||
        !
      !
    !
  !
  rip|rip|k||
    <cr>||||
    !
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
!
auto-summary|enable automatic network number summarization|k/sn||
  <cr>||||
  !
!
metric|modify eigrp routing metrics and parameters|k||
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
variance|control load balancing variance|k||
  id|id|||
    <cr>||||
    !
  !
!
maximum-paths|forward packets over multiple paths|k||
  id|id|||
    <cr>||||
    !
  !
!
distance|define an administrative distance|k||
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
distribute-list|filter entries in eigrp updates|k||
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
default-metric|set metric of redistributed routes|k||
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
offset-list|add or subtract offset from eigrp metrics|k||
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
timers|adjust routing timers|k||
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
traffic-share|how to compute traffic share over alternate paths|k||
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
summary-metric|specify summary to apply metric/filtering|k||
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
address-family|enter address family command mode|k||
  ipv4|ipv4|k||
    <cr>||||@(config-router-af)# router_eigrp_af.cfm
    !
    unicast|unicast|k||
      <cr>||||@(config-router-af)# router_eigrp_af.cfm
      !
      autonomous-system|autonomous-system|k||
        id|id|||
          <cr>||||@(config-router-af)# router_eigrp_af.cfm
          !
        !
      !
      vrf|vrf|k||
        word|word|||
          <cr>||||@(config-router-af)# router_eigrp_af.cfm
          !
          autonomous-system|autonomous-system|k||
            id|id|||
              <cr>||||@(config-router-af)# router_eigrp_af.cfm
              !
            !
          !
        !
      !
    !
    autonomous-system|autonomous-system|k||
      id|id|||
        <cr>||||@(config-router-af)# router_eigrp_af.cfm
        !
      !
    !
    vrf|vrf|k||
      word|word|||
        <cr>||||@(config-router-af)# router_eigrp_af.cfm
        !
        autonomous-system|autonomous-system|k||
          id|id|||
            <cr>||||@(config-router-af)# router_eigrp_af.cfm
            !
          !
        !
      !
    !
  !
  ipv6|ipv6|k||
    <cr>||||@(config-router-af)# router_eigrp_af.cfm
    !
    unicast|unicast|k||
      <cr>||||@(config-router-af)# router_eigrp_af.cfm
      !
      autonomous-system|autonomous-system|k||
        id|id|||
          <cr>||||@(config-router-af)# router_eigrp_af.cfm
          !
        !
      !
    !
    autonomous-system|autonomous-system|k||
      id|id|||
        <cr>||||@(config-router-af)# router_eigrp_af.cfm
        !
      !
    !
  !
!
service-family|enter service family command mode|k||
  ipv4|ipv4 service family|k||
    autonomous-system|autonomous-system|k||
      1-65535|1-65535|||
        <cr>||||@(config-router-sf)# router_eigrp_af.cfm
        !
      !
    !
    vrf|vrf|k||
      word|word|k||
        autonomous-system|autonomous-system|k||
          1-65535|1-65535|||
            <cr>||||@(config-router-sf)# router_eigrp_af.cfm
            !
          !
        !
      !
    !
  !
  ipv6|ipv6 service family|k||
    autonomous-system|autonomous-system|k||
      1-65535|1-65535|||
        <cr>||||@(config-router-sf)# router_eigrp_af.cfm
        !
      !
    !
  !
!
no-shutdown|bring the routing process up|k||
  <cr>||||
  !
!
shutdown|shutdown the eigrp process|k||
  <cr>||||
  !
!
nsf|non-stop forwarding|k||
  <cr>||||
  !
!
