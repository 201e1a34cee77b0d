tunnel-interface|a tunnel over this interface|k||
  <cr>||||@(config-tunnel-interface)# sdwan_tunnel.cfm
  !
!
exit|leave the interface|k||
  <cr>||||
  !
!
