neighbor|specify a neighbor router|k||
  a.b.c.d|a.b.c.d|k||
    remote-as|specify a bgp neighbor|k||
      1-4294967295|AS of remote neighbor|o||
        <cr>||||
        !
        line|line|lb/le/wa||
          <cr>||||
          !
        !
      !
      1.0-65535.65535|AS of remote neighbor|o||
        <cr>||||
        !
        line|line|lb/le/wa||
          <cr>||||
          !
        !
      !
    !
    update-source|source of routing updates|k||
      &interfacefile.cfm|interface type|k||
        <number>|interface number|k||
          <cr>||||
          !
        !
      !
    !
    description|neighbor specific description|k/n/o||
      line|text|lb/le/wa||
        <cr>||||
        !
      !
    !
    timers|bgp per neighbor timers|k||
      id|id|||
        id|id|||
          <cr>||||
          !
          id|id|||
            <cr>||||
            !
          !
        !
      !
    !
    password|set a password|k/n||
      id|id|||
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
    ebgp-multihop|allow ebgp neighbors not on directly connected networks|k||
      <cr>||||
      !
      id|id|o||
        <cr>||||
        !
      !
    !
    shutdown|administratively shut down this neighbor|k||
      <cr>||||
      !
    !
    local-as|specify a local-as number|k||
      <as>|as|||
        <cr>||||
        !
        line|line|lb/le/wa||
          <cr>||||
          !
        !
      !
    !
    version|set the bgp version to match a neighbor|k||
      id|id|||
        <cr>||||
        !
      !
    !
    fall-over|session fall on peer route lost|k||
      <cr>||||
      !
      line|line|lb/le/wa||
        <cr>||||
        !
      !
    !
    disable-connected-check|one-hop away ebgp peer using loopback address|k||
      <cr>||||
      !
    !
    ttl-security|bgp ttl security check|k||
      hops|hops|k||
        id|id|||
          <cr>||||
          !
        !
      !
    !
    transport|transport options|k||
      line|line|lb/le/wa||
        <cr>||||
        !
      !
    !
    fast-external-fallover|fast fallover for this neighbor|k||
      <cr>||||
      !
    !
    ha-mode|high availability mode|k||
      line|line|lb/le/wa||
        <cr>||||
        !
      !
    !
    send-community|send community attribute to this neighbor|k||
      <cr>||||
      !
      both|both|k||
        <cr>||||
        !
      !
      standard|standard|k||
        <cr>||||
        !
      !
      extended|extended|k||
        <cr>||||
        !
      !
    !
    route-map|apply route map to neighbor|k||
      word|word|o||
        in|in|k||
          <cr>||||
          !
        !
        out|out|k||
          <cr>||||
          !
        !
      !
    !
    next-hop-self|disable the next hop calculation for this neighbor|k||
      <cr>||||
      !
      all|all|k||
        <cr>||||
        !
      !
    !
    soft-reconfiguration|per neighbor soft reconfiguration|k||
      inbound|inbound|k||
        <cr>||||
        !
      !
    !
    route-reflector-client|configure a neighbor as route reflector client|k||
      <cr>||||
      !
    !
    advertisement-interval|minimum interval between sending bgp routing updates|k||
      id|id|o||
        <cr>||||
        !
      !
    !
    default-originate|originate default route to this neighbor|k||
      <cr>||||
      !
      route-map|route-map|k||
        word|word|||
          <cr>||||
          !
        !
      !
    !
    weight|set default weight for routes from this neighbor|k||
      id|id|||
        <cr>||||
        !
      !
    !
    send-label|send nlri + mpls label to this peer|k||
      <cr>||||
      !
      explicit-null|explicit-null|k||
        <cr>||||
        !
      !
    !
    filter-list|establish bgp filters|k||
      id|id|o||
        in|in|k||
          <cr>||||
          !
        !
        out|out|k||
          <cr>||||
          !
        !
      !
    !
    prefix-list|filter updates to/from this neighbor|k||
      word|word|o||
        in|in|k||
          <cr>||||
          !
        !
        out|out|k||
          <cr>||||
          !
        !
      !
    !
    distribute-list|filter updates to/from this neighbor|k||
      word|word|o||
        in|in|k||
          <cr>||||
          !
        !
        out|out|k||
          <cr>||||
          !
        !
      !
    !
    maximum-prefix|maximum number of prefixes accepted from this peer|k||
      id|id|||
        <cr>||||
        !
        line|line|lb/le/wa||
          <cr>||||
          !
        !
      !
    !
    allowas-in|accept as-path with my as present in it|k||
      <cr>||||
      !
      id|id|||
        <cr>||||
        !
      !
    !
    as-override|override matching as-number while sending update|k||
      <cr>||||
      !
    !
    remove-private-as|remove private as number from outbound updates|k||
      <cr>||||
      !
      all|all|k||
        <cr>||||
        !
        replace-as|replace-as|k||
          <cr>||||
          !
        !
      !
    !
    dmzlink-bw|propagate the dmz link bandwidth|k||
      <cr>||||
      !
    !
    advertise|advertise to this neighbor|k||
      additional-paths|additional-paths|k||
        line|line|lb/le/wa||
          <cr>||||
          !
        !
      !
      best-external|best-external|k||
        <cr>||||
        !
      !
    !
    additional-paths|negotiate additional paths capabilities with this neighbor|k||
      line|line|lb/le/wa||
        <cr>||||
        !
      !
    !
    unsuppress-map|route-map to selectively unsuppress suppressed routes|k||
      word|word|||
        <cr>||||
        !
      !
    !
    capability|advertise capability to the peer|k||
      line|line|lb/le/wa||
        <cr>||||
        !
      !
    !
    slow-peer|configure slow-peer|k||
      line|line|lb/le/wa||
        <cr>||||
        !
      !
    !
    translate-update|translate update to mbgp format|k||
      line|line|lb/le/wa||
        <cr>||||
        !
      !
    !
    aigp|accumulated igp metric|k||
      <cr>||||
      !
      line|line|lb/le/wa||
        <cr>||||
        !
      !
    !
    activate|enable the address family for this neighbor|k||
      <cr>||||
      !
    !
    peer-group|member of the peer-group|k||
      <cr>||||
      !
      word|word|o||
        <cr>||||
        !
      !
    !
    inherit|inherit a template|k||
      peer-session|inherit a peer-session template|k||
        word|template name|o||
          <cr>||||
          !
        !
      !
      peer-policy|inherit a peer-policy template|k||
        word|template name|o||
          <cr>||||
          !
          id|sequence number|||
            <cr>||||
            !
          !
        !
      !
    !
  !
  word|word|k||
    remote-as|specify a bgp neighbor|k||
      1-4294967295|AS of remote neighbor|o||
        <cr>||||
        !
        line|line|lb/le/wa||
          <cr>||||
          !
        !
      !
      1.0-65535.65535|AS of remote neighbor|o||
        <cr>||||
        !
        line|line|lb/le/wa||
          <cr>||||
          !
        !
      !
    !
    update-source|source of routing updates|k||
      &interfacefile.cfm|interface type|k||
        <number>|interface number|k||
          <cr>||||
          !
        !
      !
    !
    description|neighbor specific description|k/n/o||
      line|text|lb/le/wa||
        <cr>||||
        !
      !
    !
    timers|bgp per neighbor timers|k||
      id|id|||
        id|id|||
          <cr>||||
          !
          id|id|||
            <cr>||||
            !
          !
        !
      !
    !
    password|set a password|k/n||
      id|id|||
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
    ebgp-multihop|allow ebgp neighbors not on directly connected networks|k||
      <cr>||||
      !
      id|id|o||
        <cr>||||
        !
      !
    !
    shutdown|administratively shut down this neighbor|k||
      <cr>||||
      !
    !
    local-as|specify a local-as number|k||
      <as>|as|||
        <cr>||||
        !
        line|line|lb/le/wa||
          <cr>||||
          !
        !
      !
    !
    version|set the bgp version to match a neighbor|k||
      id|id|||
        <cr>||||
        !
      !
    !
    fall-over|session fall on peer route lost|k||
      <cr>||||
      !
      line|line|lb/le/wa||
        <cr>||||
        !
      !
    !
    disable-connected-check|one-hop away ebgp peer using loopback address|k||
      <cr>||||
      !
    !
    ttl-security|bgp ttl security check|k||
      hops|hops|k||
        id|id|||
          <cr>||||
          !
        !
      !
    !
    transport|transport options|k||
      line|line|lb/le/wa||
        <cr>||||
        !
      !
    !
    fast-external-fallover|fast fallover for this neighbor|k||
      <cr>||||
      !
    !
    ha-mode|high availability mode|k||
      line|line|lb/le/wa||
        <cr>||||
        !
      !
    !
    send-community|send community attribute to this neighbor|k||
      <cr>||||
      !
      both|both|k||
        <cr>||||
        !
      !
      standard|standard|k||
        <cr>||||
        !
      !
      extended|extended|k||
        <cr>||||
        !
      !
    !
    route-map|apply route map to neighbor|k||
      word|word|o||
        in|in|k||
          <cr>||||
          !
        !
        out|out|k||
          <cr>||||
          !
        !
      !
    !
    next-hop-self|disable the next hop calculation for this neighbor|k||
      <cr>||||
      !
      all|all|k||
        <cr>||||
        !
      !
    !
    soft-reconfiguration|per neighbor soft reconfiguration|k||
      inbound|inbound|k||
        <cr>||||
        !
      !
    !
    route-reflector-client|configure a neighbor as route reflector client|k||
      <cr>||||
      !
    !
    advertisement-interval|minimum interval between sending bgp routing updates|k||
      id|id|o||
        <cr>||||
        !
      !
    !
    default-originate|originate default route to this neighbor|k||
      <cr>||||
      !
      route-map|route-map|k||
        word|word|||
          <cr>||||
          !
        !
      !
    !
    weight|set default weight for routes from this neighbor|k||
      id|id|||
        <cr>||||
        !
      !
    !
    send-label|send nlri + mpls label to this peer|k||
      <cr>||||
      !
      explicit-null|explicit-null|k||
        <cr>||||
        !
      !
    !
    filter-list|establish bgp filters|k||
      id|id|o||
        in|in|k||
          <cr>||||
          !
        !
        out|out|k||
          <cr>||||
          !
        !
      !
    !
    prefix-list|filter updates to/from this neighbor|k||
      word|word|o||
        in|in|k||
          <cr>||||
          !
        !
        out|out|k||
          <cr>||||
          !
        !
      !
    !
    distribute-list|filter updates to/from this neighbor|k||
      word|word|o||
        in|in|k||
          <cr>||||
          !
        !
        out|out|k||
          <cr>||||
          !
        !
      !
    !
    maximum-prefix|maximum number of prefixes accepted from this peer|k||
      id|id|||
        <cr>||||
        !
        line|line|lb/le/wa||
          <cr>||||
          !
        !
      !
    !
    allowas-in|accept as-path with my as present in it|k||
      <cr>||||
      !
      id|id|||
        <cr>||||
        !
      !
    !
    as-override|override matching as-number while sending update|k||
      <cr>||||
      !
    !
    remove-private-as|remove private as number from outbound updates|k||
      <cr>||||
      !
      all|all|k||
        <cr>||||
        !
        replace-as|replace-as|k||
          <cr>||||
          !
        !
      !
    !
    dmzlink-bw|propagate the dmz link bandwidth|k||
      <cr>||||
      !
    !
    advertise|advertise to this neighbor|k||
      additional-paths|additional-paths|k||
        line|line|lb/le/wa||
          <cr>||||
          !
        !
      !
      best-external|best-external|k||
        <cr>||||
        !
      !
    !
    additional-paths|negotiate additional paths capabilities with this neighbor|k||
      line|line|lb/le/wa||
        <cr>||||
        !
      !
    !
    unsuppress-map|route-map to selectively unsuppress suppressed routes|k||
      word|word|||
        <cr>||||
        !
      !
    !
    capability|advertise capability to the peer|k||
      line|line|lb/le/wa||
        <cr>||||
        !
      !
    !
    slow-peer|configure slow-peer|k||
      line|line|lb/le/wa||
        <cr>||||
        !
      !
    !
    translate-update|translate update to mbgp format|k||
      line|line|lb/le/wa||
        <cr>||||
        !
      !
    !
    aigp|accumulated igp metric|k||
      <cr>||||
      !
      line|line|lb/le/wa||
        <cr>||||
        !
      !
    !
    activate|enable the address family for this neighbor|k||
      <cr>||||
      !
    !
    peer-group|member of the peer-group|k||
      <cr>||||
      !
      word|word|o||
        <cr>||||
        !
      !
    !
    inherit|inherit a template|k||
      peer-session|inherit a peer-session template|k||
        word|template name|o||
          <cr>||||
          !
        !
      !
      peer-policy|inherit a peer-policy template|k||
        word|template name|o||
          <cr>||||
          !
          id|sequence number|||
            <cr>||||
            !
          !
        !
      !
    !
  !
