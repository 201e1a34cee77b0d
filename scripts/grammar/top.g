# The three top modes.

file view_mode.cfm
enable "turn on privileged commands" $
  id "privilege level" $
exit "leave the terminal" $
logout "leave the terminal" $

file execution_mode.cfm
configure "enter configuration mode" $
  terminal "configure from the terminal" $
disable "turn off privileged commands" $
exit "leave the terminal" $
logout "leave the terminal" $
show "show running system information"
  running-config "current operating configuration" $
  version "system hardware and software status" $
write "write running configuration"
  memory "write to nonvolatile memory" $
  terminal "write to terminal" $
copy "copy from one file to another"
  running-config
    startup-config $

file configuration_mod.cfm
^c "end of a banner" $
hostname :n "set system's network name"
  word :o "this system's network name" $
interface "select an interface to configure"
  %IF
    point-to-point "point-to-point subinterface" @(config-subif)#=interface.cfm
    multipoint "multipoint subinterface" @(config-subif)#=interface.cfm
    type "interface type"
      word :k @(config-if)#=interface.cfm
  &interfacefile.cfm "interface type"
    <number> :k "interface number" @(config-if)#=interface.cfm
  range "interface range"
    line :k * @(config-if-range)#=interface.cfm
default "set a command to its defaults"
  interface "every setting of an interface back to its default"
    &interfacefile.cfm "interface type"
      <number> :k "interface number" $
    range "interface range"
      line :k *
version "version of the configuration"
  <value> :o $
boot-start-marker "boot marker" $
boot-end-marker "boot marker" $
boot "boot commands"
  system "system image"
    %TEXT
  host
    %TEXT
  config
    %TEXT
  nvram
    %TEXT
end "exit configuration mode" $
exit "exit configuration mode" $
service "modify use of network based services"
  timestamps "timestamp debug/log messages"
    debug :k
      datetime :-k/o $
        msec :-k/o $
          localtime :-k/o $
            show-timezone :-k/o $
              year :-k/o $
          show-timezone :-k/o $
          year :-k/o $
        localtime :-k/o $
          show-timezone :-k/o $
            year :-k/o $
          year :-k/o $
          msec :-k/o $
            show-timezone :-k/o $
        show-timezone :-k/o $
          year :-k/o $
        year :-k/o $
      uptime :-k/o $
    log :k
      datetime :-k/o $
        msec :-k/o $
          localtime :-k/o $
            show-timezone :-k/o $
              year :-k/o $
          show-timezone :-k/o $
          year :-k/o $
        localtime :-k/o $
          show-timezone :-k/o $
            year :-k/o $
          year :-k/o $
          msec :-k/o $
            show-timezone :-k/o $
        show-timezone :-k/o $
          year :-k/o $
        year :-k/o $
      uptime :-k/o $
  password-encryption $ :sb/o
  pad $ :sn
    to-xot "accept outgoing pad connections over x.25 over tcp" $
    from-xot "accept xot to pad connections" $
    cmns "enable pad over cmns connections" $
  config $ :sn
  log "log settings"
    backtrace "provide backtrace information" $
  exec-callback "enable exec callback" $
  slave-coredump "core dump of the standby processor" $
  telnet-zeroidle "set the tcp window to zero when the vty is idle" $
  exec-wait "delay the exec startup on noisy lines" $
  scripting "enable the scripting prompt" $
  old-slip-prompts "allow old-style slip prompts" $
  pt-vty-logging "log the protocol translation vty connections" $
  disable-ip-fast-frag "disable ip fast fragmentation" $
  tcp-keepalives-in $
  tcp-keepalives-out $
  tcp-small-servers $
  udp-small-servers $
  nagle $
  internal $
  compress-config $
  sequence-numbers $
  call-home $
  dhcp $ :sn
  slave-log $
  finger $
  unsupported-transceiver $
  linenumber $
  counters
    max
      age
        id $
  prompt
    config $ :sn
  password-recovery $ :sn
control-plane "control plane configuration" @(config-cp)#=control_plane.cfm
  host @(config-cp-host)#=control_plane.cfm
