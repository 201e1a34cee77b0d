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
log-adjacency-changes|log changes in adjacency state|k/o||
  <cr>||sb||
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
  id|ospf area id as a decimal value|k||
    authentication|enable authentication|k||
      <cr>||||
      !
      message-digest|use message-digest authentication|k||
        <cr>||||
        !
      !
      null|use no authentication|k||
        <cr>||||
        !
      !
      ipsec|use ipsec authentication|k||
        spi|spi|k||
          256-4294967295|security policy index|k||
            md5|md5|k||
              word|authentication key|o||
                <cr>||||
                !
              !
            !
            sha1|sha1|k||
              word|authentication key|o||
                <cr>||||
                !
              !
            !
          !
        !
      !
    !
    encryption|enable encryption|k||
      ipsec|use ipsec encryption|k||
        spi|spi|k||
          256-4294967295|security policy index|k||
            esp|esp|k||
              word|encryption algorithm|||
                line|line|lb/le/wa/o||
                  <cr>||||
                  !
                !
              !
              null|null|k||
                line|line|lb/le/wa/o||
                  <cr>||||
                  !
                !
              !
            !
          !
        !
      !
      null|null|k||
        <cr>||||
        !
      !
    !
    stub|specify a stub area|k||
      <cr>||||
      !
      no-summary|do not send summary lsa into stub area|k||
        <cr>||||
        !
      !
      no-ext-capability|do not send domain specific capabilities into stub area|k||
        <cr>||||
        !
      !
    !
    nssa|specify a nssa area|k||
      <cr>||||
      !
      no-summary|do not send summary lsa into nssa|k||
        <cr>||||
        !
        line|line|lb/le/wa||
          <cr>||||
          !
        !
      !
      no-redistribution|no redistribution into this nssa area|k||
        <cr>||||
        !
        line|line|lb/le/wa||
          <cr>||||
          !
        !
      !
      default-information-originate|originate type 7 default into nssa area|k||
        <cr>||||
        !
        line|line|lb/le/wa||
          <cr>||||
          !
        !
      !
      translate|translate lsa|k||
        type7|from type 7 to type 5|k||
          always|always translate lsas on this abr|k||
            <cr>||||
            !
            line|line|lb/le/wa||
              <cr>||||
              !
            !
          !
          suppress-fa|suppress forwarding address in translated lsas|k||
            <cr>||||
            !
          !
        !
      !
      no-ext-capability|do not send domain specific capabilities into nssa|k||
        <cr>||||
        !
      !
    !
    range|summarize routes matching address/mask (border routers only)|k||
      a.b.c.d|ip address to match|k||
        a.b.c.d|ip mask for address|k||
          <cr>||||
          !
          advertise|advertise this range (default)|k||
            <cr>||||
            !
          !
          not-advertise|do not advertise this range|k||
            <cr>||||
            !
          !
          cost|user specified metric for this range|k||
            id|advertised metric for this range|o||
              <cr>||||
              !
            !
          !
        !
      !
      word|ipv6 prefix|k||
        <cr>||||
        !
        advertise|advertise this range (default)|k||
          <cr>||||
          !
        !
        not-advertise|do not advertise this range|k||
          <cr>||||
          !
        !
        cost|user specified metric for this range|k||
          id|advertised metric for this range|o||
            <cr>||||
            !
          !
        !
      !
    !
    virtual-link|define a virtual link and its parameters|k||
      a.b.c.d|id (ip addr) associated with virtual link neighbor|k||
        <cr>||||
        !
        line|line|lb/le/wa||
          <cr>||||
          !
        !
      !
    !
    sham-link|define a sham link and its parameters|k||
      a.b.c.d|ip addr associated with sham-link source|k||
        a.b.c.d|ip addr associated with sham-link destination|k||
          <cr>||||
          !
          cost|associate a cost with the sham-link|k||
            id|cost|o||
              <cr>||||
              !
            !
          !
          ttl-security|ttl security check|k||
            line|line|lb/le/wa||
              <cr>||||
              !
            !
          !
        !
      !
    !
    default-cost|set the summary default-cost of a nssa/stub area|k||
      id|stub's advertised external route metric|o||
        <cr>||||
        !
      !
    !
    filter-list|filter networks between ospf areas|k||
      prefix|filter prefixes between ospf areas|k||
        word|name of an ip prefix-list|k||
          in|filter networks sent to this area|k||
            <cr>||||
            !
          !
          out|filter networks sent from this area|k||
            <cr>||||
            !
          !
        !
      !
    !
    capability|enable area specific capabilities|k||
      default-exclusion|enable exclusion of links from base topology|k||
        <cr>||||
        !
      !
    !
  !
  a.b.c.d|ospf area id in ip address format|k||
    authentication|enable authentication|k||
      <cr>||||
      !
      message-digest|use message-digest authentication|k||
        <cr>||||
        !
      !
      null|use no authentication|k||
        <cr>||||
        !
      !
      ipsec|use ipsec authentication|k||
        spi|spi|k||
          256-4294967295|security policy index|k||
            md5|md5|k||
              word|authentication key|o||
                <cr>||||
                !
              !
            !
            sha1|sha1|k||
              word|authentication key|o||
                <cr>||||
                !
              !
            !
          !
        !
      !
    !
    encryption|enable encryption|k||
      ipsec|use ipsec encryption|k||
        spi|spi|k||
          256-4294967295|security policy index|k||
            esp|esp|k||
              word|encryption algorithm|||
                line|line|lb/le/wa/o||
                  <cr>||||
                  !
                !
              !
              null|null|k||
                line|line|lb/le/wa/o||
                  <cr>||||
                  !
                !
              !
            !
          !
        !
      !
      null|null|k||
        <cr>||||
        !
      !
    !
    stub|specify a stub area|k||
      <cr>||||
      !
      no-summary|do not send summary lsa into stub area|k||
        <cr>||||
        !
      !
      no-ext-capability|do not send domain specific capabilities into stub area|k||
        <cr>||||
        !
      !
    !
    nssa|specify a nssa area|k||
      <cr>||||
      !
      no-summary|do not send summary lsa into nssa|k||
        <cr>||||
        !
        line|line|lb/le/wa||
          <cr>||||
          !
        !
      !
      no-redistribution|no redistribution into this nssa area|k||
        <cr>||||
        !
        line|line|lb/le/wa||
          <cr>||||
          !
        !
      !
      default-information-originate|originate type 7 default into nssa area|k||
        <cr>||||
        !
        line|line|lb/le/wa||
          <cr>||||
          !
        !
      !
      translate|translate lsa|k||
        type7|from type 7 to type 5|k||
          always|always translate lsas on this abr|k||
            <cr>||||
            !
            line|line|lb/le/wa||
              <cr>||||
              !
            !
          !
          suppress-fa|suppress forwarding address in translated lsas|k||
            <cr>||||
            !
          !
        !
      !
      no-ext-capability|do not send domain specific capabilities into nssa|k||
        <cr>||||
        !
      !
    !
    range|summarize routes matching address/mask (border routers only)|k||
      a.b.c.d|ip address to match|k||
        a.b.c.d|ip mask for address|k||
          <cr>||||
          !
          advertise|advertise this range (default)|k||
            <cr>||||
            !
          !
          not-advertise|do not advertise this range|k||
            <cr>||||
            !
          !
          cost|user specified metric for this range|k||
            id|advertised metric for this range|o||
              <cr>||||
              !
            !
          !
        !
      !
      word|ipv6 prefix|k||
        <cr>||||
        !
        advertise|advertise this range (default)|k||
          <cr>||||
          !
        !
        not-advertise|do not advertise this range|k||
          <cr>||||
          !
        !
        cost|user specified metric for this range|k||
          id|advertised metric for this range|o||
            <cr>||||
            !
          !
        !
      !
    !
    virtual-link|define a virtual link and its parameters|k||
      a.b.c.d|id (ip addr) associated with virtual link neighbor|k||
        <cr>||||
        !
        line|line|lb/le/wa||
          <cr>||||
          !
        !
      !
    !
    sham-link|define a sham link and its parameters|k||
      a.b.c.d|ip addr associated with sham-link source|k||
        a.b.c.d|ip addr associated with sham-link destination|k||
          <cr>||||
          !
          cost|associate a cost with the sham-link|k||
            id|cost|o||
              <cr>||||
              !
            !
          !
          ttl-security|ttl security check|k||
            line|line|lb/le/wa||
              <cr>||||
              !
            !
          !
        !
      !
    !
    default-cost|set the summary default-cost of a nssa/stub area|k||
      id|stub's advertised external route metric|o||
        <cr>||||
        !
      !
    !
    filter-list|filter networks between ospf areas|k||
      prefix|filter prefixes between ospf areas|k||
        word|name of an ip prefix-list|k||
          in|filter networks sent to this area|k||
            <cr>||||
            !
          !
          out|filter networks sent from this area|k||
            <cr>||||
            !
          !
        !
      !
    !
    capability|enable area specific capabilities|k||
      default-exclusion|enable exclusion of links from base topology|k||
        <cr>||||
        !
      !
    !
  !
