# Voice: the global voice settings, dial peers, voice ports, the SIP user
# agent, the telephony service, call admission (call fallback, call
# treatment) and the interactive voice response settings. Numbers where 0 is
# a valid value are "id"; the counters that the device prints in
# "show running-config all" are one value each (o).
# Switches that "show running-config all" prints in either form (no voice
# call send-alert, no ip sctp authenticate data) are sb/o: both forms are
# kept, and either replaces the other.

def VCALLGROUP
  capacity "capacity settings"
    timer "capacity timer"
      interval "interval between capacity updates"
        <1-1440> :o "minutes" $
    mir :k "maximum update rate"
      id :o "rate" $
    stw :k "sliding time window"
      id :o "minutes" $
    reporting "capacity reporting"
      maxima :sb/o "report the maxima" $
      inflection :sb/o "report the inflection points" $
  trigger "capacity triggers"
    percent-change "change in per cent that triggers a report"
      <1-100> :o "per cent" $
    lwm "low water mark"
      <1-100> :o "per cent" $
    hwm "high water mark"
      <1-100> :o "per cent" $
  csr "call success rate"
    reporting "call success rate reporting"
      interval "reporting interval"
        <1-1440> :o "minutes" $
    recording "call success rate recording"
      interval "recording interval"
        <1-1440> :o "minutes" $
    growth "call success rate growth"
      interval "growth interval"
        <1-1440> :o "minutes" $
    data-points "number of data points"
      <1-1440> :o "data points" $

def ISDNSWITCH
  switch-type "isdn switch type"
    basic-1tr6 :o "1tr6 switch type for germany" $
    basic-5ess :o "at&t 5ess switch type for the u.s." $
    basic-dms100 :o "northern dms-100 switch type" $
    basic-net3 :o "net3 switch type for the uk and others" $
    basic-ni :o "national isdn switch type" $
    basic-qsig :o "qsig switch type" $
    basic-ts013 :o "ts013 switch type for australia" $
    primary-4ess :o "lucent 4ess switch type for the u.s." $
    primary-5ess :o "lucent 5ess switch type for the u.s." $
    primary-dms100 :o "northern telecom dms-100 switch type" $
    primary-net5 :o "net5 switch type for the uk, europe, asia and australia" $
    primary-ni :o "national isdn switch type" $
    primary-ntt :o "japan switch type" $
    primary-qsig :o "qsig switch type" $
    primary-ts014 :o "ts014 switch type for australia" $

def CALLTHRESHOLD
  cpu-5sec :k "cpu over five seconds"
    %LOWHIGH
  cpu-avg :k "average cpu"
    %LOWHIGH
  io-mem :k "i/o memory"
    %LOWHIGH
  proc-mem :k "processor memory"
    %LOWHIGH
  total-calls :k "all calls"
    %LOWHIGH
  total-mem :k "all memory"
    %LOWHIGH
  voip-calls :k "voip calls"
    %LOWHIGH

def LOWHIGH
  low "low water mark"
    id :o "value"
      high "high water mark"
        id "value" $
          busyout "busy out the ports" $
          treatment "treat the calls" $