!
network|specify a network to announce via bgp|k||
  a.b.c.d|a.b.c.d|k||
    <cr>||||
    !
    mask|mask|k||
      a.b.c.d|a.b.c.d|k||
        <cr>||||
        !
        route-map|route-map|k||
          word|word|||
            <cr>||||
            !
          !
        !
        backdoor|backdoor|k||
          <cr>||||
          !
        !
      !
    !
    route-map|route-map|k||
      word|word|||
        <cr>||||
        !
      !
    !
    backdoor|backdoor|k||
      <cr>||||
      !
    !
  !
  word|word|k||
    <cr>||||
    !
    route-map|route-map|k||
      word|word|||
        <cr>||||
        !
      !
    !
  !
!
redistribute|redistribute information from another routing protocol|k||
  connected|connected|k||
    <cr>||||
    !
    route-map|route-map|k||
      word|word|||
        <cr>||||
        !
      !
    !
    metric|metric|k||
      id|id|||
        <cr>||||
        !
        line|line|lb/le/wa||
          <cr>||||
          !
        !
      !
    !
    subnets|subnets|k||
      <cr>||||
      !
    !
  !
  static|static|k||
    <cr>||||
    !
    route-map|route-map|k||
      word|word|||
        <cr>||||
        !
      !
    !
    metric|metric|k||
      id|id|||
        <cr>||||
        !
        line|line|lb/le/wa||
          <cr>||||
          !
        !
      !
    !
    subnets|subnets|k||
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
  isis|isis|k||
    <cr>||||
    !
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
  lisp|lisp|k||
    <cr>||||
    !
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
!
aggregate-address|configure bgp aggregate entries|k||
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
maximum-paths|forward packets over multiple paths|k||
  id|id|o||
    <cr>||||
    !
  !
  ibgp|ibgp|k||
    id|id|o||
      <cr>||||
      !
    !
  !
  eibgp|eibgp|k||
    id|id|o||
      <cr>||||
      !
    !
  !