redundancy "redundancy configuration" @(config-red)#=redundancy.cfm
multilink "ppp multilink"
  virtual-template "virtual template for multilink bundles"
    0-25 :o $
  bundle-name
    authenticated $
    endpoint $
    both $
username "establish user name authentication"
  word :k "user name" $
    privilege
      id :o
        password
          id
            line * :o
          line * :o
        secret
          id
            line * :o
          line * :o
        view "set view name"
          word "view name" $
            %USERSECRET
        algorithm-type "encryption algorithm for the secret"
          word "md5, sha256 or scrypt"
            secret "specify the secret for the user"
              line * :o
      %TEXT
    password
      id
        line * :o
      line * :o
    secret
      id
        line * :o
      line * :o
    nopassword $
    view "set view name"
      word "view name" $
        %USERSECRET
    autocommand
      %TEXT
    algorithm-type "encryption algorithm for the secret"
      word "md5, sha256 or scrypt"
        secret "specify the secret for the user"
          id
            line *
          line *
enable "modify enable password parameters"
  secret
    level
      id
        id
          line * :o
    id
      line * :o
    line * :o
  password
    level
      id
        id
          line * :o
    id
      line * :o
    line * :o
  algorithm-type "encryption algorithm for the secret"
    word "md5, sha256 or scrypt"
      secret "assign the privileged level secret"
        id
          line * :o
        line * :o
banner "define a login banner"
  motd :k/n
    line * :o
  login :k/n
    line * :o
  exec :k/n
    line * :o
  incoming :k/n
    line * :o
  slip-ppp :k/n
    line * :o
  prompt-timeout :k/n
    line * :o
&linefile.cfm "configure a terminal line"
  con :k "primary terminal line"
    id :k @(config-line)#=line.cfm
  vty :k "virtual terminal"
    id :k @(config-line)#=line.cfm
      id :k @(config-line)#=line.cfm
  aux :k "auxiliary line"
    id :k @(config-line)#=line.cfm
  console :k
    id :k @(config-line)#=line.cfm
  tty :k
    id :k @(config-line)#=line.cfm
      id :k @(config-line)#=line.cfm
  id :k "first line number" @(config-line)#=line.cfm
    id :k "last line number" @(config-line)#=line.cfm
router "enable a routing process"
  bgp "border gateway protocol"
    1-4294967295 :k "Autonomous system number" @(config-router)#=router_bgp.cfm
    1.0-65535.65535 :k "Autonomous system number" @(config-router)#=router_bgp.cfm
  ospf "open shortest path first"
    1-65535 :k "Process ID" @(config-router)#=router_ospf.cfm
      vrf
        word :k @(config-router)#=router_ospf.cfm
  ospfv3 "ospf version 3"
    1-65535 :k "Process ID" @(config-router)#=router_ospf.cfm
  eigrp "enhanced interior gateway routing protocol"
    1-65535 :k "Autonomous System" @(config-router)#=router_eigrp.cfm
    word :k "EIGRP Virtual-Instance Name" @(config-router)#=router_eigrp.cfm
  rip "routing information protocol" @(config-router)#=router_rip.cfm
  isis "intermediate system to intermediate system" @(config-router)#=router_isis.cfm
    word :k @(config-router)#=router_isis.cfm
  lisp @(config-router-lisp)#=router_rip.cfm
access-list "add an access list entry"
  1-99 :k/n "IP standard access list"
    permit :-k &acl_std_entry.cfm
    deny :-k &acl_std_entry.cfm
    remark :-k "access list entry comment" $
      %TEXT
  1300-1999 :k/n "IP standard access list (expanded range)"
    permit :-k &acl_std_entry.cfm
    deny :-k &acl_std_entry.cfm
    remark :-k "access list entry comment" $
      %TEXT
  100-199 :k/n "IP extended access list"
    permit :-k &acl_ext_entry.cfm
    deny :-k &acl_ext_entry.cfm
    dynamic :-k
      word :k
        permit :-k &acl_ext_entry.cfm
    remark :-k "access list entry comment" $
      %TEXT
  700-799 :k/n "48-bit MAC address access list"
    permit :-k "specify addresses to forward"
      h.h.h "48-bit mac address"
        h.h.h "mask of bits to ignore" $
    deny :-k "specify addresses to drop"
      h.h.h "48-bit mac address"
        h.h.h "mask of bits to ignore" $
  2000-2699 :k/n "IP extended access list (expanded range)"
    permit :-k &acl_ext_entry.cfm
    deny :-k &acl_ext_entry.cfm
    remark :-k "access list entry comment" $
      %TEXT