file configuration_mod.cfm
voice "voice configuration"
  service "voice service"
    voip "voice over ip" @(config-voi-serv)#=voice_service.cfm
    pots "plain old telephone service" @(config-voi-serv)#=voice_service.cfm
  class "voice class"
    codec "codec preference list"
      <1-10000> :k "voice class tag" @(config-class)#=voice_class_codec.cfm
    uri "uniform resource identifier class"
      word :k "uri class tag"
        sip "sip uri" @(config-voice-uri-class)#=generic.cfm
        tel "telephone uri" @(config-voice-uri-class)#=generic.cfm
      sip "sip uri settings"
        preference "part of the uri matched first"
          user-id :o "user-id first"
            host "then the host" $
          host :o "host first"
            user-id "then the user-id" $
    h323 "h323 voice class"
      <1-10000> :k "voice class tag" @(config-class)#=generic.cfm
    sip-profiles "sip profiles"
      <1-10000> :k "voice class tag" @(config-class)#=generic.cfm
    e164-pattern-map "e164 pattern map"
      <1-10000> :k "voice class tag" @(config-class)#=generic.cfm
    dpg "dial peer group"
      <1-10000> :k "voice class tag" @(config-class)#=generic.cfm
  translation-rule "translation rule"
    id :k @(config-translate)#=generic.cfm
  translation-profile "translation profile"
    word :k @(config-translate)#=generic.cfm
  rtp "real-time transport protocol"
    send-recv "establish a two-way voice path on connect" $
  call "voice call settings"
    trap "voice call traps"
      deviation "disconnect cause that raises a trap"
        <1-127> :o "cause code" $
          vad "with voice activity detection" $
    send-alert :sb/o "send alert instead of progress" $
    disc-pi-off :sb/o "no disconnect with progress indicator" $
    convert-discpi-to-prog :sb/o "convert disconnect with progress indicator to progress" $
    debug "debug header format"
      full-guid :sb/o "the whole call identifier" $
      short-header "the short header" $
    carrier :k "carrier capacity"
      %VCALLGROUP
    trunkgroup :k "trunk group capacity"
      %VCALLGROUP
    prefix :k "prefix capacity"
      %VCALLGROUP
  disc-pi-incoming-on :sb/o "disconnect with progress indicator on incoming calls" $
  vad-time "time before voice activity detection silences"
    <250-65536> :o "milliseconds" $
  statistics "voice statistics"
    max-storage-duration "longest time statistics are kept" $
      day "days"
        <1-2> :o "days" $
      hour "hours"
        <1-48> :o "hours" $
      minute "minutes"
        <1-2880> :o "minutes" $
    display-format "display format"
      separator "field separator" $
        comma :o $
        semicolon :o $
        tab :o $
    field-params "field parameters"
      mcd "media connection drop"
        id :o "threshold" $
      lost-packet "lost packets"
        id :o "threshold" $
      packet-latency "packet latency"
        id :o "milliseconds" $
      packet-jitter "packet jitter"
        id :o "milliseconds" $
    push "push statistics to a server"
      ftp "by ftp"
        max-file-size "largest file"
          id :o "bytes" $
    type "statistics types"
      csr :k "call success rate" $
      iec :k "internal error codes" $
  persistent-storage :sb/o "keep voice data over a reload" $
  pcm "pulse code modulation"
    capture "capture pcm data"
      buffer :sb/o "capture buffer" $
        id :o "buffer size" $
      destination :sb/o "capture destination" $
        word :o "url" $
      on-demand-trigger :sb/o "capture on a trigger" $
      user-trigger-string "digit strings that start and stop a capture"
        word :o "start string"
          word "stop string"
            stream "streams"
              id "stream bit map"
                duration "how long the capture runs"
                  id "minutes, 0 without end" $
  dsp "digital signal processors"
    waitstate "dsp wait states"
      id :o "wait states" $
  register "voice register"
    global "global sip phone settings" @(config-register-global)#=generic.cfm
    pool "sip phone pool"
      <1-100> :k "pool tag" @(config-register-pool)#=generic.cfm
    dn "sip directory number"
      <1-720> :k "directory number tag" @(config-register-dn)#=generic.cfm
voice-port "voice port configuration"
  word :k "voice port (slot/subunit/port, or slot/port:ds0-group)" @(config-voiceport)#=voice_port.cfm
