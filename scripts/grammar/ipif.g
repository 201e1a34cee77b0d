file ip_interface.cfm
address "set the ip address of an interface" :n
  a.b.c.d :o/n "ip address"
    a.b.c.d/mask "ip subnet mask" $
      secondary :k/a $
        vrf
          word $
  dhcp :-k/o $
    client-id
      %IF
    hostname
      word $
  negotiated $
    previous $
  pool
    word $
unnumbered
  %IFONE
cef
  accounting
    line *
flowspec "flow specification" $ :sn
  disable $
vrf
  forwarding
    word :o $
  receive
    word $
  sitemap
    word $
access-group "specify access control for packets"
  word :o
    in :k $
    out :k $
  in :k
    word $
helper-address "specify a destination address for udp broadcasts"
  a.b.c.d :k $
  vrf
    word :k
      a.b.c.d :k $
  global
    a.b.c.d :k $
redirects $ :sn
unreachables $ :sn
proxy-arp $ :sn
local-proxy-arp $
directed-broadcast $ :sn
  id $
mask-reply $
route-cache $ :sn
  cef $ :sn
  flow $
  same-interface $
  policy $
  distributed $
mroute-cache $ :sn
split-horizon $ :sn
  eigrp
    id $
next-hop-self "use this router as the next hop"
  eigrp
    1-65535 :k/sn "autonomous system number" $
summary-address
  line *
hello-interval
  eigrp
    id
      id $
hold-time
  eigrp
    id
      id $
bandwidth-percent
  eigrp
    id
      id $
authentication
  mode
    eigrp
      id
        md5 $
  key-chain
    eigrp
      id
        word $
mtu
  68-18000 :o "mtu (bytes)" $
tcp
  adjust-mss
    id :o $
  header-compression $
    line *
virtual-reassembly $
  in $
    line *
  out $
  line *
virtual-reassembly-out $
nat
  inside $
  outside $
  enable $
policy
  route-map
    word :o $
verify
  unicast
    source
      reachable-via
        rx $
          allow-default $
            id $
          id $
        any $
          allow-default $
          id $
    reverse-path $
      id $
flow
  ingress $
  egress $
  monitor
    word :k
      input $
      output $
pim
  sparse-mode $
  dense-mode $
  sparse-dense-mode $
  dr-priority
    id $
  query-interval
    id $
      msec $
  join-prune-interval
    id $
  bsr-border $
  nbma-mode $
  passive $
  neighbor-filter
    word $
  version
    id $
  border $
igmp
  version
    id $
  query-interval
    id $
  query-max-response-time
    id $
  last-member-query-interval
    id $
  last-member-query-count
    id $
  v3-query-max-response-time
    id $
  tcn
    query
      count
        id $
      interval
        id $
  mroute-proxy "forward igmp reports to a proxy interface"
    %IF
  join-group
    a.b.c.d :k $
      source "the source of the group"
        a.b.c.d :k $
  static-group
    a.b.c.d :k $
      source "the source of the group"
        a.b.c.d :k $
  access-group
    word $
  helper-address
    a.b.c.d $
  snooping
    line *
  proxy-service $
  immediate-leave
    line *
  limit
    id $
  explicit-tracking $
  querier-timeout
    id $
cgmp $
  proxy $
dvmrp
  accept-filter
    word $
      neighbor-list
        word $
      id $
        neighbor-list
          word $
  unicast-routing $
  metric
    line *
  summary-address
    line *
  default-information
    line *
  reject-non-pruners $
  auto-summary $
mfib $
  forwarding
    input $
    output $
  cef
    input $
    output $
inspect
  word :k
    in $
    out $
ips
  word :k
    in $
    out $
ospf "ospf interface commands"
  1-65535 :o "process id"
    area
      id :o $
        secondary
          line *
      a.b.c.d :o $
  cost
    1-65535 :o "cost" $
  network
    point-to-point :-k/o $
    broadcast :-k/o $
    non-broadcast :-k/o $
    point-to-multipoint :-k/o $
      non-broadcast $
  mtu-ignore $
  priority
    0-255 :o "priority" $
  hello-interval
    1-65535 :o "seconds" $
  dead-interval
    1-65535 :o "seconds" $
    minimal
      hello-multiplier
        id $
  retransmit-interval
    id $
  transmit-delay
    id $
  authentication $
    message-digest $
    null $
    key-chain
      word $
  authentication-key
    id
      word $
    word $
  message-digest-key
    id :k/n
      md5
        id
          word $
        word $
  demand-circuit $
  bfd $
    disable $
  database-filter
    all
      out $
  flood-reduction $
  resync-timeout
    id $
  shutdown $
  ttl-security
    line *
  prefix-suppression $
    disable $
