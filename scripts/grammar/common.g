# Fragments shared by several modes.

def IF
  &interfacefile.cfm "interface type"
    <number> :k "interface number" $

def IFONE
  &interfacefile.cfm :-k/o "interface type"
    <number> :o "interface number" $

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
    a.b.c.d :k/n "host address" $
  a.b.c.d :k/n "address" $
    a.b.c.d :k/n "wildcard bits" $

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

def ACLTAIL
  log "log matches" $
    word "log tag" $
  log-input "log matches with the input interface" $
    word "log tag" $
  time-range "time range"
    word "time range name" $
      log "log matches" $
      log-input "log matches with the input interface" $

def ACLOPTS
  %ACLTAIL
  established "established connections" $
    %ACLTAIL
  fragments "non-initial fragments" $
    %ACLTAIL
  echo "echo" $
    %ACLTAIL
  echo-reply "echo reply" $
    %ACLTAIL
  unreachable "unreachable" $
    %ACLTAIL
  time-exceeded "time exceeded" $
    %ACLTAIL
  packet-too-big "packet too big" $
    %ACLTAIL
  port-unreachable "port unreachable" $
    %ACLTAIL
  administratively-prohibited "administratively prohibited" $
    %ACLTAIL
  traceroute "traceroute" $
    %ACLTAIL
  nd-na "neighbor advertisement" $
    %ACLTAIL
  nd-ns "neighbor solicitation" $
    %ACLTAIL
  router-advertisement "router advertisement" $
    %ACLTAIL
  router-solicitation "router solicitation" $
    %ACLTAIL
  syn "syn flag" $
    %ACLTAIL
    line * "further tcp flags and options"
  ack "ack flag" $
    %ACLTAIL
    line * "further tcp flags and options"
  rst "rst flag" $
    %ACLTAIL
    line * "further tcp flags and options"
  fin "fin flag" $
    %ACLTAIL
    line * "further tcp flags and options"
  psh "psh" $
    %ACLTAIL
    line * "further tcp flags and options"
  urg "urg" $
    %ACLTAIL
    line * "further tcp flags and options"
  host-unreachable "host unreachable" $
    %ACLTAIL
  net-unreachable "net unreachable" $
    %ACLTAIL
  protocol-unreachable "protocol unreachable" $
    %ACLTAIL
  redirect "redirect" $
    %ACLTAIL
  parameter-problem "parameter problem" $
    %ACLTAIL
  source-quench "source quench" $
    %ACLTAIL
  timestamp-request "timestamp request" $
    %ACLTAIL
  timestamp-reply "timestamp reply" $
    %ACLTAIL
  mask-request "mask request" $
    %ACLTAIL
  mask-reply "mask reply" $
    %ACLTAIL
  information-request "information request" $
    %ACLTAIL
  information-reply "information reply" $
    %ACLTAIL
  match-any "match any of the tcp flags"
    line * "tcp flags (+flag or -flag) and options"
  match-all "match all of the tcp flags"
    line * "tcp flags (+flag or -flag) and options"
  id "icmp message type" $
    id "icmp message code" $
      %ACLTAIL
    %ACLTAIL
  dscp "dscp value"
    <value> "dscp" $
      %ACLTAIL
  precedence "precedence value"
    <value> "precedence" $
      %ACLTAIL
  tos "type of service"
    <value> "tos" $
      %ACLTAIL
  option "ip option"
    word "option" $
      %ACLTAIL
  sequence "sequence number"
    id "sequence number" $
      %ACLTAIL
  ttl "time to live"
    eq
      id $
        %ACLTAIL
    gt
      id $
        %ACLTAIL
    lt
      id $
        %ACLTAIL
    neq
      id $
        %ACLTAIL
    range
      id
        id $
          %ACLTAIL

def COMMUNITY
  <aa:nn> :wa/lb/le "community value" $

# The target of a dynamic translation and the options behind it.
def NATTAIL
  overload "overload an address translation" $
    %NATOPT
  vrf "specify vrf"
    word :k "vrf name" $
      match-in-vrf "match in vrf" $
        overload "overload an address translation" $
      overload "overload an address translation" $
        %NATOPT
  %NATOPT

def NATOPT
  reversible "allow out->in traffic" $
  no-payload "no translation of embedded addresses" $
  redundancy "nat redundancy"
    line *

def NATTARGET
  interface "specify interface for global address"
    %IF
      %NATTAIL
  pool "name pool of global addresses"
    word :k "pool name" $
      %NATTAIL

# The password of a user, after the name, the privilege or the view.
def USERSECRET
  password "specify the password for the user"
    id "encryption type"
      line * :o "the password"
    line * :o "the password"
  secret "specify the secret for the user"
    id "encryption type"
      line * :o "the secret"
    line * :o "the secret"
  nopassword "no password is required" $

# A storm-control threshold: a percentage (1.00), bits or packets per
# second, each with an optional falling threshold.
def STORMLEVEL
  level :n "threshold level" $
    <level> :o "rising threshold" $
      <level> "falling threshold" $
    bps "bits per second"
      <rate> :o "rising threshold" $
        <rate> "falling threshold" $
    pps "packets per second"
      <rate> :o "rising threshold" $
        <rate> "falling threshold" $
  include "include traffic"
    line *

# Algorithm names of the ssh server lists. A list holds one value per kind:
# a new list replaces the old one.
def SSHENC
aes128-ctr :-k/o $
aes192-ctr :-k/o $
aes256-ctr :-k/o $
aes128-cbc :-k/o $
aes192-cbc :-k/o $
aes256-cbc :-k/o $
aes128-gcm :-k/o $
aes256-gcm :-k/o $
aes128-gcm@openssh.com :-k/o $
aes256-gcm@openssh.com :-k/o $
chacha20-poly1305@openssh.com :-k/o $
3des-cbc :-k/o $

def SSHMAC
hmac-sha1 :-k/o $
hmac-sha1-96 :-k/o $
hmac-sha2-256 :-k/o $
hmac-sha2-512 :-k/o $
hmac-sha2-256-etm@openssh.com :-k/o $
hmac-sha2-512-etm@openssh.com :-k/o $

def SSHKEX
diffie-hellman-group14-sha1 :-k/o $
diffie-hellman-group14-sha256 :-k/o $
diffie-hellman-group16-sha512 :-k/o $
ecdh-sha2-nistp256 :-k/o $
ecdh-sha2-nistp384 :-k/o $
ecdh-sha2-nistp521 :-k/o $
curve25519-sha256 :-k/o $
curve25519-sha256@libssh.org :-k/o $

def SSHHOSTKEY
rsa-sha2-256 :-k/o $
rsa-sha2-512 :-k/o $
ssh-rsa :-k/o $
x509v3-ssh-rsa :-k/o $
ecdsa-sha2-nistp256 :-k/o $
ecdsa-sha2-nistp384 :-k/o $
ecdsa-sha2-nistp521 :-k/o $
ssh-ed25519 :-k/o $

def SSHAUTH
password :-k/o $
keyboard :-k/o $
publickey :-k/o $
