codec|codec of this list|k||
  preference|preference of a codec|k||
    <1-14>|order of preference|k||
      &codecfile.cfm|codec|o||
        <cr>||||
        !
        bytes|bytes per frame|k||
          id|bytes|||
            <cr>||||
            !
          !
        !
      !
    !
  !
!
