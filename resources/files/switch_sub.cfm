tracking|tracking settings|k||
  enable|enable tracking|k||
    <cr>||||
    !
    reachable-lifetime|lifetime|k||
      id|id|||
        <cr>||||
        !
      !
    !
  !
  disable|disable tracking|k||
    <cr>||||
    !
  !
!
security-level|security level|k||
  glean|learn bindings, never drop|o||
    <cr>||||
    !
  !
  guard|drop unwanted messages|o||
    <cr>||||
    !
  !
  inspect|check messages, drop the invalid ones|o||
    <cr>||||
    !
  !
!
device-role|device role|k||
  node|attached to a host|o||
    <cr>||||
    !
  !
  switch|attached to a switch|o||
    <cr>||||
    !
  !
!
limit|limits|k||
  address-count|address count|k||
    id|id|o||
      <cr>||||
      !
    !
  !
!
data-glean|data gleaning|k||
  <cr>||||
  !
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
destination-glean|destination gleaning|k||
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
prefix-glean|prefix gleaning|k||
  <cr>||||
  !
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
trusted-port|trusted port|k||
  <cr>||||
  !
!
protocol|protocols gleaned|k||
  arp|arp|k||
    <cr>||||
    !
    prefix-list|limit to a prefix list|k||
      word|word|||
        <cr>||||
        !
      !
    !
  !
  dhcp4|dhcpv4|k||
    <cr>||||
    !
    prefix-list|limit to a prefix list|k||
      word|word|||
        <cr>||||
        !
      !
    !
  !
  dhcp6|dhcpv6|k||
    <cr>||||
    !
    prefix-list|limit to a prefix list|k||
      word|word|||
        <cr>||||
        !
      !
    !
  !
  ndp|neighbor discovery|k||
    <cr>||||
    !
    prefix-list|limit to a prefix list|k||
      word|word|||
        <cr>||||
        !
      !
    !
  !
  udp|udp|k||
    <cr>||||
    !
    prefix-list|limit to a prefix list|k||
      word|word|||
        <cr>||||
        !
      !
    !
  !
!
cdp|cdp attributes|k||
  <cr>||||
  !
!
lldp|lldp attributes|k||
  <cr>||||
  !
!
dhcp|dhcp attributes|k||
  <cr>||||
  !
!
http|http attributes|k||
  <cr>||||
  !
!
monitoring|transceiver monitoring|k||
  <cr>||||
  !
  interval|monitoring interval|k||
    id|id|o||
      <cr>||||
      !
    !
  !
!
permit|permit a mac address|k||
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
deny|deny a mac address|k||
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
source|erspan source|k||
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
destination|erspan destination|k||
  <cr>||||
  !
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
erspan-id|erspan id|k||
  id|id|o||
    <cr>||||
    !
  !
!
origin|erspan origin|k||
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
shutdown|shut down the session|k||
  <cr>||||
  !
!
description|description|k||
  line|line|lb/le/wa/o||
    <cr>||||
    !
  !
!
