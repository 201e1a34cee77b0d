file line.cfm
exec-timeout "set the exec timeout"
  id :o
    id $
  id :o $
logging "modify message logging facilities"
  synchronous $
    line *
stopbits "set async line stop bits"
  id :o $
privilege "change privilege level for line"
  level
    id :o $
login $ :sb/o "enable password checking"
  local :-k/o $
  authentication
    word :o $
transport "define transport protocols for line"
  input :o
    all :-k $
    none :-k $
    ssh :-k $
      telnet :-k $
    telnet :-k $
      ssh :-k $
    pad :-k $
    rlogin :-k $
    udptn :-k $
  output :o
    all :-k $
    none :-k $
    ssh :-k $
      telnet :-k $
    telnet :-k $
      ssh :-k $
    line *
  preferred :o
    none :-k $
    ssh :-k $
    telnet :-k $
    line *
password "set a password"
  id
    line * :o
  line * :o
exec $ :sn "start an exec"
  prompt
    timestamp $
exec-character-bits "size of characters to the command exec"
  id $
history $ "enable and control the command history function"
  size
    id :o $
access-class "filter connections based on an ip access list"
  word :o
    in :k $
      vrf-also $
    out :k $
ipv6 "ipv6 options"
  access-class
    word :k
      in $
      out $
session-timeout "close a connection without input traffic"
  id $
    line *
absolute-timeout "set absolute timeout for line disconnection"
  id $
autocommand "automatically execute an exec command"
  %TEXT
speed "set the transmit and receive speeds"
  id :o $
flowcontrol "set the flow control"
  line *
modem "configure the line for modem operation"
  line *
length "set number of lines on a screen"
  id :o $
width "set width of the display terminal"
  id :o $
terminal-type "set the terminal type"
  word $
accounting "accounting parameters"
  line *
authorization "authorization parameters"
  exec
    word $
  commands
    id
      word $
escape-character "change the current line's escape character"
  line *
no-escape $ "turn off the escape character"
motd-banner $ "enable the display of the motd banner"
exec-banner $ "enable the display of the exec and motd banners"
logout-warning "warning countdown before absolute timeout"
  id $
activation-character "define the activation character" :n
  id :o "ascii value" $
stopbits-character "stop bits of a character"
  line *
databits "set number of data bits per character"
  id $
parity "set terminal parity"
  line *
rotary "add line to a rotary group"
  id $
autoselect "set line to autoselect"
  line *
notify $ "inform users of output from concurrent sessions"
monitor $ "copy debug output to the current terminal line"
refuse-message "define a refuse banner"
  line *
vacant-message "define a vacant banner"
  line *
timeout "timeouts for the line"
  login
    response
      id $
data-character-bits "size of characters being handled"
  id $
international $ "enable international 8-bit character support"
lockable $ "allow users to lock a line"
padding "set padding for a specified output character"
  line *
editing $ "enable command line editing"
full-help $ "provide help to unprivileged user"
location "enter terminal location description"
  %TEXT
session-disconnect-warning "set warning countdown for session-timeout"
  line *
exit $ "exit from line configuration mode"

file vlan.cfm
name "ascii name of the vlan"
  word :o $
state "operational state of the vlan"
  active $
  suspend $
shutdown $ "shutdown vlan switching"
remote-span $ "configure as remote span vlan"
private-vlan "configure a private vlan"
  line *
media "media type of the vlan"
  line *
mtu "vlan maximum transmission unit"
  id $
are "maximum number of all route explorer hops for this vlan"
  id $
ste "maximum number of spanning tree explorer hops for this vlan"
  id $
backupcrf "backup crf mode of the vlan"
  line *
bridge "bridging characteristics of the vlan"
  line *
parent "id number of the parent vlan of fddi or token ring type vlans"
  id $
ring "ring number of fddi or token ring type vlans"
  id $
said "ieee 802.10 said"
  id $
tb-vlan1 "id number of the first translational vlan for this vlan"
  id $
tb-vlan2 "id number of the second translational vlan for this vlan"
  id $
action "action of a vlan access map"
  forward $
  drop $
    log $
match "match criteria of a vlan access map"
  ip
    address
      word $
  mac
    address
      word $
instance "map vlans to an mst instance"
  id :k
    vlan
      <vlan> :lb/le/wa $
revision "set the configuration revision number"
  id $
exit $ "apply changes, bump revision number, and exit mode"

file route_map.cfm
match "match values from routing table"
  ip
    address
      word :m/lb/le $
      prefix-list
        word :m/lb/le $
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
    word :m/lb/le $
      exact-match $
  extcommunity
    line *
  as-path
    id :m/lb/le $
  interface "match first hop interface of route"
    %IF
      line * "more interfaces"
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
  community :n
    <aa:nn> :wa/lb/le/o "community value" $
  local-preference :n
    id :o $
  metric :n
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
  weight :n
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
description :n/o "route-map comment"
  %TEXT
continue $ "continue on a different entry within the route-map"
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
maintenance-mode "maintenance mode of the standby" $
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
