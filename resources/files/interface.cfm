description|interface specific description|k/n/o||
  line|text|lb/le/wa||
    <cr>||||
    !
  !
!
shutdown|shutdown the selected interface|k||
  <cr>||||
  !
!
ip|interface internet protocol config commands|k||&ip_interface.cfm
!
ipv6|ipv6 interface subcommands|k||&ipv6_interface.cfm
!
duplex|configure duplex operation|k||
  auto|auto|o||
    <cr>||||
    !
  !
  full|full|o||
    <cr>||||
    !
  !
  half|half|o||
    <cr>||||
    !
  !
!
speed|configure speed operation|k||
  auto|auto|o||
    <cr>||||
    !
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
  id|id|o||
    <cr>||||
    !
  !
  nonegotiate|nonegotiate|o||
    <cr>||||
    !
  !
!
negotiation|select autonegotiation mode|k||
  auto|auto|k/o||
    <cr>||||
    !
  !
!
bandwidth|set bandwidth informational parameter|k||
  1-100000000|bandwidth in kilobits|o||
    <cr>||||
    !
  !
  inherit|inherit|k||
    <cr>||||
    !
    id|id|||
      <cr>||||
      !
    !
  !
  receive|receive|k||
    id|id|||
      <cr>||||
      !
    !
  !
!
delay|specify interface throughput delay|k||
  id|id|o||
    <cr>||||
    !
  !
!
mtu|set the interface maximum transmission unit|k||
  64-18000|mtu (bytes)|o||
    <cr>||||
    !
  !
!
encapsulation|set encapsulation type for an interface|k||
  dot1q|dot1q|o||
    1-4094|ieee 802.1q vlan id|o||
      <cr>||||
      !
      native|native|k||
        <cr>||||
        !
      !
      second-dot1q|second-dot1q|k||
        id|id|||
          <cr>||||
          !
        !
      !
    !
  !
  isl|isl|o||
    id|id|||
      <cr>||||
      !
    !
  !
  ppp|ppp|o||
    <cr>||||
    !
  !
  hdlc|hdlc|o||
    <cr>||||
    !
  !
  frame-relay|frame-relay|o||
    <cr>||||
    !
    ietf|ietf|k||
      <cr>||||
      !
    !
  !
  arpa|arpa|o||
    <cr>||||
    !
  !
  lapb|lapb|o||
    <cr>||||
    !
  !
  x25|x25|o||
    <cr>||||
    !
  !
  smds|smds|o||
    <cr>||||
    !
  !
  atm-dxi|atm-dxi|o||
    <cr>||||
    !
  !
  slip|slip|o||
    <cr>||||
    !
  !
  mpls|mpls|o||
    <cr>||||
    !
  !
  aal5snap|aal5snap|o||
    <cr>||||
    !
  !
  gre|gre|o||
    <cr>||||
    !
  !
  qinq|qinq|o||
    <cr>||||
    !
  !
!
cdp|cdp interface subcommands|k||
  enable|enable|k/sn||
    <cr>||||
    !
  !
  log|log|k||
    mismatch|mismatch|k||
      duplex|duplex|k/sn||
        <cr>||||
        !
      !
    !
  !
  tlv|tlv|k||
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
!
switchport|set switching mode characteristics|k||
  <cr>||sn||
  !
  mode|mode|k/n||
    access|access|o||
      <cr>||||
      !
    !
    trunk|trunk|o||
      <cr>||||
      !
    !
    dynamic|dynamic|||
      auto|auto|o||
        <cr>||||
        !
      !
      desirable|desirable|o||
        <cr>||||
        !
      !
    !
    private-vlan|private-vlan|o||
      line|line|lb/le/wa||
        <cr>||||
        !
      !
    !
    dot1q-tunnel|dot1q-tunnel|o||
      <cr>||||
      !
    !
  !
  access|access|k/n||
    vlan|vlan|k||
      1-4094|vlan id of the vlan when this port is in access mode|o||
        <cr>||||
        !
      !
      name|vlan name|k||
        word|vlan name|o||
          <cr>||||
          !
        !
      !
    !
  !
  voice|voice|k/n||
    vlan|vlan|k||
      1-4094|vlan for voice traffic|o||
        <cr>||||
        !
      !
      dot1p|dot1p|k||
        <cr>||||
        !
      !
      untagged|untagged|k||
        <cr>||||
        !
      !
      none|none|k||
        <cr>||||
        !
      !
    !
  !
  trunk|trunk|k/n||
    encapsulation|encapsulation|k||
      dot1q|dot1q|k/o||
        <cr>||||
        !
      !
      isl|isl|k/o||
        <cr>||||
        !
      !
      negotiate|negotiate|k/o||
        <cr>||||
        !
      !
    !
    allowed|allowed|k||
      vlan|vlan|k/n||
        <cr>||||
        !
        <vlan>|vlan|m||
          <cr>||||
          !
        !
        add|add|k||
          <vlan>|vlan|k/a||
            <cr>||||
            !
          !
        !
        remove|remove|k||
          <vlan>|vlan|m||
            <cr>||||
            !
          !
        !
        except|except|k||
          <vlan>|vlan|m||
            <cr>||||
            !
          !
        !
        all|all|k||
          <cr>||||
          !
        !
        none|none|k||
          <cr>||||
          !
        !
      !
    !
    native|native|k||
      vlan|vlan|k||
        1-4094|vlan id of the native vlan when this port is in trunking mode|o||
          <cr>||||
          !
        !
        tag|tag|k||
          <cr>||||
          !
        !
      !
    !
    pruning|pruning|k||
      vlan|vlan|k||
        line|line|lb/le/wa||
          <cr>||||
          !
        !
      !
    !
  !
  nonegotiate|nonegotiate|k/n||
    <cr>||||
    !
  !
  nonnegotiate|nonnegotiate|k/n||
    <cr>||||
    !
  !
  port-security|security on the port|k/n||
    <cr>||||
    !
    maximum|maximum secure addresses|k/n||
      id|maximum addresses|o||
        <cr>||||
        !
        vlan|per vlan maximum|k||
          line|line|lb/le/wa||
            <cr>||||
            !
          !
        !
      !
    !
    violation|security violation mode|k/n||
      protect|drop violating packets|o||
        <cr>||||
        !
      !
      restrict|drop and count violating packets|o||
        <cr>||||
        !
      !
      shutdown|shut down the port|o||
        <cr>||||
        !
        vlan|shut down the vlan|k||
          <cr>||||
          !
        !
      !
    !
    mac-address|mac-address|k||
      sticky|sticky|k||
        <cr>||||
        !
        h.h.h|h.h.h|k||
          <cr>||||
          !
          vlan|vlan|k||
            line|line|lb/le/wa||
              <cr>||||
              !
            !
          !
        !
      !
      h.h.h|h.h.h|k||
        <cr>||||
        !
        vlan|vlan|k||
          line|line|lb/le/wa||
            <cr>||||
            !
          !
        !
      !
    !
    aging|port-security aging|k||
      time|aging time|k/n||
        id|minutes|o||
          <cr>||||
          !
        !
      !
      type|aging type|k/n||
        absolute|absolute aging|o||
          <cr>||||
          !
        !
        inactivity|aging when inactive|o||
          <cr>||||
          !
        !
      !
      static|age static addresses|k||
        <cr>||||
        !
      !
    !
  !
  block|block|k/n||
    unicast|unicast|k||
      <cr>||||
      !
    !
    multicast|multicast|k||
      <cr>||||
      !
    !
  !
  protected|protected|k/n||
    <cr>||||
    !
  !
  host|host|k/n||
    <cr>||||
    !
  !
  priority|priority|k/n||
    extend|extend|k||
      line|line|lb/le/wa||
        <cr>||||
        !
      !
    !
  !
  backup|backup|k/n||
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
  private-vlan|private-vlan|k/n||
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
  vlan|vlan|k/n||
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
!
spanning-tree|spanning tree subsystem|k||
  portfast|portfast|k||
    <cr>||||
    !
    edge|edge|k||
      <cr>||||
      !
      trunk|trunk|k||
        <cr>||||
        !
      !
    !
    trunk|trunk|k||
      <cr>||||
      !
    !
    disable|disable|k||
      <cr>||||
      !
    !
    network|network|k||
      <cr>||||
      !
    !
  !
  guard|guard|k||
    root|root|k||
      <cr>||||
      !
    !
    loop|loop|k||
      <cr>||||
      !
    !
    none|none|k||
      <cr>||||
      !
    !
  !
  bpdufilter|bpdufilter|k||
    enable|enable|k||
      <cr>||||
      !
    !
    disable|disable|k||
      <cr>||||
      !
    !
  !
  bpduguard|bpduguard|k||
    enable|enable|k||
      <cr>||||
      !
    !
    disable|disable|k||
      <cr>||||
      !
    !
  !
  cost|cost|k||
    id|id|||
      <cr>||||
      !
    !
  !
  port-priority|port-priority|k||
    id|id|||
      <cr>||||
      !
    !
  !
  link-type|link-type|k||
    point-to-point|point-to-point|k||
      <cr>||||
      !
    !
    shared|shared|k||
      <cr>||||
      !
    !
  !
  vlan|vlan|k||
    <vlan>|vlan|k||
      cost|cost|k||
        id|id|||
          <cr>||||
          !
        !
      !
      port-priority|port-priority|k||
        id|id|||
          <cr>||||
          !
        !
      !
    !
  !
  mst|mst|k||
    <value>|value|k||
      cost|cost|k||
        id|id|||
          <cr>||||
          !
        !
      !
      port-priority|port-priority|k||
        id|id|||
          <cr>||||
          !
        !
      !
    !
  !
