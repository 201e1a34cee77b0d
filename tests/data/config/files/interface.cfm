description|interface specific description|k/o/n||
  line|up to 240 characters|lb/le/wa||
    <cr>|||||
    !
  !
!
ip|interface ip configuration|k||
  address|set the ip address|k/o/n||
    a.b.c.d|ip address|||
      a.b.c.d|ip mask|||
        <cr>|||||
        !
      !
    !
  !
  vrf|vrf interface commands|k||
    forwarding|assign a vrf|k/o||
      <name>|vrf name|||
        <cr>|||||
        !
      !
    !
  !
!
shutdown|shutdown the interface|k/o||
  <cr>|||||
  !
!
