# MPLS settings of an IGP process. Each branch ends where the device ends
# it: a catch-all here would keep the global "mpls ldp ..." lines that follow
# a routing process inside it.
def IGPMPLS
  ldp "mpls ldp settings"
    sync "ldp igp synchronisation" $
    autoconfig "enable ldp on the process's interfaces" $
      area "ospf area"
        id :k "area id" $
      level-1 "is-is level-1" $
      level-2 "is-is level-2" $
  traffic-eng "mpls traffic engineering"
    router-id "traffic engineering router id"
      %IF
    area "ospf area"
      id :k "area id" $
    level-1 "is-is level-1" $
    level-2 "is-is level-2" $
    multicast-intact "keep multicast routes intact" $
    interface "traffic engineering interface"
      %IF
        area "ospf area"
          id "area id" $

# Neighbor settings of a BGP session (transport, timers, authentication):
# the lines of a peer-session template as well.
def BGPSESSION
  remote-as "specify a bgp neighbor"
    1-4294967295 :o "AS of remote neighbor" $
      line *
    1.0-65535.65535 :o "AS of remote neighbor" $
      line *
  update-source "source of routing updates"
    %IF
  description :n/o "neighbor specific description"
    %TEXT
  timers "bgp per neighbor timers"
    id
      id $
        id $
  password :n "set a password"
    id
      line *
    line *
  ebgp-multihop $ "allow ebgp neighbors not on directly connected networks"
    id :o $
  shutdown $ "administratively shut down this neighbor"
  local-as "specify a local-as number"
    <as> $
      line *
  version "set the bgp version to match a neighbor"
    id $
  fall-over $ "session fall on peer route lost"
    line *
  disable-connected-check $ "one-hop away ebgp peer using loopback address"
  ttl-security "bgp ttl security check"
    hops
      id $
  transport "transport options"
    line *
  fast-external-fallover $ "fast fallover for this neighbor"
  ha-mode "high availability mode"
    line *

# Neighbor settings of one address family (filters, attributes, limits): the
# lines of a peer-policy template as well.
def BGPPOLICY
  send-community $ "send community attribute to this neighbor"
    both $
    standard $
    extended $
  route-map "apply route map to neighbor"
    word :o
      in :k $
      out :k $
  next-hop-self $ "disable the next hop calculation for this neighbor"
    all $
  soft-reconfiguration "per neighbor soft reconfiguration"
    inbound $
  route-reflector-client $ "configure a neighbor as route reflector client"
  advertisement-interval "minimum interval between sending bgp routing updates"
    id :o $
  default-originate $ "originate default route to this neighbor"
    route-map
      word $
  weight "set default weight for routes from this neighbor"
    id $
  send-label $ "send nlri + mpls label to this peer"
    explicit-null $
  filter-list "establish bgp filters"
    id :o
      in :k $
      out :k $
  prefix-list "filter updates to/from this neighbor"
    word :o
      in :k $
      out :k $
  distribute-list "filter updates to/from this neighbor"
    word :o
      in :k $
      out :k $
  maximum-prefix "maximum number of prefixes accepted from this peer"
    id $
      line *
  allowas-in $ "accept as-path with my as present in it"
    id $
  as-override $ "override matching as-number while sending update"
  remove-private-as $ "remove private as number from outbound updates"
    all $
      replace-as $
  dmzlink-bw $ "propagate the dmz link bandwidth"
  advertise "advertise to this neighbor"
    additional-paths
      line *
    best-external $
  additional-paths "negotiate additional paths capabilities with this neighbor"
    line *
  unsuppress-map "route-map to selectively unsuppress suppressed routes"
    word $
  capability "advertise capability to the peer"
    line *
  slow-peer "configure slow-peer"
    line *
  translate-update "translate update to mbgp format"
    line *
  aigp $ "accumulated igp metric"
    line *

def BGPNEIGHBOR
  %BGPSESSION
  %BGPPOLICY
  activate $ "enable the address family for this neighbor"
  peer-group "member of the peer-group" $
    word :o $
  inherit "inherit a template"
    peer-session "inherit a peer-session template"
      word :o "template name" $
    peer-policy "inherit a peer-policy template"
      word :o "template name" $
        id "sequence number" $