vlan "vlan commands"
  configuration "Vlan feature configuration mode"
    list/1-4094 :k "VLAN IDs 1-4094" @(config-vlan-config)#=vlan_config.cfm
  list/1-4094 :k "ISL VLAN IDs 1-4094" @(config-vlan)#=vlan.cfm
  internal "internal VLAN"
    allocation
      policy
        ascending $
        descending $
  access-log "Configure VACL logging"
    ratelimit
      id $
    maxflow
      id $
    threshold
      id $
  access-map "Create vlan access-map or enter vlan access-map command mode"
    word :k @(config-access-map)#=vlan.cfm
      id :k @(config-access-map)#=vlan.cfm
  filter "Apply a VLAN Map"
    word :k
      vlan-list
        <vlan> $
  dot1q "dot1q parameters"
    tag
      native $
spanning-tree "spanning tree subsystem"
  mode
    pvst $ :-k/o
    rapid-pvst $ :-k/o
    mst $ :-k/o
  extend
    system-id $
  portfast
    default $
    edge
      default $
      bpduguard
        default $
      bpdufilter
        default $
    bpduguard
      default $
    bpdufilter
      default $
  vlan
    list/1-4094 :k "vlan id list" $
      priority
        0-61440 :o "bridge priority in increments of 4096" $
      forward-time
        id $
      hello-time
        id $
      max-age
        id $
      root
        primary $
        secondary $
  loopguard
    default $
  etherchannel
    guard
      misconfig $
  logging $
  optimize
    bpdu
      transmission $
  backbonefast $
  uplinkfast $
  pathcost
    method
      long $
      short $
  mst "multiple spanning tree"
    configuration "enter mst configuration" @(config-mst)#=vlan.cfm
    <instances> :k "mst instance list, such as 0-1 or 2,4"
      priority "bridge priority"
        id :o "priority in steps of 4096" $
      root "root switch"
        primary :o $
        secondary :o $
    hello-time "hello interval"
      id :o "seconds" $
    forward-time "forward delay"
      id :o "seconds" $
    max-age "maximum age"
      id :o "seconds" $
    max-hops "maximum hops"
      id :o "hops" $
    simulate "simulate pvst"
      pvst $
        global $
route-map "create route-map or enter route-map command mode"
  word :k "Route map tag" @(config-route-map)#=route_map.cfm
    permit :-k/o "Route map permits set operations" @(config-route-map)#=route_map.cfm
      0-65535 :k "Sequence to insert to/delete from existing route-map entry" @(config-route-map)#=route_map.cfm
    deny :-k/o "Route map denies set operations" @(config-route-map)#=route_map.cfm
      0-65535 :k "Sequence to insert to/delete from existing route-map entry" @(config-route-map)#=route_map.cfm
    0-65535 :k "Sequence to insert to/delete from existing route-map entry" @(config-route-map)#=route_map.cfm
control-plane-policing $ "control plane policing settings"
platform "platform configuration"
  console "console selection"
    auto :-k :o "automatic console selection" $
    serial :-k :o "serial console" $
    virtual :-k :o "virtual console" $
  punt-keepalive "punt keepalive settings"
    disable-kernel-core :o/sb "do not write a kernel core on a keepalive failure" $
    ignore-fault :o/sb "ignore keepalive faults" $
  qfp "quantum flow processor"
    utilization "utilization settings"
      monitor "monitor utilization"
        load "load threshold"
          id :o "load in percent" $
  line :k * "other platform setting"
