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
client
  line *
server-key
  line *
auth-type
  line *
attribute
  line *

file key_chain.cfm
key
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
description :n/o
  %TEXT

file policy_map.cfm
class "policy criteria"
  word :k @(config-pmap-c)#=policy_map_class.cfm
    type
      inspect @(config-pmap-c)#=policy_map_class.cfm
  type
    inspect
      word :k @(config-pmap-c)#=policy_map_class.cfm
description :n/o
  %TEXT

file policy_map_class.cfm
bandwidth "bandwidth"
  id :o $
  percent
    id :o $
  remaining
    percent
      id :o $
    ratio
      id :o $
priority
  id :o $
    id $
  percent
    id :o $
      id $
  level
    id $
police
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
shape
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
set
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
queue-limit
  id :o $
    line *
random-detect $
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
fair-queue $
  id $
service-policy
  word :o $
inspect $
  word $
drop $
  log $
pass $
  log $
conform-action
  line *
exceed-action
  line *
violate-action
  line *
compression
  line *
estimate
  line *
admit
  line *
account $
trust
  line *
log $

file crypto_isakmp.cfm
encr "encryption"
  aes :o $
    id $
  3des :o $
  des :o $
encryption
  line *
hash
  md5 :o $
  sha :o $
  sha256 :o $
  sha384 :o $
  sha512 :o $
authentication
  pre-share :o $
  rsa-sig :o $
  rsa-encr :o $
  ecdsa-sig :o $
group
  id :o $
lifetime
  id :o $
key
  line * :o
pool
  word :o $
dns
  a.b.c.d $
    a.b.c.d $
domain
  word $
acl
  word :o $
save-password $
include-local-lan $
split-dns
  word $
netmask
  a.b.c.d $
max-users
  id $
max-logins
  id $
banner
  line *
firewall
  line *
backup-gateway
  line *
pfs $
dhcp
  line *
wins
  line *
crypto
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
set
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
match
  address
    word :o $
reverse-route $
  static $
  remote-peer
    line *
  line *
description :n/o
  %TEXT
qos
  pre-classify $
dialer
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