def AFBODY
  neighbor "specify a neighbor router"
    a.b.c.d :k
      %BGPNEIGHBOR
    word :k
      %BGPNEIGHBOR
  network "specify a network to announce via bgp"
    a.b.c.d :k $
      mask
        a.b.c.d :k $
          route-map
            word $
          backdoor $
      route-map
        word $
      backdoor $
    word :k $
      route-map
        word $
  redistribute "redistribute information from another routing protocol"
    connected $
      route-map
        word $
      metric
        id $
          line *
      subnets $
    static $
      route-map
        word $
      metric
        id $
          line *
      subnets $
    ospf
      id :k $
        line *
    eigrp
      id :k $
        line *
    rip $
      line *
    bgp
      <as> :k $
        line *
    isis $
      line *
    lisp $
      line *
  aggregate-address "configure bgp aggregate entries"
    line *
  maximum-paths "forward packets over multiple paths"
    id :o $
    ibgp
      id :o $
    eibgp
      id :o $
  synchronization $ :sn "perform igp synchronization"
  auto-summary $ :sn "enable automatic network number summarization"
  default-information "control distribution of default information"
    originate $
  bgp "bgp specific commands"
    dampening "route flap dampening" $
      1-45 "half-life time in minutes" $
        1-20000 "value to start reusing a route"
          1-20000 "value to start suppressing a route"
            1-255 "maximum duration to suppress a route" $
      route-map
        word :o $
    additional-paths "bgp additional paths"
      send $
        receive $
      receive $
      install $
      select
        all $
          best
            id $
        best
          id $
        group-best $
          all $
    dmzlink-bw "use dmz link bandwidth" $
    redistribute-internal $
    nexthop
      line *
    scan-time
      line *
    update-group
      split
        as-override $
    aggregate-timer
      id $
    router-id "router id of the vrf"
      a.b.c.d :o $
      auto-assign $
  distance "define an administrative distance"
    line *
  table-map "map external entry attributes into routing table"
    line *
  default-metric "set metric of redistributed routes"
    id $
  import "import routes from another routing table"
    line *
  export "export routes to another routing table"
    line *
  exit-address-family $ "exit from address family configuration mode"
  segment-routing "segment routing settings"
    line *
  label "label settings"
    line *
  allocate-label "allocate mpls labels for prefixes"
    line *

file router_bgp.cfm
bgp "bgp specific commands"
  log-neighbor-changes $ :sb/o
  rpki "resource public key infrastructure"
    server
      tcp
        a.b.c.d :k
          port
            id
              refresh
                id $
  router-id
    a.b.c.d :o $
    vrf
      auto-assign $
  default
    ipv4-unicast $ :sn
    ipv6-nexthop "ipv6 next hops for ipv4 prefixes" $
    local-preference
      id $
    route-target
      filter $ :sn
  additional-paths "bgp additional paths"
    send $
      receive $
    receive $
    install $
    select
      all $
        best
          id $
      best
        id $
      group-best $
        all $
  dampening "route flap dampening" $
    1-45 "half-life time in minutes" $
      1-20000 "value to start reusing a route"
        1-20000 "value to start suppressing a route"
          1-255 "maximum duration to suppress a route" $
    route-map
      word :o $
  bestpath "best path selection"
    as-path
      multipath-relax $
      ignore $
    compare-routerid $
    med
      confed $
        missing-as-worst $
      missing-as-worst $
    cost-community
      ignore $
    igp-metric
      ignore $
  cluster-id "route reflector cluster id"
    a.b.c.d :o $
    1-4294967295 :o $
  confederation "as confederation"
    identifier
      1-4294967295 :o $
      1.0-65535.65535 :o $
    peers
      line *
  deterministic-med $
  always-compare-med $
  graceful-restart "graceful restart" $
    restart-time
      1-3600 :o $
    stalepath-time
      1-3600 :o $
    extended $
  fast-external-fallover $
  enforce-first-as $
  maxas-limit
    id $
  listen "dynamic neighbors"
    range
      a.b.c.d/<1-32> :k
        peer-group
          word :o $
    limit
      1-5000 :o $
  asnotation
    dot $
  update-delay
    id $
  scan-time
    id $
  nopeerup-delay
    line *
  redistribute-internal $
  transport "transport settings"
    path-mtu-discovery $
      disable $
  client-to-client
    reflection $
      intra-cluster "reflection inside the cluster"
        cluster-id
          any $
          a.b.c.d :k $
  route-map-cache "cache route-map results" $
  dynamic-med-interval "interval of dynamic med changes"
    id :o $
  refresh "route refresh settings"
    stalepath-time
      id :o $
    max-eor-time
      id :o $
  update-group "update group settings"
    split
      as-override $
  suppress-inactive $
  recursion
    host $
  nexthop "next hop tracking"
    trigger
      enable $
      delay
        0-100 :o $
    route-map
      word :o $
  consistency-checker :n
    line *
  inject-map
    line *
  regexp "regular expressions"
    deterministic $
  aggregate-timer
    id $
  soft-reconfig-backup $
  sso
    line *
  mpls
    line *
