# Global commands of LAN switches, and the modes they open.

def QUEUEMAP
  queue "queue id"
    id :k "queue id" $
      threshold "threshold id"
        id :k "threshold id"
          <values> :k/lb/le/wa "values mapped to this queue and threshold" $
      <values> :lb/le/wa "values mapped to this queue" $

def SRRDIR
  cos-map "configure cos map"
    %QUEUEMAP
  dscp-map "configure dscp map"
    %QUEUEMAP
  bandwidth "configure srr bandwidth"
    <weights> :lb/le/wa/o "weights" $
  buffers "configure buffer allocation"
    <percentages> :lb/le/wa/o "percentages" $
  threshold "configure queue tail-drop thresholds"
    id :k "queue id"
      <percentages> :lb/le/wa/o "threshold percentages" $
  priority-queue "configure priority queue"
    id :k "queue id"
      bandwidth "bandwidth of the priority queue"
        id :o "percentage" $

def SWTOP
mls "multilayer switching"
  qos "qos configuration" $ :sb/o
    map "qos maps"
      cos-dscp "cos to dscp map"
        <values> :lb/le/wa/o "dscp values for cos 0 to 7" $
      dscp-cos "dscp to cos map"
        <values> :lb/le/wa "dscp values"
          to "cos value follows"
            id :o "cos value" $
      ip-prec-dscp "ip precedence to dscp map"
        <values> :lb/le/wa/o "dscp values for precedence 0 to 7" $
      policed-dscp "policed dscp map"
        <values> :lb/le/wa "dscp values"
          to "mark down dscp follows"
            id :o "mark down dscp value" $
      dscp-mutation "dscp mutation map"
        word :k "mutation map name"
          <values> :lb/le/wa "input dscp values"
            to "output dscp follows"
              id :o "output dscp value" $
    srr-queue "configure srr queues"
      input "input queues"
        %SRRDIR
      output "output queues"
        %SRRDIR
    queue-set "configure a queue set"
      output "output queue set"
        id :k "queue set id"
          threshold "configure queue thresholds"
            id :k "queue id"
              <values> :lb/le/wa/o "drop thresholds, reserved and maximum" $
          buffers "configure buffer allocation"
            <percentages> :lb/le/wa/o "percentages" $
    rewrite "modify packet priority"
      ip "ip header"
        dscp "rewrite dscp" $ :sb
    aggregate-policer "named aggregate policer"
      word :k "policer name"
        line * "rate, burst and actions" :o
    trust "trust settings"
      line *
  aging "mls aging"
    line *
  cef "cef settings"
    line *
  netflow "netflow settings" $
    line *
  flow "flow masks"
    line *
  rate-limit "rate limiters"
    line *
errdisable "error disable"
  recovery "error disable recovery"
    cause "enable error disable recovery for a cause"
      word :k "cause" $
    interval "error disable recovery timer"
      id :o "timer interval in seconds" $
  detect "error disable detection"
    cause "enable error disable detection for a cause"
      word :k "cause" $
        shutdown "shut down the port"
          vlan "shut down the vlan on the port" $
  flap-setting "error disable flap detection"
    cause "cause"
      word :k "cause"
        max-flaps "maximum flaps"
          id "number of flaps"
            time "time period"
              id "seconds" $
vtp "configure global vtp state"
  domain "set the vtp domain name"
    word :o "vtp domain name" $
  mode "configure the vtp device mode"
    server :-k/o "server mode" $
      vlan "vlan database" $
      mst "mst database" $
    client :-k/o "client mode" $
      vlan "vlan database" $
      mst "mst database" $
    transparent :-k/o "transparent mode" $
      vlan "vlan database" $
      mst "mst database" $
    off :-k/o "off mode" $
      vlan "vlan database" $
      mst "mst database" $
  version "set the administrative domain vtp version"
    id :o "version number" $
  password "set the password for the vtp domain"
    word :o "password" $
      hidden "hide the password" $
      secret "the password is a secret" $
  pruning "set the administrative domain to permit pruning" $
  file "configure the file name of the vtp database"
    word :o "file name" $
  interface "configure the interface of the vtp updater id"
    word :o "interface name" $
      only "use only this interface's address" $
  primary "make this device the vtp primary server" $
    vlan "vlan database" $
    mst "mst database" $
