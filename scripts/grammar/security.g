def SECTOP
aaa "authentication, authorization and accounting"
  new-model $ :sb/o
  authentication
    login
      word :k/n
        line * :o
    enable
      default
        line *
    ppp
      word :k
        line *
    dot1x
      word :k
        line *
    attempts
      login
        id $
    password-prompt
      line *
    username-prompt
      line *
    banner
      line *
    fail-message
      line *
  authorization
    exec
      word :k
        line *
    network
      word :k
        line *
    commands
      id :k
        word :k
          line *
    console $
    config-commands $
    configuration
      word :k
        line *
    auth-proxy
      line *
    reverse-access
      line *
  memory "aaa memory settings"
    threshold
      authentication
        reject
          id :o $
      accounting
        disable
          id :o $
  accounting
    jitter "jitter of periodic accounting"
      maximum
        id :o $
    exec
      word :k
        line *
    network
      word :k
        line *
    commands
      id :k
        word :k
          line *
    connection
      word :k
        line *
    system
      line *
    update
      line *
    send
      line *
    delay-start $
    dot1x
      line *
    identity
      line *
  session-id
    common $ :o
    unique $ :o
  group
    server
      tacacs+
        word :k @(config-sg-tacacs+)#=aaa_group.cfm
      radius
        word :k @(config-sg-radius)#=aaa_group.cfm
  server
    radius
      dynamic-author @(config-locsvr-da-radius)#=aaa_group.cfm
  local
    authentication
      line *
  password
    restriction $
  common-criteria
    line *
  attribute
    list
      word :k @(config-attr-list)#=aaa_group.cfm
ntp "configure ntp"
  server
    vrf
      word :k
        word :k/o $
          line *
    ip
      word :k/o $
        line *
    word :k/o "ntp server address" $
      prefer :-k $
        source :-k
          %IFONE
        key :-k
          id $
      source :-k
        %IFONE
      key :-k
        id $
          prefer :-k $
      version :-k
        id $
      maxpoll :-k
        4-17
          minpoll
            4-17
              version
                2-4 $
                  burst $
                    iburst $
      burst :-k $
      iburst :-k $
        line *
  peer
    vrf
      word :k
        word :k/o $
          line *
    word :k/o $
      line *
  master :o $
    id :o $
  source
    %IFONE
  update-calendar $
  clock-period
    id :o $
  authenticate $
  authentication-key
    id :k/n
      md5
        word :o
          id $
        line *
  trusted-key
    id :k $
      - "range of keys"
        id :k "last key" $
  logging $
  access-group
    line *
  broadcastdelay
    id $
  max-associations
    id $
  allow "allow ntp packets"
    mode "ntp mode"
      control "control messages"
        id :o "delay in seconds" $
      private "private messages" $
  mindistance "minimum distance"
    1-16 :o $
  maxdistance "maximum distance"
    1-16 :o $
logging "modify message logging facilities"
  a.b.c.d :k "ip address of the logging host" $
    line *
  host
    a.b.c.d :k $
      line *
    ipv6
      line *
    word :k $
      line *
  buffered "logging to the buffer" $
    id :o "buffer size in bytes" $
      &loglevelfile.cfm :-k/o "severity" $
    &loglevelfile.cfm :-k/o "severity" $
    discriminator "filter by a message discriminator"
      word $
        line *
    xml "log in xml form" $
      line *
    filtered "filtered logging" $
      line *
  console $ :sn
    guaranteed "guaranteed logging to the console" $
    line * :o
    discriminator
      word $
  monitor $ :sn
    line * :o
  trap $
    line * :o
  source-interface :n
    %IFONE
      vrf
        word $
  facility
    word :o $
  synchronous
    line *
  rate-limit
    line *
  snmp-authfail $
  userinfo $
  origin-id :n
    line *
  discriminator :n
    word :k
      line *
  event
    line *
  count $
  persistent :n
    line *
  queue-limit
    line *
  history
    line *
  snmp-trap "logging severities sent as snmp traps"
    &loglevelfile.cfm :k "severity" $
  file
    line *
  on $
  timestamp
    line *
  reload
    line *
  alarm
    line *
  message-counter
    line *
  dmvpn
    line *
  cns-events
    line *
  exception
    line *
  server-arp $
  hostname
    line *
  esm "event streaming"
    config "log configuration changes" $
  btrace "binary trace logging" $
  buginf "debug messages through logging" $
  policy-firewall "firewall logging"
    rate-limit
      id :o "seconds" $
  delimiter "message delimiter"
    tcp $
snmp-server "modify snmp engine parameters"
  community
    word :k/n
      view :-k/o
        word
          line *
      ro :-k/o $
        line *
      rw :-k/o $
        line *
      id :o $
  location :o
    %TEXT
  contact :o
    %TEXT
  enable
    traps $
      line *
    informs $
  host
    a.b.c.d :k
      line *
    word :k
      line *
  trap-source
    %IFONE
  trap
    link
      line *
    line *
  ifindex
    persist $
  chassis-id
    line *
  user
    line *
  group
    line *
  view
    word :k
      word :k/n
        included :-k/o $
        excluded :-k/o $
        line *
  engineID
    line *
  source-interface
    line *
  packetsize
    id $
  queue-length
    id $
  trap-timeout
    id $
  system-shutdown $
  manager $
  tftp-server-list
    line *
  file-transfer
    line *
  mib
    line *
  vrf
    line *
  context
    line *
  inform
    line *
  trap-authentication
    line *
  ip
    line *
