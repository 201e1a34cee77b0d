unicast-routing|unicast-routing|k||
  <cr>||||
  !
!
cef|cef|k/o||
  <cr>||sb||
  !
  distributed|distributed|k||
    <cr>||||
    !
  !
  optimize|cef optimizations|k||
    neighbor|neighbor|k||
      resolution|resolution|k||
        <cr>||||
        !
      !
    !
  !
  load-sharing|load sharing|k||
    algorithm|algorithm|k||
      original|original|k||
        <cr>||||
        !
      !
      universal|universal|k||
        <cr>||||
        !
        word|fixed identifier|o||
          <cr>||||
          !
        !
      !
      include-ports|include-ports|k||
        source|source|k||
          <cr>||||
          !
          destination|destination|k||
            <cr>||||
            !
          !
        !
        destination|destination|k||
          <cr>||||
          !
        !
      !
    !
  !
!
multicast-routing|multicast-routing|k||
  <cr>||||
  !
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
multicast|multicast|k||
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
route|establish static routes|k||
  ipv6/prefix|ipv6 prefix|k||
    &interfacefile.cfm|interface type|k||
      <number>|interface number|k||
        <cr>||||
        !
        word|ipv6 address of the next hop|k||
          <cr>||||
          !
          id|administrative distance|||
            <cr>||||
            !
            tag|set tag for this route|k||
              id|tag value|||
                <cr>||||
                !
                line|further options|lb/le/wa||
                  <cr>||||
                  !
                !
              !
            !
            name|specify name of the next hop|k||
              word|name of the next hop|||
                <cr>||||
                !
                line|further options|lb/le/wa||
                  <cr>||||
                  !
                !
              !
            !
            permanent|permanent route|k||
              <cr>||||
              !
              line|further options|lb/le/wa||
                <cr>||||
                !
              !
            !
            track|install route depending on tracked item|k||
              id|tracked object number|||
                <cr>||||
                !
                line|further options|lb/le/wa||
                  <cr>||||
                  !
                !
              !
            !
            multicast|route only for multicast|k||
              <cr>||||
              !
            !
            unicast|route only for unicast|k||
              <cr>||||
              !
            !
          !
          tag|set tag for this route|k||
            id|tag value|||
              <cr>||||
              !
              line|further options|lb/le/wa||
                <cr>||||
                !
              !
            !
          !
          name|specify name of the next hop|k||
            word|name of the next hop|||
              <cr>||||
              !
              line|further options|lb/le/wa||
                <cr>||||
                !
              !
            !
          !
          permanent|permanent route|k||
            <cr>||||
            !
            line|further options|lb/le/wa||
              <cr>||||
              !
            !
          !
          track|install route depending on tracked item|k||
            id|tracked object number|||
              <cr>||||
              !
              line|further options|lb/le/wa||
                <cr>||||
                !
              !
            !
          !
          multicast|route only for multicast|k||
            <cr>||||
            !
          !
          unicast|route only for unicast|k||
            <cr>||||
            !
          !
        !
        id|administrative distance|||
          <cr>||||
          !
          tag|set tag for this route|k||
            id|tag value|||
              <cr>||||
              !
              line|further options|lb/le/wa||
                <cr>||||
                !
              !
            !
          !
          name|specify name of the next hop|k||
            word|name of the next hop|||
              <cr>||||
              !
              line|further options|lb/le/wa||
                <cr>||||
                !
              !
            !
          !
          permanent|permanent route|k||
            <cr>||||
            !
            line|further options|lb/le/wa||
              <cr>||||
              !
            !
          !
          track|install route depending on tracked item|k||
            id|tracked object number|||
              <cr>||||
              !
              line|further options|lb/le/wa||
                <cr>||||
                !
              !
            !
          !
          multicast|route only for multicast|k||
            <cr>||||
            !
          !
          unicast|route only for unicast|k||
            <cr>||||
            !
          !
        !
        tag|set tag for this route|k||
          id|tag value|||
            <cr>||||
            !
            line|further options|lb/le/wa||
              <cr>||||
              !
            !
          !
        !
        name|specify name of the next hop|k||
          word|name of the next hop|||
            <cr>||||
            !
            line|further options|lb/le/wa||
              <cr>||||
              !
            !
          !
        !
        permanent|permanent route|k||
          <cr>||||
          !
          line|further options|lb/le/wa||
            <cr>||||
            !
          !
        !
        track|install route depending on tracked item|k||
          id|tracked object number|||
            <cr>||||
            !
            line|further options|lb/le/wa||
              <cr>||||
              !
            !
          !
        !
        multicast|route only for multicast|k||
          <cr>||||
          !
        !
        unicast|route only for unicast|k||
          <cr>||||
          !
        !
      !
    !
    word|next hop address or interface|k||
      <cr>||||
      !
      word|ipv6 address of the next hop|k||
        <cr>||||
        !
        id|administrative distance|||
          <cr>||||
          !
          tag|set tag for this route|k||
            id|tag value|||
              <cr>||||
              !
              line|further options|lb/le/wa||
                <cr>||||
                !
              !
            !
          !
          name|specify name of the next hop|k||
            word|name of the next hop|||
              <cr>||||
              !
              line|further options|lb/le/wa||
                <cr>||||
                !
              !
            !
          !
          permanent|permanent route|k||
            <cr>||||
            !
            line|further options|lb/le/wa||
              <cr>||||
              !
            !
          !
          track|install route depending on tracked item|k||
            id|tracked object number|||
              <cr>||||
              !
              line|further options|lb/le/wa||
                <cr>||||
                !
              !
            !
          !
          multicast|route only for multicast|k||
            <cr>||||
            !
          !
          unicast|route only for unicast|k||
            <cr>||||
            !
          !
        !
        tag|set tag for this route|k||
          id|tag value|||
            <cr>||||
            !
            line|further options|lb/le/wa||
              <cr>||||
              !
            !
          !
        !
        name|specify name of the next hop|k||
          word|name of the next hop|||
            <cr>||||
            !
            line|further options|lb/le/wa||
              <cr>||||
              !
            !
          !
        !
        permanent|permanent route|k||
          <cr>||||
          !
          line|further options|lb/le/wa||
            <cr>||||
            !
          !
        !
        track|install route depending on tracked item|k||
          id|tracked object number|||
            <cr>||||
            !
            line|further options|lb/le/wa||
              <cr>||||
              !
            !
          !
        !
        multicast|route only for multicast|k||
          <cr>||||
          !
        !
        unicast|route only for unicast|k||
          <cr>||||
          !
        !
      !
      id|administrative distance|||
        <cr>||||
        !
        tag|set tag for this route|k||
          id|tag value|||
            <cr>||||
            !
            line|further options|lb/le/wa||
              <cr>||||
              !
            !
          !
        !
        name|specify name of the next hop|k||
          word|name of the next hop|||
            <cr>||||
            !
            line|further options|lb/le/wa||
              <cr>||||
              !
            !
          !
        !
        permanent|permanent route|k||
          <cr>||||
          !
          line|further options|lb/le/wa||
            <cr>||||
            !
          !
        !
        track|install route depending on tracked item|k||
          id|tracked object number|||
            <cr>||||
            !
            line|further options|lb/le/wa||
              <cr>||||
              !
            !
          !
        !
        multicast|route only for multicast|k||
          <cr>||||
          !
        !
        unicast|route only for unicast|k||
          <cr>||||
          !
        !
      !
      tag|set tag for this route|k||
        id|tag value|||
          <cr>||||
          !
          line|further options|lb/le/wa||
            <cr>||||
            !
          !
        !
      !
      name|specify name of the next hop|k||
        word|name of the next hop|||
          <cr>||||
          !
          line|further options|lb/le/wa||
            <cr>||||
            !
          !
        !
      !
      permanent|permanent route|k||
        <cr>||||
        !
        line|further options|lb/le/wa||
          <cr>||||
          !
        !
      !
      track|install route depending on tracked item|k||
        id|tracked object number|||
          <cr>||||
          !
          line|further options|lb/le/wa||
            <cr>||||
            !
          !
        !
      !
      multicast|route only for multicast|k||
        <cr>||||
        !
      !
      unicast|route only for unicast|k||
        <cr>||||
        !
      !
    !
  !
  vrf|vrf of the route|k||
    word|vrf name|k||
      ipv6/prefix|ipv6 prefix|k||
        &interfacefile.cfm|interface type|k||
          <number>|interface number|k||
            <cr>||||
            !
            word|ipv6 address of the next hop|k||
              <cr>||||
              !
              id|administrative distance|||
                <cr>||||
                !
                tag|set tag for this route|k||
                  id|tag value|||
                    <cr>||||
                    !
                    line|further options|lb/le/wa||
                      <cr>||||
                      !
                    !
                  !
                !
                name|specify name of the next hop|k||
                  word|name of the next hop|||
                    <cr>||||
                    !
                    line|further options|lb/le/wa||
                      <cr>||||
                      !
                    !
                  !
                !
                permanent|permanent route|k||
                  <cr>||||
                  !
                  line|further options|lb/le/wa||
                    <cr>||||
                    !
                  !
                !
                track|install route depending on tracked item|k||
                  id|tracked object number|||
                    <cr>||||
                    !
                    line|further options|lb/le/wa||
                      <cr>||||
                      !
                    !
                  !
                !
                multicast|route only for multicast|k||
                  <cr>||||
                  !
                !
                unicast|route only for unicast|k||
                  <cr>||||
                  !
                !
              !
              tag|set tag for this route|k||
                id|tag value|||
                  <cr>||||
                  !
                  line|further options|lb/le/wa||
                    <cr>||||
                    !
                  !
                !
              !
              name|specify name of the next hop|k||
                word|name of the next hop|||
                  <cr>||||
                  !
                  line|further options|lb/le/wa||
                    <cr>||||
                    !
                  !
                !
              !
              permanent|permanent route|k||
                <cr>||||
                !
                line|further options|lb/le/wa||
                  <cr>||||
                  !
                !
              !
              track|install route depending on tracked item|k||
                id|tracked object number|||
                  <cr>||||
                  !
                  line|further options|lb/le/wa||
                    <cr>||||
                    !
                  !
                !
              !
              multicast|route only for multicast|k||
                <cr>||||
                !
              !
              unicast|route only for unicast|k||
                <cr>||||
                !
              !
            !
            id|administrative distance|||
              <cr>||||
              !
              tag|set tag for this route|k||
                id|tag value|||
                  <cr>||||
                  !
                  line|further options|lb/le/wa||
                    <cr>||||
                    !
                  !
                !
              !
              name|specify name of the next hop|k||
                word|name of the next hop|||
                  <cr>||||
                  !
                  line|further options|lb/le/wa||
                    <cr>||||
                    !
                  !
                !
              !
              permanent|permanent route|k||
                <cr>||||
                !
                line|further options|lb/le/wa||
                  <cr>||||
                  !
                !
              !
              track|install route depending on tracked item|k||
                id|tracked object number|||
                  <cr>||||
                  !
                  line|further options|lb/le/wa||
                    <cr>||||
                    !
                  !
                !
              !
              multicast|route only for multicast|k||
                <cr>||||
                !
              !
              unicast|route only for unicast|k||
                <cr>||||
                !
              !
            !
            tag|set tag for this route|k||
              id|tag value|||
                <cr>||||
                !
                line|further options|lb/le/wa||
                  <cr>||||
                  !
                !
              !
            !
            name|specify name of the next hop|k||
              word|name of the next hop|||
                <cr>||||
                !
                line|further options|lb/le/wa||
                  <cr>||||
                  !
                !
              !
            !
            permanent|permanent route|k||
              <cr>||||
              !
              line|further options|lb/le/wa||
                <cr>||||
                !
              !
            !
            track|install route depending on tracked item|k||
              id|tracked object number|||
                <cr>||||
                !
                line|further options|lb/le/wa||
                  <cr>||||
                  !
                !
              !
            !
            multicast|route only for multicast|k||
              <cr>||||
              !
            !
            unicast|route only for unicast|k||
              <cr>||||
              !
            !
          !
        !
        word|next hop address or interface|k||
          <cr>||||
          !
          word|ipv6 address of the next hop|k||
            <cr>||||
            !
            id|administrative distance|||
              <cr>||||
              !
              tag|set tag for this route|k||
                id|tag value|||
                  <cr>||||
                  !
                  line|further options|lb/le/wa||
                    <cr>||||
                    !
                  !
                !
              !
              name|specify name of the next hop|k||
                word|name of the next hop|||
                  <cr>||||
                  !
                  line|further options|lb/le/wa||
                    <cr>||||
                    !
                  !
                !
              !
              permanent|permanent route|k||
                <cr>||||
                !
                line|further options|lb/le/wa||
                  <cr>||||
                  !
                !
              !
              track|install route depending on tracked item|k||
                id|tracked object number|||
                  <cr>||||
                  !
                  line|further options|lb/le/wa||
                    <cr>||||
                    !
                  !
                !
              !
              multicast|route only for multicast|k||
                <cr>||||
                !
              !
              unicast|route only for unicast|k||
                <cr>||||
                !
              !
            !
            tag|set tag for this route|k||
              id|tag value|||
                <cr>||||
                !
                line|further options|lb/le/wa||
                  <cr>||||
                  !
                !
              !
            !
            name|specify name of the next hop|k||
              word|name of the next hop|||
                <cr>||||
                !
                line|further options|lb/le/wa||
                  <cr>||||
                  !
                !
              !
            !
            permanent|permanent route|k||
              <cr>||||
              !
              line|further options|lb/le/wa||
                <cr>||||
                !
              !
            !
            track|install route depending on tracked item|k||
              id|tracked object number|||
                <cr>||||
                !
                line|further options|lb/le/wa||
                  <cr>||||
                  !
                !
              !
            !
            multicast|route only for multicast|k||
              <cr>||||
              !
            !
            unicast|route only for unicast|k||
              <cr>||||
              !
            !
          !
          id|administrative distance|||
            <cr>||||
            !
            tag|set tag for this route|k||
              id|tag value|||
                <cr>||||
                !
                line|further options|lb/le/wa||
                  <cr>||||
                  !
                !
              !
            !
            name|specify name of the next hop|k||
              word|name of the next hop|||
                <cr>||||
                !
                line|further options|lb/le/wa||
                  <cr>||||
                  !
                !
              !
            !
            permanent|permanent route|k||
              <cr>||||
              !
              line|further options|lb/le/wa||
                <cr>||||
                !
              !
            !
            track|install route depending on tracked item|k||
              id|tracked object number|||
                <cr>||||
                !
                line|further options|lb/le/wa||
                  <cr>||||
                  !
                !
              !
            !
            multicast|route only for multicast|k||
              <cr>||||
              !
            !
            unicast|route only for unicast|k||
              <cr>||||
              !
            !
          !
          tag|set tag for this route|k||
            id|tag value|||
              <cr>||||
              !
              line|further options|lb/le/wa||
                <cr>||||
                !
              !
            !
          !
          name|specify name of the next hop|k||
            word|name of the next hop|||
              <cr>||||
              !
              line|further options|lb/le/wa||
                <cr>||||
                !
              !
            !
          !
          permanent|permanent route|k||
            <cr>||||
            !
            line|further options|lb/le/wa||
              <cr>||||
              !
            !
          !
          track|install route depending on tracked item|k||
            id|tracked object number|||
              <cr>||||
              !
              line|further options|lb/le/wa||
                <cr>||||
                !
              !
            !
          !
          multicast|route only for multicast|k||
            <cr>||||
            !
          !
          unicast|route only for unicast|k||
            <cr>||||
            !
          !
        !
      !
    !
  !
  static|static|k||
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
!
router|router|k||
  ospf|ospf|k||
    id|id|k||
      <cr>||||@(config-rtr)# router_ospf.cfm
      !
    !
  !
  eigrp|eigrp|k||
    id|id|k||
      <cr>||||@(config-rtr)# router_eigrp.cfm
      !
    !
    word|word|k||
      <cr>||||@(config-rtr)# router_eigrp.cfm
      !
    !
  !
  rip|rip|k||
    word|word|k||
      <cr>||||@(config-rtr)# router_rip.cfm
      !
    !
  !
