server|server certificate settings|k||
  <cr>||||@(ssh-server-cert-profile-server)# ssh_cert_side.cfm
  !
!
user|user certificate settings|k||
  <cr>||||@(ssh-server-cert-profile-user)# ssh_cert_side.cfm
  !
!
