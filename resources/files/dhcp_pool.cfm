network|network number and mask|k||
  a.b.c.d|a.b.c.d|o||
    <cr>||||
    !
    a.b.c.d|a.b.c.d|||
      <cr>||||
      !
    !
    </nn>|/nn|||
      <cr>||||
      !
    !
  !
!
default-router|default routers|k/n||
  a.b.c.d|a.b.c.d|o||
    <cr>||||
    !
    a.b.c.d|a.b.c.d|o||
      <cr>||||
      !
      a.b.c.d|a.b.c.d|o||
        <cr>||||
        !
      !
    !
  !
!
dns-server|dns servers|k/n||
  a.b.c.d|a.b.c.d|o||
    <cr>||||
    !
    a.b.c.d|a.b.c.d|o||
      <cr>||||
      !
      a.b.c.d|a.b.c.d|o||
        <cr>||||
        !
        a.b.c.d|a.b.c.d|o||
          <cr>||||
          !
        !
      !
    !
  !
!
domain-name|domain name|k||
  word|word|o||
    <cr>||||
    !
  !
!
lease|address lease time|k||
  id|id|o||
    <cr>||||
    !
    id|id|||
      <cr>||||
      !
      id|id|||
        <cr>||||
        !
      !
    !
  !
  infinite|infinite|k||
    <cr>||||
    !
  !
!
option|raw dhcp options|k||
  id|id|k||
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
!
host|client ip address and mask|k||
  a.b.c.d|a.b.c.d|o||
    <cr>||||
    !
    a.b.c.d|a.b.c.d|||
      <cr>||||
      !
    !
    </nn>|/nn|||
      <cr>||||
      !
    !
  !
!
client-identifier|client identifier|k||
  word|word|o||
    <cr>||||
    !
  !
!
hardware-address|client hardware address|k||
  word|word|o||
    <cr>||||
    !
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
!
client-name|client name|k||
  word|word|||
    <cr>||||
    !
  !
!
netbios-name-server|netbios (wins) name servers|k||
  a.b.c.d|a.b.c.d|m||
    <cr>||||
    !
    a.b.c.d|a.b.c.d|m||
      <cr>||||
      !
    !
  !
!
netbios-node-type|netbios node type|k||
  word|word|||
    <cr>||||
    !
  !
!
next-server|next server in boot process|k||
  a.b.c.d|a.b.c.d|||
    <cr>||||
    !
  !
!
bootfile|boot file name|k||
  word|word|||
    <cr>||||
    !
  !
!
import|programmatically importing dhcp option parameters|k||
  all|all|k||
    <cr>||||
    !
  !
!
update|dynamic updates|k||
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
vrf|associate this pool with a vrf|k||
  word|word|||
    <cr>||||
    !
  !
!
relay|function as a dhcp relay|k||
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
class|configure a dhcp class|k||
  word|class name|k||
    <cr>||||@(config-dhcp-pool-class)# dhcp_pool_class.cfm
    !
  !
!
utilization|configure various utilization parameters|k||
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
origin|configure the origin of the pool|k||
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
subnet|subnet allocation commands|k||
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
address|configure a reserved address|k||
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
dns|dns settings|k||
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
prefix-delegation|ipv6 prefix delegation|k||
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
domain-search|domain search list|k||
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
