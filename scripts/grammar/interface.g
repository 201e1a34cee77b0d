# Interface configuration mode.

file interface.cfm
description "interface specific description" :n/o
  %TEXT
shutdown "shutdown the selected interface" $
ip "interface internet protocol config commands" &ip_interface.cfm
ipv6 "ipv6 interface subcommands" &ipv6_interface.cfm
duplex "configure duplex operation"
  auto :-k/o $
  full :-k/o $
  half :-k/o $
speed "configure speed operation"
  auto :-k/o $
    line *
  id :o $
  nonegotiate :-k/o $
negotiation "select autonegotiation mode"
  auto :o $
bandwidth "set bandwidth informational parameter"
  1-100000000 :o "bandwidth in kilobits" $
  inherit $
    id $
  receive
    id $
delay "specify interface throughput delay"
  id :o $
mtu "set the interface maximum transmission unit"
  64-18000 :o "mtu (bytes)" $
encapsulation "set encapsulation type for an interface"
  dot1q :-k/o
    1-4094 :o "ieee 802.1q vlan id" $
      native $
      second-dot1q
        id $
  isl :-k/o
    id $
  ppp :-k/o $
  hdlc :-k/o $
  frame-relay :-k/o $
    ietf $
  arpa :-k/o $
  lapb :-k/o $
  x25 :-k/o $
  smds :-k/o $
  atm-dxi :-k/o $
  slip :-k/o $
  mpls :-k/o $
  aal5snap :-k/o $
  gre :-k/o $
  qinq :-k/o $
cdp "cdp interface subcommands"
  enable $ :sn
  log
    mismatch
      duplex $ :sn
  tlv
    line *
switchport "set switching mode characteristics" $ :sn
  mode :n
    access :-k/o $
    trunk :-k/o $
    dynamic :-k
      auto :-k/o $
      desirable :-k/o $
    private-vlan :-k/o
      line *
    dot1q-tunnel :-k/o $
  access :n
    vlan
      1-4094 :o "vlan id of the vlan when this port is in access mode" $
      name "vlan name"
        word :o "vlan name" $
  voice :n
    vlan
      1-4094 :o "vlan for voice traffic" $
      dot1p $
      untagged $
      none $
  trunk :n
    encapsulation
      dot1q :o $
      isl :o $
      negotiate :o $
    allowed
      vlan :n $
        <vlan> :m $
        add
          <vlan> :k/a $
        remove
          <vlan> :m $
        except
          <vlan> :m $
        all $
        none $
    native
      vlan
        1-4094 :o "vlan id of the native vlan when this port is in trunking mode" $
        tag $
    pruning
      vlan
        line *
  nonegotiate :n $
  nonnegotiate :n $
  port-security :n "security on the port" $
    maximum :n "maximum secure addresses"
      id :o "maximum addresses" $
        vlan "per vlan maximum"
          line *
    violation :n "security violation mode"
      protect :-k/o "drop violating packets" $
      restrict :-k/o "drop and count violating packets" $
      shutdown :-k/o "shut down the port" $
        vlan "shut down the vlan" $
    mac-address
      sticky $
        h.h.h :k $
          vlan
            line *
      h.h.h :k $
        vlan
          line *
    aging "port-security aging"
      time :n "aging time"
        id :o "minutes" $
      type :n "aging type"
        absolute :-k/o "absolute aging" $
        inactivity :-k/o "aging when inactive" $
      static "age static addresses" $
  block :n
    unicast $
    multicast $
  protected :n $
  host :n $
  priority :n
    extend
      line *
  backup :n
    line *
  private-vlan :n
    line *
  vlan :n
    line *
spanning-tree "spanning tree subsystem"
  portfast $
    edge $
      trunk $
    trunk $
    disable $
    network $
  guard
    root $
    loop $
    none $
  bpdufilter
    enable $
    disable $
  bpduguard
    enable $
    disable $
  cost
    id $
  port-priority
    id $
  link-type
    point-to-point $
    shared $
  vlan
    <vlan> :k
      cost
        id $
      port-priority
        id $
  mst
    <value> :k
      cost
        id $
      port-priority
        id $
standby "hot standby router protocol"
  id :k "group number"
    ip :o
      a.b.c.d :n $
        secondary :k/a $
    ipv6
      line *
    preempt $
      delay
        line *
    priority :n "priority level"
      0-255 :o "priority value" $
    authentication
      md5
        key-string
          id
            line *
          line *
        key-chain
          word $
      text
        word $
      word $
    timers
      msec
        id
          msec
            id $
          id $
      id
        id $
        msec
          id $
    track
      id :k $
        decrement
          id $
        shutdown $
        id $
      %IF
        id $
    name
      word $
    mac-address
      h.h.h $
    follow
      word $
  ip :o
    a.b.c.d :n $
      secondary :k/a $
  version
    id $
  use-bia $
    scope
      interface $
  preempt $
    delay
      line *
  priority
    id $
  timers
    line *
  authentication
    line *
  track
    line *
  delay
    line *
  bfd $
  redirect
    line *
