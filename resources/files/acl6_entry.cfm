&protocolfile.cfm|protocol|||&acl6_src.cfm
!
object-group|service object group|||
  word|service object group name|||&acl6_src.cfm
  !
!
