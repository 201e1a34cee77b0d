# Global commands of routers and switches shown by "show running-config" and
# its "all" form that have no family of their own elsewhere: parser views,
# cef tables, platform, process and client settings, layer-2 VPN contexts,
# bridge domains, segment routing and load balancing.
def WIDETOP
parser "Configure parser"
  view "view commands" :k
    word :k "view name" @(config-view)#=parser_view.cfm
      superview "superview" @(config-view)#=parser_view.cfm
  cache "parser cache" $
  config "parser configuration"
    partition "partition the configuration" $
    cache "configuration cache" $
      interface $
  command "parser command settings"
    serializer "serialize the configuration commands" $
  maximum "parser limits"
    utilization "cpu utilization"
      1-100 :o "percent" $
    latency "latency"
      1-10000 :o "milliseconds" $
downward-compatible-config "Generate a configuration compatible with older software"
  word :o "version" $
shell "Configure shell command"
  processing "shell processing" $
    full $
bsd-client "bsd client"
  server "server settings"
    url "server url"
      word :o "url" $
process "process settings"
  cpu "cpu usage"
    extended "extended cpu usage"
      history "history size"
        id :o $
    autoprofile "automatic profiling"
      hog "profile cpu hogs" $
    statistics
      limit
        entry-percentage
          id
            size
              id :o $
    threshold
      type
        total
          rising
            id
              interval
                id :o $
process-max-time "Maximum time for process to run before voluntarily relinquishing processor"
  20-200 :o "milliseconds" $
cef "cisco express forwarding"
  table "cef tables"
    consistency-check "consistency checks"
      ipv4 "ipv4 tables"
        %CEFCHECK
      ipv6 "ipv6 tables"
        %CEFCHECK
    vrf "vrf tables"
      tree "table tree"
        ipv4
          %CEFTREE
        ipv6
          %CEFTREE
    output-chain "output chain"
      build "building of the chain"
        favor "what to favor"
          default $
          convergence-speed $
          memory-utilization $
    rate-monitor-period "rate monitoring period"
      id :o "seconds" $
location "Global location configuration commands"
  prefer "location source preference"
    static "static locations"
      weight
        0-255 :o $
    lldp-med "locations learned by lldp-med"
      weight
        0-255 :o $
    cdp "locations learned by cdp"
      weight
        0-255 :o $
nmsp "NMSP Commands"
  notification "notifications"
    interval "notification interval"
      location
        1-30 :o "seconds" $
      rssi
        word
          1-30 :o $
prompt "Set system's prompt"
  config "configuration prompt"
    hostname-length "host name characters shown"
      0-20 :o $
device-sensor "IOS Sensor Commands"
  notify "notification"
    all-changes $
    new-tlvs $
kerberos "Configure Kerberos"
  timeout
    id :o $
  retry
    id :o $
  processes
    id :o $
frame-relay "global frame relay configuration commands"
  address "addresses"
    registration "address registration"
      auto-address $
mab "mac authentication bypass"
  request "request settings"
    format "request format"
      attribute "radius attribute"
        1 "called station id" $
        2 "user password" $
        32 "nas identifier" $
          line *
  logging "mab logging"
    verbose $
clns "Global CLNS configuration subcommands"
  configuration-time "configuration time"
    id :o "seconds" $
  holding-time "holding time"
    id :o "seconds" $
  packet-lifetime "packet lifetime"
    id :o $
  security "security option"
    pass-through $
  want-erpdu "send error pdus" $
  routing "clns routing" $
  net
    word :k $
isis "Global ISIS configuration subcommands"
  display "display options"
    delimiter
      return
        id :o $
media-proxy "media proxy"
  services
    rate-limit
      id :o $
metadata "metadata settings"
  source "metadata source"
    nbar $
  flow "flow metadata"
    transmit $
per-call "per-call settings"
  export "export targets"
    primary
      word
        secondary
          word :o $
  shutdown $
virtual-template "virtual template settings"
  subinterface "subinterfaces for virtual templates" $
  snmp "snmp for virtual access interfaces" $
