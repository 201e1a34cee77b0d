any|any source|||&acl_dst.cfm
  eq|port equal to|||
    &portfile.cfm|port|||&acl_dst.cfm
    !
  !
  neq|port not equal to|||
    &portfile.cfm|port|||&acl_dst.cfm
    !
  !
  gt|port greater than|||
    &portfile.cfm|port|||&acl_dst.cfm
    !
  !
  lt|port less than|||
    &portfile.cfm|port|||&acl_dst.cfm
    !
  !
  range|port range|||
    &portfile.cfm|first port|||
      &portfile.cfm|last port|||&acl_dst.cfm
      !
    !
  !
!
host|a single source host|||
  a.b.c.d|source address|n||&acl_dst.cfm
    eq|port equal to|||
      &portfile.cfm|port|||&acl_dst.cfm
      !
    !
    neq|port not equal to|||
      &portfile.cfm|port|||&acl_dst.cfm
      !
    !
    gt|port greater than|||
      &portfile.cfm|port|||&acl_dst.cfm
      !
    !
    lt|port less than|||
      &portfile.cfm|port|||&acl_dst.cfm
      !
    !
    range|port range|||
      &portfile.cfm|first port|||
        &portfile.cfm|last port|||&acl_dst.cfm
        !
      !
    !
  !
!
a.b.c.d|source address|n||
  a.b.c.d|source wildcard bits|n||&acl_dst.cfm
    eq|port equal to|||
      &portfile.cfm|port|||&acl_dst.cfm
      !
    !
    neq|port not equal to|||
      &portfile.cfm|port|||&acl_dst.cfm
      !
    !
    gt|port greater than|||
      &portfile.cfm|port|||&acl_dst.cfm
      !
    !
    lt|port less than|||
      &portfile.cfm|port|||&acl_dst.cfm
      !
    !
    range|port range|||
      &portfile.cfm|first port|||
        &portfile.cfm|last port|||&acl_dst.cfm
        !
      !
    !
  !
!
object-group|source network object group|||
  word|object group name|||&acl_dst.cfm
    eq|port equal to|||
      &portfile.cfm|port|||&acl_dst.cfm
      !
    !
    neq|port not equal to|||
      &portfile.cfm|port|||&acl_dst.cfm
      !
    !
    gt|port greater than|||
      &portfile.cfm|port|||&acl_dst.cfm
      !
    !
    lt|port less than|||
      &portfile.cfm|port|||&acl_dst.cfm
      !
    !
    range|port range|||
      &portfile.cfm|first port|||
        &portfile.cfm|last port|||&acl_dst.cfm
        !
      !
    !
  !
!
