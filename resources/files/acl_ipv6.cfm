evaluate|evaluate an access list of reflexive entries|||
  word|reflexive list name|k||
    <cr>||||
    !
  !
!
permit|forward packets|||&acl6_entry.cfm
!
deny|drop packets|||&acl6_entry.cfm
!
remark|access list entry comment|||
  line|text|lb/le/wa||
    <cr>||||
    !
  !
!
sequence|sequence number|||
  id|id|k||
    permit|forward packets|||&acl6_entry.cfm
    !
    deny|drop packets|||&acl6_entry.cfm
    !
  !
!