!
standby|hot standby router protocol|k||
  id|group number|k||
    ip|ip|k/o||
      a.b.c.d|a.b.c.d|n||
        <cr>||||
        !
        secondary|secondary|k/a||
          <cr>||||
          !
        !
      !
    !
    ipv6|ipv6|k||
      line|line|lb/le/wa||
        <cr>||||
        !
      !
    !
    preempt|preempt|k||
      <cr>||||
      !
      delay|delay|k||
        line|line|lb/le/wa||
          <cr>||||
          !
        !
      !
    !
    priority|priority level|k/n||
      0-255|priority value|o||
        <cr>||||
        !
      !
    !
    authentication|authentication|k||
      md5|md5|k||
        key-string|key-string|k||
          id|id|||
            line|line|lb/le/wa||
              <cr>||||
              !
            !
          !
          line|line|lb/le/wa||
            <cr>||||
            !
          !
        !
        key-chain|key-chain|k||
          word|word|||
            <cr>||||
            !
          !
        !
      !
      text|text|k||
        word|word|||
          <cr>||||
          !
        !
      !
      word|word|||
        <cr>||||
        !
      !
    !
    timers|timers|k||
      msec|msec|k||
        id|id|||
          msec|msec|k||
            id|id|||
              <cr>||||
              !
            !
          !
          id|id|||
            <cr>||||
            !
          !
        !
      !
      id|id|||
        id|id|||
          <cr>||||
          !
        !
        msec|msec|k||
          id|id|||
            <cr>||||
            !
          !
        !
      !
    !
    track|track|k||
      id|id|k||
        <cr>||||
        !
        decrement|decrement|k||
          id|id|||
            <cr>||||
            !
          !
        !
        shutdown|shutdown|k||
          <cr>||||
          !
        !
        id|id|||
          <cr>||||
          !
        !
      !
      &interfacefile.cfm|interface type|k||
        <number>|interface number|k||
          <cr>||||
          !
          id|id|||
            <cr>||||
            !
          !
        !
      !
    !
    name|name|k||
      word|word|||
        <cr>||||
        !
      !
    !
    mac-address|mac-address|k||
      h.h.h|h.h.h|||
        <cr>||||
        !
      !
    !
    follow|follow|k||
      word|word|||
        <cr>||||
        !
      !
    !
  !
  ip|ip|k/o||
    a.b.c.d|a.b.c.d|n||
      <cr>||||
      !
      secondary|secondary|k/a||
        <cr>||||
        !
      !
    !
  !
  version|version|k||
    id|id|||
      <cr>||||
      !
    !
  !
  use-bia|use-bia|k||
    <cr>||||
    !
    scope|scope|k||
      interface|interface|k||
        <cr>||||
        !
      !
    !
  !
  preempt|preempt|k||
    <cr>||||
    !
    delay|delay|k||
      line|line|lb/le/wa||
        <cr>||||
        !
      !
    !
  !
  priority|priority|k||
    id|id|||
      <cr>||||
      !
    !
  !
  timers|timers|k||
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
  authentication|authentication|k||
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
  track|track|k||
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
  delay|delay|k||
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
  bfd|bfd|k||
    <cr>||||
    !
  !
  redirect|redirect|k||
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
!
vrrp|vrrp configuration|k||
  id|group number|k||
    ip|enable vrrp and set the virtual address|k/n||
      a.b.c.d|virtual router ip address|o||
        <cr>||||
        !
        secondary|secondary address|k||
          <cr>||||
          !
        !
      !
    !
    description|group description|k/n||
      line|line|lb/le/wa/o||
        <cr>||||
        !
      !
    !
    priority|priority level|k/n||
      id|priority value|o||
        <cr>||||
        !
      !
    !
    preempt|enable preemption|k||
      <cr>||||
      !
      delay|wait before preempting|k||
        minimum|minimum delay|k||
          id|seconds|o||
            <cr>||||
            !
          !
        !
      !
    !
    timers|vrrp timers|k/n||
      advertise|advertisement timer|k||
        id|seconds|o||
          <cr>||||
          !
        !
        msec|milliseconds|k||
          id|milliseconds|o||
            <cr>||||
            !
          !
        !
      !
      learn|learn the timer from the master|k||
        <cr>||||
        !
      !
    !
    authentication|authentication|k/n||
      text|plain text string|k||
        word|string|o||
          <cr>||||
          !
        !
      !
      md5|md5 authentication|k||
        key-string|key string|k||
          id|encryption type|||
            line|line|lb/le/wa/o||
              <cr>||||
              !
            !
          !
          line|line|lb/le/wa/o||
            <cr>||||
            !
          !
        !
        key-chain|key chain|k||
          word|key chain name|o||
            <cr>||||
            !
          !
        !
      !
    !
    track|track an object|k||
      id|tracked object number|k||
        <cr>||||
        !
        decrement|priority decrement|k||
          id|decrement|o||
            <cr>||||
            !
          !
        !
      !
    !
    shutdown|disable the group|k||
      <cr>||||
      !
    !
    name|redundancy name|k||
      word|word|o||
        <cr>||||
        !
      !
    !
    address-family|address family|k||
      line|line|lb/le/wa||
        <cr>||||
        !
      !
    !
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
!
glbp|glbp configuration|k||
  id|id|k||
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
!
media-type|media type|k||
  rj45|rj45|k/o||
    <cr>||||
    !
  !
  sfp|sfp|k/o||
    <cr>||||
    !
  !
  gbic|gbic|k/o||
    <cr>||||
    !
  !
  auto-select|auto-select|k/o||
    <cr>||||
    !
  !
  10baset|10baset|k/o||
    <cr>||||
    !
  !
  100basex|100basex|k/o||
    <cr>||||
    !
  !
!
keepalive|enable keepalive|k||
  <cr>||sn||
  !
  id|id|o||
    <cr>||||
    !
    id|id|||
      <cr>||||
      !
    !
  !
!
hold-queue|set hold queue depth|k||
  id|id|||
    in|in|k||
      <cr>||||
      !
    !
    out|out|k||
      <cr>||||
      !
    !
  !
!
load-interval|specify interval for load calculation|k||
  id|id|o||
    <cr>||||
    !
  !
