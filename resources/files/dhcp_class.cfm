relay|relay agent settings|k||
  agent|relay agent|k||
    information|relay agent information option|k||
      <cr>||||@(config-dhcp-class-relayinfo)# dhcp_class_relay.cfm
      !
    !
  !
!
remark|class specific remark|k||
  line|text|lb/le/wa||
    <cr>||||
    !
  !
!
