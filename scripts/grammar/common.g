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
    &portfile.cfm :k "port" $
      &portfile.cfm :k "port" $
        &portfile.cfm :k "port" $
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
  log :ob/oe "log matches" $
  log-input :ob/oe "log matches with the input interface" $
  established :ob/oe "established connections" $
  fragments :ob/oe "non-initial fragments" $
  echo :ob/oe "echo" $
  echo-reply :ob/oe "echo reply" $
  unreachable :ob/oe "unreachable" $
  time-exceeded :ob/oe "time exceeded" $
  packet-too-big :ob/oe "packet too big" $
  port-unreachable :ob/oe "port unreachable" $
  administratively-prohibited :ob/oe "administratively prohibited" $
  traceroute :ob/oe "traceroute" $
  nd-na :ob/oe "neighbor advertisement" $
  nd-ns :ob/oe "neighbor solicitation" $
  router-advertisement :ob/oe "router advertisement" $
  router-solicitation :ob/oe "router solicitation" $
  syn :ob/oe "syn flag" $
  ack :ob/oe "ack flag" $
  rst :ob/oe "rst flag" $
  fin :ob/oe "fin flag" $
  dscp :ob "dscp value"
    <value> :oe "dscp" $
  precedence :ob "precedence value"
    <value> :oe "precedence" $
  tos :ob "type of service"
    <value> :oe "tos" $
  time-range :ob "time range"
    word :oe "time range name" $
  ttl :ob "time to live"
    eq
      id :oe $
    gt
      id :oe $
    lt
      id :oe $
  option :ob "ip option"
    word :oe $
  sequence :ob "sequence number"
    id :oe $

def COMMUNITY
  <aa:nn> :wa/lb/le "community value" $
