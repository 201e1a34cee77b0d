net|net|k||
  <value>|value|k||
    <cr>||||
    !
  !
!
distribute|distribute routing information|k||
  link-state|distribute link-state information to bgp|k||
    <cr>||||
    !
    instance-id|instance-id|k||
      id|id|o||
        <cr>||||
        !
      !
    !
    level-1|level-1|k||
      <cr>||||
      !
    !
    level-2|level-2|k||
      <cr>||||
      !
    !
  !
!
is-type|is-type|k||
  line|line|lb/le/wa/o||
    <cr>||||
    !
  !
!
metric-style|metric-style|k||
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
passive-interface|passive-interface|k||
  default|default|k||
    <cr>||||
    !
  !
  &interfacefile.cfm|interface type|k||
    <number>|interface number|k||
      <cr>||||
      !
    !
  !
!
redistribute|redistribute|k||
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
log-adjacency-changes|log-adjacency-changes|k||
  <cr>||||
  !
  all|all|k||
    <cr>||||
    !
  !
!
address-family|address-family|k||
  line|line|lb/le/wa||
    <cr>||||@(config-router-af)# router_isis_nested.cfm
    !
  !
!
exit-address-family|exit-address-family|k||
  <cr>||||
  !
!
authentication|authentication|k||
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
area-password|area-password|k||
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
domain-password|domain-password|k||
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
summary-address|summary-address|k||
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
default-information|default-information|k||
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
set-overload-bit|set-overload-bit|k||
  <cr>||||
  !
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
max-lsp-lifetime|max-lsp-lifetime|k||
  id|id|||
    <cr>||||
    !
  !
!
lsp-refresh-interval|lsp-refresh-interval|k||
  id|id|||
    <cr>||||
    !
  !
!
spf-interval|spf-interval|k||
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
prc-interval|prc-interval|k||
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
lsp-gen-interval|lsp-gen-interval|k||
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
bfd|bfd|k||
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
nsf|nsf|k||
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
distance|distance|k||
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
maximum-paths|maximum-paths|k||
  id|id|||
    <cr>||||
    !
  !
!
metric|metric|k||
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
fast-reroute|fast-reroute|k||
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
segment-routing|segment-routing|k||
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
mpls|configure mpls routing protocol parameters|k||
  ldp|mpls ldp settings|k||
    sync|ldp igp synchronisation|k||
      <cr>||||
      !
    !
    autoconfig|enable ldp on the process's interfaces|k||
      <cr>||||
      !
      area|ospf area|k||
        id|area id|k||
          <cr>||||
          !
        !
      !
      level-1|is-is level-1|k||
        <cr>||||
        !
      !
      level-2|is-is level-2|k||
        <cr>||||
        !
      !
    !
  !
  traffic-eng|mpls traffic engineering|k||
    router-id|traffic engineering router id|k||
      &interfacefile.cfm|interface type|k||
        <number>|interface number|k||
          <cr>||||
          !
        !
      !
    !
    area|ospf area|k||
      id|area id|k||
        <cr>||||
        !
      !
    !
    level-1|is-is level-1|k||
      <cr>||||
      !
    !
    level-2|is-is level-2|k||
      <cr>||||
      !
    !
    multicast-intact|keep multicast routes intact|k||
      <cr>||||
      !
    !
    interface|traffic engineering interface|k||
      &interfacefile.cfm|interface type|k||
        <number>|interface number|k||
          <cr>||||
          !
          area|ospf area|k||
            id|area id|||
              <cr>||||
              !
            !
          !
        !
      !
    !
  !
!
hostname|hostname|k||
  dynamic|dynamic|k||
    <cr>||||
    !
  !
!
