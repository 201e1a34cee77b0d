service-policy|attach a policy map|k||
  type|type|k||
    inspect|inspect|k||
      word|word|o||
        <cr>||||
        !
      !
    !
  !
!
description|zone pair description|k/n/o||
  line|text|lb/le/wa||
    <cr>||||
    !
  !
!
exit|exit|k||
  <cr>||||
  !
!
