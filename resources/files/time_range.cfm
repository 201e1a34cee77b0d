periodic|periodic time and date|k||
  word|days of the week, weekdays, weekend or daily|k||
    line|times and further days|lb/le/wa||
      <cr>||||
      !
    !
  !
!
absolute|absolute time and date|k||
  start|starting time and date|k||
    line|time and date, and an end|lb/le/wa||
      <cr>||||
      !
    !
  !
  end|ending time and date|k||
    line|time and date|lb/le/wa||
      <cr>||||
      !
    !
  !
!
