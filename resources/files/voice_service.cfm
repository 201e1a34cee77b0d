allow-connections|connection types allowed|k||
  h323|h.323|k||
    to|to h.323 or sip|k||
      h323|h323|k||
        <cr>||||
        !
      !
      sip|sip|k||
        <cr>||||
        !
      !
    !
  !
  sip|sip connections|k||
    to|to h.323 or sip|k||
      h323|h323|k||
        <cr>||||
        !
      !
      sip|sip|k||
        <cr>||||
        !
      !
    !
  !
!
fax|fax protocol of the voice service|k||
  protocol|fax protocol|k||
    t38|t.38|k/o||
      <cr>||||
      !
      line|line|lb/le/wa||
        <cr>||||
        !
      !
    !
    pass-through|pass-through of fax|k/o||
      line|line|lb/le/wa||
        <cr>||||
        !
      !
    !
    none|no fax protocol|k/o||
      <cr>||||
      !
    !
    cisco|cisco fax relay|k/o||
      <cr>||||
      !
    !
  !
!
modem|modem settings of the voice service|k||
  passthrough|modem pass-through|k||
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
!
sip|sip settings|k||
  <cr>||||@(conf-serv-sip)# generic.cfm
  !
!
h323|h.323 settings|k||
  <cr>||||@(conf-serv-h323)# generic.cfm
  !
!
shutdown|shut the voice service down|k||
  <cr>||||
  !
  forced|at once|k||
    <cr>||||
    !
  !
!
mode|mode of the voice service|k||
  border-element|cube|k/o||
    <cr>||||
    !
    license|license|k||
      capacity|capacity|k||
        id|sessions|||
          <cr>||||
          !
        !
      !
    !
  !
!
media|media settings|k||
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
supplementary-service|supplementary services|k||
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
redirect|redirect settings|k||
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
address-hiding|hide the addresses|k||
  <cr>||||
  !
!
rtp-port|rtp port range|k||
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
ip|ip settings|k||
  address|trusted addresses|k||
    trusted|trusted list|k||
      <cr>||||@(cfg-iptrust-list)# generic.cfm
      !
      authenticate|authenticate the trusted addresses|k||
        <cr>||||
        !
      !
    !
  !
!
