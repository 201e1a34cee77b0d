description|service group description|k/n/o||
  line|text|lb/le/wa||
    <cr>||||
    !
  !
!
group-object|nested service group|k||
  word|word|k||
    <cr>||||
    !
  !
!
tcp|transmission control protocol|k||
  <cr>||||
  !
  eq|port equal to|k||
    &portfile.cfm|port|k||
      <cr>||||
      !
    !
  !
  neq|port not equal to|k||
    &portfile.cfm|port|k||
      <cr>||||
      !
    !
  !
  gt|port greater than|k||
    &portfile.cfm|port|k||
      <cr>||||
      !
    !
  !
  lt|port less than|k||
    &portfile.cfm|port|k||
      <cr>||||
      !
    !
  !
  range|port range|k||
    &portfile.cfm|lowest port|k||
      &portfile.cfm|highest port|k||
        <cr>||||
        !
      !
    !
  !
  source|source port|k||
    eq|port equal to|k||
      &portfile.cfm|port|k||
        <cr>||||
        !
      !
    !
    neq|port not equal to|k||
      &portfile.cfm|port|k||
        <cr>||||
        !
      !
    !
    gt|port greater than|k||
      &portfile.cfm|port|k||
        <cr>||||
        !
      !
    !
    lt|port less than|k||
      &portfile.cfm|port|k||
        <cr>||||
        !
      !
    !
    range|port range|k||
      &portfile.cfm|lowest port|k||
        &portfile.cfm|highest port|k||
          <cr>||||
          !
        !
      !
    !
  !
!
udp|user datagram protocol|k||
  <cr>||||
  !
  eq|port equal to|k||
    &portfile.cfm|port|k||
      <cr>||||
      !
    !
  !
  neq|port not equal to|k||
    &portfile.cfm|port|k||
      <cr>||||
      !
    !
  !
  gt|port greater than|k||
    &portfile.cfm|port|k||
      <cr>||||
      !
    !
  !
  lt|port less than|k||
    &portfile.cfm|port|k||
      <cr>||||
      !
    !
  !
  range|port range|k||
    &portfile.cfm|lowest port|k||
      &portfile.cfm|highest port|k||
        <cr>||||
        !
      !
    !
  !
  source|source port|k||
    eq|port equal to|k||
      &portfile.cfm|port|k||
        <cr>||||
        !
      !
    !
    neq|port not equal to|k||
      &portfile.cfm|port|k||
        <cr>||||
        !
      !
    !
    gt|port greater than|k||
      &portfile.cfm|port|k||
        <cr>||||
        !
      !
    !
    lt|port less than|k||
      &portfile.cfm|port|k||
        <cr>||||
        !
      !
    !
    range|port range|k||
      &portfile.cfm|lowest port|k||
        &portfile.cfm|highest port|k||
          <cr>||||
          !
        !
      !
    !
  !
!
tcp-udp|tcp or udp|k||
  <cr>||||
  !
  eq|port equal to|k||
    &portfile.cfm|port|k||
      <cr>||||
      !
    !
  !
  neq|port not equal to|k||
    &portfile.cfm|port|k||
      <cr>||||
      !
    !
  !
  gt|port greater than|k||
    &portfile.cfm|port|k||
      <cr>||||
      !
    !
  !
  lt|port less than|k||
    &portfile.cfm|port|k||
      <cr>||||
      !
    !
  !
  range|port range|k||
    &portfile.cfm|lowest port|k||
      &portfile.cfm|highest port|k||
        <cr>||||
        !
      !
    !
  !
  source|source port|k||
    eq|port equal to|k||
      &portfile.cfm|port|k||
        <cr>||||
        !
      !
    !
    neq|port not equal to|k||
      &portfile.cfm|port|k||
        <cr>||||
        !
      !
    !
    gt|port greater than|k||
      &portfile.cfm|port|k||
        <cr>||||
        !
      !
    !
    lt|port less than|k||
      &portfile.cfm|port|k||
        <cr>||||
        !
      !
    !
    range|port range|k||
      &portfile.cfm|lowest port|k||
        &portfile.cfm|highest port|k||
          <cr>||||
          !
        !
      !
    !
  !
!
icmp|internet control message protocol|k||
  <cr>||||
  !
  word|icmp message type|k||
    <cr>||||
    !
  !
!
esp|encapsulating security payload|k||
  <cr>||||
  !
!
ahp|authentication header protocol|k||
  <cr>||||
  !
!
gre|generic routing encapsulation|k||
  <cr>||||
  !
!
ipinip|ip in ip tunneling|k||
  <cr>||||
  !
!
ospf|open shortest path first|k||
  <cr>||||
  !
!
eigrp|enhanced interior gateway routing protocol|k||
  <cr>||||
  !
!
pim|protocol independent multicast|k||
  <cr>||||
  !
!
igmp|internet group management protocol|k||
  <cr>||||
  !
!
nos|ka9q nos compatible ip over ip tunneling|k||
  <cr>||||
  !
!
pcp|payload compression protocol|k||
  <cr>||||
  !
!
id|protocol number|k||
  <cr>||||
  !
!