!
access-list|access-list|k||
  word|word|k||
    <cr>||||@(config-ipv6-acl)# acl_ipv6.cfm
    !
  !
!
prefix-list|prefix-list|k||
  sequence-number|sequence numbers in prefix lists|k||
    <cr>||||
    !
  !
  word|word|k/n||
    seq|seq|k||
      id|id|k/n||
        permit|permit|o||
          ipv6/prefix|ipv6/prefix|o||
            <cr>||||
            !
            ge|ge|||
              id|id|o||
                <cr>||||
                !
                le|le|||
                  id|id|o||
                    <cr>||||
                    !
                  !
                !
              !
            !
            le|le|||
              id|id|o||
                <cr>||||
                !
              !
            !
          !
        !
        deny|deny|o||
          ipv6/prefix|ipv6/prefix|o||
            <cr>||||
            !
            ge|ge|||
              id|id|o||
                <cr>||||
                !
                le|le|||
                  id|id|o||
                    <cr>||||
                    !
                  !
                !
              !
            !
            le|le|||
              id|id|o||
                <cr>||||
                !
              !
            !
          !
        !
      !
    !
    line|line|lb/le/wa||
      <cr>||||
      !
    !
  !
!
source-route|source-route|k/sn||
  <cr>||||
  !
!
traffic|ipv6 traffic|k||
  interface-statistics|per-interface statistics|k||
    <cr>||||
    !
  !