!
neighbor|specify a neighbor router|k||
  a.b.c.d|neighbor address|k||
    <cr>||||
    !
    priority|ospf priority of non-broadcast neighbor|k||
      id|priority|o||
        <cr>||||
        !
        poll-interval|ospf dead-router polling interval|k||
          id|seconds|||
            <cr>||||
            !
          !
        !
      !
    !
    poll-interval|ospf dead-router polling interval|k||
      id|seconds|o||
        <cr>||||
        !
      !
    !
    cost|ospf cost for point-to-multipoint neighbor|k||
      id|metric|o||
        <cr>||||
        !
      !
    !
    database-filter|filter ospf lsa during synchronization and flooding|k||
      all|filter all lsa|k||
        out|outgoing lsa|k||
          <cr>||||
          !
        !
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
  a.b.c.d|summary prefix|k||
    a.b.c.d|summary mask|k||
      <cr>||||
      !
      not-advertise|suppress routes that match the prefix|k||
        <cr>||||
        !
      !
      tag|set tag|k||
        id|32-bit tag value|o||
          <cr>||||
          !
        !
      !
      nssa-only|limit summary to nssa areas|k||
        <cr>||||
        !
      !
    !
  !
  word|ipv6 summary prefix|k||
    <cr>||||
    !
    line|line|lb/le/wa||
      <cr>||||
      !
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
  all-interfaces|enable bfd on all interfaces|k||
    <cr>||||
    !
    strict-mode|hold the adjacency down until bfd comes up|k||
      <cr>||||
      !
    !
  !
