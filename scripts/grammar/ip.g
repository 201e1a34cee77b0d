# Global "ip ..." and "ipv6 ..." commands.

file ip_global.cfm
cef "cisco express forwarding" $ :sb/o
  distributed $
  accounting :n
    line *
  load-sharing
    line *
  optimize
    line *
routing "ip routing" $ :sn
  protocol
    purge
      interface $
classless $ :sn
subnet-zero $ :sn
source-route $ :sn
gratuitous-arps $ :sn
  non-local "gratuitous arps for addresses of other subnets" $
finger $ :sn
bootp
  server $ :sn
domain-lookup $ :sn
  source-interface
    %IFONE
domain "domain name system"
  lookup $ :sn
    source-interface
      %IFONE
    nsap "nsap lookups" $
  name :o/n
    word :o $
    vrf
      word :k
        word $
  list
    word :k $
  timeout
    id $
  retry
    id $
domain-list "domain name to complete unqualified host names"
  word :k "a domain name" $
  vrf "vrf of the list"
    word :k "vrf name"
      word :k "a domain name" $
domain-name
  word :o $
  vrf
    word :k
      word $
name-server
  vrf
    word :k
      a.b.c.d :k $
        a.b.c.d :k $
          a.b.c.d :k $
            a.b.c.d :k $
              a.b.c.d :k $
                a.b.c.d :k $
  a.b.c.d :k $
    a.b.c.d :k $
      a.b.c.d :k $
        a.b.c.d :k $
          a.b.c.d :k $
            a.b.c.d :k $
  word :k $
host
  word :k
    a.b.c.d $
      a.b.c.d $
    id
      a.b.c.d $
forward-protocol
  nd $ :sb/o
  udp $
    &portfile.cfm :k $
http
  server $ :sb/o
  secure-server $ :sb/o
  authentication
    local $
    aaa $
      login-authentication
        word $
    enable $
  access-class
    word $
      ipv4
        word $
  max-connections
    id $
  timeout-policy
    linger
      id :o $
    idle
      id
        life
          id
            requests
              id $
  path $
    line *
  upload "file upload"
    overwrite $
    enable $
      path
        word $
  digest "digest authentication"
    algorithm
      md5 $
      sha-256 $
  help-path "help page path"
    word :o $
  client
    source-interface
      %IFONE
    line *
  port
    id $
  secure-trustpoint
    word $
  secure-ciphersuite
    line *
  secure-port
    id $
  active-session-modules
    line *
  session-module-list
    line *
  secure-active-session-modules
    line *
  tls-version
    line *
ssh "configure secure shell"
  version
    id :o $
  time-out
    id :o $
  authentication-retries
    id :o $
  source-interface
    %IFONE
  logging
    events $
  rsa
    keypair-name
      word $
  server
    certificate "server certificate settings"
      profile "certificate profile" @(ssh-server-cert-profile)#=ssh_cert_profile.cfm
    algorithm "algorithms the server offers"
      encryption "encryption algorithms, in order of preference"
        %SSHENC
          line * "further algorithms"
      mac "mac algorithms, in order of preference"
        %SSHMAC
          line * "further algorithms"
      kex "key exchange algorithms, in order of preference"
        %SSHKEX
          line * "further algorithms"
      hostkey "host key algorithms, in order of preference"
        %SSHHOSTKEY
          line * "further algorithms"
      publickey "public key algorithms, in order of preference"
        %SSHHOSTKEY
          line * "further algorithms"
      authentication "user authentication methods, in order of preference"
        %SSHAUTH
          line * "further methods"
    line *
  client
    line *
  dh
    min
      size
        id $
  pubkey-chain @(conf-ssh-pubkey)#=ssh_pubkey.cfm
  port
    line *
  dscp
    id $
  precedence
    id $
  break-string
    line *
  maxstartups
    id $
  bulk-mode $
    line *
scp
  server
    enable $
tftp
  min-timeout "minimum timeout"
    id :o $
  claim-netascii "claim netascii transfers" $
  source-interface
    %IFONE
  blocksize
    id $
