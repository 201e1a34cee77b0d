file generic.cfm
description :n/o
  %TEXT
shutdown $
ras
  line *
gw-type-prefix
  line *
lrq
  line *
bandwidth
  line *
endpoint
  line *
arq
  line *
gateway
  line *
member
  line *
cor
  line *
name
  line *
reachability
  line *
delay
  line *
default-state
  line *
object
  line *
virtual-ip
  line *
cli
  line *
action
  line *
cron
  line *
policy-list
  line *
protocol
  line *
pppoe
  line *
virtual-template
  id $
sessions
  line *
activate $
profile
  line *
vnic
  line *
guest-ipaddress
  line *
app-vnic
  line *
app-default-gateway
  line *
app-resource
  line *
start $
destination
  line *
contact-email-addr
  line *
http-proxy
  line *
encapsulation
  line *
ip
  address
    line *
  nbar
    line *
accept-dialin @(config-vpdn-acc-in)#=generic.cfm
request-dialin @(config-vpdn-req-in)#=generic.cfm
l2tp
  line *
lcp
  line *
codec
  line *
session
  line *
incoming
  line *
vad $
dtmf-relay
  line *
answer-address
  line *
destination-pattern
  line *
port
  line *
huntstop $
rule
  line *
translate
  line *
fax
  line *
modem
  line *
h323
  line *
sip
  line *
allow-connections
  line *
supplementary-service
  line *
no-shutdown $
match
  line *
rekey
  line *
sa
  line *
server
  line *
address
  line *
identity
  line *
type
  line *
timer
  line *
reverse-route $
  line *
interworking
  line *
control-word $
preferred-path
  line *
sequencing
  line *
next-address
  line *
index
  line *
exclude-address
  line *
hidekeys $
enable $
monitor
  word $
path
  line *
frequency
  line *
recovery
  line *
transport
  line *
subscribe-to-alert-group
  line *
profile
  line *
credential
  line *
mtu
  line *
exit $

file archive.cfm
path
  line * :o
maximum
  id $
log
  config @(config-archive-log-cfg)#=archive_log.cfm
logging
  enable $
  size
    id $
notify
  syslog $
    contenttype
      line *
hidekeys $
write-memory $
time-period
  id $
rollback
  line *

# Settings of a vrf that its address families take as well. An address
# family opens no further address family: a second "address-family" line
# (after "exit-address-family") belongs to the vrf again.
def VRFAF
  route-target "specify target vpn extended communities"
    export "export target-vpn extension"
      aa:nn :k "target vpn extended community" $
    import "import target-vpn extension"
      aa:nn :k "target vpn extended community" $
    both "both import and export target-vpn extension"
      aa:nn :k "target vpn extended community" $
  import "vrf import"
    map "route-map based vrf import"
      word :o "route-map name" $
    ipv4 "address family based vrf import"
      line *
  export "vrf export"
    map "route-map based vrf export"
      word :o "route-map name" $
    ipv4 "address family based vrf export"
      line *
  mdt "backbone multicast distribution tree"
    default "the default group"
      a.b.c.d "ip multicast group address" $
      mpls "an mpls tree"
        mldp "a multipoint ldp tree"
          a.b.c.d "root address" $
    data "data multicast distribution trees"
      line *
    line *
  maximum "set a limit"
    routes "maximum number of routes allowed in this routing table"
      line *
  route-replicate "replicate routes from another vrf"
    line *

file vrf.cfm
rd "specify route distinguisher"
  aa:nn :o $
description :n/o "vrf specific description"
  %TEXT
vpn "configure vpn id as specified in rfc 2685"
  id
    line *
address-family "enter address family configuration mode"
  ipv4 "address family" @(config-vrf-af)#=vrf_af.cfm
    unicast "unicast sub-address family" @(config-vrf-af)#=vrf_af.cfm
    multicast "multicast sub-address family" @(config-vrf-af)#=vrf_af.cfm
  ipv6 "address family" @(config-vrf-af)#=vrf_af.cfm
    unicast "unicast sub-address family" @(config-vrf-af)#=vrf_af.cfm
    multicast "multicast sub-address family" @(config-vrf-af)#=vrf_af.cfm
vnet "virtual networking configuration"
  tag
    id $
auto-classify $ "enable auto-classification"
  line *
rd-auto $ "automatically assign a route distinguisher"
context "associate snmp context with this vrf"
  word $
protection "configure local repair"
  line *
%VRFAF

file vrf_af.cfm
%VRFAF
exit-address-family $ "exit from address family configuration mode"

file dhcp_pool.cfm
network "network number and mask"
  a.b.c.d :o $
    a.b.c.d $
    </nn> $
