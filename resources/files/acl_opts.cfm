log|log matches|||
  <cr>||||
  !
  word|log tag|||
    <cr>||||
    !
  !
!
log-input|log matches with the input interface|||
  <cr>||||
  !
  word|log tag|||
    <cr>||||
    !
  !
!
time-range|time range|||
  word|time range name|||
    <cr>||||
    !
    log|log matches|||
      <cr>||||
      !
    !
    log-input|log matches with the input interface|||
      <cr>||||
      !
    !
  !
!
established|established connections|||
  <cr>||||
  !
  log|log matches|||
    <cr>||||
    !
    word|log tag|||
      <cr>||||
      !
    !
  !
  log-input|log matches with the input interface|||
    <cr>||||
    !
    word|log tag|||
      <cr>||||
      !
    !
  !
  time-range|time range|||
    word|time range name|||
      <cr>||||
      !
      log|log matches|||
        <cr>||||
        !
      !
      log-input|log matches with the input interface|||
        <cr>||||
        !
      !
    !
  !
!
fragments|non-initial fragments|||
  <cr>||||
  !
  log|log matches|||
    <cr>||||
    !
    word|log tag|||
      <cr>||||
      !
    !
  !
  log-input|log matches with the input interface|||
    <cr>||||
    !
    word|log tag|||
      <cr>||||
      !
    !
  !
  time-range|time range|||
    word|time range name|||
      <cr>||||
      !
      log|log matches|||
        <cr>||||
        !
      !
      log-input|log matches with the input interface|||
        <cr>||||
        !
      !
    !
  !
!
echo|echo|||
  <cr>||||
  !
  log|log matches|||
    <cr>||||
    !
    word|log tag|||
      <cr>||||
      !
    !
  !
  log-input|log matches with the input interface|||
    <cr>||||
    !
    word|log tag|||
      <cr>||||
      !
    !
  !
  time-range|time range|||
    word|time range name|||
      <cr>||||
      !
      log|log matches|||
        <cr>||||
        !
      !
      log-input|log matches with the input interface|||
        <cr>||||
        !
      !
    !
  !
!
echo-reply|echo reply|||
  <cr>||||
  !
  log|log matches|||
    <cr>||||
    !
    word|log tag|||
      <cr>||||
      !
    !
  !
  log-input|log matches with the input interface|||
    <cr>||||
    !
    word|log tag|||
      <cr>||||
      !
    !
  !
  time-range|time range|||
    word|time range name|||
      <cr>||||
      !
      log|log matches|||
        <cr>||||
        !
      !
      log-input|log matches with the input interface|||
        <cr>||||
        !
      !
    !
  !
!
unreachable|unreachable|||
  <cr>||||
  !
  log|log matches|||
    <cr>||||
    !
    word|log tag|||
      <cr>||||
      !
    !
  !
  log-input|log matches with the input interface|||
    <cr>||||
    !
    word|log tag|||
      <cr>||||
      !
    !
  !
  time-range|time range|||
    word|time range name|||
      <cr>||||
      !
      log|log matches|||
        <cr>||||
        !
      !
      log-input|log matches with the input interface|||
        <cr>||||
        !
      !
    !
  !
!
time-exceeded|time exceeded|||
  <cr>||||
  !
  log|log matches|||
    <cr>||||
    !
    word|log tag|||
      <cr>||||
      !
    !
  !
  log-input|log matches with the input interface|||
    <cr>||||
    !
    word|log tag|||
      <cr>||||
      !
    !
  !
  time-range|time range|||
    word|time range name|||
      <cr>||||
      !
      log|log matches|||
        <cr>||||
        !
      !
      log-input|log matches with the input interface|||
        <cr>||||
        !
      !
    !
  !
!
packet-too-big|packet too big|||
  <cr>||||
  !
  log|log matches|||
    <cr>||||
    !
    word|log tag|||
      <cr>||||
      !
    !
  !
  log-input|log matches with the input interface|||
    <cr>||||
    !
    word|log tag|||
      <cr>||||
      !
    !
  !
  time-range|time range|||
    word|time range name|||
      <cr>||||
      !
      log|log matches|||
        <cr>||||
        !
      !
      log-input|log matches with the input interface|||
        <cr>||||
        !
      !
    !
  !