ftp
  source-interface
    %IFONE
  username
    word $
  password
    id
      word $
    word $
  passive $
telnet
  timeout "telnet timeouts"
    retransmit
      id :o $
  quiet "no telnet banners" $
  comport "telnet com port control"
    enable $
    flow
      level
        id :o $
    receive
      window
        id :o $
    disconnect
      delay
        id :o $
  source-interface
    %IFONE
  tos
    <value> $
  hidden
    line *
tcp
  synwait-time
    id :o $
  path-mtu-discovery $
    age-timer
      id $
  selective-ack $
  timestamp $
  window-size
    id $
  queuemax
    id $
  mss
    id $
  ecn $
  intercept
    line *
  delayed-ack "delayed acknowledgements" $
  chunk-size "tcp chunk size"
    id :o $
  keepalive "tcp keepalives"
    retries
      id :o $
    interval
      id :o $
  async-mobility "asynchronous mobility"
    server $
  rst-count "reset count"
    id
      rst-window
        id :o $
route "establish static routes"
  a.b.c.d :k "destination prefix"
    a.b.c.d/mask :k "destination prefix mask"
      %IF
        a.b.c.d :k "forwarding router's address" $
          id :o "distance metric" $
            line * :o
          line * :o
        id :o "distance metric" $
        line * :o
      a.b.c.d :k "forwarding router's address" $
        id :o "distance metric" $
          line * :o
        line * :o
      dhcp $
        id $
  vrf
    word :k
      a.b.c.d :k
        a.b.c.d :k
          %IF
            a.b.c.d :k $
              line *
            id $
            line *
          a.b.c.d :k $
            line *
          dhcp $
  static
    word :k/n $
      line * :o
access-list "named access list"
  standard
    word :k @(config-std-nacl)#=acl_std.cfm
  extended
    word :k @(config-ext-nacl)#=acl_ext.cfm
  log-update
    threshold
      id $
  logging
    line *
  resequence
    line *
  role-based
    word :k @(config-rb-acl)#=acl_ext.cfm
  helper "access list helpers"
    egress
      check $
prefix-list "build a prefix list"
  word :k/n
    seq
      id :k/n
        permit :-k/o
          a.b.c.d/<1-32> :o $
            ge :-k
              id :o $
                le :-k
                  id :o $
            le :-k
              id :o $
        deny :-k/o
          a.b.c.d/<1-32> :o $
            ge :-k
              id :o $
                le :-k
                  id :o $
            le :-k
              id :o $
    permit
      a.b.c.d/<1-32> :k $
        ge
          id $
            le
              id $
        le
          id $
    deny
      a.b.c.d/<1-32> :k $
        ge
          id $
            le
              id $
        le
          id $
    description :n/o
      %TEXT
  sequence-number $
community-list "add a community list entry"
  standard
    word :k/n
      permit
        %COMMUNITY
      deny
        %COMMUNITY
  expanded
    word :k/n
      permit
        %TEXT
      deny
        %TEXT
  id :k/n
    permit
      %COMMUNITY
    deny
      %COMMUNITY
extcommunity-list
  standard
    word :k
      permit
        line *
      deny
        line *
  expanded
    word :k
      permit
        line *
      deny
        line *
  id :k
    permit
      line *
    deny
      line *
as-path
  access-list
    id :k/n
      permit
        %TEXT
      deny
        %TEXT
bgp-community
  new-format $ :o
