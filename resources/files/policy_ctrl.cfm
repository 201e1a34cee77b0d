event|event type|k||
  word|event name|k||
    <cr>||||@(config-class-control-policymap)# policy_ctrl_class.cfm
    !
    match-all|evaluate all matching classes|k||
      <cr>||||@(config-class-control-policymap)# policy_ctrl_class.cfm
      !
    !
    match-first|evaluate the first matching class|k||
      <cr>||||@(config-class-control-policymap)# policy_ctrl_class.cfm
      !
    !
  !
!
description|policy description|k||
  line|line|lb/le/wa/o||
    <cr>||||
    !
  !
!