!
vrf|vrf interface commands|k||
  forwarding|forwarding|k||
    word|word|o||
      <cr>||||
      !
      downstream|downstream|k||
        word|word|||
          <cr>||||
          !
        !
      !
    !
  !
  select|select|k||
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
!
tunnel|protocol-over-protocol tunneling|k||
  source|source|k||
    &interfacefile.cfm|interface type|o||
      <number>|interface number|o||
        <cr>||||
        !
      !
    !
    a.b.c.d|a.b.c.d|o||
      <cr>||||
      !
    !
    ipv6/address|ipv6/address|o||
      <cr>||||
      !
    !
    dynamic|dynamic|k||
      <cr>||||
      !
    !
  !
  destination|destination|k||
    a.b.c.d|a.b.c.d|o||
      <cr>||||
      !
    !
    word|word|o||
      <cr>||||
      !
    !
  !
  mode|mode|k||
    ipsec|ipsec|k||
      ipv4|ipv4|k/o||
        <cr>||||
        !
        v6-overlay|v6-overlay|k||
          <cr>||||
          !
        !
      !
      ipv6|ipv6|k/o||
        <cr>||||
        !
      !
      dual-overlay|dual-overlay|k/o||
        <cr>||||
        !
      !
    !
    gre|gre|k||
      ip|ip|k/o||
        <cr>||||
        !
      !
      ipv6|ipv6|k/o||
        <cr>||||
        !
      !
      multipoint|multipoint|k/o||
        <cr>||||
        !
        ipv6|ipv6|k||
          <cr>||||
          !
        !
      !
    !
    ipip|ipip|k/o||
      <cr>||||
      !
      decapsulate-any|decapsulate-any|k||
        <cr>||||
        !
      !
    !
    ipv6ip|ipv6ip|k/o||
      <cr>||||
      !
      6to4|6to4|k||
        <cr>||||
        !
      !
      auto-tunnel|auto-tunnel|k||
        <cr>||||
        !
      !
      isatap|isatap|k||
        <cr>||||
        !
      !
    !
    mpls|mpls|k||
      traffic-eng|traffic-eng|k||
        <cr>||||
        !
        line|line|lb/le/wa||
          <cr>||||
          !
        !
      !
    !
    ipv6|ipv6|k/o||
      <cr>||||
      !
    !
    vxlan|vxlan|k||
      line|line|lb/le/wa||
        <cr>||||
        !
      !
    !
  !
  protection|protection|k||
    ipsec|ipsec|k||
      profile|profile|k||
        word|word|o||
          <cr>||||
          !
          shared|shared|k||
            <cr>||||
            !
          !
        !
      !
    !
  !
  key|key|k||
    id|id|o||
      <cr>||||
      !
    !
  !
  vrf|vrf|k||
    word|word|o||
      <cr>||||
      !
    !
  !
  mpls|mpls|k||
    traffic-eng|traffic-eng|k||
      path-option|a path of the tunnel|k||
        id|id|k/n||
          line|line|lb/le/wa/o||
            <cr>||||
            !
          !
        !
      !
      word|word|k/n||
        <cr>||||
        !
        line|line|lb/le/wa/o||
          <cr>||||
          !
        !
      !
    !
  !
  path-mtu-discovery|path-mtu-discovery|k||
    <cr>||||
    !
  !
  bandwidth|bandwidth|k||
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
  checksum|checksum|k||
    <cr>||||
    !
  !
  sequence-datagrams|sequence-datagrams|k||
    <cr>||||
    !
  !
  ttl|ttl|k||
    id|id|||
      <cr>||||
      !
    !
  !
  tos|tos|k||
    id|id|||
      <cr>||||
      !
    !
  !
  route-via|route-via|k||
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
!
crypto|encryption/decryption commands|k||
  map|map|k||
    word|word|o||
      <cr>||||
      !
      redundancy|redundancy|k||
        line|line|lb/le/wa||
          <cr>||||
          !
        !
      !
    !
  !
  ipsec|ipsec settings|k||
    client|easy vpn client|k||
      ezvpn|easy vpn remote of this interface|k||
        word|word|k||
          <cr>||||
          !
          inside|inside|o||
            <cr>||||
            !
          !
          outside|outside|o||
            <cr>||||
            !
          !
        !
      !
    !
  !
!
service-policy|configure qos service policy|k||
  input|input|k||
    word|word|k||
      <cr>||||
      !
    !
  !
  output|output|k||
    word|word|k||
      <cr>||||
      !
    !
  !
  type|type|k||
    inspect|inspect|k||
      word|word|||
        <cr>||||
        !
      !
    !
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
  word|word|||
    <cr>||||
    !
  !
!
channel-group|etherchannel/port bundling configuration|k||
  id|id|o||
    <cr>||||
    !
    mode|mode|k||
      active|active|k||
        <cr>||||
        !
      !
      passive|passive|k||
        <cr>||||
        !
      !
      on|on|k||
        <cr>||||
        !
      !
      auto|auto|k||
        <cr>||||
        !
        non-silent|non-silent|k||
          <cr>||||
          !
        !
      !
      desirable|desirable|k||
        <cr>||||
        !
        non-silent|non-silent|k||
          <cr>||||
          !
        !
      !
    !
  !
  auto|auto|k||
    <cr>||||
    !
  !
!
channel-protocol|select the channel protocol (lacp, pagp)|k||
  lacp|lacp|k/o||
    <cr>||||
    !
  !
  pagp|pagp|k/o||
    <cr>||||
    !
  !
!
mop|dec mop server commands|k||
  enabled|enable mop on the interface|k/sn||
    <cr>||||
    !
  !
  sysid|send mop periodic system id messages|k/sn||
    <cr>||||
    !
  !
!
serial|serial interface commands|k||
  restart-delay|restart-delay|k||
    id|id|o||
      <cr>||||
      !
    !
  !
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
clock|configure serial interface clock|k||
  rate|rate|k||
    id|id|o||
      <cr>||||
      !
    !
  !
  source|source|k||
    line|line|lb/le/wa/o||
      <cr>||||
      !
    !
  !
!
lldp|lldp interface subcommands|k||
  transmit|transmit|k/sn||
    <cr>||||
    !
  !
  receive|receive|k/sn||
    <cr>||||
    !
  !
  med-tlv-select|med-tlv-select|k||
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
  tlv-select|tlv-select|k||
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
!
mpls|configure mpls interface parameters|k||
  ip|ip|k||
    <cr>||||
    !
  !
  mtu|mtu|k||
    override|override|k||
      <cr>||||
      !
      id|id|||
        <cr>||||
        !
      !
    !
    id|id|o||
      <cr>||||
      !
    !
  !
  traffic-eng|traffic-eng|k||
    tunnels|tunnels|k||
      <cr>||||
      !
    !
    administrative-weight|administrative-weight|k||
      id|id|||
        <cr>||||
        !
      !
    !
    attribute-flags|attribute-flags|k||
      word|word|||
        <cr>||||
        !
      !
    !
    backup-path|backup-path|k||
      line|line|lb/le/wa||
        <cr>||||
        !
      !
    !
  !
  label|label|k||
    protocol|protocol|k||
      ldp|ldp|k||
        <cr>||||
        !
      !
      tdp|tdp|k||
        <cr>||||
        !
      !
    !
  !
  ldp|ldp|k||
    igp|igp|k||
      sync|sync|k||
        <cr>||||
        !
        line|line|lb/le/wa||
          <cr>||||
          !
        !
      !
      autoconfig|ldp autoconfiguration|k||
        <cr>||||
        !
      !
    !
    discovery|discovery|k||
      transport-address|transport-address|k||
        line|line|lb/le/wa||
          <cr>||||
          !
        !
      !
    !
  !
  bgp|bgp|k||
    forwarding|forwarding|k||
      <cr>||||
      !
    !
  !
  mldp|mldp|k||
    <cr>||||
    !
    disable|disable|k||
      <cr>||||
      !
    !
  !