vrrp "vrrp configuration"
  id :k "group number"
    ip :n "enable vrrp and set the virtual address"
      a.b.c.d :o "virtual router ip address" $
        secondary "secondary address" $
    description :n "group description"
      line * :o
    priority :n "priority level"
      id :o "priority value" $
    preempt "enable preemption" $
      delay "wait before preempting"
        minimum "minimum delay"
          id :o "seconds" $
    timers :n "vrrp timers"
      advertise "advertisement timer"
        id :o "seconds" $
        msec "milliseconds"
          id :o "milliseconds" $
      learn "learn the timer from the master" $
    authentication :n "authentication"
      text "plain text string"
        word :o "string" $
      md5 "md5 authentication"
        key-string "key string"
          id "encryption type"
            line * :o
          line * :o
        key-chain "key chain"
          word :o "key chain name" $
    track "track an object"
      id :k "tracked object number" $
        decrement "priority decrement"
          id :o "decrement" $
    shutdown "disable the group" $
    name "redundancy name"
      word :o $
    address-family "address family"
      line *
    line *
glbp "glbp configuration"
  id :k
    line *
media-type "media type"
  rj45 :o $
  sfp :o $
  gbic :o $
  auto-select :o $
  10baset :o $
  100basex :o $
keepalive "enable keepalive" $ :sn
  id :o $
    id $
hold-queue "set hold queue depth"
  id
    in :k $
    out :k $
load-interval "specify interval for load calculation"
  id :o $
vrf "vrf interface commands"
  forwarding
    word :o $
      downstream
        word $
  select
    line *
tunnel "protocol-over-protocol tunneling"
  source
    %IFONE
    a.b.c.d :o $
    ipv6/address :o $
    dynamic $
  destination
    a.b.c.d :o $
    word :o $
  mode
    ipsec
      ipv4 :o $
        v6-overlay $
      ipv6 :o $
      dual-overlay :o $
    gre
      ip :o $
      ipv6 :o $
      multipoint :o $
        ipv6 $
    ipip :o $
      decapsulate-any $
    ipv6ip :o $
      6to4 $
      auto-tunnel $
      isatap $
    mpls
      traffic-eng $
        line *
    ipv6 :o $
    vxlan
      line *
  protection
    ipsec
      profile
        word :o $
          shared $
  key
    id :o $
  vrf
    word :o $
  mpls
    traffic-eng
      path-option "a path of the tunnel"
        id :k/n
          line * :o
      word :k/n $
        line * :o
  path-mtu-discovery $
  bandwidth
    line *
  checksum $
  sequence-datagrams $
  ttl
    id $
  tos
    id $
  route-via
    line *
crypto "encryption/decryption commands"
  map
    word :o $
      redundancy
        line *
  ipsec "ipsec settings"
    client "easy vpn client"
      ezvpn "easy vpn remote of this interface"
        word :k $
          inside :-k/o $
          outside :-k/o $
service-policy "configure qos service policy"
  input
    word :k $
  output
    word :k $
  type
    inspect
      word $
    line *
  word $
channel-group "etherchannel/port bundling configuration"
  id :o $
    mode
      active $
      passive $
      on $
      auto $
        non-silent $
      desirable $
        non-silent $
  auto $
channel-protocol "select the channel protocol (lacp, pagp)"
  lacp :o $
  pagp :o $
mop "dec mop server commands"
  enabled "enable mop on the interface" $ :sn
  sysid "send mop periodic system id messages" $ :sn
serial "serial interface commands"
  restart-delay
    id :o $
  line *
clock "configure serial interface clock"
  rate
    id :o $
  source
    line * :o
lldp "lldp interface subcommands"
  transmit $ :sn
  receive $ :sn
  med-tlv-select
    line *
  tlv-select
    line *
mpls "configure mpls interface parameters"
  ip $
  mtu
    override $
      id $
    id :o $
  traffic-eng
    tunnels $
    administrative-weight
      id $
    attribute-flags
      word $
    backup-path
      line *
  label
    protocol
      ldp $
      tdp $
  ldp
    igp
      sync $
        line *
      autoconfig "ldp autoconfiguration" $
    discovery
      transport-address
        line *
  bgp
    forwarding $
  mldp $
    disable $
carrier-delay "specify delay for interface transitions"
  id :o $
  msec
    id :o $
