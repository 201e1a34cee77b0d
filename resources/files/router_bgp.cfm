bgp|bgp specific commands|k||
  log-neighbor-changes|log-neighbor-changes|k/sb/o||
    <cr>||||
    !
  !
  rpki|resource public key infrastructure|k||
    server|server|k||
      tcp|tcp|k||
        a.b.c.d|a.b.c.d|k||
          port|port|k||
            id|id|||
              refresh|refresh|k||
                id|id|||
                  <cr>||||
                  !
                !
              !
            !
          !
        !
      !
    !
  !
  router-id|router-id|k||
    a.b.c.d|a.b.c.d|o||
      <cr>||||
      !
    !
    vrf|vrf|k||
      auto-assign|auto-assign|k||
        <cr>||||
        !
      !
    !
  !
  default|default|k||
    ipv4-unicast|ipv4-unicast|k/sn||
      <cr>||||
      !
    !
    ipv6-nexthop|ipv6 next hops for ipv4 prefixes|k||
      <cr>||||
      !
    !
    local-preference|local-preference|k||
      id|id|||
        <cr>||||
        !
      !
    !
    route-target|route-target|k||
      filter|filter|k/sn||
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
  bestpath|best path selection|k||
    as-path|as-path|k||
      multipath-relax|multipath-relax|k||
        <cr>||||
        !
      !
      ignore|ignore|k||
        <cr>||||
        !
      !
    !
    compare-routerid|compare-routerid|k||
      <cr>||||
      !
    !
    med|med|k||
      confed|confed|k||
        <cr>||||
        !
        missing-as-worst|missing-as-worst|k||
          <cr>||||
          !
        !
      !
      missing-as-worst|missing-as-worst|k||
        <cr>||||
        !
      !
    !
    cost-community|cost-community|k||
      ignore|ignore|k||
        <cr>||||
        !
      !
    !
    igp-metric|igp-metric|k||
      ignore|ignore|k||
        <cr>||||
        !
      !
    !
  !
  cluster-id|route reflector cluster id|k||
    a.b.c.d|a.b.c.d|o||
      <cr>||||
      !
    !
    1-4294967295|1-4294967295|o||
      <cr>||||
      !
    !
  !
  confederation|as confederation|k||
    identifier|identifier|k||
      1-4294967295|1-4294967295|o||
        <cr>||||
        !
      !
      1.0-65535.65535|1.0-65535.65535|o||
        <cr>||||
        !
      !
    !
    peers|peers|k||
      line|line|lb/le/wa||
        <cr>||||
        !
      !
    !
  !
  deterministic-med|deterministic-med|k||
    <cr>||||
    !
  !
  always-compare-med|always-compare-med|k||
    <cr>||||
    !
  !
  graceful-restart|graceful restart|k||
    <cr>||||
    !
    restart-time|restart-time|k||
      1-3600|1-3600|o||
        <cr>||||
        !
      !
    !
    stalepath-time|stalepath-time|k||
      1-3600|1-3600|o||
        <cr>||||
        !
      !
    !
    extended|extended|k||
      <cr>||||
      !
    !
  !
  fast-external-fallover|fast-external-fallover|k||
    <cr>||||
    !
  !
  enforce-first-as|enforce-first-as|k||
    <cr>||||
    !
  !
  maxas-limit|maxas-limit|k||
    id|id|||
      <cr>||||
      !
    !
  !
  listen|dynamic neighbors|k||
    range|range|k||
      a.b.c.d/<1-32>|a.b.c.d/<1-32|k||
        peer-group|peer-group|k||
          word|word|o||
            <cr>||||
            !
          !
        !
      !
    !
    limit|limit|k||
      1-5000|1-5000|o||
        <cr>||||
        !
      !
    !
  !
  asnotation|asnotation|k||
    dot|dot|k||
      <cr>||||
      !
    !
  !
  update-delay|update-delay|k||
    id|id|||
      <cr>||||
      !
    !
  !
  scan-time|scan-time|k||
    id|id|||
      <cr>||||
      !
    !
  !
  nopeerup-delay|nopeerup-delay|k||
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
  redistribute-internal|redistribute-internal|k||
    <cr>||||
    !
  !
  transport|transport settings|k||
    path-mtu-discovery|path-mtu-discovery|k||
      <cr>||||
      !
      disable|disable|k||
        <cr>||||
        !
      !
    !
  !
  client-to-client|client-to-client|k||
    reflection|reflection|k||
      <cr>||||
      !
      intra-cluster|reflection inside the cluster|k||
        cluster-id|cluster-id|k||
          any|any|k||
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
  route-map-cache|cache route-map results|k||
    <cr>||||
    !
  !
  dynamic-med-interval|interval of dynamic med changes|k||
    id|id|o||
      <cr>||||
      !
    !
  !
  refresh|route refresh settings|k||
    stalepath-time|stalepath-time|k||
      id|id|o||
        <cr>||||
        !
      !
    !
    max-eor-time|max-eor-time|k||
      id|id|o||
        <cr>||||
        !
      !
    !
  !
  update-group|update group settings|k||
    split|split|k||
      as-override|as-override|k||
        <cr>||||
        !
      !
    !
  !
  suppress-inactive|suppress-inactive|k||
    <cr>||||
    !
  !
  recursion|recursion|k||
    host|host|k||
      <cr>||||
      !
    !
  !
  nexthop|next hop tracking|k||
    trigger|trigger|k||
      enable|enable|k||
        <cr>||||
        !
      !
      delay|delay|k||
        0-100|0-100|o||
          <cr>||||
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
  consistency-checker|consistency-checker|k/n||
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
  inject-map|inject-map|k||
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
  regexp|regular expressions|k||
    deterministic|deterministic|k||
      <cr>||||
      !
    !
  !
  aggregate-timer|aggregate-timer|k||
    id|id|||
      <cr>||||
      !
    !
  !
  soft-reconfig-backup|soft-reconfig-backup|k||
    <cr>||||
    !
  !
  sso|sso|k||
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
  mpls|mpls|k||
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
!
neighbor|specify a neighbor router|k||
  a.b.c.d|a.b.c.d|k/n||
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
  word|word|k/n||
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
  word|word|k/n||
    peer-group|peer-group|k||
      <cr>||||
      !
    !
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
address-family|enter address family command mode|k||
  ipv4|ipv4|k||
    <cr>||||@(config-router-af)# router_bgp_af.cfm
    !
    unicast|unicast|k||
      <cr>||||@(config-router-af)# router_bgp_af.cfm
      !
      vrf|vrf|k||
        word|word|k||
          <cr>||||@(config-router-af)# router_bgp_af.cfm
          !
        !
      !
    !
    multicast|multicast|k||
      <cr>||||@(config-router-af)# router_bgp_af.cfm
      !
      vrf|vrf|k||
        word|word|k||
          <cr>||||@(config-router-af)# router_bgp_af.cfm
          !
        !
      !
    !
    vrf|vrf|k||
      word|word|k||
        <cr>||||@(config-router-af)# router_bgp_af.cfm
        !
      !
    !
    mdt|mdt|k||
      <cr>||||@(config-router-af)# router_bgp_af.cfm
      !
    !
    flowspec|flowspec|k||
      <cr>||||@(config-router-af)# router_bgp_af.cfm
      !
    !
    mvpn|mvpn|k||
      <cr>||||@(config-router-af)# router_bgp_af.cfm
      !
    !
    labeled-unicast|labeled-unicast|k||
      <cr>||||@(config-router-af)# router_bgp_af.cfm
      !
    !
  !
  ipv6|ipv6|k||
    <cr>||||@(config-router-af)# router_bgp_af.cfm
    !
    unicast|unicast|k||
      <cr>||||@(config-router-af)# router_bgp_af.cfm
      !
      vrf|vrf|k||
        word|word|k||
          <cr>||||@(config-router-af)# router_bgp_af.cfm
          !
        !
      !
    !
    multicast|multicast|k||
      <cr>||||@(config-router-af)# router_bgp_af.cfm
      !
    !
    vrf|vrf|k||
      word|word|k||
        <cr>||||@(config-router-af)# router_bgp_af.cfm
        !
      !
    !
    flowspec|flowspec|k||
      <cr>||||@(config-router-af)# router_bgp_af.cfm
      !
    !
    mvpn|mvpn|k||
      <cr>||||@(config-router-af)# router_bgp_af.cfm
      !
    !
  !
  vpnv4|vpnv4|k||
    <cr>||||@(config-router-af)# router_bgp_af.cfm
    !
    unicast|unicast|k||
      <cr>||||@(config-router-af)# router_bgp_af.cfm
      !
    !
    multicast|multicast|k||
      <cr>||||@(config-router-af)# router_bgp_af.cfm
      !
    !
    flowspec|flowspec|k||
      <cr>||||@(config-router-af)# router_bgp_af.cfm
      !
    !
  !
  vpnv6|vpnv6|k||
    <cr>||||@(config-router-af)# router_bgp_af.cfm
    !
    unicast|unicast|k||
      <cr>||||@(config-router-af)# router_bgp_af.cfm
      !
    !
  !
  l2vpn|l2vpn|k||
    <cr>||||@(config-router-af)# router_bgp_af.cfm
    !
    vpls|vpls|k||
      <cr>||||@(config-router-af)# router_bgp_af.cfm
      !
    !
    evpn|evpn|k||
      <cr>||||@(config-router-af)# router_bgp_af.cfm
      !
    !
  !
  nsap|nsap|k||
    <cr>||||@(config-router-af)# router_bgp_af.cfm
    !
  !
  rtfilter|rtfilter|k||
    <cr>||||@(config-router-af)# router_bgp_af.cfm
    !
    unicast|unicast|k||
      <cr>||||@(config-router-af)# router_bgp_af.cfm
      !
    !
  !
  link-state|link-state|k||
    <cr>||||@(config-router-af)# router_bgp_af.cfm
    !
    link-state|link-state|k||
      <cr>||||@(config-router-af)# router_bgp_af.cfm
      !
    !
  !
!
template|enter template command mode|k||
  peer-session|template configuration for session parameters|k||
    word|template name|k||
      <cr>||||@(config-router-stmp)# router_bgp_stmp.cfm
      !
    !
  !
  peer-policy|template configuration for policy parameters|k||
    word|template name|k||
      <cr>||||@(config-router-ptmp)# router_bgp_ptmp.cfm
      !
    !
  !
!
timers|adjust routing timers|k||
  bgp|bgp|k||
    id|id|o||
      id|id|o||
        <cr>||||
        !
        id|id|||
          <cr>||||
          !
        !
      !
    !
  !
!
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
