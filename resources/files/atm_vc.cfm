description|vc description|k/n/o||
  line|text|lb/le/wa||
    <cr>||||
    !
  !
!
vbr-nrt|variable bit rate, non real time|k||
  id|peak cell rate|o||
    id|sustainable cell rate|||
      <cr>||||
      !
      id|maximum burst size|||
        <cr>||||
        !
      !
    !
  !
!
vbr-rt|variable bit rate, real time|k||
  id|peak cell rate|o||
    id|average cell rate|||
      <cr>||||
      !
      id|burst size|||
        <cr>||||
        !
      !
    !
  !
!
ubr|unspecified bit rate|k||
  id|peak cell rate|o||
    <cr>||||
    !
  !
!
ubr+|unspecified bit rate plus|k||
  id|peak cell rate|o||
    id|minimum cell rate|||
      <cr>||||
      !
    !
  !
!
cbr|constant bit rate|k||
  id|peak cell rate|o||
    <cr>||||
    !
  !
!
encapsulation|atm encapsulation|k||
  aal5snap|aal5snap|k/o||
    <cr>||||
    !
  !
  aal5nlpid|aal5nlpid|k/o||
    <cr>||||
    !
  !
  aal5mux|aal5mux|k/o||
    ppp|ppp|k||
      dialer|dialer|k||
        <cr>||||
        !
      !
      virtual-template|virtual-template|k||
        id|id|||
          <cr>||||
          !
        !
      !
    !
    ip|ip|k||
      <cr>||||
      !
    !
  !
  aal5ciscoppp|aal5ciscoppp|k/o||
    virtual-template|virtual-template|k||
      id|id|||
        <cr>||||
        !
      !
    !
  !
!
protocol|map a protocol to the vc|k||
  ip|ip|k||
    a.b.c.d|a.b.c.d|k||
      <cr>||||
      !
      broadcast|broadcast|k||
        <cr>||||
        !
      !
      no-broadcast|no-broadcast|k||
        <cr>||||
        !
      !
    !
    inarp|inarp|k||
      <cr>||||
      !
    !
  !
  ppp|ppp|k||
    dialer|dialer|k||
      <cr>||||
      !
    !
    virtual-template|virtual-template|k||
      id|id|||
        <cr>||||
        !
      !
    !
  !
  pppoe|pppoe|k||
    <cr>||||
    !
  !
!
dialer|dialer pool|k||
  pool-member|pool-member|k||
    id|id|o||
      <cr>||||
      !
    !
  !
!
pppoe-client|pppoe client|k||
  dial-pool-number|dial-pool-number|k||
    id|id|o||
      <cr>||||
      !
    !
  !
!
pppoe|pppoe|k||
  max-sessions|max-sessions|k||
    id|id|o||
      <cr>||||
      !
    !
  !
  enable|enable|k||
    <cr>||||
    !
  !
!
oam-pvc|oam f5 loopback|k||
  manage|manage|k||
    <cr>||||
    !
    id|id|||
      <cr>||||
      !
    !
  !
  id|id|||
    <cr>||||
    !
  !
!
oam|oam parameters|k||
  retry|retry|k||
    id|id|||
      id|id|||
        id|id|||
          <cr>||||
          !
        !
      !
    !
  !
  ais-rdi|ais-rdi|k||
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
!
inarp|inverse arp|k||
  id|id|o||
    <cr>||||
    !
  !
!
tx-ring-limit|transmit ring limit|k||
  id|id|o||
    <cr>||||
    !
  !
!
ilmi|ilmi|k||
  manage|manage|k||
    <cr>||||
    !
  !
!
bridge-dot1q|bridged dot1q|k||
  encap|encap|k||
    id|id|||
      <cr>||||
      !
    !
  !
!
shutdown|shutdown|k||
  <cr>||||
  !
!
exit|exit|k||
  <cr>||||
  !
!
