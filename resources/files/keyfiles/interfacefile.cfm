ethernet|ieee 802.3
fastethernet|fastethernet ieee 802.3
gigabitethernet|gigabitethernet ieee 802.3z
tengigabitethernet|ten gigabit ethernet
twentyfivegige|twenty five gigabit ethernet
fortygigabitethernet|forty gigabit ethernet
hundredgige|hundred gigabit ethernet
appgigabitethernet|application gigabit ethernet
loopback|loopback interface
vlan|catalyst vlans
port-channel|ethernet channel of interfaces
tunnel|tunnel interface
serial|serial
null|null interface
dialer|dialer interface
virtual-template|virtual template interface
virtual-access|virtual access interface
multilink|multilink-group interface
atm|atm interface
bvi|bridge-group virtual interface
async|async interface
group-async|async group interface
cellular|cellular interface
embedded-service-engine|cisco embedded service engine module
virtualportgroup|virtual port group
nve|network virtualization endpoint interface
bdi|bridge-domain interface
pos|packet over sonet
mfr|multilink frame relay bundle interface
vasileft|vasi left interface
vasiright|vasi right interface
nvi|nat virtual interface
wlan-gigabitethernet|wlan gigabitethernet
dot|dot11 radio interface (dot11radio, cut at its first digit)
service-engine|service engine interface
lisp|locator/id separation protocol virtual interface
vif|pgm multicast host interface
ctunnel|ctunnel interface
lex|lex interface
fcpa|fiber channel
sysclock|telecom-bus clock controller
ucse|ucs e-series server module
wlan-controller|wlan controller interface
mgmtethernet|management ethernet
gmpls|mpls interface
