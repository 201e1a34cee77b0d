unicast-routing|unicast-routing|k||
  <cr>||||
  !
!
cef|cef|k/sb/o||
  <cr>||||
  !
  distributed|distributed|k||
    <cr>||||
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
  word|ipv6 prefix|k||
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
      word|ipv6 prefix|k||
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
  word|word|k||
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
