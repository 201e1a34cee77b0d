# Platform settings that "show running-config all" prints: SCTP chunk
# authentication, the buffer pools, TrustSec (cts), EAP over UDP (eou), the
# inter-process communication queues, and the async and terminal settings
# of lines and interfaces.
# Switches that "show running-config all" prints in either form (no voice
# call send-alert, no ip sctp authenticate data) are sb/o: both forms are
# kept, and either replaces the other.

def BUFPARAMS
  permanent "buffers that are never given back"
    id :o "buffers" $
  max-free "most free buffers"
    id :o "buffers" $
  min-free "least free buffers"
    id :o "buffers" $
  initial "buffers made at start"
    id :o "buffers" $

def SCTPCHUNK
  abort "abort chunks" $
  asconf "address configuration chunks" $
  asconf-ack "address configuration acknowledgements" $
  authentication "authentication chunks" $
  cookie-ack "cookie acknowledgements" $
  cookie-echo "cookie echo chunks" $
  cwr "congestion window reduced" $
  data "data chunks" $
  ecne "explicit congestion notification echo" $
  error "operation error chunks" $
  fwd-tsn "forward transmission sequence number" $
  heartbeat "heartbeat requests" $
  heartbeat-ack "heartbeat acknowledgements" $
  init "initiation chunks" $
  init-ack "initiation acknowledgements" $
  packet-drop "packet drop reports" $
  sack "selective acknowledgements" $
  shutdown "shutdown chunks" $
  shutdown-ack "shutdown acknowledgements" $
  shutdown-complete "shutdown complete" $
  stream-reset "stream reset" $
  <16-255> :k "chunk type" $

def EOU
  revalidate "revalidate the clients" $
  max-retry "most retries"
    <1-3> :o "retries" $
  ratelimit "rate limit"
    id :o "sessions" $
  port "udp port"
    <1-65535> :o "port" $
  allow "what is allowed"
    ip-station-id :sb/o "ip address as the station id" $
    clientless :sb/o "clientless hosts" $
  timeout "timers"
    hold-period "hold period"
      <60-86400> :o "seconds" $
    status-query "status query"
      <10-1800> :o "seconds" $
    retransmit "retransmission"
      <1-60> :o "seconds" $
    aaa "aaa timeout"
      id :o "seconds" $
    revalidation "revalidation timer"
      <5-86400> :o "seconds" $
  logging "log eou events" $
  default "defaults" $

file ip_global.cfm
sctp "stream control transmission protocol"
  asconf "address configuration change"
    authenticate "authentication of address configuration chunks"
      check "accept only authenticated address configuration chunks" $
    auto :sb/o "add and remove local addresses automatically" $
  authenticate :sb/o "chunk types that must be authenticated"
    %SCTPCHUNK

file configuration_mod.cfm
pae "port access entity of 802.1x" $
buffers "adjust system buffer pool parameters"
  small :k "small buffers"
    %BUFPARAMS
  middle :k "middle buffers"
    %BUFPARAMS
  big :k "big buffers"
    %BUFPARAMS
  verybig :k "very big buffers"
    %BUFPARAMS
  large :k "large buffers"
    %BUFPARAMS
  huge :k "huge buffers"
    %BUFPARAMS
    size "size of a huge buffer"
      <18024-100000> :o "bytes" $
  header :k "header buffers"
    %BUFPARAMS
  fastswitching :k "fast switching buffers"
    %BUFPARAMS
  element :k "buffer elements"
    permanent "elements that are never given back"
      id :o "elements" $
    minimum "least elements"
      id :o "elements" $
  tune "tuning"
    automatic :sb/o "tune the buffers automatically" $
  &interfacefile.cfm "buffers of an interface"
    <number> :k "interface number"
      %BUFPARAMS
