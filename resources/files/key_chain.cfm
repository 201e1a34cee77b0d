key|configure a key|k||
  id|id|k||
    <cr>||||@(config-keychain-key)# key_chain_key.cfm
    !
  !
!
