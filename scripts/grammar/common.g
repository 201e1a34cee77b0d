# Fragments shared by several modes.

def IF
  &interfacefile.cfm "interface type"
    <number> :k "interface number" $

def TEXT
  line * "text"

def ADDR
  any "any address" $
  host "a single host"
    a.b.c.d :k "host address" $
  a.b.c.d :k "address"
    a.b.c.d :k "wildcard bits" $
  object-group "network object group"
    word :k "object group name" $

def SADDR
  any "any address" $
  host "a single host"
    a.b.c.d :k "host address" $
  a.b.c.d :k "address" $
    a.b.c.d :k "wildcard bits" $

def PORT
  eq "port equal to"
    &portfile.cfm :k/lb/le "port" $
  neq "port not equal to"
    &portfile.cfm :k "port" $
  gt "port greater than"
    &portfile.cfm :k "port" $
  lt "port less than"
    &portfile.cfm :k "port" $
  range "port range"
    &portfile.cfm :k "first port"
      &portfile.cfm :k "last port" $

def ACLOPTS
  log  "log matches" $
  log-input  "log matches with the input interface" $
  established  "established connections" $
    log $
    log-input $
  fragments  "non-initial fragments" $
    log $
    log-input $
  echo  "echo" $
    log $
    log-input $
  echo-reply  "echo reply" $
    log $
    log-input $
  unreachable  "unreachable" $
    log $
    log-input $
  time-exceeded  "time exceeded" $
    log $
    log-input $
  packet-too-big  "packet too big" $
    log $
    log-input $
  port-unreachable  "port unreachable" $
    log $
    log-input $
  administratively-prohibited  "administratively prohibited" $
    log $
    log-input $
  traceroute  "traceroute" $
    log $
    log-input $
  nd-na  "neighbor advertisement" $
    log $
    log-input $
  nd-ns  "neighbor solicitation" $
    log $
    log-input $
  router-advertisement  "router advertisement" $
    log $
    log-input $
  router-solicitation  "router solicitation" $
    log $
    log-input $
  syn  "syn flag" $
    log $
    log-input $
  ack  "ack flag" $
    log $
    log-input $
  rst  "rst flag" $
    log $
    log-input $
  fin  "fin flag" $
    log $
    log-input $
  dscp "dscp value"
    <value> "dscp" $
  precedence "precedence value"
    <value> "precedence" $
  tos "type of service"
    <value> "tos" $
  time-range "time range"
    word "time range name" $
  ttl "time to live"
    eq
      id $
    gt
      id $
    lt
      id $
  option "ip option"
    word $
  sequence "sequence number"
    id $

def COMMUNITY
  <aa:nn> :wa/lb/le "community value" $
