id|an ip protocol number
ip|any internet protocol
ipv6|any ipv6 protocol
tcp|transmission control protocol
udp|user datagram protocol
icmp|internet control message protocol
esp|encapsulation security payload
ahp|authentication header protocol
gre|cisco's gre tunneling
igmp|internet gateway message protocol
ospf|ospf routing protocol
eigrp|cisco's eigrp routing protocol
pim|protocol independent multicast
ipinip|ip in ip tunneling
nos|ka9q nos compatible ip over ip tunneling
pcp|payload compression protocol
sctp|stream control transmission protocol
vrrp|virtual router redundancy protocol
