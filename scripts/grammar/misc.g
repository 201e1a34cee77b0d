# Global commands of routers and switches that open small modes of their own.

def MISCTOP
time-range "define time range entries"
  word :k "time range name" @(config-time-range)#=time_range.cfm
parameter-map "parameter map"
  type "parameter map type"
    inspect "inspect parameters"
      word :k "parameter map name" @(config-profile)#=param_map.cfm
    inspect-global "global inspect parameters" @(config-profile)#=param_map.cfm
    regex "regular expressions"
      word :k "parameter map name" @(config-profile)#=param_map.cfm
    urlfpolicy "url filter policy"
      line * @(config-profile)#=param_map.cfm
    urlfilter "url filter"
      line * @(config-profile)#=param_map.cfm
    umbrella "umbrella"
      global @(config-profile)#=param_map.cfm
    ooo "out-of-order packet handling"
      global @(config-profile)#=param_map.cfm

file time_range.cfm
periodic "periodic time and date"
  word :k "days of the week, weekdays, weekend or daily"
    line * "times and further days"
absolute "absolute time and date"
  start "starting time and date"
    line * "time and date, and an end"
  end "ending time and date"
    line * "time and date"

file param_map.cfm
alert "alert messages"
  on $ :o
  off $ :o
audit-trail "audit trail messages"
  on $ :o
  off $ :o
max-incomplete "maximum half-open sessions"
  low
    id :o $
  high
    id :o $
one-minute "one minute rates"
  low
    id :o $
  high
    id :o $
sessions "session limits"
  maximum
    id :o $
tcp "tcp settings"
  line *
udp "udp settings"
  line *
icmp "icmp settings"
  line *
dns-timeout "dns timeout"
  id :o $
log "logging"
  line *
pattern "regular expression"
  line *
vrf "vrf of the parameters"
  word :o $
