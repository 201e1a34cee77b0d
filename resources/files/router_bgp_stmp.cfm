remote-as|specify a bgp neighbor|k||
  1-4294967295|AS of remote neighbor|o||
    <cr>||||
    !
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
  1.0-65535.65535|AS of remote neighbor|o||
    <cr>||||
    !
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
!
update-source|source of routing updates|k||
  &interfacefile.cfm|interface type|k||
    <number>|interface number|k||
      <cr>||||
      !
    !
  !
!
description|neighbor specific description|k/n/o||
  line|text|lb/le/wa||
    <cr>||||
    !
  !
!
timers|bgp per neighbor timers|k||
  id|id|||
    id|id|||
      <cr>||||
      !
      id|id|||
        <cr>||||
        !
      !
    !
  !
!
password|set a password|k/n||
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
ebgp-multihop|allow ebgp neighbors not on directly connected networks|k||
  <cr>||||
  !
  id|id|o||
    <cr>||||
    !
  !
!
shutdown|administratively shut down this neighbor|k||
  <cr>||||
  !
!
local-as|specify a local-as number|k||
  <as>|as|||
    <cr>||||
    !
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
!
version|set the bgp version to match a neighbor|k||
  id|id|||
    <cr>||||
    !
  !
!
fall-over|session fall on peer route lost|k||
  <cr>||||
  !
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
disable-connected-check|one-hop away ebgp peer using loopback address|k||
  <cr>||||
  !
!
ttl-security|bgp ttl security check|k||
  hops|hops|k||
    id|id|||
      <cr>||||
      !
    !
  !
!
transport|transport options|k||
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
fast-external-fallover|fast fallover for this neighbor|k||
  <cr>||||
  !
!
ha-mode|high availability mode|k||
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
inherit|inherit a template|k||
  peer-session|inherit a peer-session template|k||
    word|template name|o||
      <cr>||||
      !
    !
  !
!
exit-peer-session|exit from template configuration mode|k||
  <cr>||||
  !
!