snmp "modify snmp engine parameters"
  ifmib
    line *
  mib
    line *
key "key management"
  chain "Key-chain management"
    word :k "Key-chain name" @(config-keychain)#=key_chain.cfm
  config-key
    line *
class-map "configure class map"
  match-all "Logical-AND all matching statements under this classmap"
    word :k "class-map name" @(config-cmap)#=class_map.cfm
  match-any "Logical-OR all matching statements under this classmap"
    word :k "class-map name" @(config-cmap)#=class_map.cfm
  type
    inspect
      match-all
        word :k @(config-cmap)#=class_map.cfm
      match-any
        word :k @(config-cmap)#=class_map.cfm
      word :k @(config-cmap)#=class_map.cfm
    word
      line * @(config-cmap)#=class_map.cfm
  word :k "class-map name" @(config-cmap)#=class_map.cfm
policy-map "configure qos service policy"
  type
    inspect
      word :k @(config-pmap)#=policy_map.cfm
    control "control policy"
      subscriber "subscriber control policy"
        word :k "policy map name" @(config-event-control-policymap)#=policy_ctrl.cfm
    word
      line * @(config-pmap)#=policy_map.cfm
  word :k "policy-map name" @(config-pmap)#=policy_map.cfm
vrf "vrf commands"
  definition "VRF definition"
    word :k "VRF name" @(config-vrf)#=vrf.cfm
crypto "encryption module"
  isakmp
    policy "Set policy for an ISAKMP protection suite"
      1-10000 :k "Priority of protection suite" @(config-isakmp)#=crypto_isakmp.cfm
    profile
      word :k @(conf-isa-prof)#=crypto_isakmp_prof.cfm
    key
      0 :-k "an unencrypted key follows"
        word
          address
            a.b.c.d :k $
              a.b.c.d $
              no-xauth $
          hostname
            word :k $
      6 :-k "an encrypted key follows"
        word
          address
            a.b.c.d :k $
              a.b.c.d $
              no-xauth $
          hostname
            word :k $
      word
        address
          a.b.c.d :k $
            a.b.c.d $
            no-xauth $
          ipv6
            line *
        hostname
          word :k $
    diagnose "diagnostics"
      error
        id :o $
    keepalive
      id :o $
        id $
          periodic $
          on-demand $
        periodic $
        on-demand $
    client
      configuration
        group
          word :k @(config-isakmp-group)#=crypto_isakmp.cfm
        address-pool
          line *
    identity
      address $
      hostname $
      dn $
    nat
      keepalive
        id $
    invalid-spi-recovery $
    aggressive-mode
      disable $
    enable $
    xauth
      line *
    fragmentation $
  keyring
    word :k @(conf-keyring)#=crypto_keyring.cfm
      vrf
        word @(conf-keyring)#=crypto_keyring.cfm
  ipsec
    transform-set
      word :k
        line * :o @(cfg-crypto-trans)#=crypto_transform.cfm
    profile
      word :k @(ipsec-profile)#=crypto_map.cfm
    security-association
      line *
    df-bit
      line *
    nat-transparency
      line *
    client
      line *
    fragmentation
      line *
    optional $
      retry "retry interval"
        id :o $
  map "Enter a crypto map"
    word :k "Crypto map tag"
      1-65535 :k "Sequence to insert into crypto map entry"
        ipsec-isakmp @(config-crypto-map)#=crypto_map.cfm
          dynamic
            word $
          profile
            word @(config-crypto-map)#=crypto_map.cfm
        ipsec-manual @(config-crypto-map)#=crypto_map.cfm
        gdoi @(config-crypto-map)#=crypto_map.cfm
      local-address "Interface to use for local address for this crypto map"
        %IF
      client "Specify client configuration settings"
        line :k *
      isakmp "Specify isakmp configuration settings"
        line :k *
      isakmp-profile "Specify isakmp profile to use"
        word $
      redundancy "High availability options for this map"
        line :k *
  dynamic-map
    word :k
      id :k @(config-crypto-map)#=crypto_map.cfm
  pki
    trustpoint
      word :k @(ca-trustpoint)#=crypto_pki.cfm
    certificate
      chain
        word :k @(config-cert-chain)#=crypto_cert.cfm
      map
        line *
      storage
        line *
    token
      line *
    server
      word :k @(cs-server)#=crypto_pki.cfm
    trustpool
      line *
  key
    generate
      line *
    pubkey-chain
      line *
    storage
      line *
  gdoi
    group
      word :k @(config-gkm-group)#=gdoi_group.cfm
  ikev2
    proposal
      word :k @(config-ikev2-proposal)#=crypto_ikev2.cfm
    policy
      word :k @(config-ikev2-policy)#=crypto_ikev2.cfm
    keyring
      word :k @(config-ikev2-keyring)#=crypto_ikev2.cfm
    profile
      word :k @(config-ikev2-profile)#=crypto_ikev2.cfm
    authorization "authorization policies"
      policy
        word :k @(config-ikev2-author-policy)#=crypto_ikev2.cfm
    line *
  call
    admission
      limit
        line *
  engine
    line *
  ca
    line *
  logging
    line *
  vpn
    line *
  ctcp
    line *
  mib
    line *