dial-peer "dial peer configuration"
  cor "class of restriction"
    custom @(config-dp-cor)#=generic.cfm
    list
      word :k @(config-dp-corlist)#=generic.cfm
  voice "voice dial peer"
    <1-1073741823> :k "dial peer tag"
      voip "voice over ip" @(config-dial-peer)#=dial_peer.cfm
      pots "plain old telephone service" @(config-dial-peer)#=dial_peer.cfm
      vofr "voice over frame relay" @(config-dial-peer)#=dial_peer.cfm
      voatm "voice over atm" @(config-dial-peer)#=dial_peer.cfm
      mmoip "multimedia mail over ip" @(config-dial-peer)#=dial_peer.cfm
  hunt "dial peer hunting choice"
    id :o "hunting choice" $
  terminator "end of a dialled number"
    word :o "terminating character" $
  outbound "outbound dial peers"
    status-check "check the status of outbound dial peers"
      pots "pots dial peers" $
      voip "voip dial peers" $
  no-match "when no dial peer matches"
    isdn "isdn calls"
      disconnect-cause "disconnect cause" $
        <1-127> :o "cause code" $
  search "dial peer search"
    type "order of the search"
      data :o "data dial peers"
        voice "then voice dial peers" $
      voice :o "voice dial peers"
        data "then data dial peers" $
      none :o "no preference" $
sip-ua "sip user agent configuration" @(config-sip-ua)#=sip_ua.cfm
isdn "isdn settings"
  %ISDNSWITCH
  voice-call-failure "cause code for a failed voice call"
    id :o "cause code" $
ccm-manager "call manager settings"
  switchback "switchback to the primary call manager"
    graceful :o "when the calls have ended" $
    immediate :o "at once" $
    uptime-delay :o "after the primary has been up"
      <1-1440> "minutes" $
  application "call manager application"
    redundant "redundancy"
      port "port of the redundancy link"
        id :o "port number" $
  fax "fax settings of the voice service"
    protocol "fax relay protocol"
      cisco :o "cisco fax relay" $
      none :o "no fax relay" $
  shut-interfaces-tftp-fails "shut the interfaces when the configuration download fails"
    <1-1000> :o "failed downloads" $
  mgcp "media gateway control protocol" $
  config "download the configuration" $
    server "tftp servers"
      a.b.c.d :k "server address" $
  redundant-host "backup call managers"
    word :o "host" $
      word "second host" $
ivr "interactive voice response"
  prompt "prompts"
    cutoff-threshold "prompt cut-off"
      id :o "milliseconds" $
    streamed "prompts that are streamed"
      none :o "no prompt is streamed" $
      all :o "every prompt is streamed" $
      flash :o "from flash" $
      http :o "by http" $
      tftp :o "by tftp" $
    memory "prompt memory"
      id :o "kilobytes" $
  record "recording"
    memory "recording memory"
      system "for the whole system"
        id :o "kilobytes" $
      session "for one session"
        id :o "kilobytes" $
    jitter "jitter buffer of a recording"
      tftp: "recordings to tftp"
        id :o "milliseconds" $
      http: "recordings to http"
        id :o "milliseconds" $
    cpu "cpu limit of recording"
      flash "recordings to flash"
        <1-100> :o "per cent" $
