id|action number|k||
  authenticate|authenticate a session|k||
    using|method|k||
      word|dot1x, mab or webauth|k||
        <cr>||||
        !
        priority|method priority|k||
          id|priority|o||
            <cr>||||
            !
            line|further options|lb/le/wa||
              <cr>||||
              !
            !
          !
        !
        retries|retries|k||
          id|retries|||
            <cr>||||
            !
            line|further options|lb/le/wa||
              <cr>||||
              !
            !
          !
        !
        aaa|aaa lists|k||
          line|lists|lb/le/wa||
            <cr>||||
            !
          !
        !
        both|both directions|k||
          <cr>||||
          !
          line|further options|lb/le/wa||
            <cr>||||
            !
          !
        !
        period|period|k||
          line|further options|lb/le/wa||
            <cr>||||
            !
          !
        !
      !
    !
  !
  terminate|terminate a method|k||
    word|dot1x, mab or webauth|k||
      <cr>||||
      !
    !
  !
  activate|activate a template|k||
    service-template|service template|k||
      word|template name|k||
        <cr>||||
        !
        precedence|precedence|k||
          id|id|||
            <cr>||||
            !
          !
        !
      !
    !
    interface-template|interface template|k||
      word|template name|k||
        <cr>||||
        !
      !
    !
  !
  deactivate|deactivate a template|k||
    service-template|service template|k||
      word|template name|k||
        <cr>||||
        !
        precedence|precedence|k||
          id|id|||
            <cr>||||
            !
          !
        !
      !
    !
    interface-template|interface template|k||
      word|template name|k||
        <cr>||||
        !
      !
    !
  !
  authorize|authorize the session|k||
    <cr>||||
    !
  !
  unauthorize|unauthorize the session|k||
    <cr>||||
    !
  !
  authentication-restart|restart authentication|k||
    id|seconds|o||
      <cr>||||
      !
    !
  !
  clear-session|clear the session|k||
    <cr>||||
    !
  !
  clear-authenticated-data-hosts-on-port|clear data hosts|k||
    <cr>||||
    !
  !
  err-disable|error disable the port|k||
    <cr>||||
    !
  !
  protect|silently drop violating packets|k||
    <cr>||||
    !
  !
  replace|clear the existing session|k||
    <cr>||||
    !
  !
  restrict|drop violating packets and log|k||
    <cr>||||
    !
  !
  pause|pause|k||
    reauthentication|reauthentication|k||
      <cr>||||
      !
    !
  !
  resume|resume|k||
    reauthentication|reauthentication|k||
      <cr>||||
      !
    !
  !
  set-domain|set the domain|k||
    word|word|o||
      <cr>||||
      !
    !
  !
  map|map attributes|k||
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
  notify|notify|k||
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
!