http "http settings"
  client "http client"
    cache "cache"
      memory
        pool
          id :o $
        file
          id :o $
      query $
      ager
        interval
          id :o $
    cookie "enable cookies" $
    connection "connection settings"
      persistent $
      timeout
        1-60 :o "seconds" $
      idle
        timeout
          1-600 :o "seconds" $
    response "response settings"
      timeout
        1-300 :o "seconds" $
    secure-trustpoint
      word :o $
    source-interface
      %IF
scripting "scripting conf commands"
  tcl "tcl scripts"
    low-memory
      id :o $
    trustpoint
      untrusted
        execute $
        safe-execute $
        terminate $
      name
        word :k $
    secure-mode $
    init
      word :o $
    encdir
      word :o $
csdb "conversation state database"
  tcp
    synwait-time
      id :o $
    idle-time
      id :o $
    finwait-time
      id :o $
    reassembly
      max-memory
        id :o $
      max-queue-length
        id :o $
  udp
    idle-time
      id :o $
  icmp
    idle-time
      id :o $
  session
    max-session
      id :o $
  alarm $
terminal-queue "terminal queue settings"
  entry-retry-interval
    id :o $
route-tag "route tag settings"
  notation "notation"
    dotted-decimal $
mop "Configure the DEC MOP Server"
  device-code
    cisco $
    ds200 $
  retransmit-timer
    1-20 :o $
  retries
    3-24 :o $
diameter "diameter settings"
  timer
    connection
      id :o $
    watchdog
      id :o $
    transaction
      id :o $
  redundancy $
  origin
    realm
      word :o $
    host
      word :o $
default-value "Default character-bits values"
  exec-character-bits
    7 $
    8 $
  special-character-bits
    7 $
    8 $
  data-character-bits
    7 $
    8 $
configuration "Configuration access"
  mode "configuration mode"
    exclusive $
      auto $
      manual $
exception "Exception handling"
  crashinfo "crash information"
    file
      word :o $
    buffersize
      id :o $
    maximum
      files
        id :o $
    dump
      garbage-detector $
  data-corruption
    buffer
      truncate $
      log $
  memory
    ignore
      overflow
        io $
        processor $
  dump
    a.b.c.d $
  protocol
    ftp $
    tftp $
    rcp $
  region-size
    id :o $
wsma "Configure Web Services Management Agents"
  id "identity"
    hostname $
  agent "agent"
    exec $
      profile
        word $
    config $
      profile
        word $
    filesys $
      profile
        word $
    notify $
      profile
        word $
  profile
    listener
      word :k @(config-wsma-listen)#=generic.cfm
xmpp "xmpp settings"
  id
    hostname $
bulkstat "bulk statistics"
  resource
    limit
      memory
        id :o $
webvpn "WebVPN commands"
  sslvpn-vif "ssl vpn virtual interface"
    nat
      inside $
      outside $
      enable $
cns "CNS agents"
  id
    hostname $
      event $
      image $
    string
      word $
    a.b.c.d $
  image
    retry
      id :o $
  trusted-server
    line *
ppp "ppp settings"
  hold-queue
    id :o $
  packet
    throttle
      id
        id
          id :o $
l2 "layer 2 settings"
  router-id "layer 2 router id"
    a.b.c.d :o $
l2vpn "layer 2 vpn"
  vfi "virtual forwarding instance"
    context "vfi context"
      word :k "vfi name" @(config-vfi)#=l2vpn_vfi.cfm
  evpn "ethernet vpn" @(config-evpn)#=l2vpn_evpn.cfm
    instance
      1-65535 :k
        vlan-based @(config-evpn-evi)#=l2vpn_evpn.cfm
        vlan-bundle @(config-evpn-evi)#=l2vpn_evpn.cfm
        vlan-aware @(config-evpn-evi)#=l2vpn_evpn.cfm
  xconnect "cross connect"
    context
      word :k @(config-xconnect)#=l2vpn_xconnect.cfm
  router-id
    a.b.c.d :o $
bridge-domain "Bridge-domain configuration"
  1-16000 :k "bridge domain number" @(config-bdomain)#=bridge_domain.cfm