flowcontrol "configure flow operation"
  receive
    on $
    off $
    desired $
  send
    on $
    off $
    desired $
  hardware $
full-duplex $ "configure full-duplex operational mode"
half-duplex $ "configure half-duplex and related commands"
no-autonegotiation $ "turn off autonegotiation"
ethernet "ethernet interface settings"
  oam $
    mode
      line *
    remote-loopback
      line *
    max-rate
      id :o $
    min-rate
      id :o $
    timeout
      id :o $
    link-monitor
      line *
  cfm
    mip
      line *
    mep
      line *
  lmi
    interface $
    ce-vlan
      line *
snmp "modify snmp interface parameters"
  trap
    link-status $ :sn
    ip
      verify
        drop-rate $
    mac-notification
      line *
  ifindex
    persist $
logging "configure logging for interface"
  event
    link-status $
    line *
storm-control "storm configuration"
  broadcast "broadcast traffic"
    %STORMLEVEL
  multicast "multicast traffic"
    %STORMLEVEL
  unicast "unicast traffic"
    %STORMLEVEL
  action "action on a storm"
    shutdown "shut down the port" $
    trap "send an snmp trap" $
    level "shut down at a level"
      line *
srr-queue "shaped round robin transmit queues"
  bandwidth "srr bandwidth"
    share "shared mode weights"
      <weights> :lb/le/wa/o "weights of queues 1 to 4" $
    shape "shaped mode weights"
      <weights> :lb/le/wa/o "weights of queues 1 to 4" $
    limit "limit the port's bandwidth"
      id :o "percentage" $
priority-queue "priority queue settings"
  out $
mls "multi-layer switching settings"
  qos
    trust
      line * :o
    vlan-based $
auto "configure automation"
  qos
    line *
  line *
power "power configuration"
  inline
    line *
  efficient-ethernet
    line *
arp "set arp type (arpa, probe, snap) or timeout"
  timeout
    id :o $
  arpa $ :sn
  frame-relay $
  snap $
  probe $
ppp "point-to-point protocol"
  authentication
    line *
  chap
    hostname
      word $
    password
      id
        line *
      line *
  pap
    sent-username
      line *
  multilink $
    line *
  ipcp
    line *
  line *
dialer "dial-on-demand routing (ddr) commands"
  pool
    id $
  pool-member
    line *
  idle-timeout
    line *
  string
    line *
  map
    line *
  in-band $
    line *
  persistent $
    line *
  watch-group
    id $
  remote-name
    word $
  caller
    line *
  load-threshold
    line *
  max-call
    id $
  fast-idle
    id $
  enable-timeout
    id $
  wait-for-carrier-time
    id $
  hold-queue
    id $
  down-with-vInterface $
  order
    line *
  vpdn $
  rotary-group
    id $
dialer-group "assign interface to dialer-list"
  id $
pppoe "enable pppoe"
  line *
pppoe-client "pppoe client"
  line *
peer "peer parameters for point to point interfaces"
  default
    ip
      address
        line *
  line *
pvc "configure an atm pvc"
  <vpi/vci> :k @(config-if-atm-vc)#=atm_vc.cfm
  word :k
    <vpi/vci> :k @(config-if-atm-vc)#=atm_vc.cfm
atm "modify atm parameters"
  line *
dsl "dsl line settings"
  line *
frame-relay "set frame relay parameters"
  interface-dlci
    id :k $
      line *
  lmi-type
    line *
  map
    line *
  intf-type
    line *
  class
    word $
  traffic-shaping $
  ip
    line *
  inverse-arp $
    line *
  payload-compression
    line *
x25 "x.25 level 3"
  address
    line *
  map
    line *
fair-queue $ :sn "enable fair queuing on an interface"
  id $
    line *
random-detect $ "enable random early detection (red) on an interface"
  line *
max-reserved-bandwidth "maximum reservable bandwidth on an interface"
  id :o $
rate-limit "rate limit access"
  line *
traffic-shape "enable traffic shaping on an interface or sub-interface"
  line *
custom-queue-list "assign a custom queue list to an interface"
  id $
priority-group "assign a priority group to an interface"
  id $
qos "quality of service related commands"
  line *
no-shutdown $ "bring the interface up"
zone-member "apply zone name"
  security
    word :o $
virtual-template "virtual template of the interface"
  id :o $
source "get config from another source"
  line *
member "member interface settings"
  vni "vxlan network identifiers of the nve interface"
    list/4096-16777215 :k "vni or a range of vnis" @(config-if-nve-vni)#=nve_vni.cfm
      associate-vrf "the vni of a vrf" $
      vrf "the vrf of a layer-3 vni"
        word :o $
      ingress-replication "ingress replication" $
        a.b.c.d :o $
      mcast-group "multicast group"
        a.b.c.d :o $
          a.b.c.d $
  line *