neighbor "specify a neighbor router"
  a.b.c.d :k/n
    %BGPNEIGHBOR
  word :k/n
    %BGPNEIGHBOR
  word :k/n
    peer-group $
    %BGPNEIGHBOR
address-family "enter address family command mode"
  ipv4 :k @(config-router-af)#=router_bgp_af.cfm
    unicast :k @(config-router-af)#=router_bgp_af.cfm
      vrf
        word :k @(config-router-af)#=router_bgp_af.cfm
    multicast :k @(config-router-af)#=router_bgp_af.cfm
      vrf
        word :k @(config-router-af)#=router_bgp_af.cfm
    vrf
      word :k @(config-router-af)#=router_bgp_af.cfm
    mdt :k @(config-router-af)#=router_bgp_af.cfm
    flowspec @(config-router-af)#=router_bgp_af.cfm
    mvpn @(config-router-af)#=router_bgp_af.cfm
    labeled-unicast @(config-router-af)#=router_bgp_af.cfm
  ipv6 :k @(config-router-af)#=router_bgp_af.cfm
    unicast :k @(config-router-af)#=router_bgp_af.cfm
      vrf
        word :k @(config-router-af)#=router_bgp_af.cfm
    multicast :k @(config-router-af)#=router_bgp_af.cfm
    vrf
      word :k @(config-router-af)#=router_bgp_af.cfm
    flowspec @(config-router-af)#=router_bgp_af.cfm
    mvpn @(config-router-af)#=router_bgp_af.cfm
  vpnv4 :k @(config-router-af)#=router_bgp_af.cfm
    unicast :k @(config-router-af)#=router_bgp_af.cfm
    multicast @(config-router-af)#=router_bgp_af.cfm
    flowspec @(config-router-af)#=router_bgp_af.cfm
  vpnv6 :k @(config-router-af)#=router_bgp_af.cfm
    unicast :k @(config-router-af)#=router_bgp_af.cfm
  l2vpn @(config-router-af)#=router_bgp_af.cfm
    vpls @(config-router-af)#=router_bgp_af.cfm
    evpn @(config-router-af)#=router_bgp_af.cfm
  nsap @(config-router-af)#=router_bgp_af.cfm
  rtfilter @(config-router-af)#=router_bgp_af.cfm
    unicast @(config-router-af)#=router_bgp_af.cfm
  link-state @(config-router-af)#=router_bgp_af.cfm
    link-state @(config-router-af)#=router_bgp_af.cfm
template "enter template command mode"
  peer-session "template configuration for session parameters"
    word :k "template name" @(config-router-stmp)#=router_bgp_stmp.cfm
  peer-policy "template configuration for policy parameters"
    word :k "template name" @(config-router-ptmp)#=router_bgp_ptmp.cfm
timers "adjust routing timers"
  bgp
    id :o
      id :o $
        id $
%AFBODY

file router_bgp_af.cfm
%AFBODY

file router_bgp_stmp.cfm
%BGPSESSION
inherit "inherit a template"
  peer-session "inherit a peer-session template"
    word :o "template name" $
exit-peer-session $ "exit from template configuration mode"

file router_bgp_ptmp.cfm
%BGPPOLICY
inherit "inherit a template"
  peer-policy "inherit a peer-policy template"
    word :k "template name" $
      id "sequence number" $
exit-peer-policy $ "exit from template configuration mode"