!
port-unreachable|port unreachable|||
  <cr>||||
  !
  log|log matches|||
    <cr>||||
    !
    word|log tag|||
      <cr>||||
      !
    !
  !
  log-input|log matches with the input interface|||
    <cr>||||
    !
    word|log tag|||
      <cr>||||
      !
    !
  !
  time-range|time range|||
    word|time range name|||
      <cr>||||
      !
      log|log matches|||
        <cr>||||
        !
      !
      log-input|log matches with the input interface|||
        <cr>||||
        !
      !
    !
  !
!
administratively-prohibited|administratively prohibited|||
  <cr>||||
  !
  log|log matches|||
    <cr>||||
    !
    word|log tag|||
      <cr>||||
      !
    !
  !
  log-input|log matches with the input interface|||
    <cr>||||
    !
    word|log tag|||
      <cr>||||
      !
    !
  !
  time-range|time range|||
    word|time range name|||
      <cr>||||
      !
      log|log matches|||
        <cr>||||
        !
      !
      log-input|log matches with the input interface|||
        <cr>||||
        !
      !
    !
  !
!
traceroute|traceroute|||
  <cr>||||
  !
  log|log matches|||
    <cr>||||
    !
    word|log tag|||
      <cr>||||
      !
    !
  !
  log-input|log matches with the input interface|||
    <cr>||||
    !
    word|log tag|||
      <cr>||||
      !
    !
  !
  time-range|time range|||
    word|time range name|||
      <cr>||||
      !
      log|log matches|||
        <cr>||||
        !
      !
      log-input|log matches with the input interface|||
        <cr>||||
        !
      !
    !
  !
!
nd-na|neighbor advertisement|||
  <cr>||||
  !
  log|log matches|||
    <cr>||||
    !
    word|log tag|||
      <cr>||||
      !
    !
  !
  log-input|log matches with the input interface|||
    <cr>||||
    !
    word|log tag|||
      <cr>||||
      !
    !
  !
  time-range|time range|||
    word|time range name|||
      <cr>||||
      !
      log|log matches|||
        <cr>||||
        !
      !
      log-input|log matches with the input interface|||
        <cr>||||
        !
      !
    !
  !
!
nd-ns|neighbor solicitation|||
  <cr>||||
  !
  log|log matches|||
    <cr>||||
    !
    word|log tag|||
      <cr>||||
      !
    !
  !
  log-input|log matches with the input interface|||
    <cr>||||
    !
    word|log tag|||
      <cr>||||
      !
    !
  !
  time-range|time range|||
    word|time range name|||
      <cr>||||
      !
      log|log matches|||
        <cr>||||
        !
      !
      log-input|log matches with the input interface|||
        <cr>||||
        !
      !
    !
  !
!
router-advertisement|router advertisement|||
  <cr>||||
  !
  log|log matches|||
    <cr>||||
    !
    word|log tag|||
      <cr>||||
      !
    !
  !
  log-input|log matches with the input interface|||
    <cr>||||
    !
    word|log tag|||
      <cr>||||
      !
    !
  !
  time-range|time range|||
    word|time range name|||
      <cr>||||
      !
      log|log matches|||
        <cr>||||
        !
      !
      log-input|log matches with the input interface|||
        <cr>||||
        !
      !
    !
  !
!
router-solicitation|router solicitation|||
  <cr>||||
  !
  log|log matches|||
    <cr>||||
    !
    word|log tag|||
      <cr>||||
      !
    !
  !
  log-input|log matches with the input interface|||
    <cr>||||
    !
    word|log tag|||
      <cr>||||
      !
    !
  !
  time-range|time range|||
    word|time range name|||
      <cr>||||
      !
      log|log matches|||
        <cr>||||
        !
      !
      log-input|log matches with the input interface|||
        <cr>||||
        !
      !
    !
  !
!
syn|syn flag|||
  <cr>||||
  !
  log|log matches|||
    <cr>||||
    !
    word|log tag|||
      <cr>||||
      !
    !
  !
  log-input|log matches with the input interface|||
    <cr>||||
    !
    word|log tag|||
      <cr>||||
      !
    !
  !
  time-range|time range|||
    word|time range name|||
      <cr>||||
      !
      log|log matches|||
        <cr>||||
        !
      !
      log-input|log matches with the input interface|||
        <cr>||||
        !
      !
    !
  !
  line|further tcp flags and options|lb/le/wa||
    <cr>||||
    !
  !
