hostname|set system's network name|k/o||
  <name>|this system's network name|||
    <cr>|||||
    !
  !
!
interface|select an interface to configure|k||
  &interfacefile.cfm|interface type|k||
    <port>|port number|k||
      <cr>||||@(config-if)# interface.cfm
      !
    !
  !
!
ip|global ip configuration|k||
  route|establish static routes|k||
    a.b.c.d|destination prefix|k||
      a.b.c.d|destination mask|k||
        a.b.c.d|forwarding address|||
          <cr>|||||
          !
        !
      !
    !
  !
  domain|domain settings|k||
    lookup|name lookup|k/sn/n||
      <cr>|||||
      !
    !
  !
  vrf|vrf table|k||
    <name>|vrf name|k||
      <cr>||||@(config-vrf)# vrf.cfm
      !
    !
  !
  access-list|named access list|k||
    standard|standard access list|k||
      <name>|list name or number|k||
        <cr>||||@(config-std-nacl)# acl_std.cfm
        !
      !
    !
  !
  nat|nat configuration|k||
    pool|nat pool|k||
      <name>|pool name|k||
        <cr>|||||
        !
      !
    !
  !
!
access-list|add an access list entry|k||
  <1-199>|list number|k/n||
    permit|specify packets to forward|k||
      any|any source|||
        <cr>|||||
        !
      !
      a.b.c.d|source address|||
        <cr>|||||
        !
      !
    !
    deny|specify packets to reject|k||
      any|any source|||
        <cr>|||||
        !
      !
      a.b.c.d|source address|||
        <cr>|||||
        !
      !
    !
  !
!
router|enable a routing process|k||
  ospf|open shortest path first|k||
    <1-65535>|process id|k||
      <cr>||||@(config-router)# router_ospf.cfm
      !
    !
  !
!
vlans|allowed vlans|k/m/n||
  <1-4094>|vlan id|m/lb/le||
    <cr>|||||
    !
  !
!
duplex|duplex setting|k||
  <mode>|duplex mode|cf||
    <cr>|||||
    !
  !
!
logging|logging configuration|k||
  host|logging host|k||
    a.b.c.d|host address|||
      <cr>|||||
      !
    !
  !
!
snmp|snmp settings|k||
  trap|trap host|k/sb||
    a.b.c.d|host address|||
      <cr>|||||
      !
    !
  !
!
banner|define a banner|k||
  motd|message of the day|k||
    line|banner text|lb/le||
      <cr>|||||
      !
    !
  !
!
