file line.cfm
exec-timeout "set the exec timeout"
  id :o
    id $
  id :o $
logging
  synchronous $
    line *
stopbits
  id :o $
privilege
  level
    id :o $
login $ :sb/o
  local $
  authentication
    word :o $
transport
  input :o
    all $
    none $
    ssh $
      telnet $
    telnet $
      ssh $
    line *
  output :o
    all $
    none $
    ssh $
      telnet $
    telnet $
      ssh $
    line *
  preferred :o
    none $
    ssh $
    telnet $
    line *
password
  id
    line * :o
  line * :o
exec $ :sn
  prompt
    timestamp $
exec-character-bits
  id $
history $
  size
    id :o $
access-class
  word :k
    in :k $
      vrf-also $
    out :k $
ipv6
  access-class
    word :k
      in $
      out $
session-timeout
  id $
    line *
absolute-timeout
  id $
autocommand
  %TEXT
speed
  id :o $
flowcontrol
  line *
modem
  line *
length
  id :o $
width
  id :o $
terminal-type
  word $
accounting
  line *
authorization
  exec
    word $
  commands
    id
      word $
escape-character
  line *
no-escape $
motd-banner $
exec-banner $
logout-warning
  id $
activation-character
  line *
stopbits-character
  line *
databits
  id $
parity
  line *
rotary
  id $
autoselect
  line *
notify $
monitor $
refuse-message
  line *
vacant-message
  line *
timeout
  login
    response
      id $
data-character-bits
  id $
international $
lockable $
padding
  line *
editing $
full-help $
location
  %TEXT
session-disconnect-warning
  line *
exit $

file vlan.cfm
name "ascii name of the vlan"
  word :o $
state
  active $
  suspend $
shutdown $
remote-span $
private-vlan
  line *
media
  line *
mtu
  id $
are
  id $
ste
  id $
backupcrf
  line *
bridge
  line *
parent
  id $
ring
  id $
said
  id $
tb-vlan1
  id $
tb-vlan2
  id $
action
  forward $
  drop $
    log $
match
  ip
    address
      word $
  mac
    address
      word $
instance
  id :k
    vlan
      <vlan> $
revision
  id $
exit $

file route_map.cfm
match "match values from routing table"
  ip
    address
      word :m $
        word :m $
          word :m $
      prefix-list
        word :m $
          word :m $
    next-hop
      line *
    route-source
      line *
    dscp
      line *
    precedence
      line *
  ipv6
    address
      line *
    next-hop
      line *
  community
    word :m $
      exact-match $
      word :m $
  extcommunity
    line *
  as-path
    id :m $
  interface
    %IF
  tag
    id $
  metric
    id $
  route-type
    line *
  source-protocol
    line *
  length
    id
      id $
  mpls-label $
  local-preference
    id $
  rpki
    line *
  policy-list
    word $
set "set values in destination routing protocol"
  community
    %COMMUNITY
  local-preference
    id :o $
  metric
    +/-<metric> $
    id :o $
      line *
    line *
  ip
    next-hop
      a.b.c.d $
        a.b.c.d $
      verify-availability
        line *
      peer-address $
      recursive
        line *
      unchanged $
      vrf
        line *
    precedence
      line *
    dscp
      line *
    default
      line *
    vrf
      word $
    global
      line *
    df
      id $
  ipv6
    line *
  as-path
    prepend
      line *
    tag $
  weight
    id :o $
  origin
    line *
  tag
    id $
  metric-type
    line *
  interface
    %IF
  extcommunity
    line *
  comm-list
    word
      delete $
  level
    line *
  vrf
    word $
  mpls-label $
  default
    interface
      line *
  dampening
    line *
  traffic-index
    id $
  global $
description :n/o
  %TEXT
continue $
  id $

file control_plane.cfm
service-policy
  input
    word :o $
  output
    word :o $
management-interface
  line *

file redundancy.cfm
mode
  sso :o $
  rpr :o $
  rpr-plus :o $
  none :o $
main-cpu @(config-r-mc)#=redundancy.cfm
auto-sync
  running-config $
  startup-config $
  standard $
  config-register $
  bootvar $
application
  redundancy @(config-red-app)#=redundancy.cfm
group
  id :k @(config-red-app-grp)#=redundancy.cfm
name
  word $
priority
  id $
    line *
control
  line *
data
  line *
keepalive-timer
  id $
interchassis
  line *
notification-timer
  id $
linecard-group
  line *