!
ack|ack flag|||
  <cr>||||
  !
  log|log matches|||
    <cr>||||
    !
    word|log tag|||
      <cr>||||
      !
    !
  !
  log-input|log matches with the input interface|||
    <cr>||||
    !
    word|log tag|||
      <cr>||||
      !
    !
  !
  time-range|time range|||
    word|time range name|||
      <cr>||||
      !
      log|log matches|||
        <cr>||||
        !
      !
      log-input|log matches with the input interface|||
        <cr>||||
        !
      !
    !
  !
  line|further tcp flags and options|lb/le/wa||
    <cr>||||
    !
  !
!
rst|rst flag|||
  <cr>||||
  !
  log|log matches|||
    <cr>||||
    !
    word|log tag|||
      <cr>||||
      !
    !
  !
  log-input|log matches with the input interface|||
    <cr>||||
    !
    word|log tag|||
      <cr>||||
      !
    !
  !
  time-range|time range|||
    word|time range name|||
      <cr>||||
      !
      log|log matches|||
        <cr>||||
        !
      !
      log-input|log matches with the input interface|||
        <cr>||||
        !
      !
    !
  !
  line|further tcp flags and options|lb/le/wa||
    <cr>||||
    !
  !
!
fin|fin flag|||
  <cr>||||
  !
  log|log matches|||
    <cr>||||
    !
    word|log tag|||
      <cr>||||
      !
    !
  !
  log-input|log matches with the input interface|||
    <cr>||||
    !
    word|log tag|||
      <cr>||||
      !
    !
  !
  time-range|time range|||
    word|time range name|||
      <cr>||||
      !
      log|log matches|||
        <cr>||||
        !
      !
      log-input|log matches with the input interface|||
        <cr>||||
        !
      !
    !
  !
  line|further tcp flags and options|lb/le/wa||
    <cr>||||
    !
  !
!
psh|psh|||
  <cr>||||
  !
  log|log matches|||
    <cr>||||
    !
    word|log tag|||
      <cr>||||
      !
    !
  !
  log-input|log matches with the input interface|||
    <cr>||||
    !
    word|log tag|||
      <cr>||||
      !
    !
  !
  time-range|time range|||
    word|time range name|||
      <cr>||||
      !
      log|log matches|||
        <cr>||||
        !
      !
      log-input|log matches with the input interface|||
        <cr>||||
        !
      !
    !
  !
  line|further tcp flags and options|lb/le/wa||
    <cr>||||
    !
  !
!
urg|urg|||
  <cr>||||
  !
  log|log matches|||
    <cr>||||
    !
    word|log tag|||
      <cr>||||
      !
    !
  !
  log-input|log matches with the input interface|||
    <cr>||||
    !
    word|log tag|||
      <cr>||||
      !
    !
  !
  time-range|time range|||
    word|time range name|||
      <cr>||||
      !
      log|log matches|||
        <cr>||||
        !
      !
      log-input|log matches with the input interface|||
        <cr>||||
        !
      !
    !
  !
  line|further tcp flags and options|lb/le/wa||
    <cr>||||
    !
  !
!
host-unreachable|host unreachable|||
  <cr>||||
  !
  log|log matches|||
    <cr>||||
    !
    word|log tag|||
      <cr>||||
      !
    !
  !
  log-input|log matches with the input interface|||
    <cr>||||
    !
    word|log tag|||
      <cr>||||
      !
    !
  !
  time-range|time range|||
    word|time range name|||
      <cr>||||
      !
      log|log matches|||
        <cr>||||
        !
      !
      log-input|log matches with the input interface|||
        <cr>||||
        !
      !
    !
  !
!
net-unreachable|net unreachable|||
  <cr>||||
  !
  log|log matches|||
    <cr>||||
    !
    word|log tag|||
      <cr>||||
      !
    !
  !
  log-input|log matches with the input interface|||
    <cr>||||
    !
    word|log tag|||
      <cr>||||
      !
    !
  !
  time-range|time range|||
    word|time range name|||
      <cr>||||
      !
      log|log matches|||
        <cr>||||
        !
      !
      log-input|log matches with the input interface|||
        <cr>||||
        !
      !
    !
  !