license "license configuration"
  udi "unique device identifier"
    pid "product identifier"
      word "product identifier"
        sn "serial number"
          word :o "serial number" $
  boot "boot license settings"
    level "technology package level"
      word :k "level name" $
        addon "add-on level"
          word :o "add-on level name" $
    line *
  smart "smart licensing"
    line *
  accept "accept an agreement"
    line *
  feature "feature license"
    line *
  call-home "call-home licensing"
    line *
upgrade "upgrade commands"
  fpd
    auto $
    path
      %TEXT
subscriber "subscriber configuration"
  templating "subscriber templates" $
  authorization "subscriber authorization"
    enable $
  aaa "subscriber aaa"
    line *
  redundancy "subscriber redundancy"
    line *
  service "subscriber service"
    line *
  policy "subscriber policy"
    line *
  feature "subscriber feature"
    line *
  accounting "subscriber accounting"
    line *
virtual-service "virtual service"
  word :k @(config-virt-serv)#=generic.cfm
archive "archive configuration" @(config-archive)#=archive.cfm
cdp "global cdp configuration"
  tlv "cdp type-length-values"
    app $
    location $
    server-location $
  run $ :sn
  advertise-v2 $ :sn
  timer
    id :o $
  holdtime
    id :o $
  log
    mismatch
      duplex $
lldp "global lldp configuration"
  run $
  timer
    id $
  holdtime
    id $
  reinit
    id $
diagnostic "diagnostic configuration"
  bootup
    level
      minimal $
      complete $
      bypass $
  monitor
    line *
login "login options"
  block-for
    id :o
      attempts :-k/o
        id :o
          within :-k/o
            id :o $
  on-success
    log $
      every
        id $
  on-failure
    log $
      every
        id $
  delay
    id $
  quiet-mode
    access-class
      word $
memory "memory configuration"
  statistics
    history
      table $
        id :o "number of entries" $
  free
    low-watermark
      processor
        id $
      io
        id $
  reserve
    critical
      id $
  lite $
  check-interval "free memory check interval"
    id :o "seconds" $
  validate-checksum "text segment checksum validation"
    id :o "seconds" $
  chunk "chunk manager settings"
    siblings
      threshold
        id :o $
memory-size "adjust memory size by percentage"
  iomem
    id $
netconf-yang "netconf yang" $
  line *
restconf $ "enable restconf"
netconf "configure netconf"
  line *
gatekeeper "gatekeeper configuration" @(config-gk)#=gatekeeper.cfm
track "object tracking"
  id :k/n
    ip
      sla
        id :k @(config-track)#=track.cfm
          reachability @(config-track)#=track.cfm
          state @(config-track)#=track.cfm
      route
        a.b.c.d/<1-32> :k
          reachability @(config-track)#=track.cfm
          metric
            threshold @(config-track)#=track.cfm
        a.b.c.d :k
          a.b.c.d :k
            reachability @(config-track)#=track.cfm
            metric
              threshold @(config-track)#=track.cfm
    interface
      %IF
        line-protocol @(config-track)#=track.cfm
        ip
          routing @(config-track)#=track.cfm
    list
      boolean
        and @(config-track)#=track.cfm
        or @(config-track)#=track.cfm
      threshold
        weight @(config-track)#=track.cfm
        percentage @(config-track)#=track.cfm
    rtr
      id :k @(config-track)#=track.cfm
        reachability @(config-track)#=track.cfm
        state @(config-track)#=track.cfm
    stub-object @(config-track)#=track.cfm
  timer "polling interval timers"
    interface "interface polling"
      id :o "seconds" $
      msec "milliseconds"
        id :o "milliseconds" $
    ip "ip polling"
      route "route polling"
        id :o "seconds" $
        msec "milliseconds"
          id :o "milliseconds" $
      sla "ip sla polling"
        id :o "seconds" $
        msec "milliseconds"
          id :o "milliseconds" $
    ipv6 "ipv6 polling"
      route "route polling"
        id :o "seconds" $
        msec "milliseconds"
          id :o "milliseconds" $
    list "list polling"
      id :o "seconds" $
      msec "milliseconds"
        id :o "milliseconds" $