!
carrier-delay|specify delay for interface transitions|k||
  id|id|o||
    <cr>||||
    !
  !
  msec|msec|k||
    id|id|o||
      <cr>||||
      !
    !
  !
!
flowcontrol|configure flow operation|k||
  receive|receive|k||
    on|on|k||
      <cr>||||
      !
    !
    off|off|k||
      <cr>||||
      !
    !
    desired|desired|k||
      <cr>||||
      !
    !
  !
  send|send|k||
    on|on|k||
      <cr>||||
      !
    !
    off|off|k||
      <cr>||||
      !
    !
    desired|desired|k||
      <cr>||||
      !
    !
  !
  hardware|hardware|k||
    <cr>||||
    !
  !
!
full-duplex|configure full-duplex operational mode|k||
  <cr>||||
  !
!
half-duplex|configure half-duplex and related commands|k||
  <cr>||||
  !
!
no-autonegotiation|turn off autonegotiation|k||
  <cr>||||
  !
!
ethernet|ethernet interface settings|k||
  oam|oam|k||
    <cr>||||
    !
    mode|mode|k||
      line|line|lb/le/wa||
        <cr>||||
        !
      !
    !
    remote-loopback|remote-loopback|k||
      line|line|lb/le/wa||
        <cr>||||
        !
      !
    !
    max-rate|max-rate|k||
      id|id|o||
        <cr>||||
        !
      !
    !
    min-rate|min-rate|k||
      id|id|o||
        <cr>||||
        !
      !
    !
    timeout|timeout|k||
      id|id|o||
        <cr>||||
        !
      !
    !
    link-monitor|link-monitor|k||
      line|line|lb/le/wa||
        <cr>||||
        !
      !
    !
  !
  cfm|cfm|k||
    mip|mip|k||
      line|line|lb/le/wa||
        <cr>||||
        !
      !
    !
    mep|mep|k||
      line|line|lb/le/wa||
        <cr>||||
        !
      !
    !
  !
  lmi|lmi|k||
    interface|interface|k||
      <cr>||||
      !
    !
    ce-vlan|ce-vlan|k||
      line|line|lb/le/wa||
        <cr>||||
        !
      !
    !
  !
!
snmp|modify snmp interface parameters|k||
  trap|trap|k||
    link-status|link-status|k/sn||
      <cr>||||
      !
    !
    ip|ip|k||
      verify|verify|k||
        drop-rate|drop-rate|k||
          <cr>||||
          !
        !
      !
    !
    mac-notification|mac-notification|k||
      line|line|lb/le/wa||
        <cr>||||
        !
      !
    !
  !
  ifindex|ifindex|k||
    persist|persist|k||
      <cr>||||
      !
    !
  !
!
logging|configure logging for interface|k||
  event|event|k||
    link-status|link-status|k||
      <cr>||||
      !
    !
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
!
storm-control|storm configuration|k||
  broadcast|broadcast traffic|k||
    level|threshold level|k/n||
      <cr>||||
      !
      <level>|rising threshold|o||
        <cr>||||
        !
        <level>|falling threshold|||
          <cr>||||
          !
        !
      !
      bps|bits per second|k||
        <rate>|rising threshold|o||
          <cr>||||
          !
          <rate>|falling threshold|||
            <cr>||||
            !
          !
        !
      !
      pps|packets per second|k||
        <rate>|rising threshold|o||
          <cr>||||
          !
          <rate>|falling threshold|||
            <cr>||||
            !
          !
        !
      !
    !
    include|include traffic|k||
      line|line|lb/le/wa||
        <cr>||||
        !
      !
    !
  !
  multicast|multicast traffic|k||
    level|threshold level|k/n||
      <cr>||||
      !
      <level>|rising threshold|o||
        <cr>||||
        !
        <level>|falling threshold|||
          <cr>||||
          !
        !
      !
      bps|bits per second|k||
        <rate>|rising threshold|o||
          <cr>||||
          !
          <rate>|falling threshold|||
            <cr>||||
            !
          !
        !
      !
      pps|packets per second|k||
        <rate>|rising threshold|o||
          <cr>||||
          !
          <rate>|falling threshold|||
            <cr>||||
            !
          !
        !
      !
    !
    include|include traffic|k||
      line|line|lb/le/wa||
        <cr>||||
        !
      !
    !
  !
  unicast|unicast traffic|k||
    level|threshold level|k/n||
      <cr>||||
      !
      <level>|rising threshold|o||
        <cr>||||
        !
        <level>|falling threshold|||
          <cr>||||
          !
        !
      !
      bps|bits per second|k||
        <rate>|rising threshold|o||
          <cr>||||
          !
          <rate>|falling threshold|||
            <cr>||||
            !
          !
        !
      !
      pps|packets per second|k||
        <rate>|rising threshold|o||
          <cr>||||
          !
          <rate>|falling threshold|||
            <cr>||||
            !
          !
        !
      !
    !
    include|include traffic|k||
      line|line|lb/le/wa||
        <cr>||||
        !
      !
    !
  !
  action|action on a storm|k||
    shutdown|shut down the port|k||
      <cr>||||
      !
    !
    trap|send an snmp trap|k||
      <cr>||||
      !
    !
    level|shut down at a level|k||
      line|line|lb/le/wa||
        <cr>||||
        !
      !
    !
  !
!
srr-queue|shaped round robin transmit queues|k||
  bandwidth|srr bandwidth|k||
    share|shared mode weights|k||
      <weights>|weights of queues 1 to 4|lb/le/wa/o||
        <cr>||||
        !
      !
    !
    shape|shaped mode weights|k||
      <weights>|weights of queues 1 to 4|lb/le/wa/o||
        <cr>||||
        !
      !
    !
    limit|limit the port's bandwidth|k||
      id|percentage|o||
        <cr>||||
        !
      !
    !
  !
!
priority-queue|priority queue settings|k||
  out|out|k||
    <cr>||||
    !
  !
!
mls|multi-layer switching settings|k||
  qos|qos|k||
    trust|trust|k||
      line|line|lb/le/wa/o||
        <cr>||||
        !
      !
    !
    vlan-based|vlan-based|k||
      <cr>||||
      !
    !
  !
!
auto|configure automation|k||
  qos|qos|k||
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
power|power configuration|k||
  inline|inline|k||
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
  efficient-ethernet|efficient-ethernet|k||
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
!
arp|set arp type (arpa, probe, snap) or timeout|k||
  timeout|timeout|k||
    id|id|o||
      <cr>||||
      !
    !
  !
  arpa|arpa|k/sn||
    <cr>||||
    !
  !
  frame-relay|frame-relay|k||
    <cr>||||
    !
  !
  snap|snap|k||
    <cr>||||
    !
  !
  probe|probe|k||
    <cr>||||
    !
  !
!
ppp|point-to-point protocol|k||
  authentication|authentication|k||
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
  chap|chap|k||
    hostname|hostname|k||
      word|word|||
        <cr>||||
        !
      !
    !
    password|password|k||
      id|id|||
        line|line|lb/le/wa||
          <cr>||||
          !
        !
      !
      line|line|lb/le/wa||
        <cr>||||
        !
      !
    !
  !
  pap|pap|k||
    sent-username|sent-username|k||
      line|line|lb/le/wa||
        <cr>||||
        !
      !
    !
  !
  multilink|multilink|k||
    <cr>||||
    !
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
  ipcp|ipcp|k||
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
dialer|dial-on-demand routing (ddr) commands|k||
  pool|pool|k||
    id|id|||
      <cr>||||
      !
    !
  !
  pool-member|pool-member|k||
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
  idle-timeout|idle-timeout|k||
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
  string|string|k||
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
  map|map|k||
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
  in-band|in-band|k||
    <cr>||||
    !
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
  persistent|persistent|k||
    <cr>||||
    !
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
  watch-group|watch-group|k||
    id|id|||
      <cr>||||
      !
    !
  !
  remote-name|remote-name|k||
    word|word|||
      <cr>||||
      !
    !
  !
  caller|caller|k||
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
  load-threshold|load-threshold|k||
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
  max-call|max-call|k||
    id|id|||
      <cr>||||
      !
    !
  !
  fast-idle|fast-idle|k||
    id|id|||
      <cr>||||
      !
    !
  !
  enable-timeout|enable-timeout|k||
    id|id|||
      <cr>||||
      !
    !
  !
  wait-for-carrier-time|wait-for-carrier-time|k||
    id|id|||
      <cr>||||
      !
    !
  !
  hold-queue|hold-queue|k||
    id|id|||
      <cr>||||
      !
    !
  !
  down-with-vInterface|down-with-vInterface|k||
    <cr>||||
    !
  !
  order|order|k||
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
  vpdn|vpdn|k||
    <cr>||||
    !
  !
  rotary-group|rotary-group|k||
    id|id|||
      <cr>||||
      !
    !
  !