!
protocol-unreachable|protocol unreachable|||
  <cr>||||
  !
  log|log matches|||
    <cr>||||
    !
    word|log tag|||
      <cr>||||
      !
    !
  !
  log-input|log matches with the input interface|||
    <cr>||||
    !
    word|log tag|||
      <cr>||||
      !
    !
  !
  time-range|time range|||
    word|time range name|||
      <cr>||||
      !
      log|log matches|||
        <cr>||||
        !
      !
      log-input|log matches with the input interface|||
        <cr>||||
        !
      !
    !
  !
!
redirect|redirect|||
  <cr>||||
  !
  log|log matches|||
    <cr>||||
    !
    word|log tag|||
      <cr>||||
      !
    !
  !
  log-input|log matches with the input interface|||
    <cr>||||
    !
    word|log tag|||
      <cr>||||
      !
    !
  !
  time-range|time range|||
    word|time range name|||
      <cr>||||
      !
      log|log matches|||
        <cr>||||
        !
      !
      log-input|log matches with the input interface|||
        <cr>||||
        !
      !
    !
  !
!
parameter-problem|parameter problem|||
  <cr>||||
  !
  log|log matches|||
    <cr>||||
    !
    word|log tag|||
      <cr>||||
      !
    !
  !
  log-input|log matches with the input interface|||
    <cr>||||
    !
    word|log tag|||
      <cr>||||
      !
    !
  !
  time-range|time range|||
    word|time range name|||
      <cr>||||
      !
      log|log matches|||
        <cr>||||
        !
      !
      log-input|log matches with the input interface|||
        <cr>||||
        !
      !
    !
  !
!
source-quench|source quench|||
  <cr>||||
  !
  log|log matches|||
    <cr>||||
    !
    word|log tag|||
      <cr>||||
      !
    !
  !
  log-input|log matches with the input interface|||
    <cr>||||
    !
    word|log tag|||
      <cr>||||
      !
    !
  !
  time-range|time range|||
    word|time range name|||
      <cr>||||
      !
      log|log matches|||
        <cr>||||
        !
      !
      log-input|log matches with the input interface|||
        <cr>||||
        !
      !
    !
  !
!
timestamp-request|timestamp request|||
  <cr>||||
  !
  log|log matches|||
    <cr>||||
    !
    word|log tag|||
      <cr>||||
      !
    !
  !
  log-input|log matches with the input interface|||
    <cr>||||
    !
    word|log tag|||
      <cr>||||
      !
    !
  !
  time-range|time range|||
    word|time range name|||
      <cr>||||
      !
      log|log matches|||
        <cr>||||
        !
      !
      log-input|log matches with the input interface|||
        <cr>||||
        !
      !
    !
  !
!
timestamp-reply|timestamp reply|||
  <cr>||||
  !
  log|log matches|||
    <cr>||||
    !
    word|log tag|||
      <cr>||||
      !
    !
  !
  log-input|log matches with the input interface|||
    <cr>||||
    !
    word|log tag|||
      <cr>||||
      !
    !
  !
  time-range|time range|||
    word|time range name|||
      <cr>||||
      !
      log|log matches|||
        <cr>||||
        !
      !
      log-input|log matches with the input interface|||
        <cr>||||
        !
      !
    !
  !
!
mask-request|mask request|||
  <cr>||||
  !
  log|log matches|||
    <cr>||||
    !
    word|log tag|||
      <cr>||||
      !
    !
  !
  log-input|log matches with the input interface|||
    <cr>||||
    !
    word|log tag|||
      <cr>||||
      !
    !
  !
  time-range|time range|||
    word|time range name|||
      <cr>||||
      !
      log|log matches|||
        <cr>||||
        !
      !
      log-input|log matches with the input interface|||
        <cr>||||
        !
      !
    !
  !
