# Access-list entries (shared through includes).

file acl_ext_entry.cfm
&protocolfile.cfm "protocol"
  %ADDR
    %PORT
      %ADDR
        %PORT
          %ACLOPTS
        %ACLOPTS
    %ADDR
      %PORT
        %ACLOPTS
      %ACLOPTS

file acl_std_entry.cfm
%SADDR
  log "log matches" $

file acl_ext.cfm
permit "forward packets" &acl_ext_entry.cfm
deny "drop packets" &acl_ext_entry.cfm
remark "access list entry comment"
  %TEXT
evaluate "evaluate a reflexive list"
  word :k $
dynamic "dynamic entry"
  word :k
    permit &acl_ext_entry.cfm
id :k "sequence number"
  permit "forward packets" &acl_ext_entry.cfm
  deny "drop packets" &acl_ext_entry.cfm
  remark "access list entry comment"
    %TEXT

file acl_std.cfm
permit "forward packets" &acl_std_entry.cfm
deny "drop packets" &acl_std_entry.cfm
remark "access list entry comment"
  %TEXT
id :k "sequence number"
  permit "forward packets" &acl_std_entry.cfm
  deny "drop packets" &acl_std_entry.cfm
  remark "access list entry comment"
    %TEXT

file acl_ipv6.cfm
permit "forward packets" &acl_ext_entry.cfm
deny "drop packets" &acl_ext_entry.cfm
remark "access list entry comment"
  %TEXT
sequence "sequence number"
  id :k
    permit "forward packets" &acl_ext_entry.cfm
    deny "drop packets" &acl_ext_entry.cfm
