global-block|segment routing global block|k||
  16-1048575|16-1048575|||
    16-1048575|16-1048575|o||
      <cr>||||
      !
    !
  !
!
local-block|segment routing local block|k||
  16-1048575|16-1048575|||
    16-1048575|16-1048575|o||
      <cr>||||
      !
    !
  !
!
connected-prefix-sid-map|prefix sids of connected prefixes|k||
  <cr>||||@(config-srmpls-conn)# segment_routing_map.cfm
  !
!
mapping-server|mapping server|k||
  <cr>||||@(config-srmpls-mapp)# segment_routing_map.cfm
  !
!
