hostname|set system's network name|k/o||
  <name>|this system's network name|||
    <cr>|||||
    !
  !
!
interface|select an interface to configure|k||
  &interfacefile.cfm|interface type|k||
    <slot/port>|interface number|k||
      <cr>||||@(config-if)# interface.cfm
      !
    !
  !
!
ip|global ip configuration subcommands|k||
  domain-name|define the default domain name|k/o||
    word|default domain name|||
      <cr>|||||
      !
    !
  !
  route|establish static routes|k||
    a.b.c.d|destination prefix|k||
      a.b.c.d|destination prefix mask|k||
        a.b.c.d|forwarding router's address|||
          <cr>|||||
          !
        !
      !
    !
  !
!
router|enable a routing process|k||
  bgp|border gateway protocol|k||
    id|autonomous system number|k||
      <cr>||||@(config-router)# router_bgp.cfm
      !
    !
  !
!
banner|define a login banner|k||
  motd|set message of the day banner|k||
    line|c banner-text c, where c is a delimiting character|||
      <cr>|||||
      !
    !
  !
!
^c|end of banner text|||
  <cr>|||||
  !
!
logging|modify message logging facilities|k||
  host|set syslog server host name or ip address|k||
    a.b.c.d|ip address of the syslog server|k||
      <cr>|||||
      !
      transport|specify the transport protocol|k/ob||
        udp|udp transport|k/oe||
          <cr>|||||
          !
        !
      !
      vrf|set vrf option|k/ob||
        <vrfname>|vrf name|oe||
          <cr>|||||
          !
        !
      !
    !
  !
!
metric|set a metric offset|k||
  +/-<metric>|metric offset|||
    <cr>|||||
    !
  !
!