# Settings of one OSPF area. Options that the device takes in any order
# behind a first one (nssa no-summary default-information-originate ...) are
# read as text after that first one.
def OSPFAREA
  authentication "enable authentication" $
    message-digest "use message-digest authentication" $
    null "use no authentication" $
    ipsec "use ipsec authentication"
      spi
        256-4294967295 :k "security policy index"
          md5
            word :o "authentication key" $
          sha1
            word :o "authentication key" $
  encryption "enable encryption"
    ipsec "use ipsec encryption"
      spi
        256-4294967295 :k "security policy index"
          esp
            word "encryption algorithm"
              line * :o
            null
              line * :o
    null $
  stub "specify a stub area" $
    no-summary "do not send summary lsa into stub area" $
    no-ext-capability "do not send domain specific capabilities into stub area" $
  nssa "specify a nssa area" $
    no-summary "do not send summary lsa into nssa" $
      line *
    no-redistribution "no redistribution into this nssa area" $
      line *
    default-information-originate "originate type 7 default into nssa area" $
      line *
    translate "translate lsa"
      type7 "from type 7 to type 5"
        always "always translate lsas on this abr" $
          line *
        suppress-fa "suppress forwarding address in translated lsas" $
    no-ext-capability "do not send domain specific capabilities into nssa" $
  range "summarize routes matching address/mask (border routers only)"
    a.b.c.d :k "ip address to match"
      a.b.c.d :k "ip mask for address" $
        advertise "advertise this range (default)" $
        not-advertise "do not advertise this range" $
        cost "user specified metric for this range"
          id :o "advertised metric for this range" $
    word :k "ipv6 prefix" $
      advertise "advertise this range (default)" $
      not-advertise "do not advertise this range" $
      cost "user specified metric for this range"
        id :o "advertised metric for this range" $
  virtual-link "define a virtual link and its parameters"
    a.b.c.d :k "id (ip addr) associated with virtual link neighbor" $
      line *
  sham-link "define a sham link and its parameters"
    a.b.c.d :k "ip addr associated with sham-link source"
      a.b.c.d :k "ip addr associated with sham-link destination" $
        cost "associate a cost with the sham-link"
          id :o "cost" $
        ttl-security "ttl security check"
          line *
  default-cost "set the summary default-cost of a nssa/stub area"
    id :o "stub's advertised external route metric" $
  filter-list "filter networks between ospf areas"
    prefix "filter prefixes between ospf areas"
      word :k "name of an ip prefix-list"
        in :k "filter networks sent to this area" $
        out :k "filter networks sent from this area" $
  capability "enable area specific capabilities"
    default-exclusion "enable exclusion of links from base topology" $

