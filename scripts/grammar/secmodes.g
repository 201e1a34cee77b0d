file aaa_group.cfm
server
  a.b.c.d :k $
    line *
  name
    word :k $
  word :k $
    line *
ip
  tacacs
    source-interface
      %IF
  radius
    source-interface
      %IF
  vrf
    forwarding
      word $
deadtime "time to skip a dead server"
  id :o "minutes" $
load-balance "server load balancing"
  line * :o
client
  line *
server-key
  line *
auth-type
  line *
attribute
  line *

file key_chain.cfm
key "configure a key"
  id :k @(config-keychain-key)#=key_chain_key.cfm

file key_chain_key.cfm
key-string
  id
    line * :o
  line * :o
accept-lifetime
  line *
send-lifetime
  line *
cryptographic-algorithm
  word $

file class_map.cfm
match "classification criteria"
  ip
    dscp
      <value> :k * 
    precedence
      <value> :k *
    rtp
      line *
  dscp
    <value> :k *
  precedence
    <value> :k *
  access-group
    id :k $
    name
      word :k $
  any $
  class-map
    word $
  cos
    <value> :k *
  mpls
    experimental
      topmost
        <value> :k *
      <value> :k *
  qos-group
    id :k $
  protocol
    word :k $
      line *
  input-interface
    %IF
  interface
    %IF
  destination-address
    line *
  source-address
    line *
  packet
    length
      line *
  vlan
    line *
  discard-class
    id $
  not
    line *
  fr-de $
  atm
    line *
  application
    line *
  security-group
    line *
description :n/o "class-map description"
  %TEXT

file policy_map.cfm
class "policy criteria"
  word :k @(config-pmap-c)#=policy_map_class.cfm
    type
      inspect @(config-pmap-c)#=policy_map_class.cfm
  type
    inspect
      word :k @(config-pmap-c)#=policy_map_class.cfm
description :n/o "policy-map description"
  %TEXT

file policy_map_class.cfm
bandwidth "bandwidth guaranteed to this class"
  id :o $
  percent
    id :o $
  remaining
    percent
      id :o $
    ratio
      id :o $
priority "strict scheduling priority for this class"
  id :o $
    id $
  percent
    id :o $
      id $
  level
    id $
police "police the traffic of this class"
  cir
    percent
      id :o $
        line *
    id :o $
      line *
  rate
    line *
  id :o $
    line *
shape "traffic shaping"
  average
    id :o $
      line *
    percent
      id :o $
        line *
  peak
    line *
  max-buffers
    id $
  adaptive
    line *
set "set qos values"
  dscp
    line *
  ip
    line *
  precedence
    line *
  qos-group
    id :o $
  discard-class
    id :o $
  mpls
    experimental
      line *
  cos
    line *
  fr-de $
  atm-clp $
queue-limit "queue max threshold for tail drop"
  id :o $
    line *
random-detect $ "enable random early detection as drop policy"
  dscp-based $
  prec-based $
  discard-class-based $
  dscp
    line *
  precedence
    line *
  discard-class
    line *
  exponential-weighting-constant
    id $
  ecn $
fair-queue $ "enable flow-based fair queuing"
  id $
service-policy "configure flow next"
  word :o $
inspect $ "context-based access control engine"
  word $
drop $ "drop all packets"
  log $
pass $ "pass packets"
  log $
conform-action "action when rate is within conform burst"
  line *
exceed-action "action when rate is within conform and conform + exceed burst"
  line *
violate-action "action when rate is greater than conform + exceed burst"
  line *
compression "activate compression"
  line *
estimate "estimate resources required for this class"
  line *
admit "admission control"
  line *
account $ "overhead accounting"
trust "set trust value for the class"
  line *
log $ "log ipv4 and arp packets"

file crypto_isakmp.cfm
encr "encryption"
  aes :o $
    id $
  3des :o $
  des :o $
encryption "set encryption algorithm for protection suite"
  line *
hash "set hash algorithm for protection suite"
  md5 :o $
  sha :o $
  sha256 :o $
  sha384 :o $
  sha512 :o $
authentication "set authentication method for protection suite"
  pre-share :o $
  rsa-sig :o $
  rsa-encr :o $
  ecdsa-sig :o $