!
dialer-group|assign interface to dialer-list|k||
  id|id|||
    <cr>||||
    !
  !
!
pppoe|enable pppoe|k||
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
pppoe-client|pppoe client|k||
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
peer|peer parameters for point to point interfaces|k||
  default|default|k||
    ip|ip|k||
      address|address|k||
        line|line|lb/le/wa||
          <cr>||||
          !
        !
      !
    !
  !
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
pvc|configure an atm pvc|k||
  <vpi/vci>|vpi/vci|k||
    <cr>||||@(config-if-atm-vc)# atm_vc.cfm
    !
  !
  word|word|k||
    <vpi/vci>|vpi/vci|k||
      <cr>||||@(config-if-atm-vc)# atm_vc.cfm
      !
    !
  !
!
atm|modify atm parameters|k||
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
dsl|dsl line settings|k||
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
frame-relay|set frame relay parameters|k||
  interface-dlci|interface-dlci|k||
    id|id|k||
      <cr>||||
      !
      line|line|lb/le/wa||
        <cr>||||
        !
      !
    !
  !
  lmi-type|lmi-type|k||
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
  map|map|k||
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
  intf-type|intf-type|k||
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
  class|class|k||
    word|word|||
      <cr>||||
      !
    !
  !
  traffic-shaping|traffic-shaping|k||
    <cr>||||
    !
  !
  ip|ip|k||
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
  inverse-arp|inverse-arp|k||
    <cr>||||
    !
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
  payload-compression|payload-compression|k||
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
!
x25|x.25 level 3|k||
  address|address|k||
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
  map|map|k||
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
!
fair-queue|enable fair queuing on an interface|k||
  <cr>||sn||
  !
  id|id|||
    <cr>||||
    !
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
!
random-detect|enable random early detection (red) on an interface|k||
  <cr>||||
  !
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
max-reserved-bandwidth|maximum reservable bandwidth on an interface|k||
  id|id|o||
    <cr>||||
    !
  !
!
rate-limit|rate limit access|k||
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
traffic-shape|enable traffic shaping on an interface or sub-interface|k||
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
custom-queue-list|assign a custom queue list to an interface|k||
  id|id|||
    <cr>||||
    !
  !
!
priority-group|assign a priority group to an interface|k||
  id|id|||
    <cr>||||
    !
  !
!
qos|quality of service related commands|k||
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
no-shutdown|bring the interface up|k||
  <cr>||||
  !
!
zone-member|apply zone name|k||
  security|security|k||
    word|word|o||
      <cr>||||
      !
    !
  !
!
virtual-template|virtual template of the interface|k||
  id|id|o||
    <cr>||||
    !
  !
!
source|get config from another source|k||
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
member|member interface settings|k||
  vni|vxlan network identifiers of the nve interface|k||
    list/4096-16777215|vni or a range of vnis|k||
      <cr>||||@(config-if-nve-vni)# nve_vni.cfm
      !
      associate-vrf|the vni of a vrf|k||
        <cr>||||
        !
      !
      vrf|the vrf of a layer-3 vni|k||
        word|word|o||
          <cr>||||
          !
        !
      !
      ingress-replication|ingress replication|k||
        <cr>||||
        !
        a.b.c.d|a.b.c.d|o||
          <cr>||||
          !
        !
      !
      mcast-group|multicast group|k||
        a.b.c.d|a.b.c.d|o||
          <cr>||||
          !
          a.b.c.d|a.b.c.d|||
            <cr>||||
            !
          !
        !
      !
    !
  !
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
source-interface|source interface of the nve interface|k||
  &interfacefile.cfm|interface type|o||
    <number>|interface number|o||
      <cr>||||
      !
    !
  !
!
host-reachability|host reachability of the nve interface|k||
  protocol|protocol|k||
    bgp|bgp|k||
      <cr>||||
      !
    !
  !
!
wlan|wireless lan settings|k||
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
macsec|enable macsec on the interface|k||
  <cr>||||
  !
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
mka|mka configuration for the interface|k||
  policy|policy|k||
    word|word|||
      <cr>||||
      !
    !
  !
  default-policy|default-policy|k||
    <cr>||||
    !
  !
  pre-shared-key|pre-shared-key|k||
    <cr>||sn||
    !
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
!
authentication|authentication manager settings|k||
  port-control|port-control|k||
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
  host-mode|host-mode|k||
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
  periodic|periodic|k||
    <cr>||||
    !
  !
  timer|timer|k||
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
  order|order|k||
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
  priority|priority|k||
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
  event|event|k||
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
  open|open|k||
    <cr>||||
    !
  !
  violation|violation|k||
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
  control-direction|control-direction|k||
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
!
dot1x|interface config commands for ieee 802.1x|k||
  pae|port access entity role|k||
    authenticator|act as the authenticator|k/o||
      <cr>||||
      !
    !
    supplicant|act as a supplicant|k/o||
      <cr>||||
      !
    !
    both|act as authenticator and supplicant|k/o||
      <cr>||||
      !
    !
  !
  timeout|timeout|k||
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
  port-control|port-control|k||
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
  max-reauth-req|max-reauth-req|k||
    id|id|||
      <cr>||||
      !
    !
  !
  max-req|max-req|k||
    id|id|||
      <cr>||||
      !
    !
  !
!
mab|mac authentication bypass interface config commands|k||
  <cr>||||
  !
  eap|eap|k||
    <cr>||||
    !
  !
!
access-session|access session specific interface configuration|k||
  port-control|port-control|k||
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
  host-mode|host-mode|k||
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
  closed|closed|k||
    <cr>||||
    !
  !
  control-direction|control-direction|k||
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
!
device-tracking|configure device-tracking on the interface|k||
  <cr>||||
  !
  attach-policy|attach-policy|k||
    word|word|||
      <cr>||||
      !
    !
  !
!
small-frame|set rate limit parameters for small frames|k||
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
udld|configure udld enabled or disabled and ignore global udld setting|k||
  port|port|k||
    <cr>||||
    !
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
!
ntp|configure ntp|k||
  disable|disable|k||
    <cr>||||
    !
  !
  broadcast|broadcast|k||
    <cr>||||
    !
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
  multicast|multicast|k||
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
!
rmon|configure remote monitoring on an interface|k||
  collection|collection|k||
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
!
transmit-interface|assign a transmit interface to a receive-only interface|k||
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
backup|modify backup parameters|k||
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
pos|modify sonet parameters|k||
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
crc|set the crc word size|k||
  id|id|||
    <cr>||||
    !
  !
!
framing|specify the framing type|k||
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
cable|cable interface settings|k||
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
ignore|ignore a packet type or setting|k||
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
loopback|configure internal loopback on an interface|k||
  <cr>||||
  !
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
no-keepalive|turn off keepalives|k||
  <cr>||||
  !
!
l2protocol-tunnel|tunnel layer 2 protocols|k||
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
location|interface location information|k||
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
switch|switch interface settings|k||
  virtual|stackwise virtual|k||
    link|stackwise virtual link|k||
      id|link number|k||
        <cr>||||
        !
      !
    !
    dual-active-detection|dual active detection link|k||
      <cr>||||
      !
    !
  !
