class|policy criteria|k||
  word|word|k||
    <cr>||||@(config-pmap-c)# policy_map_class.cfm
    !
    type|type|k||
      inspect|inspect|k||
        <cr>||||@(config-pmap-c)# policy_map_class.cfm
        !
      !
    !
  !
  type|type|k||
    inspect|inspect|k||
      word|word|k||
        <cr>||||@(config-pmap-c)# policy_map_class.cfm
        !
      !
    !
  !
!
description|policy-map description|k/n/o||
  line|text|lb/le/wa||
    <cr>||||
    !
  !
!