sdwan "sd-wan configuration" @(config-sdwan)#=sdwan.cfm
segment-routing "Segment Routing"
  mpls "segment routing over mpls" @(config-srmpls)#=segment_routing.cfm
identity "Identity Configuration commands"
  profile "identity profile"
    default @(config-identity-prof)#=generic.cfm
    dot1x @(config-identity-prof)#=generic.cfm
    eapoudp @(config-identity-prof)#=generic.cfm
    word :k @(config-identity-prof)#=generic.cfm
nls "network location settings"
  resp-timeout
    id :o $
cpd "cable phone discovery"
  cr-id
    id :o $
policy-manager "policy manager"
  policy
    enable $
mac-address-table "Configure the MAC address table"
  static "static entries"
    h.h.h :k
      interface
        %IF
          vlan
            1-4094 :k $
      vlan
        1-4094 :k
          interface
            %IF
  aging-time
    id :o $
config-register "Define the configuration register"
  word :o "configuration register value" $
auto "Configure Automation"
  qos "automatic quality of service"
    srnd4 "the srnd4 model" $
    global
      compact $
service-routing "Configure service-routing"
  capabilities-manager $
"file" "Adjust file system parameters"
  privilege
    0-15 :o $
  prompt
    alert $
    noisy $
    quiet $
  verify
    auto $

def CEFCHECK
  type
    scan-rib-ios
      count
        id
          period
            id :o $
    scan-ios-rib
      count
        id
          period
            id :o $
  data-checking $
  error-message $
  auto-repair $
    delay
      id
        holddown
          id :o $

def CEFTREE
  type
    mtrie $
      short-mask-protection
        id
          stride-pattern
            word $
              hardware-api-notify
                on $
                off $
    rtree $

file parser_view.cfm
secret "set a secret for the view"
  0 "an unencrypted secret follows" :-k
    word :o $
  5 "an md5 hashed secret follows" :-k
    word :o $
  word :o "the view's secret" $
commands "add commands to the view"
  exec "exec mode"
    %VIEWCMD
  configure "configuration mode"
    %VIEWCMD
  interface "interface mode"
    %VIEWCMD
  router "router mode"
    %VIEWCMD
view "add a view to the superview"
  word :k $

def VIEWCMD
  include "add the command"
    all "the command and all its sub-commands" :k
      line * :k
    exclusive "only in this view"
      all
        line * :k
      line * :k
    line * :k
  exclude "leave the command out"
    all
      line * :k
    line * :k

file l2vpn_vfi.cfm
vpn "vpn settings"
  id "vpn id"
    1-4294967295 :o $
autodiscovery "auto discovery"
  bgp "bgp auto discovery"
    signaling "signaling"
      ldp $
        template
          word $
      bgp $
vpls-id "vpls id"
  aa:nn :o $
rd "route distinguisher"
  aa:nn :o $
route-target "route target"
  export
    aa:nn :k $
  import
    aa:nn :k $
  both
    aa:nn :k $
  aa:nn :k $
auto-route-target "automatic route target" $
mtu "vfi mtu"
  64-65535 :o $
member "vfi members"
  a.b.c.d :k $
    id
      encapsulation
        mpls $
  pseudowire
    id :k $
neighbor "vfi neighbor"
  a.b.c.d :k $
    id
      encapsulation
        mpls $
shutdown $

file l2vpn_evpn.cfm
replication-type "replication type"
  ingress $
  static $
  mp2mp $
router-id "evpn router id"
  %IF
default-gateway "default gateway settings"
  advertise $
    enable $
    disable $
logging "evpn logging"
  peer
    state $
  duplicate
    address $
route-target "route target"
  auto $
    vni $
  export
    aa:nn :k $
  import
    aa:nn :k $
  both
    aa:nn :k $
rd "route distinguisher"
  aa:nn :o $
encapsulation "encapsulation"
  vxlan $
  mpls $
ip "ip settings"
  duplicate-detection
    line *
  local-learning
    enable $
    disable $
multicast "multicast settings"
  advertise $
    enable $