!
vlan-range|range of vlans|k||
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
stackwise-virtual|stackwise virtual interface settings|k||
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
isis|is-is commands|k||
  word|word|k/n||
    <cr>||||
    !
    line|line|lb/le/wa/o||
      <cr>||||
      !
    !
  !
!
clns|clns interface subcommands|k||
  route-cache|route-cache|k/sn||
    <cr>||||
    !
  !
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
dampening|enable event dampening|k||
  <cr>||||
  !
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
bfd|bfd interface configuration commands|k||
  interval|interval|k||
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
  echo|echo|k||
    <cr>||||
    !
  !
!
ospfv3|ospfv3 interface commands|k||
  network|network|k||
    line|line|lb/le/wa/o||
      <cr>||||
      !
    !
  !
  encryption|encryption|k||
    line|line|lb/le/wa/o||
      <cr>||||
      !
    !
  !
  authentication|authentication|k||
    line|line|lb/le/wa/o||
      <cr>||||
      !
    !
  !
  cost|cost|k||
    id|id|o||
      <cr>||||
      !
    !
  !
  id|process id|k||
    area|area|k||
      id|id|k||
        <cr>||||
        !
        line|line|lb/le/wa||
          <cr>||||
          !
        !
      !
    !
    cost|cost|k||
      id|id|o||
        <cr>||||
        !
      !
    !
    line|line|lb/le/wa/k||
      <cr>||||
      !
    !
  !
  line|line|lb/le/wa/k||
    <cr>||||
    !
  !
!
xconnect|xconnect commands|k||
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
l2tp|l2tp interface settings|k||
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
lacp|lacp interface subcommands|k||
  port-priority|port-priority|k||
    id|id|||
      <cr>||||
      !
    !
  !
  fast-switchover|fast switchover of the port channel|k||
    <cr>||||
    !
  !
  max-bundle|max-bundle|k||
    id|id|o||
      <cr>||||
      !
    !
  !
  min-bundle|min-bundle|k||
    id|id|o||
      <cr>||||
      !
    !
  !
  rate|rate|k||
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
!
pagp|pagp interface subcommands|k||
  port-priority|port-priority|k||
    id|id|||
      <cr>||||
      !
    !
  !
  learn-method|learn-method|k||
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
!
queue-set|choose a queue-set for this queue|k||
  id|id|||
    <cr>||||
    !
  !
!
trust|trust settings of the interface|k||
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
h323-gateway|configure h323 gateway voip interface|k||
  voip|voip|k||
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
!
peer-default|default peer address for point to point interfaces|k||
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
service|interface specific service settings|k||
  instance|instance|k||
    id|id|k||
      ethernet|ethernet|k||
        <cr>||||@(config-if-srv)# generic.cfm
        !
        word|word|||
          <cr>||||@(config-if-srv)# generic.cfm
          !
        !
      !
    !
  !
!
bgp-policy|apply policy propagated by bgp community string|k||
  accounting|accounting|k||
    input|input|k||
      <cr>||||
      !
      source|source|k||
        <cr>||||
        !
      !
    !
    output|output|k||
      <cr>||||
      !
      source|source|k||
        <cr>||||
        !
      !
    !
  !
  source|source|k||
    ip-prec-map|ip-prec-map|k||
      <cr>||||
      !
    !
    ip-qos-map|ip-qos-map|k||
      <cr>||||
      !
    !
  !
  destination|destination|k||
    ip-prec-map|ip-prec-map|k||
      <cr>||||
      !
    !
    ip-qos-map|ip-qos-map|k||
      <cr>||||
      !
    !
  !
!
network-clock|network clock configuration|k||
  wait-to-restore|wait-to-restore|k||
    id|id|o||
      <cr>||||
      !
    !
  !
  hold-off|hold-off|k||
    id|id|o||
      <cr>||||
      !
    !
  !
  source|source|k||
    quality-level|quality-level|k||
      word|word|||
        tx|tx|k||
          <cr>||||
          !
        !
        rx|rx|k||
          <cr>||||
          !
        !
      !
    !
  !
  synchronization|synchronization|k||
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
!
synchronous|synchronous mode|k||
  mode|mode|k/sn||
    <cr>||||
    !
  !
!
bundle-enable|bundle atm vcs|k/sn||
  <cr>||||
  !
!
physical-layer|physical layer mode|k||
  async|async|k/o||
    <cr>||||
    !
  !
  sync|sync|k/o||
    <cr>||||
    !
  !
!
routing|routing on the interface|k||
  dynamic|dynamic|k/sn||
    <cr>||||
    !
  !
!
medium|interface medium|k||
  p2p|p2p|k||
    <cr>||||
    !
  !
  broadcast|broadcast|k||
    <cr>||||
    !
  !
!
tx-queue-limit|transmit queue size|k||
  id|id|o||
    <cr>||||
    !
  !
!
dot1q|dot1q settings|k||
  tunneling|tunneling|k||
    ethertype|ethertype|k||
      word|ethertype|o||
        <cr>||||
        !
      !
    !
  !
!
tx-ring-limit|transmit ring size|k||
  id|packets|o||
    <cr>||||
    !
  !
!
autostate|vlan interface state follows its ports|k/sn||
  <cr>||||
  !
!
mac-address|manually set the interface mac address|k||
  h.h.h|mac address|o||
    <cr>||||
    !
  !
!
tx-queue-limit|largest transmit queue|k||
  id|packets|o||
    <cr>||||
    !
  !
!
dce-terminal-timing-enable|dce terminal timing|k||
  <cr>||||
  !
!
async|async interface|k||
  mode|mode of the async interface|k||
    interactive|interactive mode|k/o||
      <cr>||||
      !
    !
    dedicated|dedicated mode|k/o||
      <cr>||||
      !
    !
  !
  default|defaults|k||
    routing|routing on the async line|k||
      <cr>||||
      !
    !
  !
  dynamic|dynamic settings|k||
    address|addresses given by the user|k||
      <cr>||||
      !
    !
    routing|routing given by the user|k||
      <cr>||||
      !
    !
  !
!
eou|eap over udp on this interface|k||
  revalidate|revalidate the clients|k||
    <cr>||||
    !
  !
  max-retry|most retries|k||
    <1-3>|retries|o||
      <cr>||||
      !
    !
  !
  ratelimit|rate limit|k||
    id|sessions|o||
      <cr>||||
      !
    !
  !
  port|udp port|k||
    <1-65535>|port|o||
      <cr>||||
      !
    !
  !
  allow|what is allowed|k||
    ip-station-id|ip address as the station id|k/sb/o||
      <cr>||||
      !
    !
    clientless|clientless hosts|k/sb/o||
      <cr>||||
      !
    !
  !
  timeout|timers|k||
    hold-period|hold period|k||
      <60-86400>|seconds|o||
        <cr>||||
        !
      !
    !
    status-query|status query|k||
      <10-1800>|seconds|o||
        <cr>||||
        !
      !
    !
    retransmit|retransmission|k||
      <1-60>|seconds|o||
        <cr>||||
        !
      !
    !
    aaa|aaa timeout|k||
      id|seconds|o||
        <cr>||||
        !
      !
    !
    revalidation|revalidation timer|k||
      <5-86400>|seconds|o||
        <cr>||||
        !
      !
    !
  !
  logging|log eou events|k||
    <cr>||||
    !
  !
  default|defaults|k||
    <cr>||||
    !
  !
!
cts|cisco trustsec on this interface|k||
  role-based|role-based access control|k||
    enforcement|enforce the rules on this interface|k||
      <cr>||||
      !
    !
  !
  manual|manual trustsec settings|k||
    <cr>||||@(config-if-cts-manual)# interface_cts_manual.cfm
    !
  !
  dot1x|trustsec by 802.1x|k||
    <cr>||||
    !
  !
