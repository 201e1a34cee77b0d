description|interface specific description|k/o/n||
  line|up to 240 characters describing this interface|lb/le/wa||
    <cr>|||||
    !
  !
!
ip|interface internet protocol config commands|k||
  address|set the ip address of an interface|k/o/n||
    a.b.c.d|ip address|||
      a.b.c.d|ip subnet mask|||
        <cr>|||||
        !
      !
    !
  !
!
shutdown|shutdown the selected interface|k||
  <cr>|||||
  !
!
