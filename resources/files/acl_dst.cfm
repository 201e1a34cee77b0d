any|any destination|||&acl_opts.cfm
  <cr>||||
  !
  eq|port equal to|||
    &portfile.cfm|port|||&acl_opts.cfm
      <cr>||||
      !
      &portfile.cfm|port|||&acl_opts.cfm
        <cr>||||
        !
        &portfile.cfm|port|||&acl_opts.cfm
          <cr>||||
          !
          &portfile.cfm|port|||&acl_opts.cfm
            <cr>||||
            !
            &portfile.cfm|port|||&acl_opts.cfm
              <cr>||||
              !
            !
          !
        !
      !
    !
  !
  neq|port not equal to|||
    &portfile.cfm|port|||&acl_opts.cfm
      <cr>||||
      !
      &portfile.cfm|port|||&acl_opts.cfm
        <cr>||||
        !
        &portfile.cfm|port|||&acl_opts.cfm
          <cr>||||
          !
        !
      !
    !
  !
  gt|port greater than|||
    &portfile.cfm|port|||&acl_opts.cfm
      <cr>||||
      !
    !
  !
  lt|port less than|||
    &portfile.cfm|port|||&acl_opts.cfm
      <cr>||||
      !
    !
  !
  range|port range|||
    &portfile.cfm|first port|||
      &portfile.cfm|last port|||&acl_opts.cfm
        <cr>||||
        !
      !
    !
  !
!
host|a single destination host|||
  a.b.c.d|destination address|n||&acl_opts.cfm
    <cr>||||
    !
    eq|port equal to|||
      &portfile.cfm|port|||&acl_opts.cfm
        <cr>||||
        !
        &portfile.cfm|port|||&acl_opts.cfm
          <cr>||||
          !
          &portfile.cfm|port|||&acl_opts.cfm
            <cr>||||
            !
            &portfile.cfm|port|||&acl_opts.cfm
              <cr>||||
              !
              &portfile.cfm|port|||&acl_opts.cfm
                <cr>||||
                !
              !
            !
          !
        !
      !
    !
    neq|port not equal to|||
      &portfile.cfm|port|||&acl_opts.cfm
        <cr>||||
        !
        &portfile.cfm|port|||&acl_opts.cfm
          <cr>||||
          !
          &portfile.cfm|port|||&acl_opts.cfm
            <cr>||||
            !
          !
        !
      !
    !
    gt|port greater than|||
      &portfile.cfm|port|||&acl_opts.cfm
        <cr>||||
        !
      !
    !
    lt|port less than|||
      &portfile.cfm|port|||&acl_opts.cfm
        <cr>||||
        !
      !
    !
    range|port range|||
      &portfile.cfm|first port|||
        &portfile.cfm|last port|||&acl_opts.cfm
          <cr>||||
          !
        !
      !
    !
  !
!
a.b.c.d|destination address|n||
  a.b.c.d|destination wildcard bits|n||&acl_opts.cfm
    <cr>||||
    !
    eq|port equal to|||
      &portfile.cfm|port|||&acl_opts.cfm
        <cr>||||
        !
        &portfile.cfm|port|||&acl_opts.cfm
          <cr>||||
          !
          &portfile.cfm|port|||&acl_opts.cfm
            <cr>||||
            !
            &portfile.cfm|port|||&acl_opts.cfm
              <cr>||||
              !
              &portfile.cfm|port|||&acl_opts.cfm
                <cr>||||
                !
              !
            !
          !
        !
      !
    !
    neq|port not equal to|||
      &portfile.cfm|port|||&acl_opts.cfm
        <cr>||||
        !
        &portfile.cfm|port|||&acl_opts.cfm
          <cr>||||
          !
          &portfile.cfm|port|||&acl_opts.cfm
            <cr>||||
            !
          !
        !
      !
    !
    gt|port greater than|||
      &portfile.cfm|port|||&acl_opts.cfm
        <cr>||||
        !
      !
    !
    lt|port less than|||
      &portfile.cfm|port|||&acl_opts.cfm
        <cr>||||
        !
      !
    !
    range|port range|||
      &portfile.cfm|first port|||
        &portfile.cfm|last port|||&acl_opts.cfm
          <cr>||||
          !
        !
      !
    !
  !
!
object-group|destination network object group|||
  word|object group name|||&acl_opts.cfm
    <cr>||||
    !
    eq|port equal to|||
      &portfile.cfm|port|||&acl_opts.cfm
        <cr>||||
        !
        &portfile.cfm|port|||&acl_opts.cfm
          <cr>||||
          !
          &portfile.cfm|port|||&acl_opts.cfm
            <cr>||||
            !
            &portfile.cfm|port|||&acl_opts.cfm
              <cr>||||
              !
              &portfile.cfm|port|||&acl_opts.cfm
                <cr>||||
                !
              !
            !
          !
        !
      !
    !
    neq|port not equal to|||
      &portfile.cfm|port|||&acl_opts.cfm
        <cr>||||
        !
        &portfile.cfm|port|||&acl_opts.cfm
          <cr>||||
          !
          &portfile.cfm|port|||&acl_opts.cfm
            <cr>||||
            !
          !
        !
      !
    !
    gt|port greater than|||
      &portfile.cfm|port|||&acl_opts.cfm
        <cr>||||
        !
      !
    !
    lt|port less than|||
      &portfile.cfm|port|||&acl_opts.cfm
        <cr>||||
        !
      !
    !
    range|port range|||
      &portfile.cfm|first port|||
        &portfile.cfm|last port|||&acl_opts.cfm
          <cr>||||
          !
        !
      !
    !
  !
!