!
mfib|ipv6 multicast forwarding|k||
  <cr>||||
  !
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
dhcp-relay|dhcpv6 relay settings|k||
  option|option|k||
    vpn|vpn|k||
      <cr>||||
      !
    !
    remote-id|remote-id|k||
      format|format|k||
        line|line|lb/le/wa||
          <cr>||||
          !
        !
      !
    !
  !
  source-interface|source-interface|k||
    &interfacefile.cfm|interface type|o||
      <number>|interface number|o||
        <cr>||||
        !
      !
    !
  !
!
inspect|ipv6 inspection|k||
  name|inspection rule|k||
    word|word|k||
      &protocolfile.cfm|&protocolfile.cfm|k||
        <cr>||||
        !
        line|line|lb/le/wa||
          <cr>||||
          !
        !
      !
      word|word|k||
        <cr>||||
        !
        line|line|lb/le/wa||
          <cr>||||
          !
        !
      !
    !
  !
  max-incomplete|max-incomplete|k||
    low|low|k||
      id|id|o||
        <cr>||||
        !
      !
    !
    high|high|k||
      id|id|o||
        <cr>||||
        !
      !
    !
  !
  one-minute|one-minute|k||
    low|low|k||
      id|id|o||
        <cr>||||
        !
      !
    !
    high|high|k||
      id|id|o||
        <cr>||||
        !
      !
    !
  !
  udp|udp|k||
    idle-time|idle-time|k||
      id|id|o||
        <cr>||||
        !
      !
    !
  !
  tcp|tcp|k||
    idle-time|idle-time|k||
      id|id|o||
        <cr>||||
        !
      !
    !
    finwait-time|finwait-time|k||
      id|id|o||
        <cr>||||
        !
      !
    !
    synwait-time|synwait-time|k||
      id|id|o||
        <cr>||||
        !
      !
    !
    max-incomplete|max-incomplete|k||
      host|host|k||
        id|id|||
          block-time|block-time|k||
            id|id|o||
              <cr>||||
              !
            !
          !
        !
      !
    !
  !
  hashtable-size|hashtable-size|k||
    id|id|o||
      <cr>||||
      !
    !
  !
  alert-off|alert-off|k||
    <cr>||||
    !
  !
  audit-trail|audit-trail|k||
    <cr>||||
    !
  !
  routing-header|routing-header|k||
    <cr>||||
    !
  !
