permit|forward packets|k||&acl_ext_entry.cfm
!
deny|drop packets|k||&acl_ext_entry.cfm
!
remark|access list entry comment|k||
  line|text|lb/le/wa||
    <cr>||||
    !
  !
!
evaluate|evaluate a reflexive list|k||
  word|word|k||
    <cr>||||
    !
  !
!
dynamic|dynamic entry|k||
  word|word|k||
    permit|permit|k||&acl_ext_entry.cfm
    !
  !
!
id|sequence number|k||
  permit|forward packets|k||&acl_ext_entry.cfm
  !
  deny|drop packets|k||&acl_ext_entry.cfm
  !
  remark|access list entry comment|k||
    line|text|lb/le/wa||
      <cr>||||
      !
    !
  !
!
