ethernet|ieee 802.3
loopback|loopback interface