source-interface "source interface of the nve interface"
  %IFONE
host-reachability "host reachability of the nve interface"
  protocol
    bgp $
wlan "wireless lan settings"
  line *
macsec $ "enable macsec on the interface"
  line *
mka "mka configuration for the interface"
  policy
    word $
  default-policy $
  pre-shared-key $ :sn
    line *
authentication "authentication manager settings"
  port-control
    line *
  host-mode
    line *
  periodic $
  timer
    line *
  order
    line *
  priority
    line *
  event
    line *
  open $
  violation
    line *
  control-direction
    line *
dot1x "interface config commands for ieee 802.1x"
  pae "port access entity role"
    authenticator :o "act as the authenticator" $
    supplicant :o "act as a supplicant" $
    both :o "act as authenticator and supplicant" $
  timeout
    line *
  port-control
    line *
  max-reauth-req
    id $
  max-req
    id $
mab $ "mac authentication bypass interface config commands"
  eap $
access-session "access session specific interface configuration"
  port-control
    line *
  host-mode
    line *
  closed $
  control-direction
    line *
device-tracking $ "configure device-tracking on the interface"
  attach-policy
    word $
small-frame "set rate limit parameters for small frames"
  line *
udld "configure udld enabled or disabled and ignore global udld setting"
  port $
    line *
ntp "configure ntp"
  disable $
  broadcast $
    line *
  multicast
    line *
rmon "configure remote monitoring on an interface"
  collection
    line *
transmit-interface "assign a transmit interface to a receive-only interface"
  line *
backup "modify backup parameters"
  line *
pos "modify sonet parameters"
  line *
crc "set the crc word size"
  id $
framing "specify the framing type"
  line *
cable "cable interface settings"
  line *
ignore "ignore a packet type or setting"
  line *
loopback $ "configure internal loopback on an interface"
  line *
no-keepalive $ "turn off keepalives"
l2protocol-tunnel "tunnel layer 2 protocols"
  line *
location "interface location information"
  line *
switch "switch interface settings"
  virtual "stackwise virtual"
    link "stackwise virtual link"
      id :k "link number" $
    dual-active-detection "dual active detection link" $
vlan-range "range of vlans"
  line *
stackwise-virtual "stackwise virtual interface settings"
  line *
isis "is-is commands"
  word :k/n $
    line * :o
clns "clns interface subcommands"
  route-cache $ :sn
  line *
dampening $ "enable event dampening"
  line *
bfd "bfd interface configuration commands"
  interval
    line *
  echo $
ospfv3 "ospfv3 interface commands"
  network
    line * :o
  encryption
    line * :o
  authentication
    line * :o
  cost
    id :o $
  id :k "process id"
    area
      id :k $
        line *
    cost
      id :o $
    line * :k
  line * :k
xconnect "xconnect commands"
  line *
l2tp "l2tp interface settings"
  line *
lacp "lacp interface subcommands"
  port-priority
    id $
  fast-switchover "fast switchover of the port channel" $
  max-bundle
    id :o $
  min-bundle
    id :o $
  rate
    line *
pagp "pagp interface subcommands"
  port-priority
    id $
  learn-method
    line *
queue-set "choose a queue-set for this queue"
  id $
trust "trust settings of the interface"
  line *
h323-gateway "configure h323 gateway voip interface"
  voip
    line *
peer-default "default peer address for point to point interfaces"
  line *
service "interface specific service settings"
  instance
    id :k
      ethernet @(config-if-srv)#=generic.cfm
        word @(config-if-srv)#=generic.cfm
bgp-policy "apply policy propagated by bgp community string"
  accounting
    input $
      source $
    output $
      source $
  source
    ip-prec-map $
    ip-qos-map $
  destination
    ip-prec-map $
    ip-qos-map $
network-clock "network clock configuration"
  wait-to-restore
    id :o $
  hold-off
    id :o $
  source
    quality-level
      word
        tx $
        rx $
  synchronization
    line *
synchronous "synchronous mode"
  mode $ :sn
bundle-enable "bundle atm vcs" $ :sn
physical-layer "physical layer mode"
  async :o $
  sync :o $
routing "routing on the interface"
  dynamic $ :sn
medium "interface medium"
  p2p $
  broadcast $
tx-queue-limit "transmit queue size"
  id :o $
dot1q "dot1q settings"
  tunneling
    ethertype
      word :o "ethertype" $
tx-ring-limit "transmit ring size"
  id :o "packets" $
autostate "vlan interface state follows its ports" $ :sn
mac-address "manually set the interface mac address"
  h.h.h :o "mac address" $
