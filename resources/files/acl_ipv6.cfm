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
sequence|sequence number|||
  id|id|k||
    permit|forward packets|||&acl_ext_entry.cfm
    !
    deny|drop packets|||&acl_ext_entry.cfm
    !
  !
!