flooding-suppression
  address-resolution
    disable $
auto-route-target $

file l2vpn_xconnect.cfm
member "cross connect members"
  %IF
    service-instance
      id :k $
  a.b.c.d :k
    id :k $
      encapsulation
        mpls $
  pseudowire
    id :k $
rd "route distinguisher"
  aa:nn :o $

file bridge_domain.cfm
member "bridge domain members"
  vfi "a vfi"
    word :k $
  %IF
    service-instance "an ethernet service instance"
      1-8000 :k $
  evpn-instance
    1-65535 :k $
      ethernet-tag
        id :k $
  vni
    1-16777215 :k $
mac "mac settings"
  limit
    maximum
      id :o $
  learning $
  aging-time
    id :o $
flooding $
  disable $
shutdown $

file segment_routing.cfm
global-block "segment routing global block"
  16-1048575
    16-1048575 :o $
local-block "segment routing local block"
  16-1048575
    16-1048575 :o $
connected-prefix-sid-map "prefix sids of connected prefixes" @(config-srmpls-conn)#=segment_routing_map.cfm
mapping-server "mapping server" @(config-srmpls-mapp)#=segment_routing_map.cfm

file segment_routing_map.cfm
address-family "address family"
  ipv4 @(config-srmpls-conn-af)#=segment_routing_af.cfm
  ipv6 @(config-srmpls-conn-af)#=segment_routing_af.cfm

file segment_routing_af.cfm
a.b.c.d/<1-32> :k "prefix"
  index "sid index"
    id :o $
      range
        id :o $
        attach $
  absolute "absolute sid"
    id :o $
      range
        id :o $
exit-address-family "leave the address family" $

file ip_global.cfm
spd "selective packet discard"
  queue
    threshold
      minimum
        id
          maximum
            id :o $
  mode
    aggressive $
  headroom
    id :o $
ttl "time to live settings"
  decrement $
verify "unicast reverse path forwarding"
  drop-rate
    compute
      window
        id :o $
      interval
        id :o $
    notify
      hold-down
        id :o $
nbar "network based application recognition"
  resources
    system
      id
        id
          id :o $
  protocol-discovery $
  custom
    line *
sap "session announcement protocol"
  cache-timeout
    id :o $
pgm "pragmatic general multicast"
  router
    elimination-interval
      id :o $
dhcp-server "dhcp server settings"
  query
    lease
      retries
        id :o $
      timeout
        id :o $
dhcp-client "dhcp client settings"
  broadcast-flag $
  default-router
    distance
      1-255 :o $
rtcp "rtp control protocol"
  report
    interval
      id :o $
  sub-rtcp
    message-type
      id :o $
identd "ident protocol" $
mux "ip mux"
  cache
    id :o $
slb "server load balancing"
  serverfarm "server farm"
    word :k @(config-slb-sfarm)#=slb_serverfarm.cfm
  vserver "virtual server"
    word :k @(config-slb-vserver)#=slb_vserver.cfm

file slb_serverfarm.cfm
nat "network address translation"
  server $
  client
    word $
real "a real server"
  a.b.c.d :k @(config-slb-real)#=slb_real.cfm
    id :k @(config-slb-real)#=slb_real.cfm
predictor "load balancing algorithm"
  roundrobin $
  leastconns $
probe "probe"
  word :k $
description
  %TEXT

file slb_real.cfm
inservice "enable the real server" $
weight "weight"
  1-255 :o $
maxconns "maximum connections"
  id :o $
reassign
  id :o $
faildetect
  numconns
    id :o $
retry
  id :o $

file slb_vserver.cfm
virtual "the virtual server address"
  a.b.c.d :o
    tcp
      word :o $
    udp
      word :o $
    id
      id :o $
serverfarm "the server farm"
  word :o $
    backup
      word $
inservice "enable the virtual server" $
client "allowed clients"
  a.b.c.d
    a.b.c.d :o $
idle "idle timeout"
  id :o $
sticky
  id :o $
description
  %TEXT

