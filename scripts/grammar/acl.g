# Access-list entries (shared through includes). All entries of one list
# are one kind of setting: only the list (and a sequence number) names an
# entry, so a new entry lands behind the others of its list in a merge.

# An extended entry: protocol, source, source ports, destination,
# destination ports, options. Each part is a file of its own that the leaves
# of the part before include, so the tree is shared instead of copied.
file acl_ext_entry.cfm -allk
&protocolfile.cfm "protocol" &acl_src.cfm
object-group "service object group"
  word "service object group name" &acl_src.cfm

def SRCPORT
  eq "port equal to"
    &portfile.cfm "port" &acl_dst.cfm
  neq "port not equal to"
    &portfile.cfm "port" &acl_dst.cfm
  gt "port greater than"
    &portfile.cfm "port" &acl_dst.cfm
  lt "port less than"
    &portfile.cfm "port" &acl_dst.cfm
  range "port range"
    &portfile.cfm "first port"
      &portfile.cfm "last port" &acl_dst.cfm

file acl_src.cfm -allk
any "any source" &acl_dst.cfm
  %SRCPORT
host "a single source host"
  a.b.c.d :n "source address" &acl_dst.cfm
    %SRCPORT
a.b.c.d :n "source address"
  a.b.c.d :n "source wildcard bits" &acl_dst.cfm
    %SRCPORT
object-group "source network object group"
  word "object group name" &acl_dst.cfm
    %SRCPORT

# A named list takes several ports after "eq" and "neq". They are nested
# nodes rather than a loop: a looping node would lose its loop to the include
# of the options.
def DSTPORT
  eq "port equal to"
    &portfile.cfm "port" $ &acl_opts.cfm
      &portfile.cfm "port" $ &acl_opts.cfm
        &portfile.cfm "port" $ &acl_opts.cfm
          &portfile.cfm "port" $ &acl_opts.cfm
            &portfile.cfm "port" $ &acl_opts.cfm
  neq "port not equal to"
    &portfile.cfm "port" $ &acl_opts.cfm
      &portfile.cfm "port" $ &acl_opts.cfm
        &portfile.cfm "port" $ &acl_opts.cfm
  gt "port greater than"
    &portfile.cfm "port" $ &acl_opts.cfm
  lt "port less than"
    &portfile.cfm "port" $ &acl_opts.cfm
  range "port range"
    &portfile.cfm "first port"
      &portfile.cfm "last port" $ &acl_opts.cfm

file acl_dst.cfm -allk
any "any destination" $ &acl_opts.cfm
  %DSTPORT
host "a single destination host"
  a.b.c.d :n "destination address" $ &acl_opts.cfm
    %DSTPORT
a.b.c.d :n "destination address"
  a.b.c.d :n "destination wildcard bits" $ &acl_opts.cfm
    %DSTPORT
object-group "destination network object group"
  word "object group name" $ &acl_opts.cfm
    %DSTPORT

# IPv6 entries: a source or destination is any, a host address or a prefix.
file acl6_entry.cfm -allk
&protocolfile.cfm "protocol" &acl6_src.cfm
icmpv6 "internet control message protocol for ipv6" &acl6_src.cfm
object-group "service object group"
  word "service object group name" &acl6_src.cfm

def SRCPORT6
  eq "port equal to"
    &portfile.cfm "port" &acl6_dst.cfm
  neq "port not equal to"
    &portfile.cfm "port" &acl6_dst.cfm
  gt "port greater than"
    &portfile.cfm "port" &acl6_dst.cfm
  lt "port less than"
    &portfile.cfm "port" &acl6_dst.cfm
  range "port range"
    &portfile.cfm "first port"
      &portfile.cfm "last port" &acl6_dst.cfm

file acl6_src.cfm -allk
any "any source" &acl6_dst.cfm
  %SRCPORT6
host "a single source host"
  word "source address" &acl6_dst.cfm
    %SRCPORT6
object-group "source network object group"
  word "object group name" &acl6_dst.cfm
    %SRCPORT6
word "source prefix" &acl6_dst.cfm
  %SRCPORT6

file acl6_dst.cfm -allk
any "any destination" $ &acl_opts.cfm
  %DSTPORT
host "a single destination host"
  word "destination address" $ &acl_opts.cfm
    %DSTPORT
object-group "destination network object group"
  word "object group name" $ &acl_opts.cfm
    %DSTPORT
word "destination prefix" $ &acl_opts.cfm
  %DSTPORT

file acl_opts.cfm -allk
%ACLOPTS

file acl_std_entry.cfm -allk
%SADDR
  log "log matches" $

file acl_ext.cfm -k
permit "forward packets" &acl_ext_entry.cfm
deny "drop packets" &acl_ext_entry.cfm
remark "access list entry comment" $
  %TEXT
evaluate "evaluate a reflexive list"
  word :k $
dynamic "dynamic entry"
  word :k
    permit &acl_ext_entry.cfm
id :k/n "sequence number"
  permit "forward packets" &acl_ext_entry.cfm
  deny "drop packets" &acl_ext_entry.cfm
  remark "access list entry comment"
    %TEXT

file acl_std.cfm -k
permit "forward packets" &acl_std_entry.cfm
deny "drop packets" &acl_std_entry.cfm
remark "access list entry comment"
  %TEXT
id :k/n "sequence number"
  permit "forward packets" &acl_std_entry.cfm
  deny "drop packets" &acl_std_entry.cfm
  remark "access list entry comment"
    %TEXT

file acl_ipv6.cfm -k
evaluate "evaluate an access list of reflexive entries"
  word :k "reflexive list name" $
permit "forward packets" &acl6_entry.cfm
deny "drop packets" &acl6_entry.cfm
remark "access list entry comment"
  %TEXT
sequence "sequence number"
  id :k
    permit "forward packets" &acl6_entry.cfm
    deny "drop packets" &acl6_entry.cfm
