violate-action|action when rate is greater than conform + exceed burst|k||
  transmit|transmit the packet|o||
    <cr>||||
    !
  !
  drop|drop the packet|o||
    <cr>||||
    !
  !
  set-dscp-transmit|set dscp and send it|o||
    word|dscp value|||
      <cr>||||
      !
    !
  !
  set-prec-transmit|rewrite precedence and send it|o||
    id|precedence value|||
      <cr>||||
      !
    !
  !
  set-qos-transmit|set qos-group and send it|o||
    id|qos-group value|||
      <cr>||||
      !
    !
  !
  set-cos-transmit|set cos and send it|o||
    id|cos value|||
      <cr>||||
      !
    !
  !
  set-discard-class-transmit|set discard-class and send it|o||
    id|discard-class value|||
      <cr>||||
      !
    !
  !
  set-mpls-exp-imposition-transmit|set exp at tag imposition and send it|o||
    id|exp value|||
      <cr>||||
      !
    !
  !
  set-mpls-exp-topmost-transmit|set exp on topmost label and send it|o||
    id|exp value|||
      <cr>||||
      !
    !
  !
  set-frde-transmit|set fr de and send it|o||
    <cr>||||
    !
  !
  set-clp-transmit|set atm clp and send it|o||
    <cr>||||
    !
  !
!