dot1x "ieee 802.1x global configuration"
  system-auth-control "enable or disable sysauthcontrol" $ :sb/o
  critical "critical authentication settings"
    eapol "send eapol success on a critical port" $
    eapol-block "block eapol on a critical port" $
    recovery "recovery settings"
      delay "recovery delay"
        id :o "milliseconds" $
  guest-vlan "guest vlan settings"
    supplicant "allow supplicants into the guest vlan" $
  logging "dot1x logging"
    verbose "verbose logging" $
  supplicant "supplicant settings"
    force-multicast "force multicast eapol" $
    controlled "control the supplicant transmit" $
  credentials "credentials profile"
    word :k "profile name" $
  test "test settings"
    line *
  auth-fail "authentication failure settings"
    line *
authentication "authentication manager"
  mac-move "mac move settings"
    permit "allow a mac address to move" $ :o
    deny "deny a mac address to move" $ :o
    deny-uncontrolled "deny moves to uncontrolled ports" $ :o
  critical "critical authentication"
    recovery "recovery settings"
      delay "recovery delay"
        id :o "milliseconds" $
  logging "authentication logging"
    verbose "verbose logging" $
  display "display mode"
    legacy $
    new-style $
  timer "timers"
    restart "restart timer"
      id :o "seconds" $
    reauthenticate "reauthentication timer"
      id :o "seconds" $
  violation "violation settings"
    line *
  compliance "compliance settings"
    line *
access-session "access session settings"
  mac-move "mac move settings"
    deny "deny a mac address to move" $ :o
    deny-uncontrolled "deny moves to uncontrolled ports" $ :o
  attributes "session attributes"
    filter-list "filter list"
      list "named list"
        word :k "list name" @(config-com-filter-list)#=switch_sub.cfm
  template "template settings"
    monitor "monitor templates" $
  monitor "monitor sessions" $
  host-mode "host mode"
    line *
  port-control "port control"
    line *
  closed $
  interface-template "interface templates"
    sticky "keep templates bound" $
      timer "timer"
        id "seconds" $
  acl "session acls"
    default "default acl"
      passthrough $
  authentication "authentication settings"
    line *
switch "switch stack member"
  id :k "switch number"
    provision "provision a switch type"
      word :o "switch type" $
    priority "switch priority"
      id :o "priority value" $
    renumber "renumber the switch"
      id :o "new number" $
  virtual "stackwise virtual"
    domain "domain"
      id :k "domain id" $
udld "global udld configuration"
  enable "enable udld on fiber ports" $ :o
  aggressive "aggressive mode on fiber ports" $ :o
  message "udld message settings"
    time "message interval"
      id :o "seconds" $
  recovery "error disable recovery" $
    interval "recovery interval"
      id :o "seconds" $
power "power configuration"
  redundancy-mode "power supply redundancy mode"
    redundant :-k/o "redundant mode" $
    combined :-k/o "combined mode" $
  redundancy "stack power redundancy"
    line * :o
  inline "inline power"
    consumption "default consumption"
      id :o "milliwatts" $
    police "police power" $
    line *
  supply "power supply"
    line *
  main-cpu $
system "system settings" @(config-system)#=sdwan_system.cfm
  mtu "system mtu"
    id :o "mtu size" $
    jumbo "jumbo mtu"
      id :o "mtu size" $
    routing "routed mtu"
      id :o "mtu size" $
  env "environmental settings"
    line *
  ignore "ignore settings"
    line *
  flowcontrol "system flow control"
    line *