call "call settings"
  fallback "call fallback"
    probe-timeout "probe timeout"
      id :o "seconds" $
    wait-timeout "wait timeout"
      id :o "seconds" $
    threshold "fallback thresholds"
      icpif "calculated planning impairment factor"
        id :o "icpif value" $
      delay "delay threshold"
        id :o "milliseconds"
          loss "packet loss"
            id "per cent" $
    jitter-probe "jitter probes"
      precedence "precedence of the probe"
        id :o "precedence" $
      num-packets "packets in a probe"
        <2-50> :o "packets" $
      priority-queue "use the priority queue" $
      dscp "dscp of the probe"
        id :o "dscp value" $
    cache-size "cache size"
      <1-4096> :o "entries" $
    cache-timeout "cache timeout"
      id :o "seconds" $
    key-chain "md5 key chain" $
      word :o "key chain name" $
    reject-cause-code "cause code of a rejected call"
      <1-127> :o "cause code" $
    instantaneous-value-weight "weight of the newest value"
      id :o "per cent" $
    expect-factor "expected impairment"
      id :o "expect factor" $
    monitor "monitor the destinations without fallback" $
    icmp-ping "icmp ping probes" $
      codec "codec of the probe"
        &codecfile.cfm :-k/o "codec" $
          size "probe size"
            id "bytes" $
              count "probes"
                id "probes" $
                  interval "interval between probes"
                    id "seconds" $
                      loss "loss threshold"
                        id "per cent" $
                          timeout "probe timeout"
                            id "milliseconds" $
    active "fallback on" $
      icpif :o "by icpif" $
      delay :o "by delay and loss" $
    map "fallback map"
      <1-16> :k "map tag"
        target "target of the map"
          a.b.c.d :k "target address" $
        address-list "addresses of the map"
          line *
        subnet "subnet of the map"
          a.b.c.d :k "network"
            a.b.c.d "mask" $
  treatment "call treatment"
    on "call treatment on" $
    action "treatment of a call"
      reject :o "reject the call" $
      hangup :o "hang up" $
      playmsg :o "play a message"
        word "message url" $
    cause-code "cause code of a treated call"
      busy :o "user busy" $
      no-qos :o "no quality of service" $
      no-resource :o "no resource" $
    isdn-reject "cause code of a rejected isdn call"
      <34-47> :o "cause code" $
  rsvp-sync "rsvp synchronisation" $
    resv-timer "reservation timer"
      <1-60> :o "seconds" $
  threshold "call thresholds"
    poll-interval "poll intervals"
      cpu-avg "average cpu"
        <10-300> :o "seconds" $
      memory "memory for prompts"
        <1-60> :o "seconds" $
    global "global thresholds"
      %CALLTHRESHOLD
    interface "interface thresholds"
      &interfacefile.cfm "interface type"
        <number> :k "interface number"
          int-calls :k "calls on the interface"
            low "low water mark"
              id :o "value"
                high "high water mark"
                  id "value" $
  rscmon "resource monitor"
    update-timer "update timer"
      id :o "milliseconds" $
  application "call application"
    voice "voice application"
      word :k "application name"
        line * :o
    alternate "application used when the dial peer names none"
      word :o "application name" $
    global "global application"
      word :o "application name" $
call-history-mib "call history mib"
  retain-timer "time an entry is kept"
    id :o "minutes" $
  max-size "largest table"
    id :o "entries" $
telephony-service "telephony service configuration" @(config-telephony)#=telephony_service.cfm
stcapp $ "skinny telephony control application"
  ccm-group "call manager group"
    id :o "group number" $
  feature "stcapp features"
    line *
  register "register phones"
    line *
  timer "stcapp timers"
    line *

file voice_service.cfm
allow-connections "connection types allowed"
  h323 :k "h.323"
    to "to h.323 or sip"
      h323 :k $
      sip :k $
  sip :k "sip connections"
    to "to h.323 or sip"
      h323 :k $
      sip :k $
fax "fax protocol of the voice service"
  protocol "fax protocol"
    t38 :o "t.38" $
      line *
    pass-through :o "pass-through of fax"
      line *
    none :o "no fax protocol" $
    cisco :o "cisco fax relay" $
modem "modem settings of the voice service"
  passthrough "modem pass-through"
    line *
sip "sip settings" @(conf-serv-sip)#=generic.cfm
h323 "h.323 settings" @(conf-serv-h323)#=generic.cfm
shutdown "shut the voice service down" $
  forced "at once" $
mode "mode of the voice service"
  border-element :o "cube" $
    license "license"
      capacity "capacity"
        id "sessions" $
media "media settings"
  line *
supplementary-service "supplementary services"
  line *
redirect "redirect settings"
  line *
address-hiding "hide the addresses" $
rtp-port "rtp port range"
  line *
ip "ip settings"
  address "trusted addresses"
    trusted "trusted list" @(cfg-iptrust-list)#=generic.cfm
      authenticate "authenticate the trusted addresses" $

