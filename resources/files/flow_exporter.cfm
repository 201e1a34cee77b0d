description|description of the exporter|k||
  line|line|lb/le/wa/o||
    <cr>||||
    !
  !
!
destination|export destination|k||
  a.b.c.d|destination address|o||
    <cr>||||
    !
    vrf|vrf of the destination|k||
      word|word|||
        <cr>||||
        !
      !
    !
  !
  word|destination host|o||
    <cr>||||
    !
  !
!
source|source interface|k||
  &interfacefile.cfm|interface type|k||
    <number>|interface number|k||
      <cr>||||
      !
    !
  !
!
transport|transport protocol|k||
  udp|udp|k||
    <port>|port|o||
      <cr>||||
      !
    !
  !
  sctp|sctp|k||
    <port>|port|o||
      <cr>||||
      !
    !
  !
!
export-protocol|export protocol|k||
  netflow-v5|netflow-v5|o||
    <cr>||||
    !
  !
  netflow-v9|netflow-v9|o||
    <cr>||||
    !
  !
  ipfix|ipfix|o||
    <cr>||||
    !
  !
!
template|template options|k||
  data|data templates|k||
    timeout|resend timeout|k||
      id|seconds|o||
        <cr>||||
        !
      !
    !
  !
!
option|export options|k||
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
dscp|dscp of exported packets|k||
  id|id|o||
    <cr>||||
    !
  !
!
ttl|ttl of exported packets|k||
  id|id|o||
    <cr>||||
    !
  !
!
output-features|send through output features|k||
  <cr>||||
  !
!