group "set the diffie-hellman group"
  id :o $
lifetime "set lifetime for isakmp security association"
  id :o $
key "pre-shared key for remote peer"
  line * :o
pool "set name of address pool"
  word :o $
dns "specify dns addresses"
  a.b.c.d $
    a.b.c.d $
domain "set default domain name to send to client"
  word $
acl "specify split tunneling inclusion access-list number"
  word :o $
save-password $ "allows remote client to save xauth password"
include-local-lan $ "enable local lan access with no split tunnel"
split-dns "dns name to append for resolution"
  word $
netmask "netmask used by the client for local connectivity"
  a.b.c.d $
max-users "set maximum number of users for this group"
  id $
max-logins "set maximum simultaneous logins for users"
  id $
banner "specify mode config banner"
  line *
firewall "enforce group firewall policy"
  line *
backup-gateway "specify backup gateway"
  line *
pfs $ "the client should propose pfs"
dhcp "configure dhcp parameters"
  line *
wins "specify wins addresses"
  line *
crypto "client crypto settings"
  aaa
    line *

file crypto_isakmp_prof.cfm
vrf
  word :o $
keyring
  word :o $
match
  identity
    address
      a.b.c.d :k $
        a.b.c.d $
        word $
          line *
      ipv6
        line *
    host
      line *
    group
      word :k $
    user
      line *
  certificate
    word $
local-address
  %IF
  a.b.c.d $
    line *
self-identity
  line *
keepalive
  line *
initiate
  mode
    aggressive $
client
  configuration
    line *
  authentication
    line *
isakmp
  authorization
    line *
virtual-template
  id $
ca
  trust-point
    word $
description :n/o
  %TEXT
qos-group
  id $
accounting
  word $
dpd
  line *

file crypto_keyring.cfm
pre-shared-key
  address
    a.b.c.d :k
      a.b.c.d :k
        key
          line *
      key
        line *
    ipv6
      line *
  hostname
    word :k
      key
        line *
local-address
  %IF
  a.b.c.d $
    line *
description :n/o
  %TEXT
rsa-pubkey
  line *

file crypto_transform.cfm
mode
  tunnel :o $
  transport :o $
    require $

file crypto_map.cfm
set "set values for encryption/decryption"
  peer
    a.b.c.d :k $
      default $
      dynamic $
    word :k $
      dynamic $
      default $
  transform-set
    word :m $
      word :m $
        word :m $
  pfs $
    word :o $
  isakmp-profile
    word :o $
  security-association
    lifetime
      seconds
        id :o $
      kilobytes
        id :o $
        disable $
    level
      line *
    idle-time
      line *
    replay
      line *
  ikev2-profile
    word :o $
  reverse-route
    line *
  nat
    line *
  group
    line *
  identity
    line *
  ip
    line *
match "match values"
  address
    word :o $
reverse-route $ "reverse route injection"
  static $
  remote-peer
    line *
  line *
description :n/o "description of the crypto map statement policy"
  %TEXT
qos "quality of service related commands"
  pre-classify $
dialer "dialer related commands"
  line *

file crypto_pki.cfm
enrollment
  line *
serial-number $
  none $
ip-address
  line *
subject-name
  line *
subject-alt-name
  line *
revocation-check
  line *
rsakeypair
  word :o $
    line *
fqdn
  line *
auto-enroll
  line *
usage
  line *
password
  line *
hash
  line *
fingerprint
  line *
chain-validation
  line *
crl
  line *
database
  line *
issuer-name
  line *
lifetime
  line *
grant
  line *
source
  line *
vrf
  word $
storage
  line *
eku
  line *
match
  line *
trustpoint
  line *
no-shutdown $

file crypto_cert.cfm
certificate
  self-signed
    word :k $
  ca
    word :k $
  rollover
    line *
  word :k $


file crypto_ikev2.cfm
encryption
  line *
integrity
  line *
group
  line *
prf
  line *
proposal
  line *
match
  line *
peer
  word :k @(config-ikev2-keyring-peer)#=crypto_ikev2.cfm
address
  line *
pre-shared-key
  line *
authentication
  line *
keyring
  line *
identity
  line *
lifetime
  line *
dpd
  line *
description :n/o
  %TEXT