rip
  line *
arp "arp settings"
  inspection "dynamic arp inspection"
    trust "trust arp on this interface" $
    limit "arp packet rate limit"
      rate "packets per second"
        id :o "rate" $
          burst "burst interval"
            interval "interval"
              id "seconds" $
      none "no limit" $
dhcp
  relay
    information
      line *
  snooping
    line *
  client
    line *
  server
    line *
nhrp
  line *
wccp
  line *
accounting
  line *
rsvp
  line *
sap
  line *
multicast
  line *
admission
  word $
auth-proxy
  word $
urlfilter
  line *
load-sharing
  per-packet $
  per-destination $
information-reply $
security
  line *
irdp $
  line *
probe
  proxy
    line *
router
  isis $
    word $
authentication-key
  line *
bgp
  fast-external-fallover
    line *
ddns
  line *
domain
  lookup $
rtp
  line *
port-unreachable $
gratuitous-arps $

file ipv6_interface.cfm
cef $
  accounting
    line *
address
  ipv6/prefix :k "IPv6 prefix" $
    eui-64 $
    anycast $
    link-local $
  ipv6/address :k "IPv6 link-local address"
    link-local $
  autoconfig "Obtain address using autoconfiguration" $
    default $
  dhcp "Obtain a ipv6 address using dhcp" $
    rapid-commit $
  word :k "General prefix name"
    ipv6/prefix :k "sub-prefix bits and length" $
      eui-64 $
enable $
unreachables $ :sn
redirects $ :sn
nd
  ra
    suppress $
      all $
    interval
      id $
    lifetime
      id $
    solicited
      unicast $
    line *
  prefix
    default $
      line *
    framed-ipv6-prefix $
      line *
    <x:x::x/n> :k $
      line *
  reachable-time
    id $
  nud
    line *
  ns-interval
    id $
  dad
    attempts
      id $
    line *
  other-config-flag $
  managed-config-flag $
  router-preference
    line *
  suppress-ra $
  cache
    line *
  autoconfig
    line *
  ra-interval
    id $
  ra-lifetime
    id $
  prefix-advertisement
    line *
  raguard "router advertisement guard"
    attach-policy
      word :o "policy name" $
        vlan
          line *
mfib
  forwarding
    input $
    output $
  cef
    input $
    output $
ospf
  id :k
    area
      id :k $
        instance "instance id"
          id :o "instance" $
      a.b.c.d :k $
        instance "instance id"
          id :o "instance" $
  cost
    1-65535 "cost" $
  network
    line *
  mtu-ignore $
  priority
    id $
  hello-interval
    id $
  dead-interval
    id $
  authentication
    line *
  encryption
    line *
ospfv3
  line *
eigrp
  id $
rip
  word :k
    enable $
    line *
mtu
  1280-18000 :o "mtu (bytes)" $
traffic-filter
  word :k
    in $
    out $
dhcp "ipv6 dhcp interface configuration"
  server "act as a dhcpv6 server on the interface"
    word :k "pool name" $
      rapid-commit "allow the two-message exchange" $
      preference "preference advertised"
        id $
      allow-hint "allow the client's prefix hint" $
  relay "act as a dhcpv6 relay agent"
    line *
  client "act as a dhcpv6 client"
    pd "request prefix delegation"
      hint "prefix hint"
        line *
      word :o "general prefix name for the delegated prefix" $
        rapid-commit "allow the two-message exchange" $
    information "information request settings"
      line *
    request "request options"
      line *
    vendor-class "vendor class option"
      line *
policy
  line *
pim $
  line *
mld
  line *
tcp
  adjust-mss
    id $
verify
  line *
flowspec "flow specification" $ :sn
  line *
virtual-reassembly $
  line *
inspect "apply an inspection rule"
  word :k "rule name"
    in $
    out $
source-guard "ipv6 source guard"
  attach-policy
    word :o $
snooping "ipv6 snooping" $
  attach-policy
    word :o $
nat $
  line *
access-list
  word $
    line *
source-route $
flow
  line *
router "ipv6 routing protocol"
  isis "is-is routing" $
    word :k "routing process tag" $

nhrp "ipv6 next hop resolution"
  map
    multicast
      dynamic $
      word $
    line *
  network-id
    id :o $
  holdtime
    id :o $
  nhs
    line *
  line *
