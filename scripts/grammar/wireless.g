# Wireless (autonomous access point, router with a radio): the SSIDs and
# band select at the top level, the radio settings of a Dot11Radio
# interface, and transparent bridging (bridge groups of interfaces, the
# bridges with their routing at the top level). A Dot11Radio interface is
# read through the interface table's "dot": the terminal cuts
# "Dot11Radio0" at its first digit.

def CIPHER
  aes-ccm "aes counter mode with cbc-mac" $
  ckip "cisco key integrity protocol" $
  ckip-cmic "ckip with message integrity check" $
  cmic "cisco message integrity check" $
  tkip "temporal key integrity protocol" $
  wep128 "128-bit wep" $
  wep40 "40-bit wep" $

file configuration_mod.cfm
dot11 "ieee 802.11 configuration"
  syslog "log the association events" $
  pause-time "pause after a failed authentication"
    <1-65535> :o "milliseconds" $
  vlan-name "name of a vlan"
    word :k "vlan name"
      vlan "vlan of the name"
        <1-4094> :o "vlan id" $
  ssid "radio service set"
    word :k "ssid name" @(config-ssid)#=dot11_ssid.cfm
  band-select "band select"
    parameters "band select parameters" @(config-dot11-band-select)#=dot11_band_select.cfm
  activity-timeout "inactivity timeout of a client"
    line *
  arp-cache "arp cache" $
    optional "optional arp caching" $
  holdoff-time "hold-off after a failed authentication"
    <1-65555> :o "seconds" $
bridge "bridge group"
  irb "integrated routing and bridging" $
  <1-255> :k "bridge group"
    route "route a protocol"
      ip :k "route ip" $
      ipv6 :k "route ipv6" $
    bridge "bridge a protocol"
      ip :k "bridge ip" $
    protocol "spanning tree protocol"
      ieee :o "ieee 802.1d" $
      vlan-bridge :o "vlan bridge" $
      dec :o "dec spanning tree" $
    priority "bridge priority"
      id :o "priority" $
    aging-time "aging time"
      <10-1000000> :o "seconds" $

file dot11_ssid.cfm
vlan "vlan of this ssid"
  <1-4094> :o "vlan id" $
band-select "steer dual band clients" $
authentication "client authentication"
  open "open authentication" $
    eap "with eap"
      word "eap method list" $
    mac-address "with mac address"
      word "mac method list" $
  shared "shared key authentication" $
    eap "with eap"
      word "eap method list" $
  network-eap "network eap"
    word :o "eap method list" $
  key-management "key management"
    wpa "wi-fi protected access" $ :o
      version "wpa version"
        <1-2> "version" $
    cckm "cisco centralized key management" $ :o
      optional "cckm is optional" $
mbssid "multiple bssid"
  guest-mode "announce this ssid in the beacon" $
guest-mode "announce this ssid in the beacon" $
wpa-psk "pre-shared key"
  ascii "ascii key"
    id :o "0 plain, 7 encrypted"
      word "key" $
    word :o "key" $
  hex "hexadecimal key"
    id :o "0 plain, 7 encrypted"
      word "key" $
    word :o "key" $
max-associations "most clients"
  <1-255> :o "clients" $
accounting "accounting of the ssid"
  word :o "method list" $
mobility "mobility of the ssid"
  network-id "network id"
    id :o "network id" $
infrastructure-ssid "infrastructure ssid" $
  optional "the infrastructure ssid is optional" $

file dot11_band_select.cfm
cycle-count "probe cycles"
  <1-10> :o "cycles" $
cycle-threshold "time between cycles"
  <1-1000> :o "milliseconds" $
expire-supression "suppression expiry"
  <10-200> :o "seconds" $
expire-dual-band "dual band expiry"
  <10-300> :o "seconds" $
client-rssi "least client signal strength"
  <20-90> :o "-dBm" $

file interface.cfm
ssid "radio service set of this radio"
  word :k "ssid name" $
encryption "radio encryption"
  vlan "encryption of a vlan"
    <1-4094> :k "vlan id"
      mode "encryption mode"
        ciphers "cipher suite"
          %CIPHER
            %CIPHER
        wep "wep encryption"
          mandatory :o "wep is required" $
          optional :o "wep is optional" $
  mode "encryption mode"
    ciphers "cipher suite"
      %CIPHER
        %CIPHER
    wep "wep encryption"
      mandatory :o "wep is required" $
      optional :o "wep is optional" $
antenna "radio antenna settings"
  gain "antenna gain"
    id :o "dB" $
  receive "receive antenna"
    diversity :o "antenna diversity" $
    left :o "left antenna" $
    right :o "right antenna" $
  transmit "transmit antenna"
    diversity :o "antenna diversity" $
    left :o "left antenna" $
    right :o "right antenna" $
stbc "space-time block coding" $
mbssid "multiple bssid" $
peakdetect "peak detection" $
dfs "dynamic frequency selection"
  band "dfs band"
    <1-4> :k "band"
      block "do not use the band" $
channel "radio channel"
  least-congested :o "least congested channel" $
    id :lb/le "frequency" $
  width "channel width"
    20 :o "20 MHz" $
    40-above :o "40 MHz above" $
    40-below :o "40 MHz below" $
    80 :o "80 MHz" $
  dfs "dynamic frequency selection" $
  id :o "channel or frequency" $
station-role "role of the radio"
  root :o "access point" $
    access-point "access point" $
    bridge "root bridge" $
    ap-only "access point only" $
  non-root :o "client" $
    bridge "non-root bridge" $
    wireless-clients "with wireless clients" $
  repeater :o "repeater access point" $
  workgroup-bridge :o "workgroup bridge" $
  install :o "installation mode"
    line *
world-mode "world mode"
  line *
beacon "radio beacon settings"
  period "beacon period"
    <20-4000> :o "kilomicroseconds" $
  dtim-period "dtim period"
    <1-100> :o "beacon intervals" $
bridge-group "transparent bridging"
  <1-255> :k "bridge group" $
    subscriber-loop-control "loop control" $
    spanning-disabled "no spanning tree" $
    block-unknown-source "block unknown sources" $
    source-learning :sn "learn the sources" $
    unicast-flooding :sn "flood unknown unicast" $
    port-protected "protected port" $
    path-cost "path cost"
      id :o "cost" $
    priority "port priority"
      id :o "priority" $
    input-address-list "input address list"
      <700-799> :o "list" $
    output-address-list "output address list"
      <700-799> :o "list" $
