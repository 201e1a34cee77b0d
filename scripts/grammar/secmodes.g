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
    input "input access group"
      name
        word :k $
    output "output access group"
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

# Police actions. On the police line they follow one another (conform,
# exceed, violate), each stage a file of its own that the leaves of the stage
# before include, so the option tree is not copied under every rate. On the
# police level each action stands on a line of its own, and a new one replaces
# the old: the action words carry no k.
def PACT
  transmit :-k/o "transmit the packet" $
  drop :-k/o "drop the packet" $
  set-dscp-transmit :-k/o "set dscp and send it"
    word "dscp value" $
  set-prec-transmit :-k/o "rewrite precedence and send it"
    id "precedence value" $
  set-qos-transmit :-k/o "set qos-group and send it"
    id "qos-group value" $
  set-cos-transmit :-k/o "set cos and send it"
    id "cos value" $
  set-discard-class-transmit :-k/o "set discard-class and send it"
    id "discard-class value" $
  set-mpls-exp-imposition-transmit :-k/o "set exp at tag imposition and send it"
    id "exp value" $
  set-mpls-exp-topmost-transmit :-k/o "set exp on topmost label and send it"
    id "exp value" $
  set-frde-transmit :-k/o "set fr de and send it" $
  set-clp-transmit :-k/o "set atm clp and send it" $

def PCONFORM
  conform-action "action when rate is less than conform burst" &police_conform.cfm

file police_conform.cfm
transmit :-k/o "transmit the packet" $ &police_exceed.cfm
drop :-k/o "drop the packet" $ &police_exceed.cfm
set-dscp-transmit :-k/o "set dscp and send it"
  word "dscp value" $ &police_exceed.cfm
set-prec-transmit :-k/o "rewrite precedence and send it"
  id "precedence value" $ &police_exceed.cfm
set-qos-transmit :-k/o "set qos-group and send it"
  id "qos-group value" $ &police_exceed.cfm
set-cos-transmit :-k/o "set cos and send it"
  id "cos value" $ &police_exceed.cfm
set-discard-class-transmit :-k/o "set discard-class and send it"
  id "discard-class value" $ &police_exceed.cfm
set-mpls-exp-imposition-transmit :-k/o "set exp at tag imposition and send it"
  id "exp value" $ &police_exceed.cfm
set-mpls-exp-topmost-transmit :-k/o "set exp on topmost label and send it"
  id "exp value" $ &police_exceed.cfm
set-frde-transmit :-k/o "set fr de and send it" $ &police_exceed.cfm
set-clp-transmit :-k/o "set atm clp and send it" $ &police_exceed.cfm

file police_exceed.cfm
exceed-action "action when rate is within conform and conform + exceed burst"
  transmit :-k/o "transmit the packet" $ &police_violate.cfm
  drop :-k/o "drop the packet" $ &police_violate.cfm
  set-dscp-transmit :-k/o "set dscp and send it"
    word "dscp value" $ &police_violate.cfm
  set-prec-transmit :-k/o "rewrite precedence and send it"
    id "precedence value" $ &police_violate.cfm
  set-qos-transmit :-k/o "set qos-group and send it"
    id "qos-group value" $ &police_violate.cfm
  set-cos-transmit :-k/o "set cos and send it"
    id "cos value" $ &police_violate.cfm
  set-discard-class-transmit :-k/o "set discard-class and send it"
    id "discard-class value" $ &police_violate.cfm
  set-mpls-exp-imposition-transmit :-k/o "set exp at tag imposition and send it"
    id "exp value" $ &police_violate.cfm
  set-mpls-exp-topmost-transmit :-k/o "set exp on topmost label and send it"
    id "exp value" $ &police_violate.cfm
  set-frde-transmit :-k/o "set fr de and send it" $ &police_violate.cfm
  set-clp-transmit :-k/o "set atm clp and send it" $ &police_violate.cfm

file police_violate.cfm
violate-action "action when rate is greater than conform + exceed burst"
  transmit :-k/o "transmit the packet" $
  drop :-k/o "drop the packet" $
  set-dscp-transmit :-k/o "set dscp and send it"
    word "dscp value" $
  set-prec-transmit :-k/o "rewrite precedence and send it"
    id "precedence value" $
  set-qos-transmit :-k/o "set qos-group and send it"
    id "qos-group value" $
  set-cos-transmit :-k/o "set cos and send it"
    id "cos value" $
  set-discard-class-transmit :-k/o "set discard-class and send it"
    id "discard-class value" $
  set-mpls-exp-imposition-transmit :-k/o "set exp at tag imposition and send it"
    id "exp value" $
  set-mpls-exp-topmost-transmit :-k/o "set exp on topmost label and send it"
    id "exp value" $
  set-frde-transmit :-k/o "set fr de and send it" $
  set-clp-transmit :-k/o "set atm clp and send it" $

def PPIR
  pir "peak information rate"
    id "bits per second" @(config-pmap-c-police)#=policy_map_police.cfm
      %PCONFORM
      be "excess burst"
        id "bytes" @(config-pmap-c-police)#=policy_map_police.cfm
          %PCONFORM

def PCIRBURST
  bc "conform burst"
    id "bytes" @(config-pmap-c-police)#=policy_map_police.cfm
      %PCONFORM
      be "excess burst"
        id "bytes" @(config-pmap-c-police)#=policy_map_police.cfm
          %PCONFORM
      %PPIR
  %PPIR

