# Smaller configuration modes: ATM VCs, DHCPv6 pools, group domain of
# interpretation, call home, event manager applets, zone pairs.

file atm_vc.cfm
description "vc description" :n/o
  %TEXT
vbr-nrt "variable bit rate, non real time"
  id :o "peak cell rate"
    id "sustainable cell rate" $
      id "maximum burst size" $
vbr-rt "variable bit rate, real time"
  id :o "peak cell rate"
    id "average cell rate" $
      id "burst size" $
ubr "unspecified bit rate"
  id :o "peak cell rate" $
ubr+ "unspecified bit rate plus"
  id :o "peak cell rate"
    id "minimum cell rate" $
cbr "constant bit rate"
  id :o "peak cell rate" $
encapsulation "atm encapsulation"
  aal5snap :o $
  aal5nlpid :o $
  aal5mux :o
    ppp
      dialer $
      virtual-template
        id $
    ip $
  aal5ciscoppp :o
    virtual-template
      id $
protocol "map a protocol to the vc"
  ip
    a.b.c.d :k $
      broadcast $
      no-broadcast $
    inarp $
  ppp
    dialer $
    virtual-template
      id $
  pppoe $
dialer "dialer pool"
  pool-member
    id :o $
pppoe-client "pppoe client"
  dial-pool-number
    id :o $
pppoe "pppoe"
  max-sessions
    id :o $
  enable $
oam-pvc "oam f5 loopback"
  manage $
    id $
  id $
oam "oam parameters"
  retry
    id
      id
        id $
  ais-rdi
    line *
inarp "inverse arp"
  id :o $
tx-ring-limit "transmit ring limit"
  id :o $
ilmi "ilmi"
  manage $
bridge-dot1q "bridged dot1q"
  encap
    id $
shutdown $
exit $

file ipv6_dhcp_pool.cfm
address "address prefix"
  prefix
    word :k $
      lifetime
        line *
dns-server "dns server"
  word :m $
domain-name "domain name"
  word :k/n $
prefix-delegation "prefix delegation"
  pool
    word $
      lifetime
        line *
  word $
    line *
information "information refresh"
  refresh
    line *
link-address "link address"
  word $
sip "sip server"
  address
    word $
  domain-name
    word $
vendor-specific "vendor specific"
  id :k
    line *
import "import configuration"
  line *
exit $

file gdoi_group.cfm
identity "group identity"
  number
    id :o $
  address
    ipv4
      a.b.c.d :o $
server "group server"
  local @(gkm-local-server)#=gdoi_server.cfm
  address
    ipv4
      a.b.c.d :k $
client "group client"
  line *
passive $
exit $

file gdoi_server.cfm
rekey "rekey parameters"
  algorithm
    line *
  retransmit
    id
      number
        id $
      periodic $
  authentication
    mypubkey
      rsa
        word :o $
  transport
    unicast $
  lifetime
    seconds
      id :o $
  address
    ipv4
      line *
sa "security association"
  ipsec
    id :k @(gkm-sa-ipsec)#=gdoi_sa.cfm
  receive-only $
address "server address"
  ipv4
    a.b.c.d :o $
redundancy "key server redundancy" @(gdoi-coop-ks-config)#=gdoi_redundancy.cfm
authorization "group member authorization"
  line *
exit $

file gdoi_sa.cfm
profile "ipsec profile"
  word :o $
match "traffic selection"
  address
    ipv4
      word :o $
replay "anti-replay"
  time
    window-size
      id :o $
  counter
    window-size
      id :o $
tag "security group tag"
  line *
exit $

file gdoi_redundancy.cfm
local "local key server"
  priority
    id :o $
peer "peer key server"
  address
    ipv4
      a.b.c.d :k $
timers "redundancy timers"
  line *
exit $

file call_home.cfm
contact-email-addr "contact e-mail address"
  word :o $
phone-number "phone number"
  word :o $
street-address "street address"
  %TEXT
customer-id "customer id"
  %TEXT
site-id "site id"
  %TEXT
contract-id "contract id"
  %TEXT
sender "sender addresses"
  from
    word $
  reply-to
    word $
mail-server "mail server"
  word :k
    priority
      id $
http-proxy "http proxy"
  line *
vrf "vrf"
  word :o $
source-interface "source interface"
  %IF
source-ip-address "source address"
  a.b.c.d :o $
profile "call home profile"
  word :k @(cfg-call-home-profile)#=call_home_profile.cfm
alert-group "alert group"
  line *
alert-group-config "alert group configuration"
  line *
copy "copy a profile"
  line *
data-privacy "data privacy"
  line *
syslog-throttling $
rate-limit "messages per minute"
  id :o $
