ingress-replication|ingress replication|k||
  <cr>||||
  !
  a.b.c.d|remote peer|k||
    <cr>||||
    !
  !
!
mcast-group|multicast group|k||
  a.b.c.d|a.b.c.d|o||
    <cr>||||
    !
    a.b.c.d|a.b.c.d|||
      <cr>||||
      !
    !
  !
!
suppress-arp|suppress arp|k||
  <cr>||||
  !
!
replication-type|replication type|k||
  ingress|ingress|k||
    <cr>||||
    !
  !
  static|static|k||
    <cr>||||
    !
  !
!
