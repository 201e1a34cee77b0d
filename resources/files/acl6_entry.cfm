&protocolfile.cfm|protocol|||&acl6_src.cfm
!
icmpv6|internet control message protocol for ipv6|||&acl6_src.cfm
!
object-group|service object group|||
  word|service object group name|||&acl6_src.cfm
  !
!