port-channel "port channel settings"
  load-balance "load balancing method"
    word :o "method" $
  min-links "minimum links"
    id :o $
  auto $
  protocol "channel protocol"
    line *
lacp "lacp settings"
  system-priority "lacp system priority"
    id :o "priority value" $
monitor "monitor sessions"
  event-trace "tracing of system events"
    stacktrace "trace call stack at tracepoints" $
    sequence-number "sequence numbers on trace entries" $
    timestamps "timestamps on trace entries" $
      datetime "date and time"
        msec $
          localtime $
        localtime $
      uptime $
    eigrp "eigrp events"
      perf-events
        rate-limiting
          id :o $
    voip "voice events"
      ccsip "sip events"
        msg $
        fsm $
        api $
        misc $
        global $
        stacktrace $
        limit
          connections
            id :o $
          memory
            id :o $
        dump "dump on failure"
          none $
          all $
        dump-file "dump into a file" $
          line *
        dump-folder "dump folder limits"
          size
            id
              time
                id :o $
        max-dump-limit "number of dumps"
          id :o $
  session "span session"
    id :k "session number"
      source "span source"
        interface "span source interface"
          <interfaces> :k/lb/le/wa "interfaces" $
        vlan "span source vlan"
          <vlans> :k/lb/le/wa "vlans" $
        remote "rspan source"
          vlan "rspan vlan"
            <vlan> :k "vlan id" $
      destination "span destination"
        interface "span destination interface"
          <interfaces> :k/lb/le/wa "interface and options" $
        remote "rspan destination"
          vlan "rspan vlan"
            <vlan> :k "vlan id" $
      filter "span filters"
        vlan "filter vlans"
          <vlans> :lb/le/wa/o "vlans" $
        ip "ip filter"
          line * :o
        mac "mac filter"
          line * :o
        packet-type "packet type filter"
          line * :o
      type "session type"
        word :k "type" @(config-mon-erspan-src)#=switch_sub.cfm
      description "session description"
        %TEXT
mac "mac configuration"
  address-table "mac address table"
    notification "notifications"
      change "mac change notifications" $
        history-size "history size"
          id :o "entries" $
        interval "interval"
          id :o "seconds" $
      mac-move "mac move notifications" $
      threshold "threshold notifications" $
        line *
    aging-time "aging time"
      id :o "seconds" $
        vlan "vlan"
          <vlan> :k "vlan id" $
    static "static mac address"
      h.h.h :k "mac address"
        vlan "vlan"
          <vlan> :k "vlan id"
            interface "interface"
              %IF
                <interfaces> :lb/le/wa "more interfaces" $
            drop "drop frames" $
    learning "mac learning"
      vlan "vlan"
        <vlan> :k "vlan id" $
    limit "mac limits"
      line *
    move "mac moves"
      line *
    secure "secure addresses"
      line *
  access-list "mac access lists"
    extended "extended mac access list"
      word :k "list name" @(config-ext-macl)#=switch_sub.cfm
transceiver "transceiver settings"
  type "transceiver type"
    all "all transceiver types" @(config-xcvr-type)#=switch_sub.cfm
device-tracking "device tracking"
  tracking "tracking settings" $
    auto-source $
      fallback
        line *
    retry-interval
      id :o $
  policy "device tracking policy"
    word :k "policy name" @(config-device-tracking)#=switch_sub.cfm
  logging "tracking logs" $
    line *
  binding "bindings"
    line *
  upgrade-cli "upgrade the cli"
    line *
template "interface template"
  word :k "template name" @(config-template)#=interface.cfm
flow "flexible netflow"
  record "flow record"
    word :k "record name" @(config-flow-record)#=flow_record.cfm
  exporter "flow exporter"
    word :k "exporter name" @(config-flow-exporter)#=flow_exporter.cfm
  monitor "flow monitor"
    word :k "monitor name" @(config-flow-monitor)#=flow_monitor.cfm
sampler "flow sampler"
  word :k "sampler name" @(config-sampler)#=flow_monitor.cfm
