send-community|send community attribute to this neighbor|k||
  <cr>||||
  !
  both|both|k||
    <cr>||||
    !
  !
  standard|standard|k||
    <cr>||||
    !
  !
  extended|extended|k||
    <cr>||||
    !
  !
!
route-map|apply route map to neighbor|k||
  word|word|o||
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
next-hop-self|disable the next hop calculation for this neighbor|k||
  <cr>||||
  !
  all|all|k||
    <cr>||||
    !
  !
!
soft-reconfiguration|per neighbor soft reconfiguration|k||
  inbound|inbound|k||
    <cr>||||
    !
  !
!
route-reflector-client|configure a neighbor as route reflector client|k||
  <cr>||||
  !
!
advertisement-interval|minimum interval between sending bgp routing updates|k||
  id|id|o||
    <cr>||||
    !
  !
!
default-originate|originate default route to this neighbor|k||
  <cr>||||
  !
  route-map|route-map|k||
    word|word|||
      <cr>||||
      !
    !
  !
!
weight|set default weight for routes from this neighbor|k||
  id|id|||
    <cr>||||
    !
  !
!
send-label|send nlri + mpls label to this peer|k||
  <cr>||||
  !
  explicit-null|explicit-null|k||
    <cr>||||
    !
  !
!
filter-list|establish bgp filters|k||
  id|id|o||
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
prefix-list|filter updates to/from this neighbor|k||
  word|word|o||
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
distribute-list|filter updates to/from this neighbor|k||
  word|word|o||
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
maximum-prefix|maximum number of prefixes accepted from this peer|k||
  id|id|||
    <cr>||||
    !
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
!
allowas-in|accept as-path with my as present in it|k||
  <cr>||||
  !
  id|id|||
    <cr>||||
    !
  !
!
as-override|override matching as-number while sending update|k||
  <cr>||||
  !
!
remove-private-as|remove private as number from outbound updates|k||
  <cr>||||
  !
  all|all|k||
    <cr>||||
    !
    replace-as|replace-as|k||
      <cr>||||
      !
    !
  !
!
dmzlink-bw|propagate the dmz link bandwidth|k||
  <cr>||||
  !
!
advertise|advertise to this neighbor|k||
  additional-paths|additional-paths|k||
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
  best-external|best-external|k||
    <cr>||||
    !
  !
!
additional-paths|negotiate additional paths capabilities with this neighbor|k||
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
unsuppress-map|route-map to selectively unsuppress suppressed routes|k||
  word|word|||
    <cr>||||
    !
  !
!
capability|advertise capability to the peer|k||
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
slow-peer|configure slow-peer|k||
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
translate-update|translate update to mbgp format|k||
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
aigp|accumulated igp metric|k||
  <cr>||||
  !
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
inherit|inherit a template|k||
  peer-policy|inherit a peer-policy template|k||
    word|template name|k||
      <cr>||||
      !
      id|sequence number|||
        <cr>||||
        !
      !
    !
  !
!
exit-peer-policy|exit from template configuration mode|k||
  <cr>||||
  !
!
