name|ascii name of the vlan|k||
  word|word|o||
    <cr>||||
    !
  !
!
state|operational state of the vlan|k||
  active|active|k||
    <cr>||||
    !
  !
  suspend|suspend|k||
    <cr>||||
    !
  !
!
shutdown|shutdown vlan switching|k||
  <cr>||||
  !
!
remote-span|configure as remote span vlan|k||
  <cr>||||
  !
!
private-vlan|configure a private vlan|k||
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
media|media type of the vlan|k||
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
mtu|vlan maximum transmission unit|k||
  id|id|||
    <cr>||||
    !
  !
!
are|maximum number of all route explorer hops for this vlan|k||
  id|id|||
    <cr>||||
    !
  !
!
ste|maximum number of spanning tree explorer hops for this vlan|k||
  id|id|||
    <cr>||||
    !
  !
!
backupcrf|backup crf mode of the vlan|k||
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
bridge|bridging characteristics of the vlan|k||
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
parent|id number of the parent vlan of fddi or token ring type vlans|k||
  id|id|||
    <cr>||||
    !
  !
!
ring|ring number of fddi or token ring type vlans|k||
  id|id|||
    <cr>||||
    !
  !
!
said|ieee 802.10 said|k||
  id|id|||
    <cr>||||
    !
  !
!
tb-vlan1|id number of the first translational vlan for this vlan|k||
  id|id|||
    <cr>||||
    !
  !
!
tb-vlan2|id number of the second translational vlan for this vlan|k||
  id|id|||
    <cr>||||
    !
  !
!
action|action of a vlan access map|k||
  forward|forward|k||
    <cr>||||
    !
  !
  drop|drop|k||
    <cr>||||
    !
    log|log|k||
      <cr>||||
      !
    !
  !
!
match|match criteria of a vlan access map|k||
  ip|ip|k||
    address|address|k||
      word|word|||
        <cr>||||
        !
      !
    !
  !
  mac|mac|k||
    address|address|k||
      word|word|||
        <cr>||||
        !
      !
    !
  !
!
instance|map vlans to an mst instance|k||
  id|id|k||
    vlan|vlan|k||
      <vlan>|vlan|lb/le/wa||
        <cr>||||
        !
      !
    !
  !
!
revision|set the configuration revision number|k||
  id|id|||
    <cr>||||
    !
  !
!
exit|apply changes, bump revision number, and exit mode|k||
  <cr>||||
  !
!
