username|username|k||
  word|word|k||
    <cr>||||@(conf-ssh-pubkey-user)# ssh_pubkey_user.cfm
    !
  !
!
server|server|k||
  word|word|k||
    <cr>||||@(conf-ssh-pubkey-server)# ssh_pubkey_user.cfm
    !
  !
!