clock "configure time-of-day clock"
  timezone
    word :o
      +/-<metric> $
        id $
      id $
        id $
  summer-time
    word :o
      recurring $
        line *
      date
        line *
  calendar-valid $
security "security commands"
  passwords
    min-length
      id :o $
  authentication
    failure
      rate
        id
          log $
  line *
spd "selective packet discard"
  headroom
    id :o $
  extended-headroom "extended headroom for priority packets"
    id :o $
  enable $
  mode
    aggressive $
alias "create command alias"
  atm-vc-config "atm virtual circuit mode"
    word :k
      line *
  exec
    word :k
      %TEXT
  configure
    word :k
      %TEXT
  interface
    word :k
      %TEXT
dialer-list "dialer list"
  id :k
    protocol
      word :k
        permit $
        deny $
        list
          id $
dialer "dialer watch and pool configuration"
  watch-list
    line *
domain "domain configuration"
  word :k @(config-domain)#=generic.cfm
    line * @(config-domain)#=generic.cfm
vpdn "virtual private dialup network"
  enable $
  logging $
  group
    word :k @(config-vpdn)#=generic.cfm
  line *
vpdn-group "vpdn group configuration"
  word :k @(config-vpdn)#=generic.cfm
bba-group "bba group"
  pppoe
    word :k @(config-bba-group)#=generic.cfm
mpls "mpls configuration"
  ldp
    logging "ldp logging"
      neighbor-changes "log neighbor state changes" $
      password "log password events"
        configuration "password configuration changes" $
          rate-limit
            1-60 $
        rollover "password rollover events" $
          rate-limit
            1-60 $
    graceful-restart $
      timers "graceful restart timers"
        neighbor-liveness
          5-300 :o "seconds" $
        max-recovery
          15-600 :o "seconds" $
        forwarding-holding
          30-600 :o "seconds" $
    holdtime "ldp session holdtime"
      15-2147483 :o "seconds" $
    advertise-labels "advertise label bindings" $
      for
        word :k $
          to
            word $
      interface
        %IF
    maxhops "limit hop count for ldp loop detection"
      1-255 :o "hop count" $
    router-id
      %IF
        force $
      a.b.c.d $
        force $
    explicit-null $
    session
      protection $
    discovery "ldp discovery"
      hello "link hellos"
        holdtime
          1-65535 :o "seconds" $
        interval
          1-65535 :o "seconds" $
      targeted-hello "targeted hellos"
        holdtime
          1-65535 :o "seconds" $
        interval
          1-65535 :o "seconds" $
        accept "accept targeted hellos" $
          from
            word :o "access list" $
      transport-address "address of the tcp connection"
        a.b.c.d :o $
        interface $
    neighbor "ldp neighbor settings"
      vrf
        word :k
          a.b.c.d :k
            password
              0 :-k
                word :o $
              7 :-k
                word :o $
              word :o $
      a.b.c.d :k
        password "md5 password of the session"
          0 :-k
            word :o $
          7 :-k
            word :o $
          word :o $
        targeted "a targeted session" $
          ldp $
        labels
          accept
            word :o $
        implicit-withdraw $
    label "ldp label settings" @(config-ldp-lbl)#=mpls_ldp_label.cfm
      line *
    password
      line *
    igp
      sync
        holddown
          id $
    backoff
      id
        id $
  label
    range
      id
        id $
          static
            id
              id $
    protocol
      ldp $
      tdp $
    mode "label allocation mode"
      all-vrfs "all vrfs"
        protocol
          all-afs "all address families"
            per-prefix "a label for each prefix" $
            per-vrf "one label for the vrf" $
            per-ce "a label for each ce" $
          bgp-vpnv4
            per-prefix $
            per-vrf $
            per-ce $
          bgp-vpnv6
            per-prefix $
            per-vrf $
            per-ce $
      vrf
        word :k
          protocol
            all-afs
              per-prefix $
              per-vrf $
              per-ce $
  mldp "multipoint ldp" $
    forwarding "mldp forwarding"
      recursive "recursive forwarding" $
    path "path selection"
      multipath "load balancing over paths"
        upstream $
        downstream $
    logging "mldp logging"
      notifications "mldp notifications" $
  export "export mpls vpn information"
    vpnv4 "vpnv4 information"
      prefixes $
    interval "export interval" :n
      0-1440 :o "minutes" $
  discovery "mpls discovery"
    vpn "vpn discovery"
      interval :n
        30-86400 :o "seconds" $
      next-hop $
      edgerouter $
  traffic-eng
    tunnels $
    line *
  ip $
    line *
  mtu
    id $
  oam "mpls operation and maintenance" @(config-mpls)#=mpls_oam.cfm
  ipv6
    line *