file voice_class_codec.cfm
codec "codec of this list"
  preference "preference of a codec"
    <1-14> :k "order of preference"
      &codecfile.cfm :-k/o "codec" $
        bytes "bytes per frame"
          id "bytes" $

file dial_peer.cfm
description "dial peer description"
  line * :o
destination-pattern "number that this dial peer takes"
  word :o "pattern (digits, ., T, [ ])" $
answer-address "calling number that selects this dial peer"
  word :o "pattern" $
incoming "incoming calls"
  called-number "called number that selects this dial peer"
    word :o "pattern" $
  uri "uri that selects this dial peer"
    from :k "from header"
      word :o "uri class tag" $
    to :k "to header"
      word :o "uri class tag" $
    via :k "via header"
      word :o "uri class tag" $
    request :k "request uri"
      word :o "uri class tag" $
session "session settings"
  target "where the session goes"
    sip-server :o "the sip server of the user agent" $
    ras :o "the gatekeeper" $
    word :o "target (ipv4:A.B.C.D, dns:NAME)" $
  protocol "session protocol"
    sipv2 :o "sip" $
    cisco :o "cisco session protocol" $
  transport "session transport"
    udp :o "udp transport" $
    tcp :o "tcp transport" $
      tls "tls over tcp" $
codec "codec of this dial peer"
  &codecfile.cfm :-k/o "codec" $
    bytes "bytes per frame"
      id "bytes" $
  transparent :o "pass the codec through" $
voice-class "voice class settings"
  codec "codec preference list"
    <1-10000> :o "voice class tag" $
      offer-all "offer every codec of the list" $
  sip "sip settings"
    line *
  h323 "h.323 settings"
    <1-10000> :o "voice class tag" $
  e164-pattern-map "e164 pattern map"
    <1-10000> :o "voice class tag" $
dtmf-relay "dtmf relay"
  line * :o
port "voice port of this dial peer"
  word :o "voice port" $
forward-digits "digits passed on"
  all :o "all digits" $
  implicit :o "the digits that the pattern does not name" $
  id :o "number of digits" $
prefix "digits added in front"
  word :o "prefix" $
direct-inward-dial "direct inward dialling" $
translation-profile "translation profile"
  incoming :k "incoming calls"
    word :o "profile" $
  outgoing :k "outgoing calls"
    word :o "profile" $
preference "preference of this dial peer"
  id :o "preference" $
huntstop "stop hunting at this dial peer" $
sip-register :sn "register the number of this dial peer with the sip registrar" $
vad :sn "voice activity detection" $
  aggressive "aggressive voice activity detection" $
dtmf "dtmf settings"
  line *
fax "fax settings of the dial peer"
  rate "fax rate"
    line * :o
  protocol "fax protocol"
    line * :o
max-conn "most connections"
  <1-2147483647> :o "connections" $
req-qos "requested quality of service"
  line * :o
acc-qos "acceptable quality of service"
  line * :o
ip "ip settings"
  qos "quality of service"
    dscp "dscp marking"
      line *
rtp "real-time transport protocol"
  payload-type "payload types"
    line *
playout-delay "playout delay"
  line *
media "media path"
  flow-through :o "media through this router" $
  flow-around :o "media around this router" $
no-vad "no voice activity detection" $
supplementary-service "supplementary services"
  line *
progress_ind "progress indicator"
  line *
trunkgroup "trunk group"
  word :k "trunk group" $
    <1-64> "preference" $
shutdown "shut the dial peer down" $
information-type "information type"
  voice :o "voice calls" $
  fax :o "fax calls" $
  video :o "video calls" $
tech-prefix "technology prefix"
  word :o "prefix" $
call-block "call blocking"
  line *
corlist "class of restriction list"
  incoming :k "incoming calls"
    word :o "list" $
  outgoing :k "outgoing calls"
    word :o "list" $

