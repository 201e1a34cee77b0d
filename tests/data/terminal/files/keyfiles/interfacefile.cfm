ethernet|ieee 802.3
gigabitethernet|gigabitethernet ieee 802.3z
loopback|loopback interface