exit $

file call_home_profile.cfm
active "activate the profile" $ :sn
destination "destination"
  transport-method
    http :o $
    email :o $
  address
    http
      line *
    email
      word :m $
  message-size-limit
    id :o $
  preferred-msg-format
    line *
reporting "reporting"
  line *
subscribe-to-alert-group "alert group subscription"
  line *
anonymous-reporting-only $
exit $

file eem_applet.cfm
event "applet event"
  none "run by hand" $
    line *
  syslog "syslog event"
    line *
  timer "timer event"
    line *
  cli "cli event"
    line *
  track "track event"
    line *
  snmp "snmp event"
    line *
  snmp-notification "snmp notification event"
    line *
  interface "interface counter event"
    line *
  ipsla "ip sla event"
    line *
  tag "event tag"
    line *
  routing "routing event"
    line *
  counter "counter event"
    line *
  oir "online insertion event" $
  resource "resource event"
    line *
  neighbor-discovery "neighbor event"
    line *
  application "application event"
    line *
  rf "redundancy event"
    line *
  identity "identity event"
    line *
  nf "netflow event"
    line *
  gold "diagnostic event"
    line *
  rpc "remote procedure call event"
    line *
  env "environment event"
    line *
action "applet action"
  word :k "action label"
    line *
trigger "multiple event correlation" $
  line *
description "applet description" :n/o
  %TEXT
exit $

file zone_pair.cfm
service-policy "attach a policy map"
  type
    inspect
      word :o $
description "zone pair description" :n/o
  %TEXT
exit $

# A service group lists protocols; "ip" is left out on purpose, since a
# line such as "ip access-list ..." that follows the group must leave it.
def SVCPORTS
  eq "port equal to"
    &portfile.cfm :k "port" $
  neq "port not equal to"
    &portfile.cfm :k "port" $
  gt "port greater than"
    &portfile.cfm :k "port" $
  lt "port less than"
    &portfile.cfm :k "port" $
  range "port range"
    &portfile.cfm :k "lowest port"
      &portfile.cfm :k "highest port" $

file object_group_service.cfm
description "service group description" :n/o
  %TEXT
group-object "nested service group"
  word :k $
tcp "transmission control protocol" $
  %SVCPORTS
  source "source port"
    %SVCPORTS
udp "user datagram protocol" $
  %SVCPORTS
  source "source port"
    %SVCPORTS
tcp-udp "tcp or udp" $
  %SVCPORTS
  source "source port"
    %SVCPORTS
icmp "internet control message protocol" $
  word :k "icmp message type" $
esp "encapsulating security payload" $
ahp "authentication header protocol" $
gre "generic routing encapsulation" $
ipinip "ip in ip tunneling" $
ospf "open shortest path first" $
eigrp "enhanced interior gateway routing protocol" $
pim "protocol independent multicast" $
igmp "internet group management protocol" $
nos "ka9q nos compatible ip over ip tunneling" $
pcp "payload compression protocol" $
id :k "protocol number" $

# Tracked objects: what to track is said on the opening line; the mode holds
# its delays, its default state and, for a list, the objects of the list.
file track.cfm
description "object description" :n/o
  %TEXT
delay "tracking delay" :o
  up :-k "delay for a change to up"
    id "seconds" $
      down :-k "delay for a change to down"
        id "seconds" $
  down :-k "delay for a change to down"
    id "seconds" $
      up :-k "delay for a change to up"
        id "seconds" $
default-state "state of the object while it is not known" :o
  up :-k "the object is up" $
  down :-k "the object is down" $
object "object of the list"
  id :k "object number" $
    not "negate the state of the object" $
    weight "weight of the object"
      id "weight" $
threshold "threshold of the list"
  percentage "threshold in percent"
    line *
  weight "threshold in weights"
    line *

# The gatekeeper: zones, technology prefixes and the admission settings. It
# is shut down until "no shutdown"; both forms are shown.
file gatekeeper.cfm
shutdown "shut down the gatekeeper" :sb/o $
zone "zone definition"
  local "define the local zone of the gatekeeper"
    word :k "gatekeeper name"
      word :k "domain name" $
        line *
  remote "define a remote zone"
    word :k "gatekeeper name"
      line *
  prefix "prefix of a zone"
    word :k "gatekeeper name"
      word :k "e.164 prefix" $
        line *
gw-type-prefix "gateway technology prefix"
  word :k "technology prefix" $
    line *
lrq "location request settings"
  line *
arq "admission request settings"
  line *
ras "registration, admission and status settings"
  line *
bandwidth "bandwidth settings"
  line *
endpoint "endpoint settings"
  line *