!
rip|ipv6 rip|k||
  vrf-mode|vrf-mode|k||
    enable|enable|k||
      <cr>||||
      !
    !
  !
!
spd|ipv6 selective packet discard|k||
  queue|queue|k||
    min-threshold|min-threshold|k||
      id|id|o||
        <cr>||||
        !
      !
    !
    max-threshold|max-threshold|k||
      id|id|o||
        <cr>||||
        !
      !
    !
  !
!
mux|ipv6 mux|k||
  cache|cache|k||
    id|id|o||
      <cr>||||
      !
    !
  !
!
icmp|icmp|k||
  error-interval|error-interval|k||
    id|id|||
      <cr>||||
      !
      id|id|||
        <cr>||||
        !
      !
    !
  !
!
ioam|ioam|k||
  timestamp|timestamp|k||
    <cr>||||
    !
  !
!
dhcp|dhcp|k||
  pool|pool|k||
    word|word|k||
      <cr>||||@(config-dhcpv6)# ipv6_dhcp_pool.cfm
      !
    !
  !
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
general-prefix|general-prefix|k||
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
neighbor|neighbor|k||
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
nd|nd|k||
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
local|local|k||
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
host|host|k||
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
flowset|flowset|k||
  <cr>||||
  !
!
hop-limit|hop-limit|k||
  id|id|||
    <cr>||||
    !
  !
!
mld|mld|k||
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
pim|pim|k||
  line|line|lb/le/wa||
    <cr>||||
    !
  !
!
