policy|policy|k||
  static|static policy|k||
    sgt|security group tag|k||
      <2-65519>|tag|o||
        <cr>||||
        !
        trusted|trust the tags received|k||
          <cr>||||
          !
        !
      !
    !
  !
  dynamic|dynamic policy|k||
    identity|identity|k||
      word|peer name|o||
        <cr>||||
        !
      !
    !
  !
!
propagate|propagate|k||
  sgt|security group tags|k/sn||
    <cr>||||
    !
  !
!
