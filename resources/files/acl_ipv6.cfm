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
sequence|sequence number|k||
  id|id|k||
    permit|forward packets|k||&acl_ext_entry.cfm
    !
    deny|drop packets|k||&acl_ext_entry.cfm
    !
  !
!
