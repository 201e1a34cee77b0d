rd|route distinguisher|k/o/n||
  <value>|distinguisher|||
    <cr>|||||
    !
  !
!