!
mask-reply|mask reply|||
  <cr>||||
  !
  log|log matches|||
    <cr>||||
    !
    word|log tag|||
      <cr>||||
      !
    !
  !
  log-input|log matches with the input interface|||
    <cr>||||
    !
    word|log tag|||
      <cr>||||
      !
    !
  !
  time-range|time range|||
    word|time range name|||
      <cr>||||
      !
      log|log matches|||
        <cr>||||
        !
      !
      log-input|log matches with the input interface|||
        <cr>||||
        !
      !
    !
  !
!
information-request|information request|||
  <cr>||||
  !
  log|log matches|||
    <cr>||||
    !
    word|log tag|||
      <cr>||||
      !
    !
  !
  log-input|log matches with the input interface|||
    <cr>||||
    !
    word|log tag|||
      <cr>||||
      !
    !
  !
  time-range|time range|||
    word|time range name|||
      <cr>||||
      !
      log|log matches|||
        <cr>||||
        !
      !
      log-input|log matches with the input interface|||
        <cr>||||
        !
      !
    !
  !
!
information-reply|information reply|||
  <cr>||||
  !
  log|log matches|||
    <cr>||||
    !
    word|log tag|||
      <cr>||||
      !
    !
  !
  log-input|log matches with the input interface|||
    <cr>||||
    !
    word|log tag|||
      <cr>||||
      !
    !
  !
  time-range|time range|||
    word|time range name|||
      <cr>||||
      !
      log|log matches|||
        <cr>||||
        !
      !
      log-input|log matches with the input interface|||
        <cr>||||
        !
      !
    !
  !
!
match-any|match any of the tcp flags|||
  line|tcp flags (+flag or -flag) and options|lb/le/wa||
    <cr>||||
    !
  !
!
match-all|match all of the tcp flags|||
  line|tcp flags (+flag or -flag) and options|lb/le/wa||
    <cr>||||
    !
  !
!
id|icmp message type|||
  <cr>||||
  !
  id|icmp message code|||
    <cr>||||
    !
    log|log matches|||
      <cr>||||
      !
      word|log tag|||
        <cr>||||
        !
      !
    !
    log-input|log matches with the input interface|||
      <cr>||||
      !
      word|log tag|||
        <cr>||||
        !
      !
    !
    time-range|time range|||
      word|time range name|||
        <cr>||||
        !
        log|log matches|||
          <cr>||||
          !
        !
        log-input|log matches with the input interface|||
          <cr>||||
          !
        !
      !
    !
  !
  log|log matches|||
    <cr>||||
    !
    word|log tag|||
      <cr>||||
      !
    !
  !
  log-input|log matches with the input interface|||
    <cr>||||
    !
    word|log tag|||
      <cr>||||
      !
    !
  !
  time-range|time range|||
    word|time range name|||
      <cr>||||
      !
      log|log matches|||
        <cr>||||
        !
      !
      log-input|log matches with the input interface|||
        <cr>||||
        !
      !
    !
  !
!
dscp|dscp value|||
  <value>|dscp|||
    <cr>||||
    !
    log|log matches|||
      <cr>||||
      !
      word|log tag|||
        <cr>||||
        !
      !
    !
    log-input|log matches with the input interface|||
      <cr>||||
      !
      word|log tag|||
        <cr>||||
        !
      !
    !
    time-range|time range|||
      word|time range name|||
        <cr>||||
        !
        log|log matches|||
          <cr>||||
          !
        !
        log-input|log matches with the input interface|||
          <cr>||||
          !
        !
      !
    !
  !
!
precedence|precedence value|||
  <value>|precedence|||
    <cr>||||
    !
    log|log matches|||
      <cr>||||
      !
      word|log tag|||
        <cr>||||
        !
      !
    !
    log-input|log matches with the input interface|||
      <cr>||||
      !
      word|log tag|||
        <cr>||||
        !
      !
    !
    time-range|time range|||
      word|time range name|||
        <cr>||||
        !
        log|log matches|||
          <cr>||||
          !
        !
        log-input|log matches with the input interface|||
          <cr>||||
          !
        !
      !
    !
  !
!
tos|type of service|||
  <value>|tos|||
    <cr>||||
    !
    log|log matches|||
      <cr>||||
      !
      word|log tag|||
        <cr>||||
        !
      !
    !
    log-input|log matches with the input interface|||
      <cr>||||
      !
      word|log tag|||
        <cr>||||
        !
      !
    !
    time-range|time range|||
      word|time range name|||
        <cr>||||
        !
        log|log matches|||
          <cr>||||
          !
        !
        log-input|log matches with the input interface|||
          <cr>||||
          !
        !
      !
    !
  !
