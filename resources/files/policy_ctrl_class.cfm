id|class number|k||
  class|class map|k||
    word|class map name|k||
      <cr>||||@(config-action-control-policymap)# policy_ctrl_action.cfm
      !
      do-until-failure|run actions until one fails|k||
        <cr>||||@(config-action-control-policymap)# policy_ctrl_action.cfm
        !
      !
      do-until-success|run actions until one succeeds|k||
        <cr>||||@(config-action-control-policymap)# policy_ctrl_action.cfm
        !
      !
      do-all|run all actions|k||
        <cr>||||@(config-action-control-policymap)# policy_ctrl_action.cfm
        !
      !
    !
  !
!
