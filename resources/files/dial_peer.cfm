description|dial peer description|k||
  line|line|lb/le/wa/o||
    <cr>||||
    !
  !
!
destination-pattern|number that this dial peer takes|k||
  word|pattern (digits, ., T, [ ])|o||
    <cr>||||
    !
  !
!
answer-address|calling number that selects this dial peer|k||
  word|pattern|o||
    <cr>||||
    !
  !
!
incoming|incoming calls|k||
  called-number|called number that selects this dial peer|k||
    word|pattern|o||
      <cr>||||
      !
    !
  !
  uri|uri that selects this dial peer|k||
    from|from header|k||
      word|uri class tag|o||
        <cr>||||
        !
      !
    !
    to|to header|k||
      word|uri class tag|o||
        <cr>||||
        !
      !
    !
    via|via header|k||
      word|uri class tag|o||
        <cr>||||
        !
      !
    !
    request|request uri|k||
      word|uri class tag|o||
        <cr>||||
        !
      !
    !
  !
!
session|session settings|k||
  target|where the session goes|k||
    sip-server|the sip server of the user agent|k/o||
      <cr>||||
      !
    !
    ras|the gatekeeper|k/o||
      <cr>||||
      !
    !
    word|target (ipv4:A.B.C.D, dns:NAME)|o||
      <cr>||||
      !
    !
  !
  protocol|session protocol|k||
    sipv2|sip|k/o||
      <cr>||||
      !
    !
    cisco|cisco session protocol|k/o||
      <cr>||||
      !
    !
  !
  transport|session transport|k||
    udp|udp transport|k/o||
      <cr>||||
      !
    !
    tcp|tcp transport|k/o||
      <cr>||||
      !
      tls|tls over tcp|k||
        <cr>||||
        !
      !
    !
  !
!
codec|codec of this dial peer|k||
  &codecfile.cfm|codec|o||
    <cr>||||
    !
    bytes|bytes per frame|k||
      id|bytes|||
        <cr>||||
        !
      !
    !
  !
  transparent|pass the codec through|k/o||
    <cr>||||
    !
  !
!
voice-class|voice class settings|k||
  codec|codec preference list|k||
    <1-10000>|voice class tag|o||
      <cr>||||
      !
      offer-all|offer every codec of the list|k||
        <cr>||||
        !
      !
    !
  !
  sip|sip settings|k||
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
  h323|h.323 settings|k||
    <1-10000>|voice class tag|o||
      <cr>||||
      !
    !
  !
  e164-pattern-map|e164 pattern map|k||
    <1-10000>|voice class tag|o||
      <cr>||||
      !
    !
  !
!
dtmf-relay|dtmf relay|k||
  line|line|lb/le/wa/o||
    <cr>||||
    !
  !
!
port|voice port of this dial peer|k||
  word|voice port|o||
    <cr>||||
    !
  !
!
forward-digits|digits passed on|k||
  all|all digits|k/o||
    <cr>||||
    !
  !
  implicit|the digits that the pattern does not name|k/o||
    <cr>||||
    !
  !
  id|number of digits|o||
    <cr>||||
    !
  !
!
prefix|digits added in front|k||
  word|prefix|o||
    <cr>||||
    !
  !
!
direct-inward-dial|direct inward dialling|k||
  <cr>||||
  !
!
translation-profile|translation profile|k||
  incoming|incoming calls|k||
    word|profile|o||
      <cr>||||
      !
    !
  !
  outgoing|outgoing calls|k||
    word|profile|o||
      <cr>||||
      !
    !
  !
!
preference|preference of this dial peer|k||
  id|preference|o||
    <cr>||||
    !
  !
!
huntstop|stop hunting at this dial peer|k||
  <cr>||||
  !
!
sip-register|register the number of this dial peer with the sip registrar|k/sn||
  <cr>||||
  !
!
vad|voice activity detection|k||
  <cr>||sn||
  !
  aggressive|aggressive voice activity detection|k||
    <cr>||||
    !
  !
!
dtmf|dtmf settings|k||
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
fax|fax settings of the dial peer|k||
  rate|fax rate|k||
    line|line|lb/le/wa/o||
      <cr>||||
      !
    !
  !
  protocol|fax protocol|k||
    line|line|lb/le/wa/o||
      <cr>||||
      !
    !
  !
!
max-conn|most connections|k||
  <1-2147483647>|connections|o||
    <cr>||||
    !
  !
!
req-qos|requested quality of service|k||
  line|line|lb/le/wa/o||
    <cr>||||
    !
  !
!
acc-qos|acceptable quality of service|k||
  line|line|lb/le/wa/o||
    <cr>||||
    !
  !
!
ip|ip settings|k||
  qos|quality of service|k||
    dscp|dscp marking|k||
      line|line|lb/le/wa||
        <cr>||||
        !
      !
    !
  !
!
rtp|real-time transport protocol|k||
  payload-type|payload types|k||
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
!
playout-delay|playout delay|k||
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
media|media path|k||
  flow-through|media through this router|k/o||
    <cr>||||
    !
  !
  flow-around|media around this router|k/o||
    <cr>||||
    !
  !
!
no-vad|no voice activity detection|k||
  <cr>||||
  !
!
supplementary-service|supplementary services|k||
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
progress_ind|progress indicator|k||
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
trunkgroup|trunk group|k||
  word|trunk group|k||
    <cr>||||
    !
    <1-64>|preference|||
      <cr>||||
      !
    !
  !
!
shutdown|shut the dial peer down|k||
  <cr>||||
  !
!
information-type|information type|k||
  voice|voice calls|k/o||
    <cr>||||
    !
  !
  fax|fax calls|k/o||
    <cr>||||
    !
  !
  video|video calls|k/o||
    <cr>||||
    !
  !
!
tech-prefix|technology prefix|k||
  word|prefix|o||
    <cr>||||
    !
  !
!
call-block|call blocking|k||
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
corlist|class of restriction list|k||
  incoming|incoming calls|k||
    word|list|o||
      <cr>||||
      !
    !
  !
  outgoing|outgoing calls|k||
    word|list|o||
      <cr>||||
      !
    !
  !
!