!
synchronization|perform igp synchronization|k/sn||
  <cr>||||
  !
!
auto-summary|enable automatic network number summarization|k/sn||
  <cr>||||
  !
!
default-information|control distribution of default information|k||
  originate|originate|k||
    <cr>||||
    !
  !
!
bgp|bgp specific commands|k||
  dampening|route flap dampening|k||
    <cr>||||
    !
    1-45|half-life time in minutes|||
      <cr>||||
      !
      1-20000|value to start reusing a route|||
        1-20000|value to start suppressing a route|||
          1-255|maximum duration to suppress a route|||
            <cr>||||
            !
          !
        !
      !
    !
    route-map|route-map|k||
      word|word|o||
        <cr>||||
        !
      !
    !
  !
  additional-paths|bgp additional paths|k||
    send|send|k||
      <cr>||||
      !
      receive|receive|k||
        <cr>||||
        !
      !
    !
    receive|receive|k||
      <cr>||||
      !
    !
    install|install|k||
      <cr>||||
      !
    !
    select|select|k||
      all|all|k||
        <cr>||||
        !
        best|best|k||
          id|id|||
            <cr>||||
            !
          !
        !
      !
      best|best|k||
        id|id|||
          <cr>||||
          !
        !
      !
      group-best|group-best|k||
        <cr>||||
        !
        all|all|k||
          <cr>||||
          !
        !
      !
    !
  !
  dmzlink-bw|use dmz link bandwidth|k||
    <cr>||||
    !
  !
  redistribute-internal|redistribute-internal|k||
    <cr>||||
    !
  !
  nexthop|nexthop|k||
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
  scan-time|scan-time|k||
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
  update-group|update-group|k||
    split|split|k||
      as-override|as-override|k||
        <cr>||||
        !
      !
    !
  !
  aggregate-timer|aggregate-timer|k||
    id|id|||
      <cr>||||
      !
    !
  !
  router-id|router id of the vrf|k||
    a.b.c.d|a.b.c.d|o||
      <cr>||||
      !
    !
    auto-assign|auto-assign|k||
      <cr>||||
      !
    !
  !
!
distance|define an administrative distance|k||
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
table-map|map external entry attributes into routing table|k||
  line|line|lb/le/wa||
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
import|import routes from another routing table|k||
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
export|export routes to another routing table|k||
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
exit-address-family|exit from address family configuration mode|k||
  <cr>||||
  !
!
segment-routing|segment routing settings|k||
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
label|label settings|k||
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
allocate-label|allocate mpls labels for prefixes|k||
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