cts "cisco trustsec"
  server "authentication servers"
    deadtime "time a server is held dead"
      <1-864000> :o "seconds" $
    test "server tests"
      all :k "all servers"
        enable "test the servers" $
        idle-time "test interval"
          <1-14400> :o "minutes" $
        deadtime "time a server is held dead"
          <1-864000> :o "seconds" $
      a.b.c.d :k "server address"
        enable "test the server" $
        idle-time "test interval"
          <1-14400> :o "minutes" $
        deadtime "time a server is held dead"
          <1-864000> :o "seconds" $
  cache "trustsec cache"
    enable :sb/o "keep the trustsec data over a reload" $
  dot1x-server-timeout "server timeout"
    <1-65535> :o "seconds" $
  dot1x-supp-timeout "supplicant timeout"
    <1-65535> :o "seconds" $
  logging "trustsec logging"
    verbose "verbose logging" $
  sxp "security group tag exchange protocol"
    enable :sb/o "run the protocol" $
    retry "retries"
      period "retry period"
        id :o "seconds" $
    reconciliation "reconciliation after a restart"
      period "reconciliation period"
        id :o "seconds" $
    log "logging"
      binding-changes :sb/o "log binding changes" $
    mapping "address to tag mapping"
      network-map "network map"
        id :o "bindings" $
    speaker "speaker settings"
      hold-time "hold time"
        <1-65534> :o "seconds" $
    listener "listener settings"
      hold-time "hold time"
        <1-65534> :o "least seconds"
          <1-65534> "most seconds" $
    node-id "node id"
      a.b.c.d :o "node address" $
      id :o "node number" $
      interface "from an interface"
        &interfacefile.cfm "interface type"
          <number> :o "interface number" $
    default "defaults"
      password "default password"
        line * :o
      source-ip "default source address"
        a.b.c.d :o "address" $
    connection "sxp connections"
      peer "peer of a connection"
        line *
  role-based "role-based access control"
    enforcement "enforce the rules" $
    sgt-map "address to tag binding"
      a.b.c.d :k "address"
        sgt "security group tag"
          <2-65519> :o "tag" $
    permissions "permissions between tags"
      line *
  authorization "authorization of trustsec"
    list "method list"
      word :o "list" $
eou "eap over udp"
  %EOU
ipc "inter-process communication"
  holdq "hold queue"
    threshold "thresholds"
      upper "upper threshold"
        id :o "messages" $
      lower "lower threshold"
        id :o "messages" $
  header-cache "header cache"
    permanent "permanent headers"
      id :o "headers"
        id "most headers" $
  buffers "ipc buffers"
    max-free "most free buffers"
      id :o "buffers" $
    min-free "least free buffers"
      id :o "buffers" $
    permanent "permanent buffers"
      id :o "buffers" $
  zone "ipc zones"
    line *

file line.cfm
stop-character "stop character"
  id :o "ascii value" $
start-character "start character"
  id :o "ascii value" $
special-character-bits "size of the escape and other special characters"
  7 :o "7 bits" $
  8 :o "8 bits" $
flush-at-activation :sn "clear pending input when the line starts" $
domain-lookup :sn "look up names in the domain name system" $
autohangup "hang up when the last connection closes" $
  session-timeout "also when the session times out" $
callback "callback settings of the line"
  forced-wait "wait before a callback"
    id :o "seconds" $
  nodsr-wait "wait for dsr"
    id :o "milliseconds" $
ip "ip settings of the line"
  netmask-format "form of network masks"
    bit-count :o "bit count" $
    decimal :o "dotted decimal" $
    hexadecimal :o "hexadecimal masks" $
  tcp "tcp settings"
    input-coalesce-threshold "input coalescing"
      <5-255> :o "packets" $

file interface.cfm
tx-queue-limit "largest transmit queue"
  id :o "packets" $
dce-terminal-timing-enable "dce terminal timing" $
async "async interface"
  mode "mode of the async interface"
    interactive :o "interactive mode" $
    dedicated :o "dedicated mode" $
  default "defaults"
    routing "routing on the async line" $
  dynamic "dynamic settings"
    address "addresses given by the user" $
    routing "routing given by the user" $
eou "eap over udp on this interface"
  %EOU
cts "cisco trustsec on this interface"
  role-based "role-based access control"
    enforcement "enforce the rules on this interface" $
  manual "manual trustsec settings" @(config-if-cts-manual)#=interface_cts_manual.cfm
  dot1x "trustsec by 802.1x" $
isdn "isdn settings of this interface"
  %ISDNSWITCH
  incoming-voice "treatment of incoming voice calls"
    voice :o "as voice" $
    modem :o "as modem calls" $
    data :o "as data" $
  protocol-emulate "side of the isdn link"
    network :o "network side" $
    user :o "user side" $
  overlap-receiving "receive the number digit by digit" $
  send-alerting "send alerting" $
  sending-complete "send the sending-complete element" $
  point-to-point-setup "point-to-point link" $
  bind-l3 "layer 3 binding"
    line * :o

file interface_cts_manual.cfm
policy "policy"
  static "static policy"
    sgt "security group tag"
      <2-65519> :o "tag" $
        trusted "trust the tags received" $
  dynamic "dynamic policy"
    identity "identity"
      word :o "peer name" $
propagate "propagate"
  sgt :sn "security group tags" $