file voice_port.cfm
description "voice port description"
  line * :o
shutdown "shut the voice port down" $
signal "signalling"
  loopStart :o "loop start" $
  groundStart :o "ground start" $
  wink-start :o "wink start" $
  immediate :o "immediate start" $
  delay-dial :o "delay dial" $
  kewlstart :o "kewl start" $
cptone "call progress tone of a country"
  word :o "country code" $
connection "private line settings"
  plar :k "private line automatic ringdown"
    word :o "number" $
  trunk :k "trunk connection"
    word :o "number" $
  tie-line :k "tie line"
    word :o "number" $
station-id "caller id of this port"
  name :k "caller name"
    line * :o
  number :k "caller number"
    word :o "number" $
timeouts "voice port timeouts"
  initial "before the first digit"
    id :o "seconds" $
  interdigit "between digits"
    id :o "seconds" $
  ringing "ringing timeout"
    id :o "seconds" $
  wait-release "wait before release"
    id :o "seconds" $
  call-disconnect "call disconnect"
    id :o "seconds" $
timing "signal timing"
  line *
echo-cancel "echo cancellation"
  line *
input "input settings"
  gain "input gain"
    line * :o
output "output settings"
  attenuation "output attenuation"
    line * :o
impedance "terminating impedance"
  line * :o
caller-id "caller id"
  enable "caller id on" $
  line *
compand-type "companding"
  u-law :o "u-law companding" $
  a-law :o "a-law companding" $
ring "ring settings"
  line *
bearer-cap "bearer capability"
  line *
vad-extended "extended voice activity detection" $
playout-delay "playout delay"
  line *
translation-profile "translation profile"
  incoming :k "incoming calls"
    word :o "profile" $
  outgoing :k "outgoing calls"
    word :o "profile" $

file sip_ua.cfm
registrar "sip registrar"
  <1-6> :k "registrar index"
    word :o "ipv4:A.B.C.D or dns:NAME" $
      line *
  word :o "ipv4:A.B.C.D or dns:NAME" $
    line *
sip-server "sip server"
  word :o "ipv4:A.B.C.D or dns:NAME" $
credentials "registration credentials"
  line *
authentication "digest authentication"
  username "user name"
    line * :o
retry "retries"
  line *
timers "sip timers"
  line *
transport "sip transport"
  line *
keepalive "keepalive of the sip server"
  line *
mwi-server "message waiting server"
  line *
nat "nat traversal"
  line *
set "sip settings"
  line *
no-alert "no alert" $

file telephony_service.cfm
max-ephones "most ip phones"
  <1-450> :o "ip phones" $
max-dn "most directory numbers"
  <1-1500> :o "directory numbers" $
    preference "preference of the directory numbers"
      id "preference" $
    no-reg "do not register" $
ip "ip settings"
  source-address "address the phones register with"
    a.b.c.d :o "address" $
      port "port that the phones register with"
        <2000-9999> "port" $
create "create files for the phones"
  cnf-files "configuration files" $
    version-stamp "version stamp"
      line *
load "phone firmware"
  line *
max-conferences "most conferences"
  line * :o
web "web access"
  line *
dialplan-pattern "dial plan pattern"
  line *
voicemail "voice mail number"
  word :o "number" $
time-format "time format"
  12 :o "12 hours" $
  24 :o "24 hours" $
date-format "date format"
  line * :o
system "system message"
  message "message shown on the phones"
    line * :o
transfer-system "transfer method"
  line * :o
transfer-pattern "transfer pattern"
  line *
secondary-dialtone "secondary dial tone"
  word :o "digit" $
keepalive "keepalive of the phones"
  id :o "seconds" $
timeouts "phone timeouts"
  line *
url "urls"
  line *
moh "music on hold"
  word :o "file" $
multicast "multicast music on hold"
  line *
auto "automatic"
  assign "assign directory numbers to phones"
    line *