# The certificate profile of the SSH server: the certificates it presents
# (server) and those it takes from users (user).
file ssh_cert_profile.cfm
server "server certificate settings" @(ssh-server-cert-profile-server)#=ssh_cert_side.cfm
user "user certificate settings" @(ssh-server-cert-profile-user)#=ssh_cert_side.cfm

file ssh_cert_side.cfm
ocsp-response "ocsp response settings"
  include "include the ocsp response" $
  required "require an ocsp response" $
trustpoint "trustpoint"
  sign
    word :o $
  verify
    word :o $

# A VNI of an nve interface: how its broadcast and unknown traffic is
# replicated.
file nve_vni.cfm
ingress-replication "ingress replication" $
  a.b.c.d :k "remote peer" $
mcast-group "multicast group"
  a.b.c.d :o $
    a.b.c.d $
suppress-arp "suppress arp" $
replication-type "replication type"
  ingress $
  static $

# MPLS operation and maintenance: the echo packets of LSP pings.
file mpls_oam.cfm
echo "echo packet settings"
  revision "echo packet revision"
    1-4 :o $
  vendor-extension "send the vendor extension" $

# SD-WAN on IOS-XE in controller mode: the system identity, the transport
# interfaces with their tunnels, and the overlay management protocol.
file sdwan_system.cfm
system-ip "system ip address"
  a.b.c.d :o $
site-id "site identifier"
  1-4294967295 :o $
organization-name "organization name"
  word :o $
  line * :o
vbond "orchestrator address"
  a.b.c.d :o $
    port
      1-65535 :o $
  word :o $
    port
      1-65535 :o $
admin-tech-on-failure "collect admin-tech on failure" $
sp-organization-name "service provider organization name"
  word :o $
  line * :o
host-name "host name"
  word :o $
console-baud-rate "console baud rate"
  id :o $
track-transport "track the transport" $
overlay-id "overlay identifier"
  1-4294967295 :o $

file sdwan.cfm
interface "a transport interface"
  &interfacefile.cfm "interface type"
    <number> :k "interface number" @(config-interface)#=sdwan_if.cfm
omp "overlay management protocol" @(config-omp)#=sdwan_omp.cfm
appqoe "application quality of experience" @(config-appqoe)#=generic.cfm

file sdwan_if.cfm
tunnel-interface "a tunnel over this interface" @(config-tunnel-interface)#=sdwan_tunnel.cfm
exit "leave the interface" $

file sdwan_tunnel.cfm
encapsulation "tunnel encapsulation"
  ipsec :k $
    weight
      1-255 :o $
    preference
      0-4294967295 :o $
  gre :k $
    weight
      1-255 :o $
    preference
      0-4294967295 :o $
color "color of the transport"
  word :o $
    restrict $
allow-service "services allowed on the tunnel"
  all $
  bgp $
  dhcp $
  dns $
  icmp $
  sshd $
  netconf $
  ntp $
  ospf $
  stun $
  https $
  snmp $
max-control-connections "maximum control connections"
  0-100 :o $
vmanage-connection-preference "preference for the management connection"
  0-8 :o $
nat-refresh-interval "nat refresh interval"
  1-60 :o $
hello-interval "hello interval"
  100-600000 :o $
hello-tolerance "hello tolerance"
  12-6000 :o $
low-bandwidth-link "a low bandwidth link" $
exit "leave the tunnel interface" $

file sdwan_omp.cfm
shutdown "shut down omp" $
graceful-restart "graceful restart" $
send-path-limit "paths advertised for a prefix"
  1-16 :o $
ecmp-limit "equal cost paths installed"
  1-16 :o $
timers "omp timers"
  holdtime
    id :o $
  advertisement-interval
    id :o $
  graceful-restart-timer
    id :o $
address-family "omp address family"
  ipv4 @(config-omp-af)#=sdwan_omp_af.cfm
  ipv6 @(config-omp-af)#=sdwan_omp_af.cfm

file sdwan_omp_af.cfm
advertise "routes advertised into omp"
  connected $
  static $
  ospf $
    external $
  bgp $
  eigrp $
  lisp $
  isis $
  aggregate
    a.b.c.d/<1-32> :k $