!
isdn|isdn settings of this interface|k||
  switch-type|isdn switch type|k||
    basic-1tr6|1tr6 switch type for germany|k/o||
      <cr>||||
      !
    !
    basic-5ess|at&t 5ess switch type for the u.s.|k/o||
      <cr>||||
      !
    !
    basic-dms100|northern dms-100 switch type|k/o||
      <cr>||||
      !
    !
    basic-net3|net3 switch type for the uk and others|k/o||
      <cr>||||
      !
    !
    basic-ni|national isdn switch type|k/o||
      <cr>||||
      !
    !
    basic-qsig|qsig switch type|k/o||
      <cr>||||
      !
    !
    basic-ts013|ts013 switch type for australia|k/o||
      <cr>||||
      !
    !
    primary-4ess|lucent 4ess switch type for the u.s.|k/o||
      <cr>||||
      !
    !
    primary-5ess|lucent 5ess switch type for the u.s.|k/o||
      <cr>||||
      !
    !
    primary-dms100|northern telecom dms-100 switch type|k/o||
      <cr>||||
      !
    !
    primary-net5|net5 switch type for the uk, europe, asia and australia|k/o||
      <cr>||||
      !
    !
    primary-ni|national isdn switch type|k/o||
      <cr>||||
      !
    !
    primary-ntt|japan switch type|k/o||
      <cr>||||
      !
    !
    primary-qsig|qsig switch type|k/o||
      <cr>||||
      !
    !
    primary-ts014|ts014 switch type for australia|k/o||
      <cr>||||
      !
    !
  !
  incoming-voice|treatment of incoming voice calls|k||
    voice|as voice|k/o||
      <cr>||||
      !
    !
    modem|as modem calls|k/o||
      <cr>||||
      !
    !
    data|as data|k/o||
      <cr>||||
      !
    !
  !
  protocol-emulate|side of the isdn link|k||
    network|network side|k/o||
      <cr>||||
      !
    !
    user|user side|k/o||
      <cr>||||
      !
    !
  !
  overlap-receiving|receive the number digit by digit|k||
    <cr>||||
    !
  !
  send-alerting|send alerting|k||
    <cr>||||
    !
  !
  sending-complete|send the sending-complete element|k||
    <cr>||||
    !
  !
  point-to-point-setup|point-to-point link|k||
    <cr>||||
    !
  !
  bind-l3|layer 3 binding|k||
    line|line|lb/le/wa/o||
      <cr>||||
      !
    !
  !
!
ssid|radio service set of this radio|k||
  word|ssid name|k||
    <cr>||||
    !
  !
!
encryption|radio encryption|k||
  vlan|encryption of a vlan|k||
    <1-4094>|vlan id|k||
      mode|encryption mode|k||
        ciphers|cipher suite|k||
          aes-ccm|aes counter mode with cbc-mac|k||
            <cr>||||
            !
            aes-ccm|aes counter mode with cbc-mac|k||
              <cr>||||
              !
            !
            ckip|cisco key integrity protocol|k||
              <cr>||||
              !
            !
            ckip-cmic|ckip with message integrity check|k||
              <cr>||||
              !
            !
            cmic|cisco message integrity check|k||
              <cr>||||
              !
            !
            tkip|temporal key integrity protocol|k||
              <cr>||||
              !
            !
            wep128|128-bit wep|k||
              <cr>||||
              !
            !
            wep40|40-bit wep|k||
              <cr>||||
              !
            !
          !
          ckip|cisco key integrity protocol|k||
            <cr>||||
            !
            aes-ccm|aes counter mode with cbc-mac|k||
              <cr>||||
              !
            !
            ckip|cisco key integrity protocol|k||
              <cr>||||
              !
            !
            ckip-cmic|ckip with message integrity check|k||
              <cr>||||
              !
            !
            cmic|cisco message integrity check|k||
              <cr>||||
              !
            !
            tkip|temporal key integrity protocol|k||
              <cr>||||
              !
            !
            wep128|128-bit wep|k||
              <cr>||||
              !
            !
            wep40|40-bit wep|k||
              <cr>||||
              !
            !
          !
          ckip-cmic|ckip with message integrity check|k||
            <cr>||||
            !
            aes-ccm|aes counter mode with cbc-mac|k||
              <cr>||||
              !
            !
            ckip|cisco key integrity protocol|k||
              <cr>||||
              !
            !
            ckip-cmic|ckip with message integrity check|k||
              <cr>||||
              !
            !
            cmic|cisco message integrity check|k||
              <cr>||||
              !
            !
            tkip|temporal key integrity protocol|k||
              <cr>||||
              !
            !
            wep128|128-bit wep|k||
              <cr>||||
              !
            !
            wep40|40-bit wep|k||
              <cr>||||
              !
            !
          !
          cmic|cisco message integrity check|k||
            <cr>||||
            !
            aes-ccm|aes counter mode with cbc-mac|k||
              <cr>||||
              !
            !
            ckip|cisco key integrity protocol|k||
              <cr>||||
              !
            !
            ckip-cmic|ckip with message integrity check|k||
              <cr>||||
              !
            !
            cmic|cisco message integrity check|k||
              <cr>||||
              !
            !
            tkip|temporal key integrity protocol|k||
              <cr>||||
              !
            !
            wep128|128-bit wep|k||
              <cr>||||
              !
            !
            wep40|40-bit wep|k||
              <cr>||||
              !
            !
          !
          tkip|temporal key integrity protocol|k||
            <cr>||||
            !
            aes-ccm|aes counter mode with cbc-mac|k||
              <cr>||||
              !
            !
            ckip|cisco key integrity protocol|k||
              <cr>||||
              !
            !
            ckip-cmic|ckip with message integrity check|k||
              <cr>||||
              !
            !
            cmic|cisco message integrity check|k||
              <cr>||||
              !
            !
            tkip|temporal key integrity protocol|k||
              <cr>||||
              !
            !
            wep128|128-bit wep|k||
              <cr>||||
              !
            !
            wep40|40-bit wep|k||
              <cr>||||
              !
            !
          !
          wep128|128-bit wep|k||
            <cr>||||
            !
            aes-ccm|aes counter mode with cbc-mac|k||
              <cr>||||
              !
            !
            ckip|cisco key integrity protocol|k||
              <cr>||||
              !
            !
            ckip-cmic|ckip with message integrity check|k||
              <cr>||||
              !
            !
            cmic|cisco message integrity check|k||
              <cr>||||
              !
            !
            tkip|temporal key integrity protocol|k||
              <cr>||||
              !
            !
            wep128|128-bit wep|k||
              <cr>||||
              !
            !
            wep40|40-bit wep|k||
              <cr>||||
              !
            !
          !
          wep40|40-bit wep|k||
            <cr>||||
            !
            aes-ccm|aes counter mode with cbc-mac|k||
              <cr>||||
              !
            !
            ckip|cisco key integrity protocol|k||
              <cr>||||
              !
            !
            ckip-cmic|ckip with message integrity check|k||
              <cr>||||
              !
            !
            cmic|cisco message integrity check|k||
              <cr>||||
              !
            !
            tkip|temporal key integrity protocol|k||
              <cr>||||
              !
            !
            wep128|128-bit wep|k||
              <cr>||||
              !
            !
            wep40|40-bit wep|k||
              <cr>||||
              !
            !
          !
        !
        wep|wep encryption|k||
          mandatory|wep is required|k/o||
            <cr>||||
            !
          !
          optional|wep is optional|k/o||
            <cr>||||
            !
          !
        !
      !
    !
  !
  mode|encryption mode|k||
    ciphers|cipher suite|k||
      aes-ccm|aes counter mode with cbc-mac|k||
        <cr>||||
        !
        aes-ccm|aes counter mode with cbc-mac|k||
          <cr>||||
          !
        !
        ckip|cisco key integrity protocol|k||
          <cr>||||
          !
        !
        ckip-cmic|ckip with message integrity check|k||
          <cr>||||
          !
        !
        cmic|cisco message integrity check|k||
          <cr>||||
          !
        !
        tkip|temporal key integrity protocol|k||
          <cr>||||
          !
        !
        wep128|128-bit wep|k||
          <cr>||||
          !
        !
        wep40|40-bit wep|k||
          <cr>||||
          !
        !
      !
      ckip|cisco key integrity protocol|k||
        <cr>||||
        !
        aes-ccm|aes counter mode with cbc-mac|k||
          <cr>||||
          !
        !
        ckip|cisco key integrity protocol|k||
          <cr>||||
          !
        !
        ckip-cmic|ckip with message integrity check|k||
          <cr>||||
          !
        !
        cmic|cisco message integrity check|k||
          <cr>||||
          !
        !
        tkip|temporal key integrity protocol|k||
          <cr>||||
          !
        !
        wep128|128-bit wep|k||
          <cr>||||
          !
        !
        wep40|40-bit wep|k||
          <cr>||||
          !
        !
      !
      ckip-cmic|ckip with message integrity check|k||
        <cr>||||
        !
        aes-ccm|aes counter mode with cbc-mac|k||
          <cr>||||
          !
        !
        ckip|cisco key integrity protocol|k||
          <cr>||||
          !
        !
        ckip-cmic|ckip with message integrity check|k||
          <cr>||||
          !
        !
        cmic|cisco message integrity check|k||
          <cr>||||
          !
        !
        tkip|temporal key integrity protocol|k||
          <cr>||||
          !
        !
        wep128|128-bit wep|k||
          <cr>||||
          !
        !
        wep40|40-bit wep|k||
          <cr>||||
          !
        !
      !
      cmic|cisco message integrity check|k||
        <cr>||||
        !
        aes-ccm|aes counter mode with cbc-mac|k||
          <cr>||||
          !
        !
        ckip|cisco key integrity protocol|k||
          <cr>||||
          !
        !
        ckip-cmic|ckip with message integrity check|k||
          <cr>||||
          !
        !
        cmic|cisco message integrity check|k||
          <cr>||||
          !
        !
        tkip|temporal key integrity protocol|k||
          <cr>||||
          !
        !
        wep128|128-bit wep|k||
          <cr>||||
          !
        !
        wep40|40-bit wep|k||
          <cr>||||
          !
        !
      !
      tkip|temporal key integrity protocol|k||
        <cr>||||
        !
        aes-ccm|aes counter mode with cbc-mac|k||
          <cr>||||
          !
        !
        ckip|cisco key integrity protocol|k||
          <cr>||||
          !
        !
        ckip-cmic|ckip with message integrity check|k||
          <cr>||||
          !
        !
        cmic|cisco message integrity check|k||
          <cr>||||
          !
        !
        tkip|temporal key integrity protocol|k||
          <cr>||||
          !
        !
        wep128|128-bit wep|k||
          <cr>||||
          !
        !
        wep40|40-bit wep|k||
          <cr>||||
          !
        !
      !
      wep128|128-bit wep|k||
        <cr>||||
        !
        aes-ccm|aes counter mode with cbc-mac|k||
          <cr>||||
          !
        !
        ckip|cisco key integrity protocol|k||
          <cr>||||
          !
        !
        ckip-cmic|ckip with message integrity check|k||
          <cr>||||
          !
        !
        cmic|cisco message integrity check|k||
          <cr>||||
          !
        !
        tkip|temporal key integrity protocol|k||
          <cr>||||
          !
        !
        wep128|128-bit wep|k||
          <cr>||||
          !
        !
        wep40|40-bit wep|k||
          <cr>||||
          !
        !
      !
      wep40|40-bit wep|k||
        <cr>||||
        !
        aes-ccm|aes counter mode with cbc-mac|k||
          <cr>||||
          !
        !
        ckip|cisco key integrity protocol|k||
          <cr>||||
          !
        !
        ckip-cmic|ckip with message integrity check|k||
          <cr>||||
          !
        !
        cmic|cisco message integrity check|k||
          <cr>||||
          !
        !
        tkip|temporal key integrity protocol|k||
          <cr>||||
          !
        !
        wep128|128-bit wep|k||
          <cr>||||
          !
        !
        wep40|40-bit wep|k||
          <cr>||||
          !
        !
      !
    !
    wep|wep encryption|k||
      mandatory|wep is required|k/o||
        <cr>||||
        !
      !
      optional|wep is optional|k/o||
        <cr>||||
        !
      !
    !
  !