kron "command scheduler"
  policy-list
    word :k @(config-kron-policy)#=generic.cfm
  occurrence
    word :k
      line * @(config-kron-occurrence)#=generic.cfm
object-group "object group"
  network
    word :k @(config-network-group)#=object_group.cfm
  service
    word :k @(config-service-group)#=object_group_service.cfm
zone "firewall zone"
  security
    word :k @(config-sec-zone)#=generic.cfm
zone-pair "zone pair"
  security
    word :k
      source
        word :k
          destination
            word :k @(config-sec-zone-pair)#=zone_pair.cfm
tacacs-server "tacacs server configuration"
  host
    a.b.c.d :k $
      line *
  key
    id
      line *
    line * :o
  timeout
    id $
  directed-request $
  administration $
  cache "tacacs server cache"
    expiry "cache expiry"
      id :o "hours" $
        enforce "do not use expired entries" $
          hours $
tacacs "tacacs server"
  server
    word :k @(config-server-tacacs)#=server.cfm
radius-server "radius server configuration"
  host
    a.b.c.d :k $
      line *
  key
    id
      line *
    line * :o
  line *
radius "radius server"
  server
    word :k @(config-radius-server)#=server.cfm
mmi "modem management"
  polling-interval
    id $
  auto-configure :n/o/sb "automatic configuration of the modem pvc"
    id "retry interval in seconds" $
  pvc :n/o/sb "pvc used by the modem"
    line * $
  snmp-timeout
    id $
iox "application hosting" $
app-hosting "application hosting"
  appid
    word :k @(config-app-hosting)#=generic.cfm
call-home "call home" @(cfg-call-home)#=call_home.cfm
aqm-register-fnf $ "aqm register with flexible netflow"
event "event manager"
  manager
    applet
      word :k @(config-applet)#=eem_applet.cfm
        line * @(config-applet)#=eem_applet.cfm
    environment
      word :k
        line *
    session
      line *
    directory
      line *
    policy "register a policy"
      word :k "policy file name" $
        line *
    scheduler "scheduler settings"
      line *
    history "history settings"
      line *
    detector "detector settings"
      line *
ethernet "ethernet configuration"
  lmi
    ce $
  cfm
    line *
  evc
    word :k @(config-evc)#=generic.cfm
mgcp "media gateway control protocol" $
  profile
    word :k @(config-mgcp-profile)#=generic.cfm
  line *
pseudowire-class "pseudowire class"
  word :k @(config-pw-class)#=generic.cfm
l2tp-class "configure an l2tp class"
  word :k @(config-l2tp-class)#=generic.cfm
voice-card "configure a voice card"
  id :k @(config-voicecard)#=generic.cfm
sccp "skinny client control protocol" $
  line *
card "card type"
  type
    line *
controller "controller configuration"
  word :k
    <number> :k @(config-controller)#=generic.cfm
network-clock-participate "network clock"
  line *
network-clock "configure network clock"
  line *
network-clock-select "select a network clock source"
  line *
scheduler "scheduler parameters"
  process-watchdog "action for looping processes"
    hang $
    normal $
    reload $
    terminate $
  allocate $
    id
      id $
  interval
    id $
  max-task-time
    id $
ipv6 "ipv6 configuration" &ipv6_global.cfm
ip "global ip configuration" &ip_global.cfm
%SECTOP
%SWTOP
%MISCTOP
%WIDETOP
