permit|forward packets|||&acl_ext_entry.cfm
!
deny|drop packets|||&acl_ext_entry.cfm
!
remark|access list entry comment|||
  <cr>||||
  !
  line|text|lb/le/wa||
    <cr>||||
    !
  !
!
evaluate|evaluate a reflexive list|||
  word|word|k||
    <cr>||||
    !
  !
!
dynamic|dynamic entry|||
  word|word|k||
    permit|permit|||&acl_ext_entry.cfm
    !
  !
!
id|sequence number|k/n||
  permit|forward packets|||&acl_ext_entry.cfm
  !
  deny|drop packets|||&acl_ext_entry.cfm
  !
  remark|access list entry comment|||
    line|text|lb/le/wa||
      <cr>||||
      !
    !
  !
!