!
antenna|radio antenna settings|k||
  gain|antenna gain|k||
    id|dB|o||
      <cr>||||
      !
    !
  !
  receive|receive antenna|k||
    diversity|antenna diversity|k/o||
      <cr>||||
      !
    !
    left|left antenna|k/o||
      <cr>||||
      !
    !
    right|right antenna|k/o||
      <cr>||||
      !
    !
  !
  transmit|transmit antenna|k||
    diversity|antenna diversity|k/o||
      <cr>||||
      !
    !
    left|left antenna|k/o||
      <cr>||||
      !
    !
    right|right antenna|k/o||
      <cr>||||
      !
    !
  !
!
stbc|space-time block coding|k||
  <cr>||||
  !
!
mbssid|multiple bssid|k||
  <cr>||||
  !
!
peakdetect|peak detection|k||
  <cr>||||
  !
!
dfs|dynamic frequency selection|k||
  band|dfs band|k||
    <1-4>|band|k||
      block|do not use the band|k||
        <cr>||||
        !
      !
    !
  !
!
channel|radio channel|k||
  least-congested|least congested channel|k/o||
    <cr>||||
    !
    id|frequency|lb/le||
      <cr>||||
      !
    !
  !
  width|channel width|k||
    20|20 MHz|k/o||
      <cr>||||
      !
    !
    40-above|40 MHz above|k/o||
      <cr>||||
      !
    !
    40-below|40 MHz below|k/o||
      <cr>||||
      !
    !
    80|80 MHz|k/o||
      <cr>||||
      !
    !
  !
  dfs|dynamic frequency selection|k||
    <cr>||||
    !
  !
  id|channel or frequency|o||
    <cr>||||
    !
  !
!
station-role|role of the radio|k||
  root|access point|k/o||
    <cr>||||
    !
    access-point|access point|k||
      <cr>||||
      !
    !
    bridge|root bridge|k||
      <cr>||||
      !
    !
    ap-only|access point only|k||
      <cr>||||
      !
    !
  !
  non-root|client|k/o||
    <cr>||||
    !
    bridge|non-root bridge|k||
      <cr>||||
      !
    !
    wireless-clients|with wireless clients|k||
      <cr>||||
      !
    !
  !
  repeater|repeater access point|k/o||
    <cr>||||
    !
  !
  workgroup-bridge|workgroup bridge|k/o||
    <cr>||||
    !
  !
  install|installation mode|k/o||
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
!
world-mode|world mode|k||
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
beacon|radio beacon settings|k||
  period|beacon period|k||
    <20-4000>|kilomicroseconds|o||
      <cr>||||
      !
    !
  !
  dtim-period|dtim period|k||
    <1-100>|beacon intervals|o||
      <cr>||||
      !
    !
  !
!
bridge-group|transparent bridging|k||
  <1-255>|bridge group|k||
    <cr>||||
    !
    subscriber-loop-control|loop control|k||
      <cr>||||
      !
    !
    spanning-disabled|no spanning tree|k||
      <cr>||||
      !
    !
    block-unknown-source|block unknown sources|k||
      <cr>||||
      !
    !
    source-learning|learn the sources|k/sn||
      <cr>||||
      !
    !
    unicast-flooding|flood unknown unicast|k/sn||
      <cr>||||
      !
    !
    port-protected|protected port|k||
      <cr>||||
      !
    !
    path-cost|path cost|k||
      id|cost|o||
        <cr>||||
        !
      !
    !
    priority|port priority|k||
      id|priority|o||
        <cr>||||
        !
      !
    !
    input-address-list|input address list|k||
      <700-799>|list|o||
        <cr>||||
        !
      !
    !
    output-address-list|output address list|k||
      <700-799>|list|o||
        <cr>||||
        !
      !
    !
  !
!
