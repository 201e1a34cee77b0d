secret|set a secret for the view|k||
  0|an unencrypted secret follows|||
    word|word|o||
      <cr>||||
      !
    !
  !
  5|an md5 hashed secret follows|||
    word|word|o||
      <cr>||||
      !
    !
  !
  word|the view's secret|o||
    <cr>||||
    !
  !
!
commands|add commands to the view|k||
  exec|exec mode|k||
    include|add the command|k||
      all|the command and all its sub-commands|k||
        line|line|lb/le/wa/k||
          <cr>||||
          !
        !
      !
      exclusive|only in this view|k||
        all|all|k||
          line|line|lb/le/wa/k||
            <cr>||||
            !
          !
        !
        line|line|lb/le/wa/k||
          <cr>||||
          !
        !
      !
      line|line|lb/le/wa/k||
        <cr>||||
        !
      !
    !
    exclude|leave the command out|k||
      all|all|k||
        line|line|lb/le/wa/k||
          <cr>||||
          !
        !
      !
      line|line|lb/le/wa/k||
        <cr>||||
        !
      !
    !
  !
  configure|configuration mode|k||
    include|add the command|k||
      all|the command and all its sub-commands|k||
        line|line|lb/le/wa/k||
          <cr>||||
          !
        !
      !
      exclusive|only in this view|k||
        all|all|k||
          line|line|lb/le/wa/k||
            <cr>||||
            !
          !
        !
        line|line|lb/le/wa/k||
          <cr>||||
          !
        !
      !
      line|line|lb/le/wa/k||
        <cr>||||
        !
      !
    !
    exclude|leave the command out|k||
      all|all|k||
        line|line|lb/le/wa/k||
          <cr>||||
          !
        !
      !
      line|line|lb/le/wa/k||
        <cr>||||
        !
      !
    !
  !
  interface|interface mode|k||
    include|add the command|k||
      all|the command and all its sub-commands|k||
        line|line|lb/le/wa/k||
          <cr>||||
          !
        !
      !
      exclusive|only in this view|k||
        all|all|k||
          line|line|lb/le/wa/k||
            <cr>||||
            !
          !
        !
        line|line|lb/le/wa/k||
          <cr>||||
          !
        !
      !
      line|line|lb/le/wa/k||
        <cr>||||
        !
      !
    !
    exclude|leave the command out|k||
      all|all|k||
        line|line|lb/le/wa/k||
          <cr>||||
          !
        !
      !
      line|line|lb/le/wa/k||
        <cr>||||
        !
      !
    !
  !
  router|router mode|k||
    include|add the command|k||
      all|the command and all its sub-commands|k||
        line|line|lb/le/wa/k||
          <cr>||||
          !
        !
      !
      exclusive|only in this view|k||
        all|all|k||
          line|line|lb/le/wa/k||
            <cr>||||
            !
          !
        !
        line|line|lb/le/wa/k||
          <cr>||||
          !
        !
      !
      line|line|lb/le/wa/k||
        <cr>||||
        !
      !
    !
    exclude|leave the command out|k||
      all|all|k||
        line|line|lb/le/wa/k||
          <cr>||||
          !
        !
      !
      line|line|lb/le/wa/k||
        <cr>||||
        !
      !
    !
  !
!
view|add a view to the superview|k||
  word|word|k||
    <cr>||||
    !
  !
!