def OSPFBODY
  router-id "router id for this ospf process"
    a.b.c.d :o $
  network "enable routing on an ip network"
    a.b.c.d :k
      a.b.c.d :k
        area
          id :k $
          a.b.c.d :k $
  log-adjacency-changes $ :sb/o "log changes in adjacency state"
    detail $
  passive-interface "suppress routing updates on an interface"
    default $
    %IF
  area "ospf area parameters"
    id :k "ospf area id as a decimal value"
      %OSPFAREA
    a.b.c.d :k "ospf area id in ip address format"
      %OSPFAREA
  neighbor "specify a neighbor router"
    a.b.c.d :k "neighbor address" $
      priority "ospf priority of non-broadcast neighbor"
        id :o "priority" $
          poll-interval "ospf dead-router polling interval"
            id "seconds" $
      poll-interval "ospf dead-router polling interval"
        id :o "seconds" $
      cost "ospf cost for point-to-multipoint neighbor"
        id :o "metric" $
      database-filter "filter ospf lsa during synchronization and flooding"
        all "filter all lsa"
          out "outgoing lsa" $
  redistribute "redistribute information from another routing protocol"
    connected $
      line *
    static $
      line *
    bgp
      <as> :k $
        line *
    ospf
      id :k $
        line *
    eigrp
      id :k $
        line *
    rip $
      line *
    isis $
      line *
  default-information "control distribution of default information"
    originate $
      line *
  auto-cost "calculate ospf interface cost according to bandwidth"
    reference-bandwidth
      id :o $
  timers "adjust routing timers"
    throttle
      spf
        id
          id
            id $
      lsa
        line *
    lsa
      arrival
        id $
    pacing
      line *
  summary-address "configure ip address summaries"
    a.b.c.d :k "summary prefix"
      a.b.c.d :k "summary mask" $
        not-advertise "suppress routes that match the prefix" $
        tag "set tag"
          id :o "32-bit tag value" $
        nssa-only "limit summary to nssa areas" $
    word :k "ipv6 summary prefix" $
      line *
  summary-prefix "configure ip address summaries"
    line *
  distance "define an administrative distance"
    line *
  distribute-list "filter networks in routing updates"
    line *
  maximum-paths "forward packets over multiple paths"
    id $
  default-metric "set metric of redistributed routes"
    id $
  bfd "bfd configuration commands"
    all-interfaces "enable bfd on all interfaces" $
      strict-mode "hold the adjacency down until bfd comes up" $
  nsr $ "non-stop routing"
  limit "limit a specific ospf feature"
    retransmissions "ospf retransmission limits"
      dc "demand circuit retransmissions"
        id :o "retransmission limit" $
          non-dc "non-demand-circuit retransmissions"
            id :o "retransmission limit" $
            disable "disable the feature" $
        disable "disable the feature" $
          non-dc "non-demand-circuit retransmissions"
            id :o "retransmission limit" $
            disable "disable the feature" $
      non-dc "non-demand-circuit retransmissions"
        id :o "retransmission limit" $
        disable "disable the feature" $
  priority "priority of the ospf process"
    0-127 :o $
  traffic-share "how to compute traffic share over alternate paths"
    min "all traffic shared among min metric paths"
      across-interfaces "use different interfaces for equal-cost paths" $
  process-min-time "percentage of quantum to be used before releasing cpu"
    percent "percentage"
      id :o "percentage of quantum" $
  snmp "modify snmp parameters"
    context "configure a snmp context"
      word :o "context name" $
  table-map "map external entry attributes into routing table"
    word :o "route-map name" $
  nsf $ "non-stop forwarding"
    line *
  mpls "configure mpls routing protocol parameters"
    %IGPMPLS
  capability "enable a specific feature"
    line *
  max-metric "set maximum metric"
    router-lsa "maximum metric in self-originated router-lsas" $
      on-startup "set maximum metric temporarily after reboot"
        id :o "time in seconds" $
        wait-for-bgp "let bgp decide when to originate router-lsa with normal metric" $
      include-stub "set maximum metric for stub links in router-lsas" $
        line *
      external-lsa "override external-lsa metric with max-metric value" $
        line *
      summary-lsa "override summary-lsa metric with max-metric value" $
        line *
  ispf $ "enable incremental spf computation"
  prefix-suppression $ "enable prefix suppression"
  shutdown $ "shutdown the ospf protocol under the current instance"
  compatible "compatibility list"
    line *
  ignore "do not complain about a specific event"
    line *
  graceful-restart $ "graceful restart options"
    line *
  fast-reroute "specify ip fast reroute"
    line *
  segment-routing "segment routing settings"
    line *
  microloop "microloop avoidance"
    line *
  address-family "enter address family command mode"
    ipv4 @(config-router-af)#=router_ospf_af.cfm
      unicast @(config-router-af)#=router_ospf_af.cfm
    ipv6 @(config-router-af)#=router_ospf_af.cfm
      unicast @(config-router-af)#=router_ospf_af.cfm
  discard-route "enable or disable discard-route installation"
    line *
  domain-id "ospf domain-id"
    line *
  domain-tag "ospf domain-tag"
    line *
  local-rib-criteria $ "enable or disable usage of local rib as route criteria"
  queue-depth "ospf hello/router process queue depth"
    line *
  event-log $ "event logging"
    line *
  interface-id "source of the interface id"
    snmp-if-index $ "use the snmp ifindex as the interface id"
  exit-address-family $ "exit from address family configuration mode"

file router_ospf.cfm
%OSPFBODY

file router_ospf_af.cfm
%OSPFBODY

file router_eigrp.cfm
network "enable routing on an ip network"
  a.b.c.d :k $
    a.b.c.d :k $
eigrp "eigrp specific commands"
  router-id
    a.b.c.d :o $
  stub $
    line *
  log-neighbor-changes $
  log-neighbor-warnings $
    id $
passive-interface "suppress routing updates on an interface"
  default $
  %IF
redistribute "redistribute information from another routing protocol"
  connected $
    line *
  static $
    line *
  ospf
    id :k $
      line *
  bgp
    <as> :k $
      line *
  eigrp
    id :k $
      line *
  rip $
    line *
auto-summary $ :sn "enable automatic network number summarization"
metric "modify eigrp routing metrics and parameters"
  line *
variance "control load balancing variance"
  id $
maximum-paths "forward packets over multiple paths"
  id $
distance "define an administrative distance"
  line *
distribute-list "filter entries in eigrp updates"
  line *
default-metric "set metric of redistributed routes"
  line *
offset-list "add or subtract offset from eigrp metrics"
  line *
timers "adjust routing timers"
  line *
traffic-share "how to compute traffic share over alternate paths"
  line *
summary-metric "specify summary to apply metric/filtering"
  line *