fhrp "first hop redundancy"
  version "fhrp version"
    vrrp "vrrp version"
      v2 :-k/o $
      v3 :-k/o $
  delay "delays"
    line *
sdm "switch database management"
  prefer "preferred template"
    line * :o
stack-mac "stack mac address"
  persistent "persistent mac address"
    timer "timer"
      id :o "minutes" $
macro "macro settings"
  auto "auto smartports"
    line *
  name "named macro"
    word :k "macro name"
vstack "smart install" $ :sn
energywise "energywise settings"
  line *
rmon "remote monitoring"
  line *

# Sub-modes of the commands above that hold a few settings each; none of
# their words is a command word of the configuration mode.
file switch_sub.cfm
tracking "tracking settings"
  enable "enable tracking" $
    reachable-lifetime "lifetime"
      id $
  disable "disable tracking" $
security-level "security level"
  glean "learn bindings, never drop" :-k/o $
  guard "drop unwanted messages" :-k/o $
  inspect "check messages, drop the invalid ones" :-k/o $
device-role "device role"
  node "attached to a host" :-k/o $
  switch "attached to a switch" :-k/o $
limit "limits"
  address-count "address count"
    id :o $
data-glean "data gleaning" $
  line *
destination-glean "destination gleaning"
  line *
prefix-glean "prefix gleaning" $
  line *
trusted-port "trusted port" $
protocol "protocols gleaned"
  arp "arp" $
    prefix-list "limit to a prefix list"
      word $
  dhcp4 "dhcpv4" $
    prefix-list "limit to a prefix list"
      word $
  dhcp6 "dhcpv6" $
    prefix-list "limit to a prefix list"
      word $
  ndp "neighbor discovery" $
    prefix-list "limit to a prefix list"
      word $
  udp "udp" $
    prefix-list "limit to a prefix list"
      word $
cdp "cdp attributes" $
lldp "lldp attributes" $
dhcp "dhcp attributes" $
http "http attributes" $
monitoring "transceiver monitoring" $
  interval "monitoring interval"
    id :o $
permit "permit a mac address"
  line *
deny "deny a mac address"
  line *
source "erspan source"
  line *
destination "erspan destination" $
  line *
erspan-id "erspan id"
  id :o $
origin "erspan origin"
  line *
shutdown "shut down the session" $
description "description"
  line * :o

file flow_record.cfm
description "description of the record"
  line * :o
match "match fields"
  line *
collect "collect fields"
  line *

file flow_exporter.cfm
description "description of the exporter"
  line * :o
destination "export destination"
  a.b.c.d :o "destination address" $
    vrf "vrf of the destination"
      word $
  word :o "destination host" $
source "source interface"
  %IF
transport "transport protocol"
  udp "udp"
    <port> :o "port" $
  sctp "sctp"
    <port> :o "port" $
export-protocol "export protocol"
  netflow-v5 :-k/o $
  netflow-v9 :-k/o $
  ipfix :-k/o $
template "template options"
  data "data templates"
    timeout "resend timeout"
      id :o "seconds" $
option "export options"
  line *
dscp "dscp of exported packets"
  id :o $
ttl "ttl of exported packets"
  id :o $
output-features "send through output features" $

file flow_monitor.cfm
description "description of the monitor"
  line * :o
exporter "flow exporter"
  word :k "exporter name" $
record "flow record"
  word :o "record name" $
  netflow "predefined netflow record"
    line * :o
  netflow-original :o $
cache "cache settings"
  timeout "cache timeouts"
    active "active timeout"
      id :o "seconds" $
    inactive "inactive timeout"
      id :o "seconds" $
    update "update timeout"
      id :o "seconds" $
    event "event timeout"
      line * :o
  entries "cache entries"
    id :o "entries" $
  type "cache type"
    normal :-k/o $
    immediate :-k/o $
    permanent :-k/o $
statistics "statistics"
  packet "packet statistics"
    protocol $
    size $