!
option|ip option|||
  word|option|||
    <cr>||||
    !
    log|log matches|||
      <cr>||||
      !
      word|log tag|||
        <cr>||||
        !
      !
    !
    log-input|log matches with the input interface|||
      <cr>||||
      !
      word|log tag|||
        <cr>||||
        !
      !
    !
    time-range|time range|||
      word|time range name|||
        <cr>||||
        !
        log|log matches|||
          <cr>||||
          !
        !
        log-input|log matches with the input interface|||
          <cr>||||
          !
        !
      !
    !
  !
!
sequence|sequence number|||
  id|sequence number|||
    <cr>||||
    !
    log|log matches|||
      <cr>||||
      !
      word|log tag|||
        <cr>||||
        !
      !
    !
    log-input|log matches with the input interface|||
      <cr>||||
      !
      word|log tag|||
        <cr>||||
        !
      !
    !
    time-range|time range|||
      word|time range name|||
        <cr>||||
        !
        log|log matches|||
          <cr>||||
          !
        !
        log-input|log matches with the input interface|||
          <cr>||||
          !
        !
      !
    !
  !
!
ttl|time to live|||
  eq|eq|||
    id|id|||
      <cr>||||
      !
      log|log matches|||
        <cr>||||
        !
        word|log tag|||
          <cr>||||
          !
        !
      !
      log-input|log matches with the input interface|||
        <cr>||||
        !
        word|log tag|||
          <cr>||||
          !
        !
      !
      time-range|time range|||
        word|time range name|||
          <cr>||||
          !
          log|log matches|||
            <cr>||||
            !
          !
          log-input|log matches with the input interface|||
            <cr>||||
            !
          !
        !
      !
    !
  !
  gt|gt|||
    id|id|||
      <cr>||||
      !
      log|log matches|||
        <cr>||||
        !
        word|log tag|||
          <cr>||||
          !
        !
      !
      log-input|log matches with the input interface|||
        <cr>||||
        !
        word|log tag|||
          <cr>||||
          !
        !
      !
      time-range|time range|||
        word|time range name|||
          <cr>||||
          !
          log|log matches|||
            <cr>||||
            !
          !
          log-input|log matches with the input interface|||
            <cr>||||
            !
          !
        !
      !
    !
  !
  lt|lt|||
    id|id|||
      <cr>||||
      !
      log|log matches|||
        <cr>||||
        !
        word|log tag|||
          <cr>||||
          !
        !
      !
      log-input|log matches with the input interface|||
        <cr>||||
        !
        word|log tag|||
          <cr>||||
          !
        !
      !
      time-range|time range|||
        word|time range name|||
          <cr>||||
          !
          log|log matches|||
            <cr>||||
            !
          !
          log-input|log matches with the input interface|||
            <cr>||||
            !
          !
        !
      !
    !
  !
  neq|neq|||
    id|id|||
      <cr>||||
      !
      log|log matches|||
        <cr>||||
        !
        word|log tag|||
          <cr>||||
          !
        !
      !
      log-input|log matches with the input interface|||
        <cr>||||
        !
        word|log tag|||
          <cr>||||
          !
        !
      !
      time-range|time range|||
        word|time range name|||
          <cr>||||
          !
          log|log matches|||
            <cr>||||
            !
          !
          log-input|log matches with the input interface|||
            <cr>||||
            !
          !
        !
      !
    !
  !
  range|range|||
    id|id|||
      id|id|||
        <cr>||||
        !
        log|log matches|||
          <cr>||||
          !
          word|log tag|||
            <cr>||||
            !
          !
        !
        log-input|log matches with the input interface|||
          <cr>||||
          !
          word|log tag|||
            <cr>||||
            !
          !
        !
        time-range|time range|||
          word|time range name|||
            <cr>||||
            !
            log|log matches|||
              <cr>||||
              !
            !
            log-input|log matches with the input interface|||
              <cr>||||
              !
            !
          !
        !
      !
    !
  !
!
