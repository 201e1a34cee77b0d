shutdown|shut down omp|k||
  <cr>||||
  !
!
graceful-restart|graceful restart|k||
  <cr>||||
  !
!
send-path-limit|paths advertised for a prefix|k||
  1-16|1-16|o||
    <cr>||||
    !
  !
!
ecmp-limit|equal cost paths installed|k||
  1-16|1-16|o||
    <cr>||||
    !
  !
!
timers|omp timers|k||
  holdtime|holdtime|k||
    id|id|o||
      <cr>||||
      !
    !
  !
  advertisement-interval|advertisement-interval|k||
    id|id|o||
      <cr>||||
      !
    !
  !
  graceful-restart-timer|graceful-restart-timer|k||
    id|id|o||
      <cr>||||
      !
    !
  !
!
address-family|omp address family|k||
  ipv4|ipv4|k||
    <cr>||||@(config-omp-af)# sdwan_omp_af.cfm
    !
  !
  ipv6|ipv6|k||
    <cr>||||@(config-omp-af)# sdwan_omp_af.cfm
    !
  !
!
