# Interface configuration mode.

file interface.cfm
description "interface specific description" :n/o
  %TEXT
shutdown "shutdown the selected interface" $
ip "interface internet protocol config commands" &ip_interface.cfm
ipv6 "ipv6 interface subcommands" &ipv6_interface.cfm
duplex "configure duplex operation"
  auto :o $
  full :o $
  half :o $
speed "configure speed operation"
  auto :o $
    line *
  id :o $
  nonegotiate :o $
negotiation "select autonegotiation mode"
  auto :o $
bandwidth "set bandwidth informational parameter"
  id :o $
  inherit $
    id $
  receive
    id $
delay
  id :o $
mtu "set the interface maximum transmission unit"
  id :o $
encapsulation "set encapsulation type for an interface"
  dot1q
    id :o $
      native $
      second-dot1q
        id $
  isl
    id $
  ppp $
  hdlc $
  frame-relay $
    ietf $
  arpa $
  lapb $
  x25 $
  smds $
  atm-dxi $
  slip $
  mpls $
  aal5snap $
  gre $
  qinq $
cdp "cdp interface subcommands"
  enable $ :sn
  log
    mismatch
      duplex $ :sn
  tlv
    line *
switchport "set switching mode characteristics" $ :sn
  mode
    access :o $
    trunk :o $
    dynamic
      auto :o $
      desirable :o $
    private-vlan
      line *
    dot1q-tunnel $
  access
    vlan
      id :o $
  voice
    vlan
      id :o $
      dot1p $
      untagged $
      none $
  trunk
    encapsulation
      dot1q :o $
      isl :o $
      negotiate :o $
    allowed
      vlan
        <vlan> :m $
        add
          <vlan> :m $
        remove
          <vlan> :m $
        except
          <vlan> :m $
        all $
        none $
    native
      vlan
        id :o $
        tag $
    pruning
      vlan
        line *
  nonegotiate $
  nonnegotiate $
  port-security $
    maximum
      id $
        vlan
          line *
    violation
      protect $
      restrict $
      shutdown $
        vlan $
    mac-address
      sticky $
        h.h.h :k $
          vlan
            line *
      h.h.h :k $
        vlan
          line *
    aging
      line *
  block
    unicast $
    multicast $
  protected $
  host $
  priority
    extend
      line *
  backup
    line *
  private-vlan
    line *
  vlan
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
      a.b.c.d $
        secondary $
    ipv6
      line *
    preempt $
      delay
        line *
    priority
      id :o $
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
    a.b.c.d $
      secondary $
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
  id :k
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
    %IF
    a.b.c.d :o $
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
      line *
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
  id :o
    mode
      active $
      passive $
      on $
      auto $
        non-silent $
      desirable $
        non-silent $
  auto $
channel-protocol
  lacp :o $
  pagp :o $
mop "dec mop server commands"
  enabled $ :sn
  sysid $ :sn
  line *
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
    discovery
      transport-address
        line *
  bgp
    forwarding $
  mldp $
    disable $
carrier-delay
  id :o $
  msec
    id :o $
flowcontrol
  receive
    on $
    off $
    desired $
  send
    on $
    off $
    desired $
  hardware $
full-duplex $
half-duplex $
no-autonegotiation $
ethernet
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
snmp
  trap
    link-status $ :sn
    ip
      verify
        drop-rate $
    mac-notification
      line *
  ifindex
    persist $
logging
  event
    link-status $
    line *
storm-control
  line *
priority-queue
  out $
mls
  qos
    trust
      line *
    vlan-based $
auto
  qos
    line *
  line *
power
  inline
    line *
  efficient-ethernet
    line *
arp
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
dialer
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
dialer-group
  id $
pppoe
  line *
pppoe-client
  line *
peer
  default
    ip
      address
        line *
  line *
pvc "configure an atm pvc"
  <vpi/vci> :k @(config-if-atm-vc)#=atm_vc.cfm
  word :k
    <vpi/vci> :k @(config-if-atm-vc)#=atm_vc.cfm
atm
  line *
dsl
  line *
frame-relay
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
x25
  address
    line *
  map
    line *
fair-queue $ :sn
  id $
    line *
random-detect $
  line *
max-reserved-bandwidth
  id :o $
rate-limit
  line *
traffic-shape
  line *
custom-queue-list
  id $
priority-group
  id $
qos
  line *
no-shutdown $
zone-member
  security
    word :o $
virtual-template
  id :o $
source
  line *
member
  line *
wlan
  line *
macsec $
  line *
mka
  policy
    word $
  default-policy $
  pre-shared-key $ :sn
    line *
authentication
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
dot1x
  pae
    line *
  timeout
    line *
  port-control
    line *
  max-reauth-req
    id $
  max-req
    id $
mab $
  eap $
access-session
  port-control
    line *
  host-mode
    line *
  closed $
  control-direction
    line *
device-tracking $
  attach-policy
    word $
small-frame
  line *
udld
  port $
    line *
ntp
  disable $
  broadcast $
    line *
  multicast
    line *
rmon
  collection
    line *
transmit-interface
  line *
backup
  line *
pos
  line *
crc
  id $
framing
  line *
cable
  line *
ignore
  line *
loopback $
  line *
no-keepalive $
l2protocol-tunnel
  line *
location
  line *
switch
  line *
vlan-range
  line *
stackwise-virtual
  line *
isis
  line *
clns
  route-cache $ :sn
  line *
dampening $
  line *
bfd
  interval
    line *
  echo $
ospfv3
  line *
xconnect
  line *
l2tp
  line *
lacp
  port-priority
    id $
  rate
    line *
pagp
  port-priority
    id $
  learn-method
    line *
queue-set
  id $
trust
  line *
h323-gateway
  voip
    line *
peer-default
  line *
service
  instance
    id :k
      ethernet @(config-if-srv)#=generic.cfm
        word @(config-if-srv)#=generic.cfm
bgp-policy
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
medium
  p2p $
  broadcast $