!
nsr|non-stop routing|k||
  <cr>||||
  !
!
limit|limit a specific ospf feature|k||
  retransmissions|ospf retransmission limits|k||
    dc|demand circuit retransmissions|k||
      id|retransmission limit|o||
        <cr>||||
        !
        non-dc|non-demand-circuit retransmissions|k||
          id|retransmission limit|o||
            <cr>||||
            !
          !
          disable|disable the feature|k||
            <cr>||||
            !
          !
        !
      !
      disable|disable the feature|k||
        <cr>||||
        !
        non-dc|non-demand-circuit retransmissions|k||
          id|retransmission limit|o||
            <cr>||||
            !
          !
          disable|disable the feature|k||
            <cr>||||
            !
          !
        !
      !
    !
    non-dc|non-demand-circuit retransmissions|k||
      id|retransmission limit|o||
        <cr>||||
        !
      !
      disable|disable the feature|k||
        <cr>||||
        !
      !
    !
  !
!
priority|priority of the ospf process|k||
  0-127|0-127|o||
    <cr>||||
    !
  !
!
traffic-share|how to compute traffic share over alternate paths|k||
  min|all traffic shared among min metric paths|k||
    across-interfaces|use different interfaces for equal-cost paths|k||
      <cr>||||
      !
    !
  !
!
process-min-time|percentage of quantum to be used before releasing cpu|k||
  percent|percentage|k||
    id|percentage of quantum|o||
      <cr>||||
      !
    !
  !
!
snmp|modify snmp parameters|k||
  context|configure a snmp context|k||
    word|context name|o||
      <cr>||||
      !
    !
  !
!
table-map|map external entry attributes into routing table|k||
  word|route-map name|o||
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
  router-lsa|maximum metric in self-originated router-lsas|k||
    <cr>||||
    !
    on-startup|set maximum metric temporarily after reboot|k||
      id|time in seconds|o||
        <cr>||||
        !
      !
      wait-for-bgp|let bgp decide when to originate router-lsa with normal metric|k||
        <cr>||||
        !
      !
    !
    include-stub|set maximum metric for stub links in router-lsas|k||
      <cr>||||
      !
      line|line|lb/le/wa||
        <cr>||||
        !
      !
    !
    external-lsa|override external-lsa metric with max-metric value|k||
      <cr>||||
      !
      line|line|lb/le/wa||
        <cr>||||
        !
      !
    !
    summary-lsa|override summary-lsa metric with max-metric value|k||
      <cr>||||
      !
      line|line|lb/le/wa||
        <cr>||||
        !
      !
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
  snmp-if-index|use the snmp ifindex as the interface id|k||
    <cr>||||
    !
  !
!
exit-address-family|exit from address family configuration mode|k||
  <cr>||||
  !
!
