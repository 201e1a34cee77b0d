any|any source|||&acl6_dst.cfm
  eq|port equal to|||
    &portfile.cfm|port|||&acl6_dst.cfm
    !
  !
  neq|port not equal to|||
    &portfile.cfm|port|||&acl6_dst.cfm
    !
  !
  gt|port greater than|||
    &portfile.cfm|port|||&acl6_dst.cfm
    !
  !
  lt|port less than|||
    &portfile.cfm|port|||&acl6_dst.cfm
    !
  !
  range|port range|||
    &portfile.cfm|first port|||
      &portfile.cfm|last port|||&acl6_dst.cfm
      !
    !
  !
!
host|a single source host|||
  word|source address|||&acl6_dst.cfm
    eq|port equal to|||
      &portfile.cfm|port|||&acl6_dst.cfm
      !
    !
    neq|port not equal to|||
      &portfile.cfm|port|||&acl6_dst.cfm
      !
    !
    gt|port greater than|||
      &portfile.cfm|port|||&acl6_dst.cfm
      !
    !
    lt|port less than|||
      &portfile.cfm|port|||&acl6_dst.cfm
      !
    !
    range|port range|||
      &portfile.cfm|first port|||
        &portfile.cfm|last port|||&acl6_dst.cfm
        !
      !
    !
  !
!
object-group|source network object group|||
  word|object group name|||&acl6_dst.cfm
    eq|port equal to|||
      &portfile.cfm|port|||&acl6_dst.cfm
      !
    !
    neq|port not equal to|||
      &portfile.cfm|port|||&acl6_dst.cfm
      !
    !
    gt|port greater than|||
      &portfile.cfm|port|||&acl6_dst.cfm
      !
    !
    lt|port less than|||
      &portfile.cfm|port|||&acl6_dst.cfm
      !
    !
    range|port range|||
      &portfile.cfm|first port|||
        &portfile.cfm|last port|||&acl6_dst.cfm
        !
      !
    !
  !
!
word|source prefix|||&acl6_dst.cfm
  eq|port equal to|||
    &portfile.cfm|port|||&acl6_dst.cfm
    !
  !
  neq|port not equal to|||
    &portfile.cfm|port|||&acl6_dst.cfm
    !
  !
  gt|port greater than|||
    &portfile.cfm|port|||&acl6_dst.cfm
    !
  !
  lt|port less than|||
    &portfile.cfm|port|||&acl6_dst.cfm
    !
  !
  range|port range|||
    &portfile.cfm|first port|||
      &portfile.cfm|last port|||&acl6_dst.cfm
      !
    !
  !
!
