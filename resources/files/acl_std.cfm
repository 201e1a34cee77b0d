permit|forward packets|k||&acl_std_entry.cfm
!
deny|drop packets|k||&acl_std_entry.cfm
!
remark|access list entry comment|k||
  line|text|lb/le/wa||
    <cr>||||
    !
  !
!
id|sequence number|k||
  permit|forward packets|k||&acl_std_entry.cfm
  !
  deny|drop packets|k||&acl_std_entry.cfm
  !
  remark|access list entry comment|k||
    line|text|lb/le/wa||
      <cr>||||
      !
    !
  !
!