default-router "default routers" :n
  a.b.c.d :o $
    a.b.c.d :o $
      a.b.c.d :o $
dns-server "dns servers" :n
  a.b.c.d :o $
    a.b.c.d :o $
      a.b.c.d :o $
        a.b.c.d :o $
domain-name "domain name"
  word :o $
lease "address lease time"
  id :o $
    id $
      id $
  infinite $
option "raw dhcp options"
  id :k
    line *
host "client ip address and mask"
  a.b.c.d :o $
    a.b.c.d $
    </nn> $
client-identifier "client identifier"
  word :o $
hardware-address "client hardware address"
  word :o $
    line *
client-name "client name"
  word $
netbios-name-server "netbios (wins) name servers"
  a.b.c.d :m $
    a.b.c.d :m $
netbios-node-type "netbios node type"
  word $
next-server "next server in boot process"
  a.b.c.d $
bootfile "boot file name"
  word $
import "programmatically importing dhcp option parameters"
  all $
update "dynamic updates"
  line *
vrf "associate this pool with a vrf"
  word $
relay "function as a dhcp relay"
  line *
class "configure a dhcp class"
  word :k "class name" @(config-dhcp-pool-class)#=dhcp_pool_class.cfm
utilization "configure various utilization parameters"
  line *
origin "configure the origin of the pool"
  line *
subnet "subnet allocation commands"
  line *
address "configure a reserved address"
  line *
dns "dns settings"
  line *
prefix-delegation "ipv6 prefix delegation"
  line *
domain-search "domain search list"
  line *

file dhcp_pool_class.cfm
address "configure an address range"
  range "address range"
    a.b.c.d :k "start address"
      a.b.c.d :k "end address" $
relay "relay settings for this class"
  target "relay target"
    a.b.c.d :k "target address" $
      line *

file dhcp_class.cfm
relay "relay agent settings"
  agent "relay agent"
    information "relay agent information option" @(config-dhcp-class-relayinfo)#=dhcp_class_relay.cfm
remark "class specific remark"
  %TEXT

file dhcp_class_relay.cfm
relay-information "relay agent information pattern"
  hex "hexadecimal pattern"
    word :k "pattern" $
      line *

file ip_sla.cfm
icmp-jitter "icmp jitter operation"
  a.b.c.d :o "destination address" $
    line *
ethernet "ethernet operations"
  line *
icmp-echo
  a.b.c.d :o $
    source-interface
      %IFONE
    source-ip
      a.b.c.d $
  word :o $
    line *
udp-jitter
  line *
udp-echo
  line *
tcp-connect
  line *
http
  line *
dns
  line *
path-echo
  line *
type
  echo
    protocol
      ipIcmpEcho
        a.b.c.d :o $
          line *
      line *
  line *
frequency
  id :o $
secondary-frequency "frequency after a failure"
  timeout
    id :o $
  connection-loss
    id :o $
  both
    id :o $
timeout
  id :o $
threshold
  id :o $
tag
  %TEXT
vrf
  word $
tos
  id $
request-data-size
  id $
owner
  word $
data-pattern
  word $
verify-data $
history
  line *
source-interface
  %IFONE
source-ipaddr
  a.b.c.d $
exit $

file object_group.cfm
description :n/o
  %TEXT
host
  a.b.c.d :k $
a.b.c.d :k
  a.b.c.d :k $
range
  a.b.c.d :k
    a.b.c.d :k $
group-object
  word :k $
a.b.c.d/<1-32> :k $

file server.cfm
address
  ipv4
    a.b.c.d :o $
      line *
  ipv6
    line *
key
  id
    line *
  line *
timeout
  id $
single-connection $
retransmit "number of retries to an active server"
  id :o "retries" $
port
  id $
pac
  line *
automate-tester
  line *

file ssh_pubkey.cfm
username
  word :k @(conf-ssh-pubkey-user)#=ssh_pubkey_user.cfm
server
  word :k @(conf-ssh-pubkey-server)#=ssh_pubkey_user.cfm

file ssh_pubkey_user.cfm
key-string $
key-hash
  line *
quit $

# The configuration log of the archive: a level of its own, so that the
# archive settings after it (path, maximum, write-memory) return to the
# archive.
file archive_log.cfm
logging "logging settings"
  enable "enable the configuration log" $
  size "entries kept"
    id :o "entries" $
  persistent "persist the log"
    line *
notify "notifications"
  syslog "send to syslog" $
    contenttype "content type"
      plaintext :o $
      xml :o $
hidekeys "hide keys in the log" $