def PPIRPERCENT
  pir "peak information rate"
    percent "rate as a percentage of the interface bandwidth"
      id "percentage" @(config-pmap-c-police)#=policy_map_police.cfm
        %PCONFORM

def PRATEBURST
  burst "burst"
    id "burst size" @(config-pmap-c-police)#=policy_map_police.cfm
      %PCONFORM
      bytes "bytes" @(config-pmap-c-police)#=policy_map_police.cfm
        %PCONFORM
      packets "packets" @(config-pmap-c-police)#=policy_map_police.cfm
        %PCONFORM
  peak-rate "peak rate"
    id "rate" @(config-pmap-c-police)#=policy_map_police.cfm
      %PCONFORM

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
  cir "committed information rate"
    id :o "bits per second" @(config-pmap-c-police)#=policy_map_police.cfm
      %PCONFORM
      %PCIRBURST
    percent "rate as a percentage of the interface bandwidth"
      id :o "percentage" @(config-pmap-c-police)#=policy_map_police.cfm
        %PCONFORM
        bc "conform burst"
          id "milliseconds"
            ms "milliseconds" @(config-pmap-c-police)#=policy_map_police.cfm
              %PCONFORM
              be "excess burst"
                id "milliseconds"
                  ms "milliseconds" @(config-pmap-c-police)#=policy_map_police.cfm
                    %PCONFORM
              %PPIRPERCENT
        %PPIRPERCENT
  rate "rate in bits, packets or cells per second"
    id :o "rate" @(config-pmap-c-police)#=policy_map_police.cfm
      %PCONFORM
      %PRATEBURST
      bps "bits per second" @(config-pmap-c-police)#=policy_map_police.cfm
        %PCONFORM
        %PRATEBURST
      pps "packets per second" @(config-pmap-c-police)#=policy_map_police.cfm
        %PCONFORM
        %PRATEBURST
      cps "cells per second" @(config-pmap-c-police)#=policy_map_police.cfm
        %PCONFORM
        %PRATEBURST
    percent "rate as a percentage of the interface bandwidth"
      id :o "percentage" @(config-pmap-c-police)#=policy_map_police.cfm
        %PCONFORM
        burst "burst in milliseconds"
          id "milliseconds"
            ms "milliseconds" @(config-pmap-c-police)#=policy_map_police.cfm
              %PCONFORM
  id :o "bits per second" @(config-pmap-c-police)#=policy_map_police.cfm
    %PCONFORM
    id "normal burst in bytes" @(config-pmap-c-police)#=policy_map_police.cfm
      %PCONFORM
      id "maximum burst in bytes" @(config-pmap-c-police)#=policy_map_police.cfm
        %PCONFORM
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

file policy_map_police.cfm
conform-action "action when rate is less than conform burst"
  %PACT
exceed-action "action when rate is within conform and conform + exceed burst"
  %PACT
violate-action "action when rate is greater than conform + exceed burst"
  %PACT
conform-color "conform color class"
  word $
exceed-color "exceed color class"
  word $

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
    dfbit "df bit of the outer header" :n
      clear $
      copy $
      set $
    dummy "dummy packets" $
      pps
        id :o $
    ecn "explicit congestion notification" $
      discard $
      propagate $
    idle-time "idle time" :n
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
enrollment "enrollment parameters"
  selfsigned "generate a self-signed certificate" :-k/o $
  pkcs12 "import the certificate with pkcs12" :-k/o $
  terminal "enroll by cut and paste" :-k/o $
    pem "the certificate in pem form" $
  url "enrollment url" :-k/o
    line * "url of the certificate authority"
  profile "enrollment profile" :-k/o
    word "profile name" $
  mode "mode of the certificate authority"
    ra "registration authority" $
  retry "retry settings"
    line *
  http-proxy "http proxy for enrollment"
    line *
serial-number $
  none $
ip-address
  line *
subject-name
  line *
subject-alt-name
  line *
revocation-check "method of revocation checking, in the order tried"
  crl "check the certificate revocation list" :-k/o $
    none "ignore revocation if the list is unavailable" $
    ocsp "then ask an ocsp server" $
      none "ignore revocation if neither answers" $
  ocsp "ask an ocsp server" :-k/o $
    none "ignore revocation if the server is unreachable" $
    crl "then check the certificate revocation list" $
      none "ignore revocation if neither answers" $
  none "ignore revocation" :-k/o $
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
hash "hash algorithm for signing"
  md5 :-k/o $
  sha1 :-k/o $
  sha256 :-k/o $
  sha384 :-k/o $
  sha512 :-k/o $
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
certificate "exchange certificates"
  self-signed "self signed certificate"
    word :k "certificate serial number" $
      word "file that holds the certificate (nvram:NAME.cer)" $
  ca "certificate authority certificate"
    word :k "certificate serial number" $
      word "file that holds the certificate (nvram:NAME.cer)" $
  rollover
    line *
  word :k "certificate serial number" $
    word "file that holds the certificate (nvram:NAME.cer)" $
# The certificate data follows its certificate line as rows of hex words
# (certdata.g) and ends with quit. Rows and quit are read as lines of the
# chain, which keeps the chain one level deep. A quit is not kept (sn: read,
# never stored), as a quit without its data says nothing.
quit "end of certificate data" :sn $


file crypto_ikev2.cfm
pki "pki settings"
  trustpoint
    word :k $
      sign $
      verify $
route "route settings"
  set
    interface $
      %IF
    access-list
      word $
  accept
    any $
      tag
        id $
      distance
        id $
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