mode "sampler mode"
  deterministic "deterministic sampling"
    id :o
      out-of
        id $
  random "random sampling"
    id :o
      out-of
        id $
granularity "sampling granularity"
  connection $

file mpls_ldp_label.cfm
allocate "allocate local labels"
  global "global table"
    host-routes "host routes only" $ :o
    prefix-list "prefixes of a list"
      word :o "prefix list name" $
    all-routes "all routes" $ :o

# A subscriber control policy: events, the classes of each event, and the
# actions of each class, three levels deep.
file policy_ctrl.cfm
event "event type"
  word :k "event name" @(config-class-control-policymap)#=policy_ctrl_class.cfm
    match-all "evaluate all matching classes" @(config-class-control-policymap)#=policy_ctrl_class.cfm
    match-first "evaluate the first matching class" @(config-class-control-policymap)#=policy_ctrl_class.cfm
description "policy description"
  line * :o

file policy_ctrl_class.cfm
id :k "class number"
  class "class map"
    word :k "class map name" @(config-action-control-policymap)#=policy_ctrl_action.cfm
      do-until-failure "run actions until one fails" @(config-action-control-policymap)#=policy_ctrl_action.cfm
      do-until-success "run actions until one succeeds" @(config-action-control-policymap)#=policy_ctrl_action.cfm
      do-all "run all actions" @(config-action-control-policymap)#=policy_ctrl_action.cfm

def CTRLTEMPLATE
  service-template "service template"
    word :k "template name" $
      precedence "precedence"
        id $
  interface-template "interface template"
    word :k "template name" $

file policy_ctrl_action.cfm
id :k "action number"
  authenticate "authenticate a session"
    using "method"
      word :k "dot1x, mab or webauth" $
        priority "method priority"
          id :o "priority" $
            line * "further options"
        retries "retries"
          id "retries" $
            line * "further options"
        aaa "aaa lists"
          line * "lists"
        both "both directions" $
          line * "further options"
        period "period"
          line * "further options"
  terminate "terminate a method"
    word :k "dot1x, mab or webauth" $
  activate "activate a template"
    %CTRLTEMPLATE
  deactivate "deactivate a template"
    %CTRLTEMPLATE
  authorize "authorize the session" $
  unauthorize "unauthorize the session" $
  authentication-restart "restart authentication"
    id :o "seconds" $
  clear-session "clear the session" $
  clear-authenticated-data-hosts-on-port "clear data hosts" $
  err-disable "error disable the port" $
  protect "silently drop violating packets" $
  replace "clear the existing session" $
  restrict "drop violating packets and log" $
  pause "pause"
    reauthentication $
  resume "resume"
    reauthentication $
  set-domain "set the domain"
    word :o $
  map "map attributes"
    line *
  notify "notify"
    line *

# Features bound to a list of vlans (vlan configuration 10,20): policies of
# the first-hop security features and the EVPN membership.
file vlan_config.cfm
device-tracking "configure device-tracking on the vlans" $
  attach-policy "apply a policy"
    word :k "policy name" $
ipv6 "ipv6 vlan feature configuration"
  nd "ipv6 neighbor discovery"
    raguard "router advertisement guard"
      attach-policy "apply a policy"
        word :k "policy name" $
    suppress "neighbor discovery suppress"
      attach-policy "apply a policy"
        word :k "policy name" $
  dhcp "ipv6 dhcp"
    guard "dhcpv6 guard"
      attach-policy "apply a policy"
        word :k "policy name" $
  destination-guard "destination guard"
    attach-policy "apply a policy"
      word :k "policy name" $
  source-guard "source guard"
    attach-policy "apply a policy"
      word :k "policy name" $
member "vlan members"
  evpn-instance "evpn instance"
    id :k "evpn instance number"
      vni "virtual network identifier"
        id :o "vni number" $
  vni "virtual network identifier"
    id :k "vni number" $
et-analytics "encrypted traffic analytics"
  enable "enable on the vlans" $
