description|object description|k/n/o||
  line|text|lb/le/wa||
    <cr>||||
    !
  !
!
delay|tracking delay|k/o||
  up|delay for a change to up|||
    id|seconds|||
      <cr>||||
      !
      down|delay for a change to down|||
        id|seconds|||
          <cr>||||
          !
        !
      !
    !
  !
  down|delay for a change to down|||
    id|seconds|||
      <cr>||||
      !
      up|delay for a change to up|||
        id|seconds|||
          <cr>||||
          !
        !
      !
    !
  !
!
default-state|state of the object while it is not known|k/o||
  up|the object is up|||
    <cr>||||
    !
  !
  down|the object is down|||
    <cr>||||
    !
  !
!
object|object of the list|k||
  id|object number|k||
    <cr>||||
    !
    not|negate the state of the object|k||
      <cr>||||
      !
    !
    weight|weight of the object|k||
      id|weight|||
        <cr>||||
        !
      !
    !
  !
!
threshold|threshold of the list|k||
  percentage|threshold in percent|k||
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
  weight|threshold in weights|k||
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
!
