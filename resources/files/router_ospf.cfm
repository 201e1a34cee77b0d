router-id|router id for this ospf process|k||
  a.b.c.d|a.b.c.d|o||
    <cr>||||
    !
  !
!
network|enable routing on an ip network|k||
  a.b.c.d|a.b.c.d|k||
    a.b.c.d|a.b.c.d|k||
      area|area|k||
        id|id|k||
          <cr>||||
          !
        !
        a.b.c.d|a.b.c.d|k||
          <cr>||||
          !
        !
      !
    !
  !
!
log-adjacency-changes|log changes in adjacency state|k/sb/o||
  <cr>||||
  !
  detail|detail|k||
    <cr>||||
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
area|ospf area parameters|k||
  id|id|k||
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
  a.b.c.d|a.b.c.d|k||
    line|line|lb/le/wa||
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
  isis|isis|k||
    <cr>||||
    !
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
!
default-information|control distribution of default information|k||
  originate|originate|k||
    <cr>||||
    !
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
!
auto-cost|calculate ospf interface cost according to bandwidth|k||
  reference-bandwidth|reference-bandwidth|k||
    id|id|o||
      <cr>||||
      !
    !
  !
!
timers|adjust routing timers|k||
  throttle|throttle|k||
    spf|spf|k||
      id|id|||
        id|id|||
          id|id|||
            <cr>||||
            !
          !
        !
      !
    !
    lsa|lsa|k||
      line|line|lb/le/wa||
        <cr>||||
        !
      !
    !
  !
  lsa|lsa|k||
    arrival|arrival|k||
      id|id|||
        <cr>||||
        !
      !
    !
  !
  pacing|pacing|k||
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
!
summary-address|configure ip address summaries|k||
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
summary-prefix|configure ip address summaries|k||
  line|line|lb/le/wa||
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
distribute-list|filter networks in routing updates|k||
  line|line|lb/le/wa||
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
default-metric|set metric of redistributed routes|k||
  id|id|||
    <cr>||||
    !
  !
!
bfd|bfd configuration commands|k||
  all-interfaces|all-interfaces|k||
    <cr>||||
    !
  !
!
nsf|non-stop forwarding|k||
  <cr>||||
  !
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
mpls|configure mpls routing protocol parameters|k||
  ldp|mpls ldp settings|k||
    sync|ldp igp synchronisation|k||
      <cr>||||
      !
    !
    autoconfig|enable ldp on the process's interfaces|k||
      <cr>||||
      !
      area|ospf area|k||
        id|area id|k||
          <cr>||||
          !
        !
      !
      level-1|is-is level-1|k||
        <cr>||||
        !
      !
      level-2|is-is level-2|k||
        <cr>||||
        !
      !
    !
  !
  traffic-eng|mpls traffic engineering|k||
    router-id|traffic engineering router id|k||
      &interfacefile.cfm|interface type|k||
        <number>|interface number|k||
          <cr>||||
          !
        !
      !
    !
    area|ospf area|k||
      id|area id|k||
        <cr>||||
        !
      !
    !
    level-1|is-is level-1|k||
      <cr>||||
      !
    !
    level-2|is-is level-2|k||
      <cr>||||
      !
    !
    multicast-intact|keep multicast routes intact|k||
      <cr>||||
      !
    !
    interface|traffic engineering interface|k||
      &interfacefile.cfm|interface type|k||
        <number>|interface number|k||
          <cr>||||
          !
          area|ospf area|k||
            id|area id|||
              <cr>||||
              !
            !
          !
        !
      !
    !
  !
!
capability|enable a specific feature|k||
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
max-metric|set maximum metric|k||
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
ispf|enable incremental spf computation|k||
  <cr>||||
  !
!
prefix-suppression|enable prefix suppression|k||
  <cr>||||
  !
!
shutdown|shutdown the ospf protocol under the current instance|k||
  <cr>||||
  !
!
compatible|compatibility list|k||
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
ignore|do not complain about a specific event|k||
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
graceful-restart|graceful restart options|k||
  <cr>||||
  !
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
fast-reroute|specify ip fast reroute|k||
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
segment-routing|segment routing settings|k||
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
microloop|microloop avoidance|k||
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
address-family|enter address family command mode|k||
  ipv4|ipv4|k||
    <cr>||||@(config-router-af)# router_ospf_af.cfm
    !
    unicast|unicast|k||
      <cr>||||@(config-router-af)# router_ospf_af.cfm
      !
    !
  !
  ipv6|ipv6|k||
    <cr>||||@(config-router-af)# router_ospf_af.cfm
    !
    unicast|unicast|k||
      <cr>||||@(config-router-af)# router_ospf_af.cfm
      !
    !
  !
!
discard-route|enable or disable discard-route installation|k||
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
domain-id|ospf domain-id|k||
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
domain-tag|ospf domain-tag|k||
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
local-rib-criteria|enable or disable usage of local rib as route criteria|k||
  <cr>||||
  !
!
queue-depth|ospf hello/router process queue depth|k||
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
event-log|event logging|k||
  <cr>||||
  !
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
interface-id|source of the interface id|k||
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
exit-address-family|exit from address family configuration mode|k||
  <cr>||||
  !
!
