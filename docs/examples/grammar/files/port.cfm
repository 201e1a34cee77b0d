description|interface specific description|k/n/o||
  line|up to 240 characters describing this interface|lb/le/wa||
    <cr>||||
    !
  !
!
ip|interface ip commands|k||
  address|set the ip address of an interface|k/n||
    a.b.c.d|ip address|o||
      a.b.c.d|ip subnet mask|||
        <cr>||||
        !
      !
    !
  !
!
shutdown|shut down the interface|k||
  <cr>||||
  !
!