nat "nat configuration"
  inside
    source
      list "specify access list describing local addresses"
        word :k "access list name or number"
          %NATTARGET
      route-map "specify route-map"
        word :k "route-map name"
          %NATTARGET
      static
        a.b.c.d :k
          a.b.c.d :k $
            line *
          interface
            %IF
              line *
        tcp
          a.b.c.d :k
            id :k
              a.b.c.d :k
                id :k $
                  line *
              interface
                %IF
                  id :k $
                    line *
        udp
          a.b.c.d :k
            id :k
              a.b.c.d :k
                id :k $
                  line *
              interface
                %IF
                  id :k $
                    line *
        network
          line *
    destination
      line *
  outside
    source
      line *
  pool
    word :k
      a.b.c.d
        a.b.c.d
          netmask
            a.b.c.d $
              line *
          prefix-length
            id $
              line *
      netmask
        a.b.c.d @(config-ipnat-pool)#=generic.cfm
      prefix-length
        id @(config-ipnat-pool)#=generic.cfm
  translation
    line *
  log
    line *
  service
    line *
dhcp "configure dhcp server and relay parameters"
  pool "Configure DHCP address pools"
    word :k "Pool name" @(dhcp-config)#=dhcp_pool.cfm
  class "configure a dhcp class"
    word :k "class name" @(config-dhcp-class)#=dhcp_class.cfm
  excluded-address
    a.b.c.d :k $
      a.b.c.d :k $
    vrf
      word :k
        a.b.c.d :k $
          a.b.c.d :k $
  snooping $
    line *
  relay
    line *
  conflict
    logging $
  database
    line *
  ping
    line *
  bootp
    ignore $
  binding "dhcp bindings"
    cleanup
      interval
        id :o $
  use
    line *
  compatibility
    line *
  smart-relay $
sla "ip service level agreement"
  id :k @(config-ip-sla)#=ip_sla.cfm
  monitor
    id :k @(config-sla-monitor)#=ip_sla.cfm
    schedule
      line *
  schedule "schedule an operation"
    id :k/n/o "operation number"
      line * $
  responder $
    twamp "twamp responder" @(config-twamp-srvr)#=generic.cfm
  server "sla servers"
    twamp "twamp server" @(config-twamp-srvr)#=generic.cfm
  low-memory "memory reserve"
    id :o $
  logging
    traps $
  enable
    reaction-alerts $
  reaction-configuration
    line *
  group "group operations"
    schedule "schedule a group of operations"
      id :k "group number"
        line *
  auto
    line *
inspect "context-based access control"
  name
    word :k
      &protocolfile.cfm :k $
        line *
      word :k $
        line *
  tcp
    line *
  udp
    line *
  dns-timeout
    id $
  alert-off $
  fast "fast path inspection" $
  audit-trail $
  max-incomplete
    line *
  one-minute
    line *
  hashtable-size
    id $
  log
    line *
ips
  name
    word :k $
      line *
  line *
multicast-routing $
  vrf
    word :k $
      distributed $
  distributed $
multicast
  line *
pim
  line *
igmp
  line *
wccp
  line *
sla-monitor
  line *
vrf "configure an ip vrf"
  word :k @(config-vrf)#=vrf.cfm
explicit-path
  name
    word :k $
      enable @(cfg-ip-expl-path)#=generic.cfm
  identifier
    id :k $
      enable @(cfg-ip-expl-path)#=generic.cfm
local
  pool
    word :k
      a.b.c.d
        a.b.c.d $
          line *
      line *
  policy
    route-map
      word $
default-gateway
  a.b.c.d :o $
default-network
  a.b.c.d $
flow-export
  line *
flow-cache
  line *
flow
  line *
accounting-threshold
  id $
accounting-list
  line *
options
  drop $
  ignore $
icmp
  rate-limit
    line *
  redirect
    line *
arp
  line *
radius
  source-interface
    %IFONE
tacacs
  source-interface
    %IFONE
ospf
  name-lookup $
dns
  server $
    line *
  view
    line *
  spoofing
    line *
rcmd
  line *
auth-proxy
  line *
admission
  line *
msdp
  line *
rsvp
  line *
mroute
  line *
bgp
  line *
extcommunity
  line *
device
  tracking $
    line *
  line *
port-map
  line *
urlfilter
  line *
audit
  line *
policy-list
  line *
mfib $
  line *
nhrp
  line *
security
  line *
wlan
  line *
ddns
  line *
virtual-reassembly
  line *
reflexive-list
  timeout
    id $
