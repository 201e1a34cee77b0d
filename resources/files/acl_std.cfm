permit|forward packets|||&acl_std_entry.cfm
!
deny|drop packets|||&acl_std_entry.cfm
!
remark|access list entry comment|||
  line|text|lb/le/wa||
    <cr>||||
    !
  !
!
id|sequence number|k/n||
  permit|forward packets|||&acl_std_entry.cfm
  !
  deny|drop packets|||&acl_std_entry.cfm
  !
  remark|access list entry comment|||
    line|text|lb/le/wa||
      <cr>||||
      !
    !
  !
!