address-family "enter address family command mode"
  ipv4 @(config-router-af)#=router_eigrp_af.cfm
    unicast @(config-router-af)#=router_eigrp_af.cfm
      autonomous-system
        id @(config-router-af)#=router_eigrp_af.cfm
      vrf
        word @(config-router-af)#=router_eigrp_af.cfm
          autonomous-system
            id @(config-router-af)#=router_eigrp_af.cfm
    autonomous-system
      id @(config-router-af)#=router_eigrp_af.cfm
    vrf
      word @(config-router-af)#=router_eigrp_af.cfm
        autonomous-system
          id @(config-router-af)#=router_eigrp_af.cfm
  ipv6 @(config-router-af)#=router_eigrp_af.cfm
    unicast @(config-router-af)#=router_eigrp_af.cfm
      autonomous-system
        id @(config-router-af)#=router_eigrp_af.cfm
    autonomous-system
      id @(config-router-af)#=router_eigrp_af.cfm
service-family "enter service family command mode"
  ipv4 "ipv4 service family"
    autonomous-system
      1-65535 @(config-router-sf)#=router_eigrp_af.cfm
    vrf
      word :k
        autonomous-system
          1-65535 @(config-router-sf)#=router_eigrp_af.cfm
  ipv6 "ipv6 service family"
    autonomous-system
      1-65535 @(config-router-sf)#=router_eigrp_af.cfm
no-shutdown $ "bring the routing process up"
shutdown $ "shutdown the eigrp process"
nsf $ "non-stop forwarding"

file router_eigrp_af.cfm
network
  a.b.c.d :k $
    a.b.c.d :k $
eigrp
  router-id
    a.b.c.d :o $
  stub $
    line *
af-interface @(config-router-af-interface)#=router_eigrp_afif.cfm
  default @(config-router-af-interface)#=router_eigrp_afif.cfm
  &interfacefile.cfm "interface type"
    <number> :k "interface number" @(config-router-af-interface)#=router_eigrp_afif.cfm
topology
  base @(config-router-af-topology)#=router_eigrp_topo.cfm
  word @(config-router-af-topology)#=router_eigrp_topo.cfm
exit-address-family $
exit-service-family "exit from service family configuration mode" $
metric
  line *
shutdown $
nsf $
passive-interface
  %IF

file router_eigrp_afif.cfm
passive-interface $
hello-interval
  id $
hold-time
  id $
authentication
  line *
summary-address
  line *
split-horizon $
bandwidth-percent
  id $
bfd $
shutdown $
next-hop-self $
exit-af-interface $

file router_eigrp_topo.cfm
redistribute
  line *
variance
  id $
maximum-paths
  id $
distance
  line *
distribute-list
  line *
default-metric
  line *
auto-summary $
summary-metric
  line *
offset-list
  line *
traffic-share
  line *
timers
  line *
exit-af-topology $
exit-sf-topology "exit from service family topology mode" $

file router_rip.cfm
version
  id :o $
network
  a.b.c.d :k $
redistribute
  line *
passive-interface
  default $
  %IF
auto-summary $ :sn
default-information
  line *
timers
  line *
distance
  line *
distribute-list
  line *
default-metric
  line *
neighbor
  a.b.c.d :k $
offset-list
  line *
maximum-paths
  id $
address-family
  line * @(config-router-af)#=router_rip.cfm
exit-address-family $
validate-update-source $ :sn
output-delay
  id $

file router_isis.cfm
net
  <value> :k $
distribute "distribute routing information"
  link-state "distribute link-state information to bgp" $
    instance-id
      id :o $
    level-1 $
    level-2 $
is-type
  line * :o
metric-style
  line *
passive-interface
  default $
  %IF
redistribute
  line *
log-adjacency-changes $
  all $
address-family
  line * @(config-router-af)#=router_isis.cfm
exit-address-family $
authentication
  line *
area-password
  line *
domain-password
  line *
summary-address
  line *
default-information
  line *
set-overload-bit $
  line *
max-lsp-lifetime
  id $
lsp-refresh-interval
  id $
spf-interval
  line *
prc-interval
  line *
lsp-gen-interval
  line *
bfd
  line *
nsf
  line *
distance
  line *
maximum-paths
  id $
metric
  line *
fast-reroute
  line *
segment-routing
  line *
mpls "configure mpls routing protocol parameters"
  %IGPMPLS
hostname
  dynamic $