forward-protocol-nd $
vrrp
  line *
pim-vrf
  line *
gdoi
  line *

# The next hop of an IPv6 static route (an interface, an address or both)
# and the options that may follow it.
def V6ROPT
  tag "set tag for this route"
    id "tag value" $
      line * "further options"
  name "specify name of the next hop"
    word "name of the next hop" $
      line * "further options"
  permanent "permanent route" $
    line * "further options"
  track "install route depending on tracked item"
    id "tracked object number" $
      line * "further options"
  multicast "route only for multicast" $
  unicast "route only for unicast" $

def V6HOP
  id "administrative distance" $
    %V6ROPT
  %V6ROPT

# The catch-all next hop also takes an interface name (the catch-all is
# tried before an interface name is cut), so it may be followed by the
# address of a next hop on that interface. The interface table stays for the
# help listing.
def V6ROUTE
  %IF
    word :k "ipv6 address of the next hop" $
      %V6HOP
    %V6HOP
  word :k "next hop address or interface" $
    word :k "ipv6 address of the next hop" $
      %V6HOP
    %V6HOP

file ipv6_global.cfm
unicast-routing $
cef $ :sb/o
  distributed $
  optimize "cef optimizations"
    neighbor
      resolution $
  load-sharing "load sharing"
    algorithm
      original $
      universal $
        word :o "fixed identifier" $
      include-ports
        source $
          destination $
        destination $
multicast-routing $
  line *
multicast
  line *
route "establish static routes"
  ipv6/prefix :k "ipv6 prefix"
    %V6ROUTE
  vrf "vrf of the route"
    word :k "vrf name"
      ipv6/prefix :k "ipv6 prefix"
        %V6ROUTE
  static
    line *
router
  ospf
    id :k @(config-rtr)#=router_ospf.cfm
  eigrp
    id :k @(config-rtr)#=router_eigrp.cfm
    word :k @(config-rtr)#=router_eigrp.cfm
  rip
    word :k @(config-rtr)#=router_rip.cfm
access-list
  word :k @(config-ipv6-acl)#=acl_ipv6.cfm
prefix-list
  sequence-number "sequence numbers in prefix lists" $
  word :k/n
    seq
      id :k/n
        permit :-k/o
          ipv6/prefix :o $
            ge :-k
              id :o $
                le :-k
                  id :o $
            le :-k
              id :o $
        deny :-k/o
          ipv6/prefix :o $
            ge :-k
              id :o $
                le :-k
                  id :o $
            le :-k
              id :o $
    line *
source-route $ :sn
traffic "ipv6 traffic"
  interface-statistics "per-interface statistics" $
mfib "ipv6 multicast forwarding" $
  line *
dhcp-relay "dhcpv6 relay settings"
  option
    vpn $
    remote-id
      format
        line *
  source-interface
    %IFONE
inspect "ipv6 inspection"
  name "inspection rule"
    word :k
      &protocolfile.cfm :k $
        line *
      word :k $
        line *
  max-incomplete
    low
      id :o $
    high
      id :o $
  one-minute
    low
      id :o $
    high
      id :o $
  udp
    idle-time
      id :o $
  tcp
    idle-time
      id :o $
    finwait-time
      id :o $
    synwait-time
      id :o $
    max-incomplete
      host
        id
          block-time
            id :o $
  hashtable-size
    id :o $
  alert-off $
  audit-trail $
  routing-header $
rip "ipv6 rip"
  vrf-mode
    enable $
spd "ipv6 selective packet discard"
  queue
    min-threshold
      id :o $
    max-threshold
      id :o $
mux "ipv6 mux"
  cache
    id :o $
icmp
  error-interval
    id $
      id $
ioam
  timestamp $
dhcp
  pool
    word :k @(config-dhcpv6)#=ipv6_dhcp_pool.cfm
  line *
general-prefix
  line *
neighbor
  line *
nd
  line *
local
  line *
host
  line *
flowset $
hop-limit
  id $
mld
  line *
pim
  line *
