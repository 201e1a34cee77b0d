relay-information|relay agent information pattern|k||
  hex|hexadecimal pattern|k||
    word|pattern|k||
      <cr>||||
      !
      line|line|lb/le/wa||
        <cr>||||
        !
      !
    !
  !
!
