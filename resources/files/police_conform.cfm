transmit|transmit the packet|o||&police_exceed.cfm
  <cr>||||
  !
!
drop|drop the packet|o||&police_exceed.cfm
  <cr>||||
  !
!
set-dscp-transmit|set dscp and send it|o||
  word|dscp value|||&police_exceed.cfm
    <cr>||||
    !
  !
!
set-prec-transmit|rewrite precedence and send it|o||
  id|precedence value|||&police_exceed.cfm
    <cr>||||
    !
  !
!
set-qos-transmit|set qos-group and send it|o||
  id|qos-group value|||&police_exceed.cfm
    <cr>||||
    !
  !
!
set-cos-transmit|set cos and send it|o||
  id|cos value|||&police_exceed.cfm
    <cr>||||
    !
  !
!
set-discard-class-transmit|set discard-class and send it|o||
  id|discard-class value|||&police_exceed.cfm
    <cr>||||
    !
  !
!
set-mpls-exp-imposition-transmit|set exp at tag imposition and send it|o||
  id|exp value|||&police_exceed.cfm
    <cr>||||
    !
  !
!
set-mpls-exp-topmost-transmit|set exp on topmost label and send it|o||
  id|exp value|||&police_exceed.cfm
    <cr>||||
    !
  !
!
set-frde-transmit|set fr de and send it|o||&police_exceed.cfm
  <cr>||||
  !
!
set-clp-transmit|set atm clp and send it|o||&police_exceed.cfm
  <cr>||||
  !
!
