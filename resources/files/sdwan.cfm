interface|a transport interface|k||
  &interfacefile.cfm|interface type|k||
    <number>|interface number|k||
      <cr>||||@(config-interface)# sdwan_if.cfm
      !
    !
  !
!
omp|overlay management protocol|k||
  <cr>||||@(config-omp)# sdwan_omp.cfm
  !
!
appqoe|application quality of experience|k||
  <cr>||||@(config-appqoe)# generic.cfm
  !
!
